// SPDX-License-Identifier: GPL-2.0-or-later
// The columns as their user arranges them.
#include "ViewTest.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableHeader.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>

using PackageTable::ColumnLayout;
using PackageTable::Header;

class TestPackageTableHeader : public QObject, private ViewTest
{
    Q_OBJECT

    Header* header() const { return view->header(); }

    QAction* entry(int column) const { return header()->columnsMenu()->actions().at(column); }

    QStringList shownTitles() const
    {
        QStringList titles;
        for (int place = 0; place < header()->count(); ++place) {
            int const column = header()->logicalIndex(place);
            if (!header()->isSectionHidden(column)) {
                titles.append(view->model()->headerData(column, Qt::Horizontal).toString());
            }
        }
        return titles;
    }

    void dragEdge(int column, int pixels) const
    {
        QPoint const edge(
            header()->sectionViewportPosition(column) + header()->sectionSize(column) - 1,
            header()->height() / 2);
        QWidget* const place = header()->viewport();
        QTest::mousePress(place, Qt::LeftButton, {}, edge);
        QTest::mouseMove(place, edge + QPoint(pixels / 2, 0));
        QTest::mouseMove(place, edge + QPoint(pixels, 0));
        QTest::mouseRelease(place, Qt::LeftButton, {}, edge + QPoint(pixels, 0));
    }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void nineColumnsShowAtFirst()
    {
        QCOMPARE(
            shownTitles().join(QLatin1Char('|')),
            QStringLiteral("Action|State|Kind|Name|Version|Repository|Architecture|Size|Build Time"));
        QCOMPARE(header()->layout(), Header::initialLayout());
    }

    void theSortedColumnHasAnArrow()
    {
        QVERIFY(header()->isSortIndicatorShown());
        QCOMPARE(header()->sortIndicatorSection(), int{PackageTable::KindColumn});
    }

