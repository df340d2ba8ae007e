// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Application.h"
#include "base/Interrupt.h"
#include "base/Share.h"
#include "base/StartingPoint.h"
#include "shell/CommandLine.h"
#include "shell/DefaultStyle.h"
#include "shell/MainWindow.h"
#include "shell/Translations.h"

#include <QApplication>
#include <libgen.h>

int main(int argc, char** argv)
{
    StartingPoint::remember();
    Interrupt::endAtOnce();
    DefaultStyle const defaultStyle(argc, argv);
    QApplication app(argc, argv);
    defaultStyle.set(app, QStringLiteral("plastique"));
    installTranslations(app);
    // Wayland has no window icons: the compositor takes that of the desktop entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.vem"));
    app.setWindowIcon(Share::icon(QStringLiteral("pixmaps/vem.icon.png")));
    application = &app;
    program = basename(argv[0]);

    // The window ends the engine in its own quit(), and otherwise lives as long as the process.
    auto* const window = new MainWindow(nullptr);
    readCommandLine(argc, argv, *window);
    window->show();
    return QApplication::exec();
}
