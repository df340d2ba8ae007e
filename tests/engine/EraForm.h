// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

/// What differs from release to release, as far as it shows.
struct EraForm
{
    char const* version;
    long number;
    bool distribGroups;
    bool pickledCache;
    bool transTest;
    bool onePass;
    bool sqlite;
    bool headers;
    bool events;
    bool presto;
    bool rebuilds;
};

inline constexpr EraForm eraForms[] = {
    // version, number, distrib groups, pickled, test, one pass, sqlite, headers, events, presto, rebuilds
    {"2.2.1", 20201, false, true, true, false, false, true, false, false, false},
    {"2.3.1", 20301, false, true, true, false, false, true, false, false, false},
    {"2.4.0", 20400, false, true, true, false, true, true, false, false, false},
    {"2.5.0", 20500, true, true, true, false, true, true, false, false, false},
    {"2.9.1", 20901, true, true, true, false, false, false, false, false, false},
    {"3.0.6", 30006, true, false, true, false, true, false, false, false, false},
    {"3.1.6", 30106, true, false, true, false, false, false, false, false, false},
    {"3.1.7", 30107, true, false, true, true, false, false, false, false, false},
    {"3.2.2", 30202, true, false, true, true, true, false, false, true, false},
    {"3.2.3", 30203, true, false, false, true, true, false, false, false, false},
    {"3.2.19", 30219, true, false, false, true, true, false, true, true, true},
    {"4.14.0", 41400, true, false, false, true, true, false, true, false, false},
};

/// The form of a release that is in the table, else the oldest.
inline EraForm const& eraForm(std::string_view version)
{
    auto const* const found =
        std::find_if(std::begin(eraForms), std::end(eraForms), [&](EraForm const& form) {
            return form.version == version;
        });
    return found == std::end(eraForms) ? eraForms[0] : *found;
}
