// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "shell/MainWindow.h"
#include "tests/engine/Boxes.h"

#include <QObject>
#include <QPointer>
#include <memory>

class QAbstractItemView;
class QAction;
class QLabel;
class QPushButton;

/// What the main window's tests share: a window over the stand-in of the release that VEM_TEST_ERA names, a
/// managed root without any configuration, a user who answers dialogs, and eyes that find controls by the
/// words on them.
class ShellTest : public QObject
{
    Q_OBJECT

protected:
    static QString era();
    /// Points the program to the stand-in, with the real pictures, to an empty root, and to a user of whom
    /// nothing is remembered.
    static void prepare();
    /// The same, where it hasn't been done, and makes the window. Not shown yet.
    void makeWindow();
    /// Shows it and waits for the table.
    bool openWindow();

    QAction* action(QString const& text) const;
    QPushButton* button(QString const& text) const;
    QAbstractItemView* table() const;
    /// Runs a statement in the stand-in's namespace; answers the traceback of what it raised.
    static QString script(QString const& statements);
    static QString value(QString const& expression);
    static QStringList calls();
    static void forgetCalls();
    /// The names in the table, from top to bottom.
    QStringList names() const;
    /// Clicks the Action cell of a package.
    void clickAction(QString const& name) const;
    /// Chooses an entry of the context menu of a package's Action cell.
    void chooseAction(QString const& name, QString const& entry) const;
    int rowOf(QString const& name) const;
    QString tipOfAction(QString const& name) const;

    std::unique_ptr<Boxes> boxes;
    QPointer<MainWindow> window;
};
