// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// What the program remembers of its user from one time to the next: the file vem/vem.ini in the user's
/// folder for configurations (QSettings, INI), also while another root is managed. A file that isn't one of
/// these is put aside at the first use, as vem.ini.damaged. What can't be read or written is not remembered.
/// GUI thread.
class UserSettings
{
public:
    [[nodiscard]] static QVariant value(QString const& key, QVariant const& fallback);
    static void setValue(QString const& key, QVariant const& value);
    static void remove(QString const& key);

    /// Where a damaged file has been put by this process; empty as long as none has.
    [[nodiscard]] static QString putAside();
};
