// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <memory>

class QWidget;
class YumConfIO;

namespace Repo
{
struct Entry;
}

/// Asks for the credentials that repositories lack.
namespace RepoAuth
{

class Dialog;

/// One check of the whole configuration, which the constructor does. Made on the stack; GUI thread, while the
/// engine is idle and the main window busy.
class Checker final
{
public:
    /// What the user has answered once for several repositories.
    struct Auth
    {
        QString name;
        QString password;
    };

    /// Reads the configuration anew and asks, in windows over `parent`, for each repository that is on in
    /// this session and has an address with blank credentials. Answers go into `YumConfIO::repos` and, if
    /// they changed anything, into the files. Faults of reading and writing have been told then. Afterwards
    /// each repository looked at has a flag for the session.
    Checker(QWidget* parent, YumConfIO* yumConfIO);
    ~Checker();
    Checker(Checker const&) = delete;
    Checker& operator=(Checker const&) = delete;

    /// Puts the credentials into all buffet addresses of the repository, which keep their keys. Blank ones
    /// change nothing.
    static void replace(Repo::Entry& entry, Auth const& auth);

    bool quitRequested = false;      ///< the user wants the program to end
    bool credentialsChanged = false; ///< an answer has changed a name or password

private:
    void check(QWidget* parent, YumConfIO* yumConfIO);

    std::unique_ptr<Dialog> dialog; ///< null until there is something to ask
};

} // namespace RepoAuth
