// SPDX-License-Identifier: GPL-2.0-or-later
// What most sources include: compiled once for all libraries, with the option VEM_PCH. Nothing may rely on it: the
// packages are built without.
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
