// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>

namespace
{

char const* const detailed =
    "rows = [('upgrade', 'alder', 'x86_64', '1.0-1', '2.0-1', 'base', 5120, 'required', ['elm'], 2, "
    "['birch'],\n"
    "         ['older', 'unchecked']),\n"
    "        ('obsoleted', 'birch', 'noarch', '3-1', '', '@System', 7, 'odd', [], 0, [], ['odd'])]\n"
    "def changes():\n    standin.note('changes')\n    return ['- Taller', '']\n";

QPushButton* loadingButton(QWidget const* dialog)
{
    for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("Load &Changes")) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

class TestYumIOConfirm final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void detailsOfTheScriptAreTheSecondPage();
    void wrongDetailsAreRefused_data();
    void wrongDetailsAreRefused();
    void changelogsAreLoadedWhileTheUserIsAsked();
    void changesThatFailAreToldAndTheQuestionStands();

private:
    /// Has the script's apply run `body`, behind the lines of `detailed`.
    void applyDoes(QString const& body);
};

void TestYumIOConfirm::init()
{
    EngineTest::init();
    QVERIFY(collected());
}

void TestYumIOConfirm::applyDoes(QString const& body)
{
    QString indented = QLatin1String(detailed) + body;
    indented.replace(QLatin1Char('\n'), QStringLiteral("\n    "));
    QCOMPARE(
        engine->script(QStringLiteral("def apply(installs, updates, removes):\n    %1\n"
                                      "standin.instead('apply', apply)")
                           .arg(indented)),
        QString());
}

void TestYumIOConfirm::detailsOfTheScriptAreTheSecondPage()
{
    applyDoes("yumIOC.transactionDetails(rows, 5120, -2048, changes)\n"
              "standin.note(repr(yumIOC.userconfirm()))");
    QStringList pages;
    boxes->whileShown([&] {
        auto const* const tabs = QApplication::activeModalWidget()->findChild<QTabWidget*>();
        pages = QStringList({tabs->tabText(0), tabs->tabText(1)});
    });
    QVERIFY(engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    QCOMPARE(pages, (QStringList{"&Transaction", "&Details"}));
    TransactionDetails const& details = engine->run.details;
    QCOMPARE(details.rows.size(), 2);
    TransactionDetails::Row const& alder = details.rows[0];
    QCOMPARE(alder.action, TransactionDetails::Action::Update);
    QCOMPARE(
        (QStringList{
            alder.name, alder.arch, alder.oldVersion, alder.newVersion, alder.repository, alder.sizeText}),
        (QStringList{"alder", "x86_64", "1.0-1", "2.0-1", "base", "5.0Kb"}));
    QCOMPARE(alder.why, TransactionDetails::Why::Required);
    QCOMPARE(alder.whom, QStringList("elm"));
    QCOMPARE(alder.more, 2);
    QCOMPARE(alder.replaces, QStringList("birch"));
    QCOMPARE(alder.warnings, TransactionDetails::Older | TransactionDetails::Unchecked);
    // What goes is of no repository, and words that nobody knows say no more than that.
    TransactionDetails::Row const& birch = details.rows[1];
    QCOMPARE(birch.action, TransactionDetails::Action::Replace);
    QCOMPARE(birch.repository, QString());
    QCOMPARE(birch.why, TransactionDetails::Why::Solver);
    QCOMPARE(birch.warnings, TransactionDetails::Warnings());
    QCOMPARE(details.download + details.growth, QStringLiteral("5.0Kb2.0Kb"));
    QCOMPARE(details.growthSign, -1);
    QVERIFY(!engine->calls().contains("changes"));
}

void TestYumIOConfirm::wrongDetailsAreRefused_data()
{
    QTest::addColumn<QString>("rows");
    QTest::newRow("no sequence") << "7";
    QTest::newRow("no tuple") << "[['install']]";
    QTest::newRow("too short") << "[('install', 'elm')]";
    QTest::newRow("no number") << "[(*rows[0][:6], 'x', *rows[0][7:])]";
    QTest::newRow("no names") << "[(*rows[0][:8], None, *rows[0][9:])]";
}

void TestYumIOConfirm::wrongDetailsAreRefused()
{
    QFETCH(QString, rows);
    applyDoes(QStringLiteral("try:\n    yumIOC.transactionDetails(%1, 1, 1, None)\nexcept TypeError:\n"
                             "    standin.note('refused')\nyumIOC.userconfirm()")
                  .arg(rows));
    QVERIFY(engine->apply());
    QVERIFY(engine->calls().contains("refused"));
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"Apply", "", {"OK", "Cancel"}}}));
}

void TestYumIOConfirm::changelogsAreLoadedWhileTheUserIsAsked()
{
    applyDoes("yumIOC.transactionDetails(rows, 1, 1, changes)\n"
              "yumIOC.userconfirm()\nraise yum.Errors.YumBaseError('late')");
    QString shown;
    boxes->whileShown([&] {
        QWidget const* const dialog = QApplication::activeModalWidget();
        if (QPushButton* const load = loadingButton(dialog)) {
            load->click();
            auto const* const edit = dialog->findChild<QPlainTextEdit*>();
            QVERIFY(QTest::qWaitFor([&] { return edit->toPlainText().contains("Taller"); }));
            shown = edit->toPlainText();
        }
    });
    QVERIFY(!engine->apply());
    QCOMPARE(shown, QStringLiteral("alder 1.0-1 \u2192 2.0-1\n\n- Taller"));
    QVERIFY(engine->otherDataCollected);
    QCOMPARE(
        engine->calls().filter(QRegularExpression("collectOtherData|changes")),
        (QStringList{"collectOtherData", "changes"}));
    // What comes behind is told as ever, and the bars are those of the apply.
    QCOMPARE(boxes->take().size(), 2);
    QVERIFY(engine->logLines(Log::Error).contains("late"));
    QVERIFY(!engine->progressRecord.lines.filter("== Running Transaction: Total Progress").isEmpty());
}

void TestYumIOConfirm::changesThatFailAreToldAndTheQuestionStands()
{
    SCRIPT("standin.fail('collectOtherData', yum.Errors.YumBaseError('no network'))");
    applyDoes("yumIOC.transactionDetails(rows, 1, 1, changes)\n"
              "standin.note(repr(yumIOC.userconfirm()))");
    QPointer<QWidget> question;
    bool again = false;
    boxes->whileShown([&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (QPushButton* const load = question ? nullptr : loadingButton(dialog)) {
            question = dialog;
            load->click();
            QVERIFY(QTest::qWaitFor([&] { return load->isEnabled(); }));
            again = question && question->isVisible();
        }
    });
    QVERIFY(engine->apply());
    QVERIFY(again);
    QVERIFY(!engine->otherDataCollected);
    QVERIFY(engine->calls().contains("1"));
    QVERIFY(engine->logLines(Log::Error).contains("Unable to collect miscellaneous data"));
    boxes->take();
}

QTEST_MAIN(TestYumIOConfirm)
#include "tst_yumioconfirm.moc"
