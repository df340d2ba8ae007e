// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/URL.h"

#include <QRegularExpression>

namespace
{

/// The digit of a value from 0 to 15.
QChar digit(uint value)
{
    return QLatin1Char("0123456789abcdef"[value & 0xf]);
}

} // namespace

QString URL::getHost(QString const& url)
{
    qsizetype const colon = url.indexOf(u':');
    if (colon < 0 || QStringView(url).mid(colon + 1, 2) != QLatin1String("//"))
        return QString();
    qsizetype const start = colon + 3;
    qsizetype const end = url.indexOf(u'/', start);
    return url.mid(start, end < 0 ? -1 : end - start);
}

QString URL::percentDecode(QString const& text)
{
    static QRegularExpression const escape(QStringLiteral("%[0-9a-fA-F][0-9a-fA-F]"));
    QString decoded = text;
    for (qsizetype at = decoded.indexOf(escape); at >= 0; at = decoded.indexOf(escape, at + 1)) {
        ushort const code = QStringView(decoded).mid(at + 1, 2).toUShort(nullptr, 16);
        decoded.replace(at, 3, QChar(code));
    }
    return decoded;
}

QString URL::percentEncode(QString const& text)
{
    static QRegularExpression const reserved(QStringLiteral("[$&+,/:;=?@ \"<>#%{}|\\\\^~]|\\[|\\]"));
    QString encoded = text;
    for (qsizetype at = encoded.indexOf(reserved); at >= 0; at = encoded.indexOf(reserved, at + 3)) {
        uint const code = encoded[at].unicode();
        QChar const escape[] = {u'%', digit(code >> 4), digit(code)};
        encoded.replace(at, 1, escape, 3);
    }
    return encoded;
}
