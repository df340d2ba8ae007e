// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// The repositories of the package library's configuration.
namespace Repo
{

/// What a section says of a switch. The values travel as ints and equal the item indexes of the form's
/// combo boxes; Default means that the file does not state the option.
enum Switch
{
    No = 0,
    Default = 1,
    Yes = 2
};

/// One repository as configured: a section of a configuration file, with the options that the system
/// understands taken apart and all else as text. A plain value; YumConfIO holds the list of them.
struct Entry
{
    QString id;                ///< the section's name, blanks included
    QString name;              ///< option `name`
    QString baseurl;           ///< option `baseurl`: after reading one URL per line, joined by a line feed
    QString mirrorlist;        ///< option `mirrorlist`
    qint32 enabled = Default;  ///< option `enabled`, a Switch: the permanent value, not the session's
    qint32 gpgcheck = Default; ///< option `gpgcheck`, a Switch
    QString otherOptions;      ///< the section's other logical lines in file order, a line feed after each
    QString file; ///< path of the file the section stands in; empty until a new repository is written
    double filePosition = 0.0; ///< sort key within the file: reading numbers the sections from 1.0
};

} // namespace Repo
