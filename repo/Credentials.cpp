// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/Credentials.h"

#include <QRegularExpression>
#include <QStringList>

QSet<QString> credentialsIn(QString const& text)
{
    // In each the groups hold what may be left blank.
    static QRegularExpression const option(
        QStringLiteral("^[ \\t#;]*\\w*password[ \\t]*[=:][ \\t]*(?:\\r?\\n[ \\t]+)*(\\S*)"),
        QRegularExpression::MultilineOption);
    static QRegularExpression const user(QStringLiteral("://([^/?#\\s:@]*):([^/\\s]*)@"));
    static QRegularExpression const buffet(
        QStringLiteral("/buffet\\?[^&\\s]*?=([^&\\s]*)&[^&\\s]*?=([^&\\s]*)&path="));

    QSet<QString> found;
    for (QRegularExpression const* const expression : {&option, &user, &buffet}) {
        for (auto matches = expression->globalMatch(text); matches.hasNext();) {
            QStringList const pieces = matches.next().capturedTexts();
            if (!pieces.mid(1).join(QString()).isEmpty())
                found.insert(pieces.first());
        }
    }
    return found;
}
