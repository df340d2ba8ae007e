// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Package.h"

#include <atomic>
#include <utility>

namespace Package
{

Entry::~Entry()
{
    // A loop, not recursion: an install-only package may have a chain of any length.
    for (Entry* link = std::exchange(installed, nullptr); link;) {
        Entry* const next = std::exchange(link->installed, nullptr);
        delete link;
        link = next;
    }
}

quint64 Entry::nextSerial()
{
    static std::atomic<quint64> last{0};
    return ++last;
}

EntryList::~EntryList()
{
    qDeleteAll(*this);
}

} // namespace Package
