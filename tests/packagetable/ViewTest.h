// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "TestEngine.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableView.h"

#include <QHeaderView>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

/// A table of five rows in a window that shows, with eyes and hands for it.
class ViewTest
{
protected:
    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<PackageTable::Model> model;
    std::unique_ptr<QWidget> window;
    PackageTable::View* view = nullptr;

    /// New rows in place of the old, as a collection makes them; the second has the given name.
    void collect(QString const& second) const
    {
        engine->drop();
        engine->add("coreutils", Package::OutOfDate);
        engine->add(second, Package::Available);
        engine->add("audit", Package::UpToDate);
        engine->add("desktop", Package::Available, Package::Group);
        engine->add("everything", Package::OutOfDate, Package::Suite);
        model->reset();
    }

    /// Whether the columns are as wide as a plain table of all rows, in the same font and style, has them.
    bool columnsFitAllRows() const
    {
        HTableView plain(QStyleOptionViewItem::Left, 10, 10, window.get());
        plain.setShowGrid(false);
        plain.setFont(view->font());
        plain.setStyle(view->style());
        plain.setModel(model.get());
        for (int column = 0; column < 9; ++column) {
            int const header = view->horizontalHeader()->sectionSizeHint(column);
            if (view->columnWidth(column) != std::max(plain.sizeHintForColumn(column), header)) {
                return false;
            }
        }
        return true;
    }

    /// The view's cell of a row of the model.
    QModelIndex cell(int modelRow, int column) const
    {
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            if (view->model()->index(row, 3).data() == model->index(modelRow, 3).data()) {
                return view->model()->index(row, column);
            }
        }
        return {};
    }

    QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            result.append(view->model()->index(row, 3).data().toString());
        }
        return result;
    }

    void click(QModelIndex const& index) const
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
    }

    void clickHeader(int column) const
    {
        QHeaderView const* const header = view->horizontalHeader();
        QPoint const point(
            header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    }

    Package::Action action(int modelRow) const { return engine->entries[modelRow]->action; }

    void open()
    {
        engine = std::make_unique<TestEngine>();
        model = std::make_unique<PackageTable::Model>(engine.get(), nullptr);
        collect("bash");
        window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(window.get());
        view = new PackageTable::View(model.get(), PackageTable::All, true, engine.get(), window.get());
        layout->addWidget(view);
        window->resize(1000, 400);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void close()
    {
        window.reset();
        model.reset();
        engine.reset();
    }
};
