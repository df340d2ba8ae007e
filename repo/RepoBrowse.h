// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/RepoEntry.h"

#include <QString>

class QWidget;
class YumConfIO;
class YumIO;

/// Shows repositories, and other addresses, in the user's browser.
namespace RepoBrowse
{

/// Opens the repository's first address, or its mirror list, with the package library's variables filled in.
/// Credentials in the address go to the browser as they stand. A repository that has no address is told in a
/// box over `parent`. Takes the interpreter lock. GUI thread, while no job runs.
void browse(QWidget* parent, Repo::Entry const& entry, YumIO* yumIO);

/// The same for the first repository of this identifier; does nothing when there is none.
void browse(QWidget* parent, QString const& id, YumIO* yumIO, YumConfIO* yumConfIO);

/// Opens a web address. A browser that can't be started is told in a box over `parent`.
void open(QWidget* parent, QString const& address);

} // namespace RepoBrowse
