// SPDX-License-Identifier: GPL-2.0-or-later
#include "TableModel.h"
#include "widgets/HItemDelegate.h"
#include "widgets/HSortFilterProxyModel.h"
#include "widgets/HTableView.h"

#include <QHeaderView>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace
{

TableModel::Rows rowsOf(int count)
{
    TableModel::Rows rows;
    for (int row = 0; row < count; ++row) {
        rows.append({QStringLiteral("name %1").arg(row), row});
    }
    return rows;
}

class FrameAroundContents : public QProxyStyle
{
public:
    explicit FrameAroundContents(bool answerToGive)
        : answer(answerToGive)
    {
    }

    int styleHint(
        StyleHint hint, QStyleOption const* option, QWidget const* widget,
        QStyleHintReturn* returned) const override
    {
        return hint == SH_ScrollView_FrameOnlyAroundContents
                   ? answer
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override
    {
        return metric == PM_DefaultFrameWidth ? 7 : QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    bool answer;
};

class View : public HTableView
{
public:
    using HTableView::HTableView;
    using HTableView::initViewItemOption;
};

int heightOfRows(HTableView const& view, int rows)
{
    return view.frameWidth() + std::max(0, view.horizontalHeader()->sizeHint().height()) +
           view.verticalHeader()->defaultSectionSize() * rows + view.frameWidth();
}

} // namespace

class tst_HTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemOptionsCarryThePosition();
    void delegateBelongsToTheParentOfTheView();
    void equalLimitsNeverAskForTheRowCount();
    void heightFreezesAtTheFirstHint();
    void emptyModelAsksForTheFewestRows();
    void countOfRowsBetweenTheLimitsDecides();
    void hintFollowsItsFormula();
    void hiddenHeadersTakeNoRoom();
    void frameAroundContentsCountsTwice();
    void columnHintCoversRowsOutOfView();
    void columnHintOfALongTextIsNotCutAtTheView();
    void columnHintAddsTheGridLine();
    void columnHintWithoutAModel();
    void rowsHaveOneHeight();
    void sortByColumnStartsAscendingAndNeverToggles();
    void sortByColumnKeepsTheOrderOfTheIndicator();
    void sortByColumnWithoutAModelDoesNothing();
    void windowGrowsToShowTheColumns();
    void windowGrowsToNineTenthsOfTheScreenAtMost();
    void enlargedWindowStaysAsLarge();
    void selectedRowsFollowTheRanges();
    void cellsThatCannotBeSelectedAreNoSelectedRows();
    void selectedRowsWithoutAModel();
};

void tst_HTableView::itemOptionsCarryThePosition()
{
    for (auto const position : {QStyleOptionViewItem::Right, QStyleOptionViewItem::Top}) {
        View const view(position, 1, 2, nullptr);
        QStyleOptionViewItem option;
        option.showDecorationSelected = true;

        view.initViewItemOption(&option);

        QCOMPARE(option.decorationPosition, position);
        QVERIFY(!option.showDecorationSelected);
        QCOMPARE(option.font, view.font());
    }
}

void tst_HTableView::delegateBelongsToTheParentOfTheView()
{
    QWidget parent;
    auto* const view = new HTableView(QStyleOptionViewItem::Left, 1, 2, &parent);

    QVERIFY(qobject_cast<HItemDelegate*>(view->itemDelegate()));
    QCOMPARE(view->itemDelegate()->parent(), &parent);
}

void tst_HTableView::equalLimitsNeverAskForTheRowCount()
{
    TableModel model(rowsOf(20));
    HTableView view(QStyleOptionViewItem::Left, 4, 4, nullptr);
    view.setModel(&model);
    // The headers ask as well when they hear of the model; only the hint's own questions count.
    QSize const first = view.sizeHint();
    model.rowCountCalls = 0;

    QCOMPARE(view.sizeHint(), first);

    QCOMPARE(model.rowCountCalls, 0);
    QCOMPARE(first.height(), heightOfRows(view, 4));
}

void tst_HTableView::heightFreezesAtTheFirstHint()
{
    TableModel model(rowsOf(20));
    HTableView view(QStyleOptionViewItem::Left, 3, 10, nullptr);
    view.setModel(&model);
    QCOMPARE(view.sizeHint().height(), heightOfRows(view, 10));

    model.setRows(rowsOf(2));

    QCOMPARE(view.sizeHint().height(), heightOfRows(view, 10));
}

void tst_HTableView::emptyModelAsksForTheFewestRows()
{
    TableModel model({});
    HTableView view(QStyleOptionViewItem::Left, 3, 10, nullptr);
    view.setModel(&model);

    QCOMPARE(view.sizeHint().height(), heightOfRows(view, 3));
}

void tst_HTableView::countOfRowsBetweenTheLimitsDecides()
{
    TableModel model(rowsOf(5));
    HTableView view(QStyleOptionViewItem::Left, 3, 10, nullptr);
    view.setModel(&model);

    QCOMPARE(view.sizeHint().height(), heightOfRows(view, 5));
    model.setRows(rowsOf(8));
    QCOMPARE(view.sizeHint().height(), heightOfRows(view, 5));
}

void tst_HTableView::hintFollowsItsFormula()
{
    TableModel model(rowsOf(5));
    HTableView view(QStyleOptionViewItem::Left, 5, 5, nullptr);
    view.setModel(&model);
    view.setFrameStyle(QFrame::Box);
    view.setLineWidth(3);
    view.setColumnWidth(0, 71);
    view.setColumnWidth(1, 53);

    QCOMPARE(view.frameWidth(), 3);
    QCOMPARE(
        view.sizeHint(),
        QSize(
            3 + view.verticalHeader()->sizeHint().width() + 71 + 53 + view.frameOnlyAroundContentsPixels() +
                view.verticalScrollBar()->sizeHint().width() + 3,
            3 + view.horizontalHeader()->sizeHint().height() + 5 * view.rowHeight(0) + 3));
}

void tst_HTableView::hiddenHeadersTakeNoRoom()
{
    TableModel model(rowsOf(5));
    HTableView view(QStyleOptionViewItem::Left, 5, 5, nullptr);
    view.setModel(&model);
    QSize const full = view.sizeHint();

    view.verticalHeader()->hide();
    view.horizontalHeader()->hide();

    QSize const headers(
        view.verticalHeader()->sizeHint().width(), view.horizontalHeader()->sizeHint().height());
    QCOMPARE(view.sizeHint(), full - headers);
}

void tst_HTableView::frameAroundContentsCountsTwice()
{
    TableModel model(rowsOf(1));
    HTableView view(QStyleOptionViewItem::Left, 1, 1, nullptr);
    view.setModel(&model);
    FrameAroundContents with(true);
    FrameAroundContents without(false);

    view.setStyle(&without);
    QCOMPARE(view.frameOnlyAroundContentsPixels(), 0);
    int const width = view.sizeHint().width();
    view.setStyle(&with);
    QCOMPARE(view.frameOnlyAroundContentsPixels(), 14);
    QCOMPARE(view.sizeHint().width(), width + 14);
}

void tst_HTableView::columnHintCoversRowsOutOfView()
{
    auto rows = rowsOf(2000);
    TableModel model(rows);
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    view.resize(200, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    int const narrow = view.sizeHintForColumn(0);

    rows.last()[0] = QStringLiteral("a name that is much longer than all others");
    model.setRows(rows);

    QVERIFY(view.sizeHintForColumn(0) > narrow + 50);
}

void tst_HTableView::columnHintOfALongTextIsNotCutAtTheView()
{
    QString const text = QStringLiteral("many words ").repeated(40);
    TableModel model({{text}});
    HTableView view(QStyleOptionViewItem::Left, 1, 1, nullptr);
    view.setModel(&model);
    view.resize(100, 100);

    QVERIFY(view.sizeHintForColumn(0) >= view.fontMetrics().horizontalAdvance(text));
}

void tst_HTableView::columnHintAddsTheGridLine()
{
    TableModel model(rowsOf(3));
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    view.setShowGrid(false);
    int const width = view.sizeHintForColumn(0);

    view.setShowGrid(true);

    QCOMPARE(view.sizeHintForColumn(0), width + 1);
}

void tst_HTableView::columnHintWithoutAModel()
{
    HTableView const view(QStyleOptionViewItem::Left, 1, 5, nullptr);

    QCOMPARE(view.sizeHintForColumn(0), -1);
}

void tst_HTableView::rowsHaveOneHeight()
{
    auto rows = rowsOf(3);
    rows[1][0] = QStringLiteral("two\nlines\nand\nmore");
    TableModel model(rows);
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    int const height = view.verticalHeader()->defaultSectionSize();

    view.resizeColumnsToContents();

    for (int row = 0; row < 3; ++row) {
        QCOMPARE(view.rowHeight(row), height);
    }
    QCOMPARE(view.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
}

void tst_HTableView::sortByColumnStartsAscendingAndNeverToggles()
{
    TableModel model({{QStringLiteral("b"), 1}, {QStringLiteral("a"), 2}});
    HSortFilterProxyModel proxy(0, nullptr);
    proxy.setSourceModel(&model);
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&proxy);

    for (int call = 0; call < 2; ++call) {
        view.sortByColumn(1);
        QCOMPARE(proxy.index(0, 1).data().toInt(), 1);
        QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), 1);
        QCOMPARE(view.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    }
}

void tst_HTableView::sortByColumnKeepsTheOrderOfTheIndicator()
{
    TableModel model({{QStringLiteral("b"), 1}, {QStringLiteral("a"), 2}});
    HSortFilterProxyModel proxy(0, nullptr);
    proxy.setSourceModel(&model);
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&proxy);

    view.sortByColumn(1, Qt::DescendingOrder);
    QCOMPARE(proxy.index(0, 1).data().toInt(), 2);
    view.sortByColumn(1);
    QCOMPARE(proxy.index(0, 1).data().toInt(), 2);
    QCOMPARE(proxy.sortOrder(), Qt::DescendingOrder);
    view.sortByColumn(0);
    QCOMPARE(proxy.sortColumn(), 0);
    QCOMPARE(proxy.sortOrder(), Qt::AscendingOrder);
}

