// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoAuthChecker.h"

#include "repo/Buffet.h"
#include "repo/RepoAuthDialog.h"
#include "repo/URL.h"
#include "repo/YumConfIO.h"

#include <QHash>

#include <optional>

RepoAuth::Checker::Checker(QWidget* parent, YumConfIO* yumConfIO)
{
    // After a fault, which has been told, what could be read is checked.
    yumConfIO->read(parent);
    check(parent, yumConfIO);
    if (dialog) {
        dialog->setVisible(false);
    }
    if (credentialsChanged) {
        yumConfIO->write(parent);
    }
}

RepoAuth::Checker::~Checker() = default;

void RepoAuth::Checker::check(QWidget* parent, YumConfIO* yumConfIO)
{
    QHash<QString, Auth> hostAuths;
    std::optional<Auth> allAuth;
    for (Repo::Entry& entry : yumConfIO->repos) {
        bool const isEnabled = yumConfIO->reposEnabled[entry.id];
        QString keyName, name, keyPassword, password;
        if (!isEnabled || !Repo::Buffet::getAuth(entry, keyName, name, keyPassword, password) ||
            !name.isEmpty() || !password.isEmpty()) {
            continue;
        }
        QString host = URL::getHost(entry.baseurl);
        if (host.isEmpty()) {
            host = URL::getHost(entry.mirrorlist);
        }
        if (allAuth) {
            replace(entry, *allAuth);
            continue;
        }
        if (auto const known = hostAuths.constFind(host); known != hostAuths.constEnd()) {
            replace(entry, *known);
            continue;
        }

        if (!dialog) {
            dialog = std::make_unique<Dialog>(parent);
        }
        dialog->exec(&entry);
        int const answer = dialog->result();
        if (answer == Dialog::Quit) {
            quitRequested = true;
            return;
        }
        if (answer == Dialog::SkipAll) {
            return;
        }
        if (answer == Dialog::Disable) {
            yumConfIO->reposEnabled[entry.id] = false;
            continue;
        }
        Repo::Buffet::getAuth(entry, keyName, name, keyPassword, password);
        if (!name.isEmpty() || !password.isEmpty()) {
            credentialsChanged = true;
        }
        if (answer == Dialog::ApplyAll) {
            allAuth = Auth{name, password};
        } else if (answer == Dialog::ApplyHost) {
            hostAuths.insert(host, Auth{name, password});
        }
    }
}

void RepoAuth::Checker::replace(Repo::Entry& entry, Auth const& auth)
{
    if (auth.name.isEmpty() && auth.password.isEmpty()) {
        // Other addresses of the repository may have theirs.
        return;
    }
    entry.baseurl = Repo::Buffet::replaceAuth(entry.baseurl, auth.name, auth.password);
    entry.mirrorlist = Repo::Buffet::replaceAuth(entry.mirrorlist, auth.name, auth.password);
}
