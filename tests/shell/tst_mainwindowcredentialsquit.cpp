// SPDX-License-Identifier: GPL-2.0-or-later
// Quit as the answer to the question for credentials that comes while the repository editor is still closing:
// the engine goes while a dialog that knows it is alive.
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

class MainWindowCredentialsQuitTest : public ShellTest
{
    Q_OBJECT

    /// Switches the only repository of the editor, which is open, on for the session.
    static void clickSession()
    {
        auto* const editor = QApplication::activeModalWidget();
        for (QAbstractItemView* const view : editor->findChildren<QAbstractItemView*>()) {
            if (view->accessibleName() == QLatin1String("Repositories")) {
                QTest::mouseClick(
                    view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(0, 0)).center());
            }
        }
    }

private Q_SLOTS:
    void quitInTheQuestionBehindTheEditorEndsTheProgram()
    {
        makeWindow();
        window->logFlag = true;
        QFile file(QDir(qEnvironmentVariable("VEMROOT")).filePath(QStringLiteral("etc/yum.repos.d/t.repo")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[trees]\nenabled=0\nbaseurl=http://host/buffet?login=&key=&path=/trees\n");
        file.close();
        QVERIFY(openWindow());
        QTemporaryDir directory;
        QString const record = directory.filePath(QStringLiteral("calls"));
        script(QStringLiteral("standin.calls_file = '%1'").arg(record));

        bool clicked = false;
        boxes->press({QStringLiteral("Escape"), QStringLiteral("Quit")});
        boxes->whileShown([&] {
            if (!std::exchange(clicked, true)) {
                clickSession();
            }
        });
        action(QStringLiteral("Edit Configuration"))->trigger();

        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen.last().caption, QStringLiteral("VEM Authentication"));
        QVERIFY(!window->isVisible());
        for (QWidget const* const widget : QApplication::topLevelWidgets()) {
            QVERIFY2(!widget->isVisible(), qPrintable(widget->windowTitle()));
        }
        QFile calls(record);
        QVERIFY(calls.open(QIODevice::ReadOnly));
        QVERIFY(calls.readAll().contains("unlock"));

        // What is still under way finds nothing that is gone.
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete window;
    }
};

QTEST_MAIN(MainWindowCredentialsQuitTest)
#include "tst_mainwindowcredentialsquit.moc"