void tst_HTableView::sortByColumnWithoutAModelDoesNothing()
{
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    int const section = view.horizontalHeader()->sortIndicatorSection();

    view.sortByColumn(section + 2);

    QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), section);
}

void tst_HTableView::windowGrowsToShowTheColumns()
{
    TableModel model({{QStringLiteral("a name of some length")}});
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const view = new HTableView(QStyleOptionViewItem::Left, 1, 5, &window);
    layout->addWidget(view);
    view->setModel(&model);
    window.resize(10, 10);
    // The layout remembers this answer until it is told of the wider columns.
    QSize const before = window.sizeHint();
    view->setColumnWidth(0, 20);

    view->resizeColumnsToContents();

    QCOMPARE(view->columnWidth(0), view->sizeHintForColumn(0));
    QMargins const margins = layout->contentsMargins();
    QCOMPARE(window.width(), view->sizeHint().width() + margins.left() + margins.right());
    QVERIFY(window.width() > before.width());
}

void tst_HTableView::windowGrowsToNineTenthsOfTheScreenAtMost()
{
    TableModel model({{QStringLiteral("wide ").repeated(2000)}});
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    view.resize(10, 10);

    view.resizeColumnsToContents();

    QCOMPARE(view.width(), view.screen()->geometry().width() * 9 / 10);
}

