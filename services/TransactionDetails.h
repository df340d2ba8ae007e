// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFlags>
#include <QList>
#include <QString>
#include <QStringList>

/// What the user is told of each package of a transaction beyond the list, before it begins. A value, of any
/// thread.
struct TransactionDetails
{
    enum class Action
    {
        Install,
        Update,
        Downgrade,
        Reinstall,
        Remove,
        Replace ///< it goes, for a package of another name
    };

    enum class Why
    {
        Marked,
        Required, ///< by `whom`, as the next
        Recommended,
        Together,   ///< it needs `whom`, and both come in
        Needs,      ///< it needs `whom`, and both go
        Supplanted, ///< `whom` comes in instead
        Unneeded,   ///< nothing needs it any more
        Surplus,    ///< a newer version comes in beside it, and only so many are kept
        Solver      ///< nobody can tell
    };

    enum Warning
    {
        Unmarked = 1,  ///< it goes, and isn't marked
        Protected = 2, ///< it goes, and is protected
        Running = 4,   ///< the running kernel goes
        Older = 8,     ///< the installed version is newer
        Unchecked = 16 ///< nobody asks for its signature
    };
    Q_DECLARE_FLAGS(Warnings, Warning)

    struct Row
    {
        Action action = Action::Install;
        QString name, arch;
        QString oldVersion; ///< what is there now; empty for nothing
        QString newVersion; ///< what will be; empty for nothing
        QString repository; ///< empty for a package that goes
        long long size = 0; ///< bytes to download, or those that it takes
        QString sizeText;   ///< the same for people
        Why why = Why::Solver;
        QStringList whom;     ///< names
        int more = 0;         ///< how many names there are beyond those
        QStringList replaces; ///< names of the packages that give way to it
        Warnings warnings;
    };

    /// "1.0-1 → 1.1-1", or the one version that there is.
    [[nodiscard]] static QString versions(QString const& oldVersion, QString const& newVersion)
    {
        if (oldVersion.isEmpty() || newVersion.isEmpty() || oldVersion == newVersion) {
            return newVersion.isEmpty() ? oldVersion : newVersion;
        }
        return QStringLiteral("%1 \u2192 %2").arg(oldVersion, newVersion);
    }

    QList<Row> rows;      ///< those that want attention first
    QString download;     ///< what is still to be fetched, for people
    QString growth;       ///< by how much the disk's use changes, without sign
    int growthSign = 0;   ///< 1 for more, -1 for less, 0 for no change
    bool changes = false; ///< somebody can tell what has changed between the versions
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TransactionDetails::Warnings)
