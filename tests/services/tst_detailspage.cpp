// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/DetailsModel.h"
#include "services/DetailsPage.h"
#include "services/ScrollableConfirmDialog.h"
#include "services/WrappedText.h"
#include "services/YumIODialogs.h"
#include "tests/Eventually.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

using Details = TransactionDetails;
using Row = Details::Row;

namespace
{

Row row(Details::Action action, char const* name, char const* oldVersion, char const* newVersion)
{
    Row made;
    made.action = action;
    made.name = QString::fromUtf8(name);
    made.arch = QStringLiteral("noarch");
    made.oldVersion = QString::fromUtf8(oldVersion);
    made.newVersion = QString::fromUtf8(newVersion);
    made.repository = QStringLiteral("harbour");
    made.why = Details::Why::Marked;
    return made;
}

Row sized(Row made, long long size, char const* text)
{
    made.size = size;
    made.sizeText = QString::fromUtf8(text);
    return made;
}

/// An unmarked removal, an update and an installation that it requires.
Details sample()
{
    Row gone = row(Details::Action::Remove, "wick", "1.0-1", "");
    gone.repository.clear();
    gone.why = Details::Why::Needs;
    gone.whom = QStringList(QStringLiteral("candle"));
    gone.warnings = Details::Unmarked;
    Row lamp = row(Details::Action::Update, "lamp", "1.0-1", "1.1-1");
    lamp.replaces = QStringList(QStringLiteral("lantern"));
    Row oil = row(Details::Action::Install, "oil", "", "2.0-1");
    oil.why = Details::Why::Required;
    oil.whom = QStringList({QStringLiteral("lamp"), QStringLiteral("torch")});
    oil.more = 3;
    oil.warnings = Details::Unchecked;
    Details details;
    details.rows = {sized(gone, 900, "900b"), sized(lamp, 2048, "2.0Kb"), sized(oil, 5000000, "4.8Mb")};
    details.download = QStringLiteral("4.8Mb");
    details.growth = QStringLiteral("7.0Mb");
    details.growthSign = 1;
    details.changes = true;
    return details;
}

template <class Widget>
Widget* named(QWidget* parent, char const* accessibleName)
{
    for (Widget* const widget : parent->findChildren<Widget*>()) {
        if (widget->accessibleName() == QLatin1String(accessibleName)) {
            return widget;
        }
    }
    return nullptr;
}

QString cell(QTableView const* table, int at, int column)
{
    return table->model()->index(at, column).data().toString();
}

QStringList column(QTableView const* table, int number)
{
    QStringList texts;
    for (int at = 0; at < table->model()->rowCount(); ++at) {
        texts.append(cell(table, at, number));
    }
    return texts;
}

QPushButton* button(QWidget* parent, char const* text)
{
    for (QPushButton* const found : parent->findChildren<QPushButton*>()) {
        if (found->text().remove(u'&') == QLatin1String(text)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

class TestDetailsPage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void modelIsSound();
    void everyColumnTellsItsPart();
    void reasonsAreWords_data();
    void reasonsAreWords();
    void orderOfTheTransactionStandsUntilAColumnIsSorted();
    void sizesAreSortedByBytes();
    void sizesStandClearOfTheReasons();
    void warningsNameTheirPackages();
    void nothingToWarnOfShowsNoWarnings();
    void whoComesByTabHasARow();
    void rowsThatWantAttentionAreBold();
    void totalsTellCountsDownloadAndDisk();
    void thousandsOfRowsFitTheScreen();
    void largeLettersLeaveRowsInSight();

    void toldTextIsTheFirstPage();
    void changesAreReadOnTheAskingThread();
    void changesThatCannotBeReadCanBeAskedForAgain();
    void withoutUpdatesThereIsNothingToLoad();

private:
    QWidget window;
};

void TestDetailsPage::initTestCase()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void TestDetailsPage::modelIsSound()
{
    DetailsModel model(sample().rows, QFont(), this);
    QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setFont(QFont());
}

void TestDetailsPage::everyColumnTellsItsPart()
{
    DetailsPage page(sample(), &window);
    auto const* const table = page.findChild<QTableView*>();
    QVERIFY(table);
    auto const line = [&](int at) {
        QStringList texts;
        for (int number = 0; number < table->model()->columnCount(); ++number) {
            texts.append(cell(table, at, number));
        }
        return texts.join(u'|');
    };
    QCOMPARE(line(0), QStringLiteral("Remove|wick|1.0-1|noarch||900b|needs candle"));
    QCOMPARE(
        line(1),
        QStringLiteral("Update|lamp|1.0-1 \u2192 1.1-1|noarch|harbour|2.0Kb|marked; replaces lantern"));
    QCOMPARE(
        line(2), QStringLiteral("Install|oil|2.0-1|noarch|harbour|4.8Mb|required by lamp, torch and 3 more"));
}

void TestDetailsPage::reasonsAreWords_data()
{
    QTest::addColumn<int>("why");
    QTest::addColumn<QString>("words");
    auto const add = [](Details::Why why, char const* words) {
        QTest::newRow(words) << static_cast<int>(why) << QString::fromUtf8(words);
    };
    add(Details::Why::Marked, "marked");
    add(Details::Why::Required, "required by oak");
    add(Details::Why::Recommended, "recommended by oak");
    add(Details::Why::Together, "goes together with oak");
    add(Details::Why::Needs, "needs oak");
    add(Details::Why::Supplanted, "replaced by oak");
    add(Details::Why::Unneeded, "no longer needed");
    add(Details::Why::Surplus, "one version too many");
    add(Details::Why::Solver, "to resolve dependencies");
}

void TestDetailsPage::reasonsAreWords()
{
    QFETCH(int, why);
    QFETCH(QString, words);
    Row made;
    made.why = static_cast<Details::Why>(why);
    made.whom = QStringList(QStringLiteral("oak"));
    QCOMPARE(DetailsModel::reason(made), words);
}

void TestDetailsPage::orderOfTheTransactionStandsUntilAColumnIsSorted()
{
    DetailsPage page(sample(), &window);
    auto* const table = page.findChild<QTableView*>();
    QCOMPARE(column(table, DetailsModel::NameColumn), QStringList({"wick", "lamp", "oil"}));
    table->sortByColumn(DetailsModel::NameColumn, Qt::AscendingOrder);
    QCOMPARE(column(table, DetailsModel::NameColumn), QStringList({"lamp", "oil", "wick"}));
    QVERIFY(table->horizontalHeader()->sectionsClickable());
    QVERIFY(table->isSortingEnabled());
}

void TestDetailsPage::sizesAreSortedByBytes()
{
    DetailsPage page(sample(), &window);
    auto* const table = page.findChild<QTableView*>();
    table->sortByColumn(DetailsModel::SizeColumn, Qt::DescendingOrder);
    QCOMPARE(column(table, DetailsModel::SizeColumn), QStringList({"4.8Mb", "2.0Kb", "900b"}));
}

void TestDetailsPage::sizesStandClearOfTheReasons()
{
    DetailsPage page(sample(), &window);
    auto const* const table = page.findChild<QTableView*>();
    for (int at = 0; at < table->model()->rowCount(); ++at) {
        auto const alignment =
            table->model()->index(at, DetailsModel::SizeColumn).data(Qt::TextAlignmentRole).toInt();
        QVERIFY(!(alignment & Qt::AlignRight));
    }
}

void TestDetailsPage::warningsNameTheirPackages()
{
    Details details = sample();
    for (int number = 0; number < 20; ++number) {
        details.rows.append(
            row(Details::Action::Downgrade, qPrintable(QStringLiteral("p%1").arg(number)), "2", "1"));
        details.rows.last().warnings = Details::Older;
    }
    DetailsPage page(details, &window);
    auto const* const warnings = named<WrappedText>(&page, "Warnings");
    QVERIFY(warnings);
    QStringList const lines = warnings->toPlainText().split(u'\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], QStringLiteral("Removed without being marked: wick"));
    QVERIFY2(lines[1].startsWith("Older than the installed version: p0, p1, "), qPrintable(lines[1]));
    QVERIFY2(lines[1].endsWith("p7 and 12 more"), qPrintable(lines[1]));
    QCOMPARE(lines[2], QStringLiteral("Signature not checked, by the configuration of the repository: oil"));
}

void TestDetailsPage::nothingToWarnOfShowsNoWarnings()
{
    Details details = sample();
    for (Row& one : details.rows) {
        one.warnings = {};
    }
    DetailsPage page(details, &window);
    QVERIFY(!named<WrappedText>(&page, "Warnings"));
}

void TestDetailsPage::whoComesByTabHasARow()
{
    ScrollableConfirmDialog dialog(QStringLiteral("Text"), sample(), &window);
    dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* const table = dialog.findChild<QTableView*>();
    QVERIFY(!table->selectionModel()->hasSelection());
    EVENTUALLY_VERIFY(button(&dialog, "OK")->hasFocus());
    for (int turn = 0; turn < 10 && !table->hasFocus(); ++turn) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(table->hasFocus());
    QCOMPARE(table->selectionModel()->selectedRows(), QModelIndexList{table->model()->index(0, 0)});
}

void TestDetailsPage::rowsThatWantAttentionAreBold()
{
    DetailsPage page(sample(), &window);
    auto const* const table = page.findChild<QTableView*>();
    auto const isBold = [table](int at) {
        QVariant const font = table->model()->index(at, DetailsModel::NameColumn).data(Qt::FontRole);
        return font.isValid() && font.value<QFont>().bold();
    };
    QVERIFY(isBold(0));
    // A repository that asks for no signatures would have all of its packages in bold.
    QVERIFY(!isBold(1) && !isBold(2));
    QFont large(page.font());
    large.setPointSize(40);
    page.setFont(large);
    QCOMPARE(
        table->model()->index(0, DetailsModel::NameColumn).data(Qt::FontRole).value<QFont>().pointSize(), 40);
    QVERIFY(isBold(0));
}

void TestDetailsPage::totalsTellCountsDownloadAndDisk()
{
    auto const totals = [this](Details const& details) {
        DetailsPage page(details, &window);
        for (QLabel const* const label : page.findChildren<QLabel*>()) {
            if (label->accessibleDescription() == QLatin1String("Totals")) {
                return label->text();
            }
        }
        return QString();
    };
    Details details = sample();
    QCOMPARE(
        totals(details),
        QStringLiteral(
            "Install: 1    Update: 1    Remove: 1    To download: 4.8Mb    On the disk: 7.0Mb more"));
    details.growthSign = -1;
    QVERIFY(totals(details).endsWith("On the disk: 7.0Mb less"));
    details.growthSign = 0;
    QVERIFY(totals(details).endsWith("On the disk: no change"));
}

void TestDetailsPage::thousandsOfRowsFitTheScreen()
{
    Details details = sample();
    for (int number = 0; number < 2000; ++number) {
        details.rows.append(row(
            Details::Action::Update, qPrintable(QStringLiteral("package-%1").arg(number)), "1.0-1", "1.1-1"));
        details.rows.last().whom = QStringList(QString(300, u'x'));
        details.rows.last().why = Details::Why::Required;
    }
    ScrollableConfirmDialog dialog(QStringLiteral("Text"), details, &window);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSize const screen = dialog.screen()->geometry().size();
    QVERIFY(dialog.width() <= screen.width() && dialog.height() <= screen.height());
    QVERIFY(dialog.maximumWidth() == QWIDGETSIZE_MAX && dialog.maximumHeight() == QWIDGETSIZE_MAX);
    auto* const pages = dialog.findChild<QTabWidget*>();
    pages->setCurrentIndex(1);
    auto const* const table = dialog.findChild<QTableView*>();
    int const before = table->height();
    dialog.resize(dialog.width(), dialog.height() + 100);
    EVENTUALLY_VERIFY(table->height() > before);
}

void TestDetailsPage::largeLettersLeaveRowsInSight()
{
    QFont const before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2);
    QApplication::setFont(large);
    Details details = sample();
    details.rows[0].warnings |= Details::Protected | Details::Running | Details::Older;
    ScrollableConfirmDialog dialog(QStringLiteral("Text"), details, &window);
    dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
    dialog.show();
    QApplication::setFont(before);
    auto const* const table = dialog.findChild<QTableView*>();
    EVENTUALLY_VERIFY(table->viewport()->height() >= 3 * table->rowHeight(0));
    QSize const screen = dialog.screen()->geometry().size();
    QVERIFY(dialog.width() <= screen.width() && dialog.height() <= screen.height());
}

void TestDetailsPage::toldTextIsTheFirstPage()
{
    ScrollableConfirmDialog dialog(QStringLiteral("Transaction to be performed:\n"), sample(), &window);
    auto const* const pages = dialog.findChild<QTabWidget*>();
    QVERIFY(pages);
    QCOMPARE(pages->count(), 2);
    QCOMPARE(pages->currentIndex(), 0);
    QCOMPARE(pages->tabText(0).remove(u'&'), QStringLiteral("Transaction"));
    QCOMPARE(pages->tabText(1).remove(u'&'), QStringLiteral("Details"));
    QStringList labels;
    for (QLabel const* const label : pages->widget(0)->findChildren<QLabel*>()) {
        labels.append(label->text());
    }
    QCOMPARE(labels, QStringList(QStringLiteral("Transaction to be performed:\n")));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(button(&dialog, "OK")->isDefault());
    QVERIFY(button(&dialog, "OK")->hasFocus());
    QVERIFY(button(&dialog, "Cancel"));
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
}

void TestDetailsPage::changesAreReadOnTheAskingThread()
{
    QThread const* asking = nullptr;
    QThread const* reading = nullptr;
    QString before;
    QString all;
    QString ofOne;
    QString ofAnother;
    bool gone = false;
    // Once the dialog stands: asks for the changes, and looks at them when they have come.
    QTimer user;
    bool pressed = false;
    connect(&user, &QTimer::timeout, this, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        auto* const edit = dialog ? named<QPlainTextEdit>(dialog, "Changes") : nullptr;
        if (!edit) {
            return;
        }
        if (!pressed) {
            pressed = true;
            before = edit->toPlainText();
            dialog->findChild<QTabWidget*>()->setCurrentIndex(1);
            button(dialog, "Load Changes")->click();
        } else if (edit->toPlainText().contains(QLatin1String("Brighter"))) {
            user.stop();
            all = edit->toPlainText();
            gone = button(dialog, "Load Changes")->isHidden() && edit->hasFocus() &&
                   button(dialog, "OK")->isDefault();
            auto* const table = dialog->findChild<QTableView*>();
            table->selectRow(2);
            ofOne = edit->toPlainText();
            table->sortByColumn(DetailsModel::NameColumn, Qt::AscendingOrder);
            table->selectRow(0);
            ofAnother = edit->toPlainText();
            button(dialog, "OK")->click();
        }
    });
    user.start(5);
    int answer = -1;
    runOnWorker([&] {
        asking = QThread::currentThread();
        YumIODialogs dialogs(&window);
        answer = dialogs.confirm(QStringLiteral("Apply"), QStringLiteral("Text"), sample(), [&] {
            reading = QThread::currentThread();
            return QStringList({QString(), QStringLiteral("- Brighter"), QString()});
        });
    });
    QCOMPARE(answer, 1);
    QCOMPARE(reading, asking);
    QCOMPARE(before, QString());
    QCOMPARE(all, QStringLiteral("lamp 1.0-1 \u2192 1.1-1\n\n- Brighter"));
    QCOMPARE(ofOne, QStringLiteral("The changelogs tell nothing new of oil."));
    QCOMPARE(ofAnother, all);
    QVERIFY(gone);
}

void TestDetailsPage::changesThatCannotBeReadCanBeAskedForAgain()
{
    DetailsPage page(sample(), &window);
    auto* const load = button(&page, "Load Changes");
    auto const* const edit = named<QPlainTextEdit>(&page, "Changes");
    load->click();
    QVERIFY(!load->isEnabled());
    QVERIFY(!edit->toPlainText().isEmpty());
    page.showChanges({});
    QVERIFY(load->isEnabled() && !load->isHidden());
    QCOMPARE(edit->toPlainText(), QString());
    page.showChanges({QString(), QString(), QString()});
    QCOMPARE(edit->toPlainText(), QStringLiteral("The changelogs tell nothing new."));
}

void TestDetailsPage::withoutUpdatesThereIsNothingToLoad()
{
    Details details = sample();
    details.rows.removeAt(1);
    QVERIFY(!button(std::make_unique<DetailsPage>(details, &window).get(), "Load Changes"));
    details = sample();
    details.changes = false;
    QVERIFY(!button(std::make_unique<DetailsPage>(details, &window).get(), "Load Changes"));
}

QTEST_MAIN(TestDetailsPage)
#include "tst_detailspage.moc"
