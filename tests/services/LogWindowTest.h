// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "base/Application.h"
#include "services/Log.h"
#include "services/LogWindow.h"

#include <QApplication>
#include <QSpinBox>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <memory>

/// What the tests of the log window share: an empty log with a window that isn't shown yet, and eyes for it.
class LogWindowTest : public QObject
{
    Q_OBJECT

protected:
    [[nodiscard]] QStringList lines() const
    {
        QString const text = textEdit->toPlainText().replace(QChar::Nbsp, u' ');
        return text.isEmpty() ? QStringList() : text.split(u'\n');
    }

    [[nodiscard]] QTextCharFormat formatOfLine(int line) const
    {
        QTextBlock const block = textEdit->document()->findBlockByNumber(line);
        return block.begin().fragment().charFormat();
    }

    Log::EntryList log;
    QWidget owner;
    std::unique_ptr<Log::Window> window;
    QTextEdit* textEdit = nullptr;
    QSpinBox* levelBox = nullptr;

protected Q_SLOTS:
    void initTestCase() { application = qobject_cast<QApplication*>(QCoreApplication::instance()); }

    void init()
    {
        log.clear();
        window = std::make_unique<Log::Window>(log, &owner);
        textEdit = window->findChild<QTextEdit*>();
        levelBox = window->findChild<QSpinBox*>();
        QVERIFY(textEdit);
        QVERIFY(levelBox);
    }

    void cleanup() { window.reset(); }
};
