// SPDX-License-Identifier: GPL-2.0-or-later
// The editor's window while it is open: buttons, status line, removing, resetting, applying.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "RepoEditorTest.h"
#include "tests/Eventually.h"

#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"
#include "widgets/HSeparator.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>

class RepoEditorDialogTest : public RepoEditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeDialog();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        // As a user of the mouse finds it, without the cell that the keyboard's focus has made current.
        table()->setCurrentRow(-1);
    }

    void cleanup() { dropDialog(); }

    void looksAsTold()
    {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("VEM Repository Configuration Editor"));
        QVERIFY(dialog->testAttribute(Qt::WA_ShowModal));
        QVERIFY(dialog->findChild<HSeparator*>());
        QVERIFY(button("Apply")->isDefault());
        QVERIFY(!button("Add")->isDefault());
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
        QCOMPARE(status()->text(), QString());
    }

    void buttonsSayWhatTheyDo_data()
    {
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("Browse Repository")
            << "Browse the first URL specified for the selected repository using an external web browser";
        QTest::newRow("Edit") << "Edit the selected repository configuration";
        QTest::newRow("Add") << "Create a new repository configuration from scratch";
        QTest::newRow("Copy") << "Create a new repository configuration based on the selected repository";
        QTest::newRow("Remove") << "Remove the selected repository configuration";
        QTest::newRow("Reset All")
            << "Undo changes to all repository configurations since the last Apply or opening of the dialog";
        QTest::newRow("Cancel") << "Undo changes to all repository configurations since the last Apply or "
                                   "opening of the dialog, and close the window";
        QTest::newRow("Apply")
            << "Apply changes to all repository configurations, but do not close the window";
        QTest::newRow("OK") << "Apply changes to all repository configurations, and close the window";
    }

    void buttonsSayWhatTheyDo() { QTEST(button(QTest::currentDataTag())->toolTip(), "toolTip"); }

    void everythingIsReachedByTabulator()
    {
        clickCell("fen", 2);
        entry("fen").name = "changed";
        clickCell("fen", 1);
        table()->setFocus();
        QStringList reached;
        for (int step = 0; step < 12; ++step) {
            if (auto const* const focused = qobject_cast<QPushButton*>(dialog->focusWidget())) {
                reached.append(focused->text());
            }
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        }
        for (char const* const text :
             {"Browse Repository", "Edit", "Add", "Copy", "Remove", "Reset All", "Cancel", "Apply", "OK"}) {
            QVERIFY2(reached.contains(QString::fromLatin1(text)), text);
        }
    }

    void buttonsOfARepositoryNeedACurrentRow()
    {
        clickCell("moor", 2);
        QCOMPARE(
            pressable(), (QStringList{"Browse Repository", "Edit", "Add", "Copy", "Remove", "Cancel", "OK"}));
        table()->setCurrentRow(-1);
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
    }

    void browseShowsTheCurrentRepositoryWhateverThePackages()
    {
        BoxAnswer boxes;
        clickCell("weald", 2);
        click("Browse Repository");
        QCOMPARE(boxes.texts, QStringList{"Repository configuration has no URL"});
        QCOMPARE(boxes.parent, dialog);
    }

    void actionsWithoutACurrentRowDoNothing()
    {
        BoxAnswer boxes;
        dialog->browse();
        dialog->edit();
        dialog->edit(QModelIndex());
        dialog->copy();
        dialog->reset();
        QCOMPARE(boxes.texts, QStringList());
        QCOMPARE(root->conf.repos.size(), 4);
        QVERIFY(!button("Apply")->isEnabled());
    }

    void sessionBoxIsLiveAndNeedsNoApply()
    {
        clickCell("fen", 0);
        QVERIFY(!root->reposEnabled.value("fen"));
        QCOMPARE(entry("fen").enabled, 1);
        QCOMPARE(status()->text(), QString());
        QVERIFY(!button("Apply")->isEnabled());
        QVERIFY(!button("Reset All")->isEnabled());
    }

    void permanentBoxIsAChangeToApply()
    {
        clickCell("fen", 1);
        QVERIFY(root->reposEnabled.value("fen"));
        QCOMPARE(status()->text(), QStringLiteral("Unapplied Configuration Changes"));
        QCOMPARE(statusColor(), QColor(Colors::ok()));
        QVERIFY(button("Apply")->isEnabled());
        QVERIFY(button("Reset All")->isEnabled());
    }

    void permanentBoxMakesTheFileSayEnabled()
    {
        QVERIFY(!ConfFiles::content(*root, "/etc/yum.repos.d/c.repo").contains("enabled"));
        clickCell("marsh", 1);
        click("Apply");
        QVERIFY(ConfFiles::content(*root, "/etc/yum.repos.d/c.repo").contains("\nenabled=0\n"));
        clickCell("marsh", 1);
        click("Apply");
        QVERIFY(ConfFiles::content(*root, "/etc/yum.repos.d/c.repo").contains("\nenabled=1\n"));
        QVERIFY(root->reposEnabled.value("marsh"));
    }

    void statusNamesTheFirstProblem()
    {
        QColor const plain = statusColor();
        QList<Repo::Entry>& repos = root->conf.repos;
        QList<Repo::Entry> const sound = repos;
        repos[3].id = repos[1].id;
        repos[2].id = repos[0].id;
        table()->setCurrentRow(0);
        // The first of the list that has an equal one later.
        QCOMPARE(
            status()->text(),
            QStringLiteral("Two or more repositories have the Identifier, %1").arg(repos[0].id));
        QCOMPARE(statusColor(), QColor(Colors::error()));
        repos[3].id.clear();
        table()->setCurrentRow(-1);
        QCOMPARE(status()->text(), QStringLiteral("A repository has no Identifier"));
        QCOMPARE(statusColor(), QColor(Colors::error()));
        repos = sound;
        table()->setCurrentRow(0);
        QCOMPARE(status()->text(), QString());
        QCOMPARE(statusColor(), plain);
    }

    void statusFollowsThePalette()
    {
        QPalette const light = QApplication::palette();
        QPalette const dark = Contrast::darkPalette();
        QColor const ground = dark.color(QPalette::Window);
        clickCell("fen", 1);
        QApplication::setPalette(dark);
        EVENTUALLY_COMPARE(status()->palette().color(QPalette::Window), ground);
        QVERIFY(Contrast::ratio(statusColor(), ground) >= Contrast::legible);
        QVERIFY(statusColor().green() > statusColor().red() + 50);
        root->conf.repos[3].id.clear();
        table()->setCurrentRow(0);
        QVERIFY(Contrast::ratio(statusColor(), ground) >= Contrast::legible);
        QVERIFY(statusColor().red() > statusColor().green() + 50);
        click("Reset All");
        QCOMPARE(status()->text(), QString());
        QCOMPARE(statusColor(), dark.color(QPalette::WindowText));
        clickCell("fen", 1);
        QApplication::setPalette(light);
        EVENTUALLY_COMPARE(statusColor(), QColor(Colors::ok()));
        click("Reset All");
        QCOMPARE(statusColor(), light.color(QPalette::WindowText));
    }

    void screenReadersGetToHearTheBoxes()
    {
        QAccessible::setActive(true);
        QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(table());
        QVERIFY(interface && interface->tableInterface());
        QModelIndex const box = cell("moor", 0);
        QAccessibleInterface* const spoken = interface->tableInterface()->cellAt(box.row(), 0);
        QVERIFY(spoken);
        QCOMPARE(spoken->text(QAccessible::Name), "Repository is not enabled for this session");
        clickCell("moor", 0);
        QCOMPARE(spoken->text(QAccessible::Name), "Repository is enabled for this session");
        QAccessibleInterface* const lasting = interface->tableInterface()->cellAt(box.row(), 1);
        QVERIFY(lasting);
        QCOMPARE(lasting->text(QAccessible::Name), "Repository is not configured to be enabled");
        QAccessible::setActive(false);
    }

    void identifiersAreNotMarkup() { QCOMPARE(status()->textFormat(), Qt::PlainText); }

    void removeTakesTheSelectedRepositoryOut()
    {
        clickCell("moor", 3);
        click("Remove");
        QCOMPARE(shown(), (QStringList{"fen", "marsh", "weald"}));
        QVERIFY(!root->ids().contains("moor"));
        QVERIFY(root->reposEnabled.contains("moor"));
        QVERIFY(button("Apply")->isEnabled());
        QCOMPARE(pressable().contains("Remove"), false);
        click("Apply");
        QVERIFY(!ConfFiles::names(*root, "/etc/yum.repos.d").contains("b.repo"));
    }

    // Rows are taken once, so a later one hits what moved up, or nothing.
    void removeOfSeveralDoesNotFollowMovedRows()
    {
        int const last = static_cast<int>(root->conf.repos.size()) - 1;
        QString const lastButOneId = root->conf.repos[last - 1].id;
        QString const lastId = root->conf.repos[last].id;
        clickCell(lastButOneId, 2);
        clickCell(lastId, 2, Qt::ControlModifier);
        click("Remove");
        QVERIFY(!root->ids().contains(lastButOneId));
        QVERIFY(root->ids().contains(lastId));
        QCOMPARE(shown().size(), 3);
    }

    void aRowOfTwoSelectedCellsIsRemovedOnce()
    {
        clickCell("fen", 2);
        clickCell("fen", 3, Qt::ControlModifier);
        clickCell("moor", 3, Qt::ControlModifier);
        clickCell("moor", 3, Qt::ControlModifier);
        click("Remove");
        QCOMPARE(shown(), (QStringList{"marsh", "moor", "weald"}));
    }

    void removeOfNothingStillCountsAsAChange()
    {
        clickCell("fen", 2);
        clickCell("fen", 2, Qt::ControlModifier); // current, no longer selected
        click("Remove");
        QCOMPARE(root->conf.repos.size(), 4);
        QVERIFY(button("Apply")->isEnabled());
    }

    void resetAllBringsBackFilesAndSession()
    {
        clickCell("fen", 0);
        clickCell("moor", 0);
        clickCell("fen", 1);
        clickCell("weald", 2);
        click("Reset All");
        QVERIFY(root->reposEnabled.value("fen"));
        QVERIFY(!root->reposEnabled.value("moor"));
        QCOMPARE(entry("fen").enabled, 1);
        QCOMPARE(shown(), (QStringList{"fen", "marsh", "moor", "weald"}));
        QCOMPARE(currentId(), QStringLiteral("weald"));
        QCOMPARE(
            pressable(), (QStringList{"Browse Repository", "Edit", "Add", "Copy", "Remove", "Cancel", "OK"}));
        QCOMPARE(status()->text(), QString());
    }

    void resetAfterApplyBringsBackTheSessionOfTheOpening()
    {
        clickCell("moor", 0);
        clickCell("moor", 1);
        click("Apply");
        QVERIFY(root->reposEnabled.value("moor"));
        clickCell("fen", 1);
        click("Reset All");
        QVERIFY(!root->reposEnabled.value("moor"));
        QCOMPARE(entry("moor").enabled, 2);
        QCOMPARE(entry("fen").enabled, 1);
    }

    void resetOfAnUnreadableConfigurationShowsWhatWasRead()
    {
        clickCell("fen", 1);
        root->write("/etc/yum.conf", "[main]\n[ok]\n[lost]\n[broken\n");
        BoxAnswer boxes;
        click("Reset All");
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().startsWith("Malformed section name in line: [broken"));
        QCOMPARE(boxes.parent, dialog);
        QCOMPARE(shown(), QStringList{"ok"});
        QVERIFY(dialog->isVisible());
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
    }

    void applyWritesAndStaysOpen()
    {
        clickCell("moor", 1);
        click("Apply");
        QVERIFY(dialog->isVisible());
        QVERIFY(ConfFiles::content(*root, "/etc/yum.repos.d/b.repo").contains("enabled=1"));
        QCOMPARE(status()->text(), QString());
        // Nothing is current behind an apply, and the buttons say so.
        QCOMPARE(table()->currentRow(), -1);
        QCOMPARE(pressable(), (QStringList{"Add", "Cancel", "OK"}));
    }

    void failedApplyLeavesEverything()
    {
        clickCell("fen", 1);
        entry("moor").file = "/etc/nowhere/moor.repo";
        BoxAnswer boxes;
        QVERIFY(!dialog->apply());
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(button("Apply")->isEnabled());
        QCOMPARE(currentId(), QStringLiteral("fen"));
        click("OK");
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY(dialog->isVisible());
        QCOMPARE(status()->text(), QStringLiteral("Unapplied Configuration Changes"));
    }

    void declinedApplyLeavesEverything()
    {
        entry("fen").id = "moor";
        clickCell("weald", 1);
        BoxAnswer boxes(QMessageBox::No);
        click("OK");
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(dialog->isVisible());
        QCOMPARE(root->conf.repos.size(), 4);
        QVERIFY(button("Apply")->isEnabled());
    }

    void applyShowsThatDuplicatesAreGone()
    {
        entry("moor").id = "fen";
        clickCell("weald", 1);
        BoxAnswer boxes(QMessageBox::Yes);
        click("Apply");
        QCOMPARE(shown(), (QStringList{"fen", "marsh", "weald"}));
    }

    void aFailureBehindRemovedDuplicatesShowsThemGone()
    {
        entry("moor").id = "fen";
        entry("weald").file = "/etc/nowhere/weald.repo";
        clickCell("marsh", 1);
        BoxAnswer boxes(QMessageBox::Yes);
        click("Apply");
        QCOMPARE(boxes.texts.size(), 2);
        QCOMPARE(shown(), (QStringList{"fen", "marsh", "weald"}));
        QVERIFY(button("Apply")->isEnabled());
    }

    void okWithoutAChangeAcceptsWithoutWriting()
    {
        root->write("/etc/yum.repos.d/b.repo", "# left as it is\n");
        QSignalSpy const accepted(dialog, &QDialog::accepted);
        click("OK");
        QCOMPARE(accepted.count(), 1);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(ConfFiles::content(*root, "/etc/yum.repos.d/b.repo"), QByteArray("# left as it is\n"));
    }

    void okWritesAndCloses()
    {
        clickCell("moor", 1);
        QSignalSpy const accepted(dialog, &QDialog::accepted);
        click("OK");
        QCOMPARE(accepted.count(), 1);
        QVERIFY(!dialog->isVisible());
        QVERIFY(ConfFiles::content(*root, "/etc/yum.repos.d/b.repo").contains("enabled=1"));
    }

    void returnPressesNothingFromTheTable()
    {
        clickCell("moor", 1);
        QTest::keyClick(table(), Qt::Key_Return);
        QVERIFY(button("Apply")->isEnabled());
        QVERIFY(dialog->isVisible());
    }
};

QTEST_MAIN(RepoEditorDialogTest)
#include "tst_repoeditordialog.moc"
