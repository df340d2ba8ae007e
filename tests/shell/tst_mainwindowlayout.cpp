// SPDX-License-Identifier: GPL-2.0-or-later
// The window as its constructor leaves it: nothing of the package system has run.
#include "shell/MainWindow.h"

#include "base/Application.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QTest>
#include <memory>
#include <sys/utsname.h>

class MainWindowLayoutTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<MainWindow> window;

    QStringList menuTexts(QMenu const* menu) const
    {
        QStringList texts;
        for (QAction const* const entry : menu->actions()) {
            QString const shortcut = entry->shortcut().toString();
            texts.append(
                entry->isSeparator() ? QStringLiteral("-")
                                     : entry->text() + (shortcut.isEmpty() ? QString() : u'|' + shortcut));
        }
        return texts;
    }

    QMenu* menu(QString const& title) const
    {
        for (QAction const* const entry : window->menuBar()->actions()) {
            if (entry->text() == title) {
                return entry->menu();
            }
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase() { application = qApp; }
    void init() { window = std::make_unique<MainWindow>(nullptr); }
    void cleanup() { window.reset(); }

    void theTitleNamesTheMachine()
    {
        utsname machine{};
        uname(&machine);
        QCOMPARE(window->windowTitle(), QStringLiteral("VEM - ") + QString::fromLocal8Bit(machine.nodename));
    }

    void theHintIsNeverNarrowerThan768()
    {
        QVERIFY(window->sizeHint().width() >= 768);
        delete window->centralWidget();
        QCOMPARE(window->sizeHint().width(), 768);
    }

    void theWindowNeverAsksForMoreThanTheScreenHas()
    {
        QFont const usual = QApplication::font();
        QFont large = usual;
        large.setPointSizeF(usual.pointSizeF() * 3);
        QApplication::setFont(large);
        auto const restore = qScopeGuard([&] { QApplication::setFont(usual); });
        auto* const area = window->findChild<QLineEdit*>()->parentWidget();
        area->setVisible(true);
        int const screen = window->screen()->availableGeometry().width();
        QVERIFY(area->sizeHint().width() > screen);
        QVERIFY(window->sizeHint().width() <= screen);
        QVERIFY(window->minimumSizeHint().width() <= screen);
    }

    void buttonsGoOnInAnotherLineOfANarrowWindow()
    {
        auto* const area = window->findChild<QLineEdit*>()->parentWidget();
        area->setVisible(true);
        QList<QPushButton*> const buttons = area->findChildren<QPushButton*>();
        int const wide = area->sizeHint().width();
        area->layout()->setGeometry({0, 0, wide, 500});
        for (QPushButton const* const button : buttons.mid(2)) {
            QVERIFY(button->geometry().top() < buttons.at(1)->geometry().bottom());
        }
        QCOMPARE(buttons.last()->geometry().right(), area->layout()->contentsRect().right());
        area->layout()->setGeometry({0, 0, wide / 2, 500});
        QVERIFY(buttons.last()->geometry().top() > buttons.at(1)->geometry().bottom());
        for (QPushButton const* const button : buttons) {
            QVERIFY2(area->layout()->contentsRect().contains(button->geometry()), qPrintable(button->text()));
            QVERIFY(button->width() >= button->sizeHint().width());
        }
    }

    void menusHaveTheirEntries()
    {
        QCOMPARE(window->menuBar()->actions().size(), 6);
        QCOMPARE(
            menuTexts(menu(QStringLiteral("&Program"))),
            QStringList(
                {QStringLiteral("&Open Package Files...|Ctrl+O"), QStringLiteral("-"),
                 QStringLiteral("&Quit|Ctrl+Q")}));
        QCOMPARE(
            menuTexts(menu(QStringLiteral("&Windows"))),
            QStringList(
                {QStringLiteral("&Log|Ctrl+L"), QStringLiteral("Open Log With Each &Apply"),
                 QStringLiteral("-"), QStringLiteral("&History|Ctrl+H"), QStringLiteral("A&dvisories|Ctrl+D"),
                 QStringLiteral("Res&tarts|Ctrl+Shift+R"), QStringLiteral("-"),
                 QStringLiteral("&Reset Window")}));
        QCOMPARE(window->menuBar()->actions().at(4)->text(), QStringLiteral("S&election"));
        QCOMPARE(
            menuTexts(menu(QStringLiteral("S&election"))).filter(QStringLiteral("|")),
            QStringList(
                {QStringLiteral("&Find|Ctrl+F"), QStringLiteral("&Describe|Return"),
                 QStringLiteral("Install/Update of Selected: 0|+"), QStringLiteral("Remove Selected: 0|Del"),
                 QStringLiteral("No Action for Selected: 0|Backspace"), QStringLiteral("Select &All|Ctrl+A"),
                 QStringLiteral("Set Update of &Security Fixes|Ctrl+Shift+U")}));
        QCOMPARE(
            menuTexts(menu(QStringLiteral("&Repositories"))),
            QStringList{QStringLiteral("&Edit Configuration|Ctrl+E")});
        QCOMPARE(
            menuTexts(menu(QStringLiteral("&Cache"))),
            QStringList(
                {QStringLiteral("Clean Headers"), QStringLiteral("Clean Packages"),
                 QStringLiteral("Clean XML Metadata"), QStringLiteral("Clean Pickled Data"),
                 QStringLiteral("-"), QStringLiteral("Clean All")}));
        QCOMPARE(
            menuTexts(menu(QStringLiteral("&Help"))),
            QStringList(
                {QStringLiteral("Manual (html)|F1"), QStringLiteral("Manual (PDF)"), QStringLiteral("-"),
                 QStringLiteral("&About")}));
    }

    void menusCanBeTornOff()
    {
        for (QAction const* const entry : window->menuBar()->actions()) {
            QVERIFY(entry->menu()->isTearOffEnabled());
        }
    }

    void onlyWindowsAndHelpAreEnabledAtFirst()
    {
        QVERIFY(!menu(QStringLiteral("&Program"))->isEnabled());
        QVERIFY(!menu(QStringLiteral("&Repositories"))->isEnabled());
        QVERIFY(!menu(QStringLiteral("&Cache"))->isEnabled());
        QVERIFY(!menu(QStringLiteral("S&election"))->isEnabled());
        for (QString const& title : {QStringLiteral("&Windows"), QStringLiteral("&Help")}) {
            QVERIFY(menu(title)->isEnabled());
            for (QAction const* const entry : menu(title)->actions()) {
                // What is remembered has yet to be used, and nobody could answer about the system.
                static QStringList const waiting{
                    QStringLiteral("&Reset Window"), QStringLiteral("&History"),
                    QStringLiteral("A&dvisories"), QStringLiteral("Res&tarts")};
                bool const waits = waiting.contains(entry->text());
                QCOMPARE(entry->isEnabled(), !waits);
            }
        }
    }

    void theTableIsHiddenAtFirst()
    {
        auto* const table = window->findChild<QAbstractItemView*>();
        for (auto* const view : window->findChildren<QAbstractItemView*>()) {
            QVERIFY(view->accessibleName() != QLatin1String("Packages") || !view->isVisibleTo(window.get()));
        }
        QVERIFY(table);
        QCOMPARE(window->findChildren<QProgressBar*>().size(), 2);
        for (QProgressBar const* const bar : window->findChildren<QProgressBar*>()) {
            QVERIFY(bar->isVisibleTo(window.get()));
        }
    }

    void theTotalIsBelowTheItem()
    {
        window->centralWidget()->resize(800, 600);
        window->centralWidget()->show();
        QCoreApplication::sendPostedEvents();
        QProgressBar const* total = nullptr;
        QProgressBar const* item = nullptr;
        for (QProgressBar const* const bar : window->findChildren<QProgressBar*>()) {
            (bar->accessibleName() == QLatin1String("Total Progress") ? total : item) = bar;
        }
        QVERIFY(total && item);
        QVERIFY(total->geometry().top() > item->geometry().top());
    }

    void theFilterRowHasItsChoices()
    {
        QList<QStringList> choices;
        for (QComboBox const* const combo : window->findChildren<QComboBox*>()) {
            QStringList items;
            for (int at = 0; at < combo->count(); ++at) {
                items.append(
                    QStringLiteral("%1=%2").arg(combo->itemText(at)).arg(combo->itemData(at).toInt()));
            }
            choices.append(items);
            QCOMPARE(combo->currentIndex(), 0);
        }
        QCOMPARE(
            choices, QList<QStringList>(
                         {{QStringLiteral("Filter=0"), QStringLiteral("Search=1")},
                          {QStringLiteral("View Updatable=0"), QStringLiteral("View Installable=1"),
                           QStringLiteral("View Removable=2"), QStringLiteral("View All=3"),
                           QStringLiteral("View Marked=4"), QStringLiteral("View Security Updates=5")}}));
        QCOMPARE(window->findChild<QLineEdit*>()->text(), QStringLiteral(".*"));
        auto* const groups = window->findChild<QCheckBox*>();
        QCOMPARE(groups->text(), QStringLiteral("Include Groups"));
        QVERIFY(!groups->isChecked());
        QCOMPARE(groups->toolTip(), QStringLiteral("Whether or not filter should include package groups"));
    }

    void theModesToolTipTellsThePrice()
    {
        QString const tip = window->findChildren<QComboBox*>().constFirst()->toolTip();
        QVERIFY(tip.startsWith(QLatin1String("Specify the method for using a regular expression")));
        QVERIFY(tip.endsWith(QLatin1String("It is considerably slower. (Must load extra data.)")));
    }

    void buttonsStandInOrder()
    {
        QStringList texts;
        for (QPushButton const* const button : window->findChildren<QPushButton*>()) {
            texts.append(button->text());
            QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->text()));
        }
        QCOMPARE(
            texts, QStringList(
                       {QStringLiteral("Filter"), QStringLiteral("&Describe"), QStringLiteral("Re&size"),
                        QStringLiteral("Re&fresh"), QStringLiteral("Set &Install/Update of Selected"),
                        QStringLiteral("Set &Update of All Out-of-Date"), QStringLiteral("&Clear Actions"),
                        QStringLiteral("&Apply Actions"), QStringLiteral("Stop")}));
    }

    void everyControlHasAnAccessibleNameOrText()
    {
        for (QWidget const* const widget : window->findChildren<QWidget*>()) {
            bool const isControl = widget->focusPolicy() != Qt::NoFocus &&
                                   widget->parentWidget() != window->menuBar() &&
                                   !qobject_cast<QMenuBar const*>(widget);
            auto const* const button = qobject_cast<QAbstractButton const*>(widget);
            if (!isControl || (button && !button->text().isEmpty()) ||
                widget->objectName().startsWith(u"qt_") ||
                widget->metaObject()->className() == QByteArray("QComboBoxListView") ||
                qobject_cast<QMenu const*>(widget)) {
                continue;
            }
            QString const kind = QString::fromLatin1(widget->metaObject()->className());
            if (kind.startsWith(QLatin1Char('Q')) && kind != QLatin1String("QLineEdit") &&
                kind != QLatin1String("QComboBox")) {
                continue; // the toolkit's own parts of other controls
            }
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(kind));
        }
    }
};

QTEST_MAIN(MainWindowLayoutTest)
#include "tst_mainwindowlayout.moc"
