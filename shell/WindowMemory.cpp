// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/WindowMemory.h"

#include "base/UserSettings.h"
#include "packagetable/PackageTableHeader.h"

#include <QComboBox>
#include <QMainWindow>
#include <QSignalBlocker>

namespace
{

constexpr QLatin1String geometryKey("window/geometry");
constexpr QLatin1String modeKey("table/mode");
constexpr QLatin1String orderKey("table/columns");
constexpr QLatin1String shownKey("table/shownColumns");
constexpr QLatin1String widthsKey("table/columnWidths"); // such as "name:200"

constexpr QLatin1String modeNames[]{QLatin1String("filter"), QLatin1String("search")};

} // namespace

WindowMemory::WindowMemory(QMainWindow* mainWindow, PackageTable::Header* columns, QComboBox* modeCombo)
    : QObject(mainWindow),
      window(mainWindow),
      header(columns),
      mode(modeCombo)
{
    columnsChange.setSingleShot(true);
    columnsChange.setInterval(500);
    connect(&columnsChange, &QTimer::timeout, this, &WindowMemory::keepColumns);
}

void WindowMemory::restore()
{
    geometry = UserSettings::value(geometryKey, QByteArray()).toByteArray();
    if (!window->restoreGeometry(geometry)) {
        geometry.clear();
    }
    {
        QSignalBlocker const guard(mode);
        mode->setCurrentIndex(UserSettings::value(modeKey, QString()).toString() == modeNames[1] ? 1 : 0);
    }
    PackageTable::ColumnLayout layout;
    layout.order = UserSettings::value(orderKey, QStringList()).toStringList();
    layout.shown = UserSettings::value(shownKey, QStringList()).toStringList();
    header->setLayout(layout);

    connect(header, &PackageTable::Header::layoutChanged, &columnsChange, qOverload<>(&QTimer::start));
    connect(mode, &QComboBox::currentIndexChanged, this, [](int index) {
        UserSettings::setValue(modeKey, QString(modeNames[index]));
    });
}

void WindowMemory::restoreSizes()
{
    PackageTable::ColumnLayout layout = header->layout();
    for (QString const& width : UserSettings::value(widthsKey, QStringList()).toStringList()) {
        layout.widths.insert(
            width.section(QLatin1Char(':'), 0, 0), width.section(QLatin1Char(':'), 1).toInt());
    }
    header->setLayout(layout);
    if (!geometry.isEmpty()) {
        window->restoreGeometry(geometry);
    }
    isWhole = true;
}

void WindowMemory::keep()
{
    if (isWhole) {
        UserSettings::setValue(geometryKey, window->saveGeometry());
    }
    if (columnsChange.isActive()) {
        columnsChange.stop();
        keepColumns();
    }
}

void WindowMemory::keepColumns()
{
    PackageTable::ColumnLayout const layout = header->layout();
    QStringList widths;
    for (auto width = layout.widths.begin(); width != layout.widths.end(); ++width) {
        widths.append(QStringLiteral("%1:%2").arg(width.key()).arg(width.value()));
    }
    UserSettings::setValue(orderKey, layout.order);
    UserSettings::setValue(shownKey, layout.shown);
    UserSettings::setValue(widthsKey, widths);
}

void WindowMemory::forget()
{
    window->setWindowState(Qt::WindowNoState);
    header->setLayout(PackageTable::Header::initialLayout());
    columnsChange.stop();
    for (QLatin1String const key : {geometryKey, orderKey, shownKey, widthsKey}) {
        UserSettings::remove(key);
    }
}
