// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/Buffet.h"

#include "repo/URL.h"

#include <array>

namespace
{

/// White space and words are those of all scripts, as for the user.
constexpr QRegularExpression::PatternOption unicode = QRegularExpression::UseUnicodePropertiesOption;

} // namespace

bool Repo::Buffet::getAuth(
    QString const& url, QString& keyName, QString& name, QString& keyPassword, QString& password)
{
    // Each piece ends where the text that has to follow it begins.
    static std::array<QString, 5> const fixed{
        QStringLiteral("/buffet?"), QStringLiteral("="), QStringLiteral("&"), QStringLiteral("="),
        QStringLiteral("&path=")};
    std::array<QString, 5> pieces;
    qsizetype start = 0;
    for (size_t at = 0; at < fixed.size(); ++at) {
        qsizetype const end = url.indexOf(fixed[at], start);
        if (end < 0)
            return false;
        pieces[at] = url.mid(start, end - start);
        start = end + fixed[at].size();
    }

    keyName = URL::percentDecode(pieces[1]);
    name = URL::percentDecode(pieces[2]);
    keyPassword = URL::percentDecode(pieces[3]);
    password = URL::percentDecode(pieces[4]);
    return true;
}

bool Repo::Buffet::getAuth(
    Repo::Entry const& entry, QString& keyName, QString& name, QString& keyPassword, QString& password)
{
    return getAuth(entry.baseurl, keyName, name, keyPassword, password) ||
           getAuth(entry.mirrorlist, keyName, name, keyPassword, password);
}

QString Repo::Buffet::replaceAuth(
    QString urls, QString const& keyName, QString const& name, QString const& keyPassword,
    QString const& password)
{
    static QRegularExpression const credentials(
        QStringLiteral("/buffet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=[^&\\s]*&path="), unicode);
    // Coded pieces hold no backslash, which a replacement would take for a reference.
    return urls.replace(
        credentials, QStringLiteral("/buffet?") + URL::percentEncode(keyName) + u'=' +
                         URL::percentEncode(name) + u'&' + URL::percentEncode(keyPassword) + u'=' +
                         URL::percentEncode(password) + QStringLiteral("&path="));
}

QString Repo::Buffet::replaceAuth(QString const& urls, QString const& name, QString const& password)
{
    QString keyName, oldName, keyPassword, oldPassword;
    getAuth(urls, keyName, oldName, keyPassword, oldPassword);
    return replaceAuth(urls, keyName, name, keyPassword, password);
}

QString Repo::Buffet::replaceAuth(QString const& urls, QString const& password)
{
    QString keyName, name, keyPassword, oldPassword;
    getAuth(urls, keyName, name, keyPassword, oldPassword);
    return replaceAuth(urls, keyName, name, keyPassword, password);
}

QString Repo::Buffet::maskPasswords(QString urls)
{
    static QRegularExpression const password(
        QStringLiteral("(/buffet\\?[^&\\s]*=[^&\\s]*&[^&\\s=]*=)[^&\\s]+(?=&path=)"), unicode);
    static QRegularExpression const userPassword(QStringLiteral("(://[^/?#\\s:@]*:)[^/\\s]+(?=@)"), unicode);
    urls.replace(password, QStringLiteral("\\1***"));
    return urls.replace(userPassword, QStringLiteral("\\1***"));
}

QRegularExpression Repo::Buffet::oneUrlRegExp()
{
    return QRegularExpression(
        QRegularExpression::anchoredPattern(
            QStringLiteral("^.*/buffet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=([^&\\s]*)&path=.*$")),
        unicode | QRegularExpression::DotMatchesEverythingOption);
}

QRegularExpression Repo::Buffet::urlsRegExp()
{
    // Something has to follow, be it the slash that most paths begin with: a password must not show there.
    return QRegularExpression(
        QStringLiteral("/buffet\\?[^&\\s]*=[^&\\s]*&[^&\\s]*=([^&\\s]*)&path=[\\s]*(?=\\S)"), unicode);
}
