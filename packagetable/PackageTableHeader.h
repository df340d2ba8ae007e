// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QHeaderView>
#include <QList>
#include <QStringList>

class QAction;
class QMenu;
class QTableView;

namespace PackageTable
{

/// How a user has arranged the columns, in names that stay from release to release.
struct ColumnLayout
{
    bool operator==(ColumnLayout const& other) const = default;

    QStringList order;          ///< all columns from left to right
    QStringList shown;          ///< those of them that show
    QHash<QString, int> widths; ///< pixels, of those that somebody has given a width by hand
};

/// The header of the package table: columns can be moved, and its context menu shows and hides them. Owned by
/// the view; GUI thread. Columns are numbers of enum Column.
class Header final : public QHeaderView
{
    Q_OBJECT

public:
    explicit Header(QTableView* view);

    /// One entry for each column, checked while it shows. Owned by the header.
    [[nodiscard]] QMenu* columnsMenu() const { return menu; }
    /// To be called once the header has its columns, and before anything else.
    void setUp();

    [[nodiscard]] ColumnLayout layout() const;
    /// Names that are no column's are passed over, and columns that aren't named stand where they stand at
    /// first.
    void setLayout(ColumnLayout const& layout);
    /// The one at first.
    [[nodiscard]] static ColumnLayout initialLayout();

    /// Fits the widths to the contents by `fit`, and so gives up those that were given by hand.
    template <typename Fit>
    void fitWidths(Fit const& fit)
    {
        widthsByHand.clear();
        fits = true;
        fit();
        fits = false;
        Q_EMIT layoutChanged();
    }

    /// The same for one column; what was given by hand stays so.
    void fit(int column);
    [[nodiscard]] bool hasWidthByHand(int column) const { return widthsByHand.contains(column); }

    /// Shows the column, or hides it unless no other one is left.
    void setShown(int column, bool shown);

Q_SIGNALS:
    /// The user has moved, shown, hidden or resized a column, or somebody has called `setShown`.
    void layoutChanged();
    /// A column shows, or is hidden.
    void shownChanged(int column, bool shown);

private:
    void resized(int column, int before, int now);
    void updateMenu();

    QTableView* table;
    QMenu* menu;
    QList<QAction*> entries; ///< by column
    QHash<int, int> widthsByHand;
    bool fits = false; ///< what changes the widths now isn't the user
};

} // namespace PackageTable
