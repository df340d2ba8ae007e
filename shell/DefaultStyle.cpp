// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/DefaultStyle.h"

#include <QApplication>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <string_view>

DefaultStyle::DefaultStyle(int argc, char** argv)
{
    for (int at = 1; at < argc; ++at) {
        std::string_view const argument = argv[at];
        if (argument == "-style" || argument.substr(0, 7) == "-style=") {
            styleSpecified = true;
            return;
        }
    }
    QSettings settings(QSettings::UserScope, QStringLiteral("Trolltech"), QString());
    settings.beginGroup(QStringLiteral("Qt"));
    styleSpecified = settings.contains(QStringLiteral("style"));
}

void DefaultStyle::set(QApplication& app, QString const& name) const
{
    if (styleSpecified) {
        return;
    }
    QStyle* style = QStyleFactory::create(name);
    if (!style) {
        style = QStyleFactory::create(QStringLiteral("Fusion"));
    }
    if (style) {
        app.setStyle(style);
        app.setPalette(style->standardPalette());
    }
}
