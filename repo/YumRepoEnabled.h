// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRegularExpression>
#include <QString>

/// One `--enablerepo` or `--disablerepo` request of the command line: which repositories, and whether they
/// are to be used in this session. A plain value; the main window owns the list, in command-line order.
struct YumRepoEnabled
{
    /// `wildcard` is a shell pattern for whole repository identifiers, case sensitive: `*` stands for any
    /// characters, "/" included, `?` for one, `[...]` for one of a set or of ranges, `[!...]` and `[^...]`
    /// for one outside of it. A "[" that no "]" closes stands for itself, as a backslash does.
    YumRepoEnabled(bool enable, QString const& wildcard);

    /// Whether the pattern covers the whole of `id`.
    [[nodiscard]] bool matches(QString const& id) const;

    bool enabled;
    QRegularExpression repo; ///< the pattern, anchored at both ends
};
