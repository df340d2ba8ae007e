// SPDX-License-Identifier: GPL-2.0-or-later
// What most sources include: compiled once for all of them, with the option VEM_PCH. Nothing may rely on it:
// the packages are built without. No header of the test library stands here: in the expansion of a macro that
// comes from here the compiler takes the toolkit's conversions for ours, and warns.
#include <QAbstractTableModel>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
