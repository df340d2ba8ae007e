// SPDX-License-Identifier: GPL-2.0-or-later
// File lists and change logs in the description dialog, and the loading of the data behind them.
#include "DescribeTest.h"

#include <QScopeGuard>
#include <QTimer>

class TestDescribeExtraData final : public DescribeTest
{
    Q_OBJECT

private:
    QString filesRow() const { return rows(*dialog).at(rows(*dialog).size() - 2); }
    QString changeLogRow() const { return rows(*dialog).last(); }

    /// From now on, loading file lists takes until `letGo`.
    void holdFileLists()
    {
        SCRIPT("import threading, standinscript\n"
               "go = threading.Event()\n"
               "def slow():\n"
               "    standinscript.read_repositories()\n"
               "    if not go.wait(60):\n"
               "        raise RuntimeError('nobody let go')\n"
               "    return True\n"
               "standin.instead('collectFileLists', slow)\n");
    }
    void letGo() { SCRIPT("go.set()"); }

private Q_SLOTS:
    void anInstalledPackageNeedsNoExtraData()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("birch")));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show]"));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show]"));
        Shown const files = show(QStringLiteral("Files"));
        QCOMPARE(files.title, QStringLiteral("birch 1:3.1-2 File List"));
        QCOMPARE(files.text, QStringLiteral("/usr/bin/birch"));
        Shown const changes = show(QStringLiteral("Change Log"));
        QCOMPARE(changes.title, QStringLiteral("birch 1:3.1-2 Change Log"));
        QCOMPARE(changes.text, QStringLiteral("* Fri Jan  2 1970 Ash <ash@example.org>\n- only"));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show]"));
        QCOMPARE(engine->calls(), QStringList());
        QCOMPARE(boxes->take().size(), 2);

        engine->fileListsCollected = true;
        engine->otherDataCollected = true;
        config(entry(QStringLiteral("birch")));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show]"));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show]"));
    }

    void theNoteGoesFromEachButtonOnceItsDataAreLoaded()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show (must load extra data)]"));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show (must load extra data)]"));

        Shown const files = show(QStringLiteral("Files"));
        QCOMPARE(files.title, QStringLiteral("elm 1.0-1 File List"));
        QCOMPARE(files.text, QStringLiteral("/usr/share/elm/a\n/usr/share/elm/b"));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show]"));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show (must load extra data)]"));

        Shown const changes = show(QStringLiteral("Change Log"));
        QCOMPARE(changes.title, QStringLiteral("elm 1.0-1 Change Log"));
        QCOMPARE(
            changes.text, QStringLiteral("* Sat Jan  3 1970 Ash <ash@example.org>\n- second\n\n"
                                         "* Fri Jan  2 1970 Ash <ash@example.org>\n- first"));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show]"));
        QCOMPARE(
            engine->calls(),
            QStringList({QStringLiteral("collectFileLists"), QStringLiteral("collectOtherData")}));

        // What is loaded serves the next package.
        config(entry(QStringLiteral("ivy")));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show]"));
        show(QStringLiteral("Files"));
        QCOMPARE(engine->calls().size(), 2);
        QCOMPARE(boxes->take().size(), 3);
    }

    void theVersionsOfOneRowShowEachItsOwn()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("alder")));
        QCOMPARE(show(QStringLiteral("Files"), 1).title, QStringLiteral("alder 1.0-1 File List"));
        QCOMPARE(engine->calls(), QStringList());
        Shown const offered = show(QStringLiteral("Files"), 0);
        QCOMPARE(offered.title, QStringLiteral("alder 2.0-1 File List"));
        QVERIFY(offered.text.startsWith(QStringLiteral("/usr/share/alder/")));
        Shown const installed = show(QStringLiteral("Change Log"), 1);
        QCOMPARE(installed.title, QStringLiteral("alder 1.0-1 Change Log"));
        QVERIFY(installed.text.startsWith(QStringLiteral("* Sat Jan  3 1970 Oak")));
        QCOMPARE(engine->calls(), QStringList(QStringLiteral("collectFileLists")));
        QCOMPARE(boxes->take().size(), 3);
    }

    void whileAListLoadsTheDialogStaysAndTheBarsMove()
    {
        QVERIFY(collected());
        holdFileLists();
        Package::Entry const& elm = entry(QStringLiteral("elm"));
        bool tried = false;
        QTimer poll;
        // The bars move while the job is held in its middle, and the user tries to get away.
        connect(&poll, &QTimer::timeout, this, [&] {
            if (totalBar->value() <= totalBar->minimum() || !engine->jobs.progress) {
                return;
            }
            poll.stop();
            tried = true;
            auto const end = qScopeGuard([this] { letGo(); });
            auto const closeButtons = dialog->findChildren<QPushButton*>();
            for (QPushButton const* const pushButton : closeButtons) {
                QVERIFY(!pushButton->isEnabled());
            }
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
            QVERIFY(dialog->isVisible());
            QVERIFY(!dialog->close());
            QVERIFY(dialog->isVisible());
            dialog->accept();
            QVERIFY(dialog->isVisible());
            // No second job.
            for (QString const& label : {QStringLiteral("Files"), QStringLiteral("Change Log")}) {
                QTest::mouseClick(button(*dialog, label), Qt::LeftButton);
                QTest::keyClick(button(*dialog, label), Qt::Key_Space);
            }
            QCOMPARE(engine->calls(), QStringList(QStringLiteral("collectFileLists")));
        });
        boxes->whileShown([&] {
            if (QApplication::activeModalWidget() == dialog.get() && !tried) {
                QPushButton* const files = button(*dialog, QStringLiteral("Files"));
                files->setFocus();
                poll.start(5);
                files->click();
                // The text has been seen and closed: all is as before.
                QVERIFY(dialog->isVisible());
                QVERIFY(files->isEnabled());
                QCOMPARE(dialog->focusWidget(), files);
            }
        });
        config(elm);
        dialog->exec();
        QVERIFY(tried);
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen.at(1).caption, QStringLiteral("elm 1.0-1 File List"));
    }

    void escapeAndTheWindowsCloseButtonCloseAReadyDialog()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->press({QStringLiteral("Escape")});
        dialog->exec();
        QVERIFY(!dialog->isVisible());

        config(entry(QStringLiteral("elm")));
        dialog->setReady(false);
        dialog->setReady(true);
        boxes->whileShown([this] { QVERIFY(dialog->close()); });
        boxes->press({QStringLiteral("Escape")});
        dialog->exec();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(boxes->take().size(), 2);
    }

    void aFailedLoadIsReportedAndTheNextRequestTriesAgain()
    {
        QVERIFY(collected());
        SCRIPT("standin.fail('collectFileLists', standin.YumBaseError('the mirror sank'))\n"
               "standin.fail('collectOtherData', standin.YumBaseError('this one too'))");
        config(entry(QStringLiteral("elm")));
        show(QStringLiteral("Files"));
        QList<Boxes::Box> seen = boxes->take();
        QCOMPARE(seen.size(), 2);
        QVERIFY(seen.at(0).text.contains(QStringLiteral("Unable to collect file lists")));
        QVERIFY(seen.at(0).text.contains(QStringLiteral("the mirror sank")));
        QCOMPARE(seen.at(1).caption, QStringLiteral("elm 1.0-1 File List"));
        QCOMPARE(filesRow(), QStringLiteral("Files: [Show (must load extra data)]"));
        QVERIFY(button(*dialog, QStringLiteral("Files"))->isEnabled());
        show(QStringLiteral("Files"));
        QCOMPARE(engine->calls().count(QStringLiteral("collectFileLists")), 2);
        QCOMPARE(boxes->take().size(), 2);

        show(QStringLiteral("Change Log"));
        seen = boxes->take();
        QCOMPARE(seen.size(), 2);
        QVERIFY(seen.at(0).text.contains(QStringLiteral("Unable to collect miscellaneous data")));
        QCOMPARE(changeLogRow(), QStringLiteral("Change Log: [Show (must load extra data)]"));
    }

    void packagesWithoutFilesAndChangesShowAnEmptyText()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("cedar")));
        QCOMPARE(show(QStringLiteral("Files")).text, QString());
        QCOMPARE(show(QStringLiteral("Change Log")).text, QString());
        QCOMPARE(boxes->take().size(), 2);
    }

    void oneTextDialogServesBothAndStartsAtTheTop()
    {
        QVERIFY(collected());
        SCRIPT("standin.world.find('installed', 'cedar').hdr.tags.update(\n"
               "    BASENAMES=[f'{n:06}' for n in range(500)], DIRNAMES=['/usr/'], DIRINDEXES=[0] * 500)");
        config(entry(QStringLiteral("cedar")));
        QList<QPointer<QWidget>> windows;
        boxes->whileShown([&] { windows.append(QApplication::activeModalWidget()); });
        button(*dialog, QStringLiteral("Change Log"))->click();
        button(*dialog, QStringLiteral("Files"))->click();
        QCOMPARE(windows.size(), 2);
        QCOMPARE(windows.at(0), windows.at(1));
        QCOMPARE(windows.at(0)->findChild<QTextEdit*>()->textCursor().position(), 0);

        // It goes with the content.
        dialog->setVisible(false);
        QVERIFY(!windows.at(0));
        QCOMPARE(boxes->take().size(), 2);
    }

    void longListsShowWhole_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("installed") << QStringLiteral("cedar");
        QTest::newRow("in a repository") << QStringLiteral("elm");
    }
    void longListsShowWhole()
    {
        QFETCH(QString, name);
        SCRIPT("count, changes = 100000, 10000\n"
               "cedar = standin.world.find('installed', 'cedar')\n"
               "cedar.hdr.tags.update(\n"
               "    BASENAMES=[f'file-{n:06}' for n in range(count)],\n"
               "    DIRNAMES=[f'/usr/share/cedar/{n}/' for n in range(1000)],\n"
               "    DIRINDEXES=[n % 1000 for n in range(count)],\n"
               "    CHANGELOGNAME=['Ash <ash@example.org> - 1.0-1'] * changes,\n"
               "    CHANGELOGTIME=[86400 * n for n in range(changes)],\n"
               "    CHANGELOGTEXT=['- one thing\\n- another thing'] * changes)\n"
               "elm = standin.world.find('available', 'elm')\n"
               "elm.file_entries = [f'/usr/share/elm/{n % 1000}/file-{n:06}' for n in range(count)]\n"
               "log = [(86400 * n, 'Ash <ash@example.org>', '- a\\n- b') for n in range(changes)]\n"
               "elm.returnChangelog = lambda: log");
        QVERIFY(collected());
        engine->fileListsCollected = engine->otherDataCollected = true;
        config(entry(name));
        QCOMPARE(show(QStringLiteral("Files")).text.count(QLatin1Char('\n')), 99'999);
        QCOMPARE(show(QStringLiteral("Change Log")).text.count(QStringLiteral("* ")), 10'000);
        QCOMPARE(boxes->take().size(), 2);
    }
};

QTEST_MAIN(TestDescribeExtraData)
#include "tst_packagetabledescribeextradata.moc"
