// SPDX-License-Identifier: GPL-2.0-or-later
// What the main window remembers from one time to the next.
#include "ShellTest.h"

#include "base/UserSettings.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableHeader.h"
#include "packagetable/PackageTableView.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class MainWindowMemoryTest : public ShellTest
{
    Q_OBJECT

    QComboBox* mode() const { return window->findChildren<QComboBox*>().at(0); }

    PackageTable::Header* header() const { return window->findChild<PackageTable::View*>()->header(); }

private Q_SLOTS:
    void initTestCase()
    {
        prepare();
        UserSettings::setValue(QStringLiteral("table/mode"), QStringLiteral("search"));
        UserSettings::setValue(
            QStringLiteral("table/columns"), QStringList{QStringLiteral("name"), QStringLiteral("weight")});
        UserSettings::setValue(
            QStringLiteral("table/shownColumns"),
            QStringList{QStringLiteral("action"), QStringLiteral("name"), QStringLiteral("summary")});
        UserSettings::setValue(
            QStringLiteral("table/columnWidths"),
            QStringList{QStringLiteral("name:333"), QStringLiteral("action:many"), QStringLiteral("x")});
        {
            QMainWindow earlier;
            earlier.setGeometry(40, 50, 1000, 420);
            earlier.show();
            UserSettings::setValue(QStringLiteral("window/geometry"), earlier.saveGeometry());
        }
        QVariant const whole = UserSettings::value(QStringLiteral("window/geometry"), QVariant());
        {
            MainWindow closedAtOnce(nullptr);
            closedAtOnce.close();
        }
        // A window without its table is small, and not how anybody wants it.
        QCOMPARE(UserSettings::value(QStringLiteral("window/geometry"), QVariant()), whole);
        makeWindow();
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void whatWasArrangedIsThereAgain()
    {
        QCOMPARE(mode()->currentIndex(), 1);
        QVERIFY(button(QStringLiteral("Search")));
        // A window is no wider than the screen, which may be narrower than its contents.
        QCOMPARE(window->height(), 420);
        QCOMPARE(
            header()->layout().shown,
            QStringList({QStringLiteral("action"), QStringLiteral("name"), QStringLiteral("summary")}));
        QCOMPARE(header()->sectionSize(PackageTable::NameColumn), 333);
        // Nothing has been searched for.
        QVERIFY(!calls().contains(QStringLiteral("collectFileLists")));
    }

    void whatIsArrangedNowIsRemembered()
    {
        mode()->setCurrentIndex(0);
        QCOMPARE(
            UserSettings::value(QStringLiteral("table/mode"), QString()).toString(),
            QStringLiteral("filter"));
        header()->setShown(PackageTable::VersionColumn, true);
        header()->resizeSection(PackageTable::NameColumn, 222);
        // It doesn't take an end in good order of the program.
        QVERIFY(QTest::qWaitFor([] {
            return UserSettings::value(QStringLiteral("table/columnWidths"), QStringList())
                .toStringList()
                .contains(QStringLiteral("name:222"));
        }));
        QVERIFY(UserSettings::value(QStringLiteral("table/shownColumns"), QStringList())
                    .toStringList()
                    .contains(QStringLiteral("version")));
    }

    void resetBringsTheWindowOfTheFirstTime()
    {
        static_cast<QWidget&>(*window).resize(1500, 900);
        mode()->setCurrentIndex(1);
        action(QStringLiteral("Match Case"))->setChecked(false);
        action(QStringLiteral("Reset Window"))->trigger();
        QCOMPARE(mode()->currentIndex(), 0);
        QVERIFY(action(QStringLiteral("Match Case"))->isChecked());
        QCOMPARE(header()->layout(), PackageTable::Header::initialLayout());
        QCOMPARE(header()->sortIndicatorSection(), int{PackageTable::KindColumn});
        QVERIFY(window->width() < 1500);
        QVERIFY(header()->sectionSize(PackageTable::NameColumn) != 222);
        for (char const* const key : {"table/columns", "table/shownColumns", "table/columnWidths"}) {
            QVERIFY(!UserSettings::value(QLatin1String(key), QVariant()).isValid());
        }
    }

    void closingKeepsWhatWaits()
    {
        header()->resizeSection(PackageTable::NameColumn, 223);
        static_cast<QWidget&>(*window).resize(1020, 440);
        window->close();
        QVERIFY(UserSettings::value(QStringLiteral("table/columnWidths"), QStringList())
                    .toStringList()
                    .contains(QStringLiteral("name:223")));
        QMainWindow later;
        QVERIFY(later.restoreGeometry(
            UserSettings::value(QStringLiteral("window/geometry"), QByteArray()).toByteArray()));
        QCOMPARE(later.height(), 440);
    }
};

QTEST_MAIN(MainWindowMemoryTest)
#include "tst_mainwindowmemory.moc"
