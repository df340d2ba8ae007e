// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/BuffetUrl.h"

#include <QRegularExpression>

void removeBuffetCredentials(QString& text)
{
    static QRegularExpression const credentials(
        QStringLiteral("buffet?.*=.*&.*=.*&path="), QRegularExpression::DotMatchesEverythingOption);
    text.remove(credentials);
}