void tst_HTableView::enlargedWindowStaysAsLarge()
{
    TableModel model(rowsOf(2));
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    QSize const large = view.screen()->geometry().size() - QSize(3, 3);
    view.resize(large);

    view.resizeColumnsToContents();

    QCOMPARE(view.size(), large);
}

void tst_HTableView::selectedRowsFollowTheRanges()
{
    TableModel model(rowsOf(10));
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    auto const select = [&](QModelIndex const& from, QModelIndex const& to) {
        view.selectionModel()->select(QItemSelection(from, to), QItemSelectionModel::Select);
    };

    select(model.index(6, 1), model.index(7, 1));
    select(model.index(2, 0), model.index(2, 1));
    select(model.index(7, 0), model.index(7, 0));

    QCOMPARE(
        view.selectedRows(),
        QList<QModelIndex>({model.index(6, 1), model.index(7, 1), model.index(2, 0), model.index(7, 0)}));
}

void tst_HTableView::cellsThatCannotBeSelectedAreNoSelectedRows()
{
    TableModel model(rowsOf(3));
    HTableView view(QStyleOptionViewItem::Left, 1, 5, nullptr);
    view.setModel(&model);
    view.selectionModel()->select(
        QItemSelection(model.index(0, 0), model.index(2, 1)), QItemSelectionModel::Select);
    QCOMPARE(view.selectedRows().size(), 3);

    model.selectable = false;

    QVERIFY(view.selectedRows().isEmpty());
}

void tst_HTableView::selectedRowsWithoutAModel()
{
    HTableView const view(QStyleOptionViewItem::Left, 1, 5, nullptr);

    QVERIFY(view.selectedRows().isEmpty());
}

QTEST_MAIN(tst_HTableView)
#include "tst_HTableView.moc"
