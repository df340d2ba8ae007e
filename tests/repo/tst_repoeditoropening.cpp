// SPDX-License-Identifier: GPL-2.0-or-later
// Opening and closing the editor's window: what is read, what can't be read, who is told of a change.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "RepoEditorTest.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTimer>

class RepoEditorOpeningTest : public RepoEditorTest
{
    Q_OBJECT

    std::unique_ptr<QSignalSpy> changes; ///< of the repositories, told when the window closes

    void open() const
    {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
    }

    /// Runs the window as the program does; `act` is done once it is open.
    template <typename Act>
    int exec(Act const& act)
    {
        QTimer opened;
        opened.setInterval(5);
        connect(&opened, &QTimer::timeout, this, [this, &opened, &act] {
            if (dialog->isVisible()) {
                opened.stop();
                act();
            }
        });
        opened.start();
        return dialog->exec();
    }

private Q_SLOTS:
    void init()
    {
        makeDialog();
        changes = std::make_unique<QSignalSpy>(dialog, &RepoEditor::Dialog::reposChanged);
    }

    void cleanup() { dropDialog(); }

    void everyOpeningReadsAnewAndSortsByIdentifier()
    {
        open();
        QCOMPARE(shown(), (QStringList{"fen", "marsh", "moor", "weald"}));
        QHeaderView* const header = table()->horizontalHeader();
        QTest::mouseClick(
            header->viewport(), Qt::LeftButton, {},
            QPoint(header->sectionViewportPosition(2) + 8, header->height() / 2));
        QCOMPARE(shown(), (QStringList{"weald", "moor", "marsh", "fen"}));
        clickCell("fen", 1);
        dialog->hide();
        QCOMPARE(entry("fen").enabled, 0); // not undone by a mere hiding
        root->write("/etc/yum.repos.d/d.repo", "[heath]\n");
        open();
        QCOMPARE(shown(), (QStringList{"fen", "heath", "marsh", "moor", "weald"}));
        QCOMPARE(header->sortIndicatorSection(), 2);
        QCOMPARE(entry("fen").enabled, 1);
        QVERIFY(!button("Apply")->isEnabled());
        QVERIFY(!button("Reset All")->isEnabled());
    }

    void anEmptyConfigurationLeavesNothingToDoButAdd()
    {
        for (char const* const file : {"a", "b", "c"}) {
            root->remove(QByteArray("/etc/yum.repos.d/") + file + ".repo");
        }
        open();
        QCOMPARE(shown(), QStringList());
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, {5, 5});
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
        click("OK");
        QVERIFY(!dialog->isVisible());
    }

    void longTablesFitTheScreen()
    {
        QByteArray many;
        for (int number = 0; number < 300; ++number) {
            many += "[repository-" + QByteArray::number(number) + "]\nname=" + QByteArray(400, 'n') + '\n';
        }
        root->write("/etc/yum.repos.d/many.repo", many);
        open();
        QVERIFY(dialog->width() <= dialog->screen()->geometry().width());
        QVERIFY(dialog->height() <= dialog->screen()->geometry().height());
    }

    void anUnreadableConfigurationIsToldAndOpensNothing()
    {
        root->remove("/etc/yum.conf");
        for (int turn = 0; turn < 2; ++turn) {
            BoxAnswer boxes;
            QCOMPARE(dialog->exec(), int(QDialog::Rejected));
            QCOMPARE(
                boxes.texts,
                QStringList{boxes.told("Unable to read yum configuration file /etc/yum.conf", ENOENT)});
            QCOMPARE(boxes.parent, owner.get());
            QVERIFY(!dialog->isVisible());
            QCOMPARE(changes->count(), 0);
        }
        root->write("/etc/yum.conf", "[main]\n");
        QCOMPARE(exec([this] { click("OK"); }), int(QDialog::Accepted));
    }

    void anUnreadableConfigurationAfterAGoodOneOpensNothing()
    {
        QCOMPARE(exec([this] { click("OK"); }), int(QDialog::Accepted));
        root->write("/etc/yum.repos.d/b.repo", "[moor\n");
        BoxAnswer boxes;
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(!dialog->isVisible());
    }

    // The main window has still to fill its table.
    void aFailedOpeningTellsWhereAClosingWouldHaveTold()
    {
        root->remove("/etc/yum.conf");
        dialog->forceReposChanged = true;
        BoxAnswer boxes;
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QCOMPARE(changes->count(), 1);
    }

    void closingWithoutAChangeTellsNothing()
    {
        QCOMPARE(exec([this] { click("OK"); }), int(QDialog::Accepted));
        QCOMPARE(exec([this] { click("Cancel"); }), int(QDialog::Rejected));
        QCOMPARE(exec([this] { dialog->close(); }), int(QDialog::Rejected));
        QCOMPARE(changes->count(), 0);
    }

    void everyClosingTellsWhenItIsForced()
    {
        dialog->forceReposChanged = true;
        exec([this] { click("Cancel"); });
        QCOMPARE(changes->count(), 1);
        exec([this] { click("OK"); });
        QCOMPARE(changes->count(), 2);
        exec([this] { dialog->close(); });
        QCOMPARE(changes->count(), 3);
    }

    void aSessionClickIsTold()
    {
        exec([this] {
            clickCell("fen", 0);
            click("OK");
        });
        QCOMPARE(changes->count(), 1);
        QVERIFY(!root->reposEnabled.value("fen"));
        // It was told; the next showing starts without it.
        exec([this] { click("OK"); });
        QCOMPARE(changes->count(), 1);
    }

    void cancelTakesSessionClicksBackAndTellsNothing()
    {
        exec([this] {
            clickCell("fen", 0);
            clickCell("moor", 1);
            click("Cancel");
        });
        QCOMPARE(changes->count(), 0);
        QVERIFY(root->reposEnabled.value("fen"));
        QCOMPARE(entry("moor").enabled, 0);
    }

    void cancelAfterAnApplyTells()
    {
        exec([this] {
            clickCell("moor", 1);
            click("Apply");
            click("Cancel");
        });
        QCOMPARE(changes->count(), 1);
    }

    void escapeClosesAndLeavesSessionClicks()
    {
        QCOMPARE(
            exec([this] {
                clickCell("fen", 0);
                clickCell("fen", 1);
                QTest::keyClick(dialog, Qt::Key_Escape);
            }),
            int(QDialog::Rejected));
        QCOMPARE(changes->count(), 1);
        QVERIFY(!root->reposEnabled.value("fen"));
        QVERIFY(!ConfFiles::content(*root, "/etc/yum.repos.d/a.repo").contains("enabled=0"));
    }

    void theWindowIsGoneWhenAChangeIsTold()
    {
        bool wasVisible = true;
        connect(dialog, &RepoEditor::Dialog::reposChanged, this, [&] { wasVisible = dialog->isVisible(); });
        exec([this] {
            clickCell("fen", 0);
            click("OK");
        });
        QVERIFY(!wasVisible);
    }
};

QTEST_MAIN(RepoEditorOpeningTest)
#include "tst_repoeditoropening.moc"