    void theContextMenuHasAnEntryForEachColumn()
    {
        QStringList texts;
        QTimer::singleShot(0, view, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (QAction const* const action : menu->actions()) {
                texts.append(
                    action->isChecked() ? action->text() : QStringLiteral("(%1)").arg(action->text()));
            }
            menu->close();
        });
        QPoint const point(10, 5);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, header()->viewport()->mapToGlobal(point));
        QApplication::sendEvent(header()->viewport(), &event);
        QCOMPARE(texts.size(), int{PackageTable::ColumnCount});
        QCOMPARE(texts.first(), QStringLiteral("Action"));
        QVERIFY(texts.contains(QStringLiteral("(Summary)")));
        QVERIFY(texts.contains(QStringLiteral("(Installed Version)")));
    }

    void anEntryShowsAndHidesItsColumn()
    {
        QSignalSpy const spy(header(), &Header::layoutChanged);
        entry(PackageTable::KindColumn)->trigger();
        QVERIFY(header()->isSectionHidden(PackageTable::KindColumn));
        entry(PackageTable::SummaryColumn)->trigger();
        QVERIFY(!header()->isSectionHidden(PackageTable::SummaryColumn));
        QCOMPARE(spy.size(), 2);
    }

    void theLastColumnCannotBeHidden()
    {
        for (int column = 0; column < PackageTable::ColumnCount; ++column) {
            if (column != PackageTable::NameColumn && !header()->isSectionHidden(column)) {
                entry(column)->trigger();
            }
        }
        QCOMPARE(shownTitles(), QStringList{QStringLiteral("Name")});
        QVERIFY(!entry(PackageTable::NameColumn)->isEnabled());
        header()->setShown(PackageTable::NameColumn, false);
        QCOMPARE(shownTitles(), QStringList{QStringLiteral("Name")});
        entry(PackageTable::SizeColumn)->trigger();
        QVERIFY(entry(PackageTable::NameColumn)->isEnabled());
    }

    void aColumnThatComesFitsItsContents()
    {
        engine->entries[0]->summary = QStringLiteral("Programs that everybody needs");
        header()->setShown(PackageTable::SummaryColumn, true);
        QVERIFY(
            header()->sectionSize(PackageTable::SummaryColumn) >=
            view->fontMetrics().horizontalAdvance(engine->entries[0]->summary));
        // But not those of a page.
        engine->entries[0]->summary = QString(2000, QLatin1Char('m'));
        header()->setShown(PackageTable::SummaryColumn, false);
        model->reset();
        header()->setShown(PackageTable::SummaryColumn, true);
        QVERIFY(header()->sectionSize(PackageTable::SummaryColumn) < 1000);
    }

    void aShownTextTakesPartInTheFilterAndAHiddenOneDoesNot()
    {
        engine->entries[0]->summary = QStringLiteral("Programs that everybody needs");
        engine->entries[0]->buildTimeText = QStringLiteral("Monday");
        view->filtersearch(QStringLiteral("everybody"));
        QCOMPARE(names(), QStringList());
        header()->setShown(PackageTable::SummaryColumn, true);
        QCOMPARE(names(), QStringList{QStringLiteral("coreutils")});
        // As if they were separated by blanks.
        view->filtersearch(QStringLiteral("Monday Programs"));
        QCOMPARE(names(), QStringList{QStringLiteral("coreutils")});
        header()->setShown(PackageTable::BuildTimeColumn, false);
        QCOMPARE(names(), QStringList());
        header()->setShown(PackageTable::SummaryColumn, false);
        view->filtersearch(QStringLiteral("Monday"));
        QCOMPARE(names(), QStringList());
    }

    void theInstalledVersionIsThatOfTheSystem()
    {
        auto* const installed = new Package::Entry;
        installed->verRel = QStringLiteral("9.0-1");
        installed->state = Package::UpToDate;
        engine->entries[0]->verRel = QStringLiteral("9.1-1");
        engine->entries[0]->installed = installed;
        engine->entries[2]->verRel = QStringLiteral("3-1");
        engine->entries[1]->verRel = QStringLiteral("5-1");
        auto const version = [this](int row) {
            return model->index(row, PackageTable::InstalledVersionColumn).data().toString();
        };
        QCOMPARE(version(0), QStringLiteral("9.0-1"));
        QCOMPARE(version(1), QString());
        QCOMPARE(version(2), QStringLiteral("3-1"));
        QCOMPARE(version(3), QString());
    }

    void anArrangementComesBack()
    {
        header()->moveSection(header()->visualIndex(PackageTable::RepositoryColumn), 0);
        header()->setShown(PackageTable::SizeColumn, false);
        dragEdge(PackageTable::NameColumn, 60);
        int const width = header()->sectionSize(PackageTable::NameColumn);
        ColumnLayout const arranged = header()->layout();
        QCOMPARE(arranged.order.first(), QStringLiteral("repository"));
        QVERIFY(!arranged.shown.contains(QStringLiteral("size")));
        QCOMPARE(arranged.widths, (QHash<QString, int>{{QStringLiteral("name"), width}}));

        close();
        open();
        header()->setLayout(arranged);
        QCOMPARE(header()->layout(), arranged);
        QCOMPARE(header()->sectionSize(PackageTable::NameColumn), width);
        QCOMPARE(shownTitles().first(), QStringLiteral("Repository"));
        header()->setLayout(Header::initialLayout());
        QCOMPARE(header()->layout(), Header::initialLayout());
        QVERIFY(entry(PackageTable::SizeColumn)->isChecked());
    }

    void widthsThatWereFittedAreNoOnes()
    {
        dragEdge(PackageTable::NameColumn, 60);
        QVERIFY(!header()->layout().widths.isEmpty());
        view->resizeColumnsToContents();
        QVERIFY(header()->layout().widths.isEmpty());
        header()->setShown(PackageTable::SizeColumn, false);
        header()->setShown(PackageTable::SizeColumn, true);
        QVERIFY(header()->layout().widths.isEmpty());
    }

    void whatNoColumnIsNamedIsPassedOver()
    {
        ColumnLayout layout;
        layout.order = {QStringLiteral("weight"), QStringLiteral("name"), QStringLiteral("name")};
        layout.shown = {QStringLiteral("weight")};
        layout.widths = {
            {QStringLiteral("weight"), 100},
            {QStringLiteral("name"), -7},
            {QStringLiteral("size"), 99999999}};
        header()->setLayout(layout);
        QCOMPARE(
            shownTitles().join(QLatin1Char('|')),
            QStringLiteral("Action|State|Kind|Name|Version|Repository|Architecture|Size|Build Time"));
        QVERIFY(header()->layout().widths.isEmpty());

        // A column of a later release stands where it stands at first.
        layout.order = Header::initialLayout().order;
        layout.order.removeAll(QStringLiteral("version"));
        layout.order.move(layout.order.indexOf(QStringLiteral("name")), 0);
        header()->setLayout(layout);
        QCOMPARE(
            shownTitles().join(QLatin1Char('|')),
            QStringLiteral("Name|Version|Action|State|Kind|Repository|Architecture|Size|Build Time"));
    }
};

QTEST_MAIN(TestPackageTableHeader)
#include "tst_packagetableheader.moc"
