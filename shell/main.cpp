// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Application.h"
#include "base/Interrupt.h"
#include "base/Share.h"
#include "base/StartingPoint.h"
#include "shell/CommandLine.h"
#include "shell/DefaultStyle.h"
#include "shell/LegiblePalette.h"
#include "shell/MainWindow.h"
#include "shell/Translations.h"

#include <QApplication>
#include <libgen.h>
#include <malloc.h>
#include <memory>

int main(int argc, char** argv)
{
#ifdef M_ARENA_MAX
    // What a job has freed is for the next one, whichever thread does it.
    mallopt(M_ARENA_MAX, 1);
    // Otherwise the first large block that is freed makes later ones leave holes: this is the value that it
    // begins with.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    StartingPoint::remember();
    Interrupt::endAtOnce();
    DefaultStyle const defaultStyle(argc, argv);
    QApplication app(argc, argv);
    defaultStyle.set(app, QStringLiteral("plastique"));
    LegiblePalette const legiblePalette(app);
    installTranslations(app);
    // Wayland has no window icons: the compositor takes that of the desktop entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.vem"));
    app.setWindowIcon(Share::icon(QStringLiteral("pixmaps/vem.icon.png")));
    application = &app;
    program = basename(argv[0]);

    // However it is closed, the engine that it owns gives the lock back.
    auto const window = std::make_unique<MainWindow>(nullptr);
    readCommandLine(argc, argv, *window);
    window->show();
    return QApplication::exec();
}
