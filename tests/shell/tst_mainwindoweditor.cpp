// SPDX-License-Identifier: GPL-2.0-or-later
// The repository editor as the main window opens it: at the start, from the menu, and what its end brings.
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

class MainWindowEditorTest : public ShellTest
{
    Q_OBJECT

    QString const title = QStringLiteral("VEM Repository Configuration Editor");

    static QString path(QString const& file) { return QDir(qEnvironmentVariable("VEMROOT")).filePath(file); }

    static void write(QString const& file, QByteArray const& content)
    {
        QFile output(path(file));
        QVERIFY(output.open(QIODevice::WriteOnly) && output.write(content) == content.size());
    }

    /// Turns over the session's box of the only repository in the editor that is open.
    static void clickSession()
    {
        auto* const editor = QApplication::activeModalWidget();
        QVERIFY(editor);
        for (QAbstractItemView* const view : editor->findChildren<QAbstractItemView*>()) {
            if (view->accessibleName() == QLatin1String("Repositories")) {
                QTest::mouseClick(
                    view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(0, 0)).center());
            }
        }
    }

private Q_SLOTS:
    // Without a change in the editor: the table has still to be filled.
    void initTestCase()
    {
        makeWindow();
        write(QStringLiteral("etc/yum.repos.d/trees.repo"), "[trees]\nname=Trees\n");
        window->repoEditorFlag = true;
        boxes->press({QStringLiteral("Escape")});
        bool tableWasHidden = false;
        boxes->whileShown([&] { tableWasHidden = table()->isHidden() || !table()->isVisible(); });
        QVERIFY(openWindow());
        QVERIFY(tableWasHidden);
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen.first().caption, title);
        QVERIFY(!names().isEmpty());
    }

    void cleanupTestCase() { delete window; }

    void init() { forgetCalls(); }

    void leavingTheEditorWithoutAChangeRebuildsNothing()
    {
        boxes->press({QStringLiteral("Escape")});
        action(QStringLiteral("Edit Configuration"))->trigger();
        QCOMPARE(boxes->take().value(0).caption, title);
        QCOMPARE(calls(), QStringList());
    }

    void aChangedSessionRebuildsTheTable()
    {
        boxes->press({QStringLiteral("Escape")});
        boxes->whileShown(&MainWindowEditorTest::clickSession);
        action(QStringLiteral("Edit Configuration"))->trigger();
        QCOMPARE(boxes->take().value(0).caption, title);
        QVERIFY(!calls().isEmpty());
        QVERIFY(table()->isVisible() && table()->isEnabled());
    }

    void anUnreadableConfigurationIsToldAndTheWindowStaysUsable()
    {
        QString const file = path(QStringLiteral("etc/yum.conf"));
        QVERIFY(QFile::rename(file, file + QStringLiteral(".away")));
        for (int turn = 0; turn < 2; ++turn) {
            action(QStringLiteral("Edit Configuration"))->trigger();
            QStringList const texts = boxes->takeTexts();
            QCOMPARE(texts.size(), 1);
            QVERIFY(texts.first().startsWith(
                QLatin1String("Unable to read yum configuration file /etc/yum.conf")));
            QVERIFY(table()->isEnabled());
            QVERIFY(action(QStringLiteral("Edit Configuration"))->isEnabled());
        }
        QCOMPARE(calls(), QStringList());
        QVERIFY(QFile::rename(file + QStringLiteral(".away"), file));
    }
};

QTEST_MAIN(MainWindowEditorTest)
#include "tst_mainwindoweditor.moc"
