// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QComboBox;
class QMainWindow;

namespace PackageTable
{
class Header;
}

/// Carries how somebody has arranged the main window from one time to the next: its size and place, the
/// columns, the mode. What is remembered but can't be used is passed over. Owned by the window; GUI thread.
class WindowMemory final : public QObject
{
    Q_OBJECT

public:
    /// None is owned; all outlive this.
    WindowMemory(QMainWindow* window, PackageTable::Header* header, QComboBox* mode);

    /// To be called once, before the window shows.
    void restore();
    /// To be called once the columns have been fitted to their contents, and the window to the columns.
    void restoreSizes();
    /// Writes the window's size and place, and whatever waits to be written.
    void keep();
    /// Forgets all that and lets columns and window be as nobody has arranged them, but for their sizes.
    void forget();

private:
    void keepColumns();

    QMainWindow* window;
    PackageTable::Header* header;
    QComboBox* mode;
    QTimer columnsChange; ///< a column under the mouse changes its width with each step
    QByteArray geometry;  ///< what was remembered at the start; empty if nothing was
    bool isWhole = false; ///< the window shows its table, and so has a size that is worth remembering
};
