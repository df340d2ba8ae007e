// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/RepoEntry.h"

#include <QRegularExpression>
#include <QString>

/// Names and passwords that an address carries in its query part:
/// ".../buffet?KEY=NAME&KEY=PASSWORD&path=REST". The keys are whatever the address says and caption the
/// fields that the user sees; the first pair is the name, the second the password, both percent-coded. All
/// buffet addresses of one text share the credentials of the first. No state; any thread.
namespace Repo::Buffet
{

/// Finds the first buffet address of the text and gives its four pieces, decoded. False when there is none;
/// the pieces are then left as they were.
bool getAuth(QString const& url, QString& keyName, QString& name, QString& keyPassword, QString& password);

/// The same in the `baseurl` of a repository, else in its `mirrorlist`.
bool getAuth(
    Repo::Entry const& entry, QString& keyName, QString& name, QString& keyPassword, QString& password);

/// The text with the keys and credentials of all its buffet addresses replaced by these, which are given
/// decoded. The second form keeps the keys of the first address, the third its name too.
[[nodiscard]] QString replaceAuth(
    QString urls, QString const& keyName, QString const& name, QString const& keyPassword,
    QString const& password);
[[nodiscard]] QString replaceAuth(QString const& urls, QString const& name, QString const& password);
[[nodiscard]] QString replaceAuth(QString const& urls, QString const& password);

/// The text with the password of each buffet address, and of each user before a host, replaced by three
/// stars, for those who only look.
[[nodiscard]] QString maskPasswords(QString urls);

/// What a field that masks passwords looks for, the coded password being the first group: the whole of a
/// field of one line, and a place in a text of many addresses.
[[nodiscard]] QRegularExpression oneUrlRegExp();
[[nodiscard]] QRegularExpression urlsRegExp();

} // namespace Repo::Buffet
