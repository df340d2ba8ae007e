// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoBrowse.h"

#include "base/Share.h"
#include "engine/YumIO.h"
#include "repo/Execute.h"
#include "repo/YumConfIO.h"

#include <QCoreApplication>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{

/// In the order of filling in: a value may hold a later variable.
constexpr std::array<char const*, 3> variables{"basearch", "arch", "releasever"};

QString firstAddress(Repo::Entry const& entry)
{
    static QRegularExpression const gap(QStringLiteral("\\s+"));
    return entry.baseurl.isEmpty() ? entry.mirrorlist
                                   : entry.baseurl.section(gap, 0, 0, QString::SectionSkipEmpty);
}

void start(QWidget* parent, QByteArray address)
{
    QByteArray program = QFile::encodeName(Share::absolute(QStringLiteral("webbrowser")));
    std::array<char*, 3> const arguments{program.data(), address.data(), nullptr};
    Execute::execute(parent, arguments.data());
}

} // namespace

void RepoBrowse::browse(QWidget* parent, Repo::Entry const& entry, YumIO* yumIO)
{
    if (entry.baseurl.isEmpty() && entry.mirrorlist.isEmpty()) {
        QMessageBox::critical(
            parent, QCoreApplication::translate("RepoBrowse", "Error"),
            QCoreApplication::translate("RepoBrowse", "Repository configuration has no URL"),
            QMessageBox::Ok);
        return;
    }

    QString url = firstAddress(entry);
    Python::PyGILStateWrapper const lock(true);
    for (char const* const variable : variables) {
        QString const name = QString::fromLatin1(variable);
        // A variable that isn't wanted need not be there.
        if (url.contains(u'$' + name))
            url.replace(u'$' + name, yumIO->getYumVar(name));
    }

    // The bytes that the file holds.
    start(parent, url.toLatin1());
}

void RepoBrowse::open(QWidget* parent, QString const& address)
{
    start(parent, address.toUtf8());
}

void RepoBrowse::browse(QWidget* parent, QString const& id, YumIO* yumIO, YumConfIO* yumConfIO)
{
    QList<Repo::Entry> const& repos = yumConfIO->repos;
    auto const found = std::find_if(
        repos.cbegin(), repos.cend(), [&id](Repo::Entry const& entry) { return entry.id == id; });
    if (found != repos.cend())
        browse(parent, *found, yumIO);
}
