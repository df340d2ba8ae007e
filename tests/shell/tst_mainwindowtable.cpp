// SPDX-License-Identifier: GPL-2.0-or-later
// The table in its window: marks that outlive a refresh, and what describes a package.
#include "ShellTest.h"

#include "shell/StatusLine.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <algorithm>

class MainWindowTableTest : public ShellTest
{
    Q_OBJECT

    bool tells(QString const& words) const
    {
        auto const labels = window->findChild<StatusLine*>()->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](QLabel const* label) { return label->text() == words; });
    }

    void refresh() const { QTest::mouseClick(button(QStringLiteral("Refresh")), Qt::LeftButton); }

    /// The captions of the dialogs that have been shown; the user closes each.
    QStringList dialogs() const
    {
        QStringList captions;
        for (Boxes::Box const& box : boxes->take()) {
            captions.append(box.caption);
        }
        return captions;
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        QVERIFY(openWindow());
        window->findChildren<QComboBox*>().at(1)->setCurrentIndex(3); // all states
    }

    void cleanupTestCase() { delete window; }

    void marksSurviveARefreshWhereTheirRowsAreTheSame()
    {
        clickAction(QStringLiteral("alder"));
        clickAction(QStringLiteral("elm"));
        QString const update = tipOfAction(QStringLiteral("alder"));
        QVERIFY(!update.isEmpty());
        refresh();
        QCOMPARE(tipOfAction(QStringLiteral("alder")), update);
        QVERIFY(!tipOfAction(QStringLiteral("elm")).isEmpty());
        QVERIFY(button(QStringLiteral("Apply Actions"))->isEnabled());

        QCOMPARE(
            script(QStringLiteral("one = standin.world.find('available', 'elm')\n"
                                  "standin.world.available.remove(one)")),
            QString());
        refresh();
        QCOMPARE(tipOfAction(QStringLiteral("alder")), update);
        QVERIFY(tells(QStringLiteral("Actions that are gone with their rows: 1")));
        refresh();
        QVERIFY(!tells(QStringLiteral("Actions that are gone with their rows: 1")));
    }

    void theStatusLineCountsMarksAndLeadsToThem()
    {
        window->clearActions();
        clickAction(QStringLiteral("alder"));
        clickAction(QStringLiteral("hazel"));
        clickAction(QStringLiteral("cedar"));
        auto* const line = window->findChild<StatusLine*>();
        auto const labels = line->findChildren<QLabel*>();
        auto const at = std::ranges::find_if(labels, [](QLabel const* label) {
            return label->accessibleName() ==
                   QLatin1String("3 marked: 1 install, 1 update, 1 removal; 244Kb to download");
        });
        QVERIFY(at != labels.end());
        QVERIFY((*at)->isVisible());
        Q_EMIT(*at)->linkActivated(QStringLiteral("marks"));
        QCOMPARE(
            names(),
            QStringList({QStringLiteral("alder"), QStringLiteral("cedar"), QStringLiteral("hazel")}));
        // A row stays until something else changes, so that the click can be taken back.
        clickAction(QStringLiteral("alder"));
        clickAction(QStringLiteral("alder"));
        QCOMPARE(names().size(), 3);
        refresh();
        QCOMPARE(names(), QStringList({QStringLiteral("cedar"), QStringLiteral("hazel")}));
        window->clearActions();
        QCOMPARE(names(), QStringList());
        QVERIFY(!(*at)->isVisible());
        window->findChildren<QComboBox*>().at(1)->setCurrentIndex(3);
    }

    void theStatusLineTellsWhatTheMarksComeToOnTheDisk()
    {
        script(QStringLiteral("YumIO.rowDetails = lambda self, kind, packages:"
                              " [5000000 if p.name == 'hazel' else 300000 for p in packages]"));
        auto const tells = [this](QString const& ending) {
            auto const labels = window->findChild<StatusLine*>()->findChildren<QLabel*>();
            return std::ranges::any_of(
                labels, [&](QLabel const* label) { return label->accessibleName().endsWith(ending); });
        };
        window->clearActions();
        clickAction(QStringLiteral("hazel"));
        QVERIFY(tells(QStringLiteral("49Kb to download, 4.8Mb more on the disk")));
        window->clearActions();
        // An update takes the place of what is installed; what goes takes nothing any more.
        clickAction(QStringLiteral("cedar"));
        QVERIFY(tells(QStringLiteral("less on the disk")));
        window->clearActions();
        script(QStringLiteral("del YumIO.rowDetails"));
    }

    void theStatusLineTellsHowOldTheTableIs()
    {
        auto const age = [this](qint64 seconds) {
            script(QStringLiteral("import time; YumIO.repositoryTimes = lambda self:"
                                  " {'new': int(time.time()), 'old': int(time.time()) - %1}")
                       .arg(seconds));
            refresh();
            QCoreApplication::processEvents();
            QString found;
            for (QLabel const* const label : window->findChild<StatusLine*>()->findChildren<QLabel*>()) {
                if (label->isVisible() && label->text().startsWith(QLatin1String("Repositories read "))) {
                    found = label->text();
                }
            }
            return found;
        };
        QCOMPARE(age(30), QStringLiteral("Repositories read just now"));
        QCOMPARE(age(90), QStringLiteral("Repositories read 1 minute ago"));
        QCOMPARE(age(3 * 3600 + 100), QStringLiteral("Repositories read 3 hours ago"));
        QCOMPARE(age(50 * 3600), QStringLiteral("Repositories read 2 days ago"));
        script(QStringLiteral("del YumIO.repositoryTimes"));
        refresh();
    }

    void noMarkSurvivesAnApply()
    {
        window->clearActions();
        clickAction(QStringLiteral("alder"));
        boxes->take();
        window->apply();
        QVERIFY(!dialogs().isEmpty());
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QString());
        refresh();
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QString());
    }

    void returnDescribesTheCurrentRow()
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        table()->setFocus();
        table()->setCurrentIndex(table()->model()->index(rowOf(QStringLiteral("cedar")), 3));
        QTest::keyClick(table(), Qt::Key_Return);
        QCOMPARE(dialogs(), QStringList{QStringLiteral("VEM Package Description")});
    }

    void aDoubleClickDescribesButInTheActionColumn()
    {
        auto const twice = [this](int column) {
            QModelIndex const cell = table()->model()->index(rowOf(QStringLiteral("birch")), column);
            QPoint const point = table()->visualRect(cell).center();
            QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, point);
            QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, point);
        };
        twice(3);
        QCOMPARE(dialogs(), QStringList{QStringLiteral("VEM Package Description")});
        twice(0);
        QCOMPARE(dialogs(), QStringList());
        window->clearActions();
    }

    void noMarkSurvivesACleaning()
    {
        clickAction(QStringLiteral("alder"));
        window->cleanHeaders();
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QString());
    }
};

QTEST_MAIN(MainWindowTableTest)
#include "tst_mainwindowtable.moc"
