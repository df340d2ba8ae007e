// SPDX-License-Identifier: GPL-2.0-or-later
// What the table tells of advisories: a column, the rows that mend something about security, and their marks.
#include "ShellTest.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableHeader.h"
#include "packagetable/PackageTableView.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QTest>

class MainWindowSecurityTest : public ShellTest
{
    Q_OBJECT

    [[nodiscard]] QComboBox* states() const { return window->findChildren<QComboBox*>().at(1); }
    [[nodiscard]] PackageTable::View* view() const { return window->findChild<PackageTable::View*>(); }
    [[nodiscard]] QAction* marking() const { return action(QStringLiteral("Set Update of Security Fixes")); }

    [[nodiscard]] QVariant cell(QString const& name, int role) const
    {
        QAbstractItemModel const* const model = view()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, PackageTable::NameColumn).data().toString() == name) {
                return model->index(row, PackageTable::AdvisoryColumn).data(role);
            }
        }
        return {};
    }

    /// Advisories of updates, by the name of the package: text, gravity, CVEs.
    void advise(QString const& those)
    {
        QCOMPARE(
            script(
                QStringLiteral("standin.instead('rowDetails', lambda kind, packages:"
                               " [dict(%1).get(p.name, '') if kind == 'advisory' else 0 for p in packages])")
                    .arg(those)),
            QString());
        window->refresh();
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        QVERIFY(openWindow());
    }

    void init()
    {
        window->clearActions();
        states()->setCurrentIndex(PackageTable::Updatable);
        advise(QStringLiteral("alder=('Low: A1', 2, 'CVE-1'), dogwood=('Bug fix: A2, A3', 0, '')"));
    }

    void cleanupTestCase() { delete window; }

    void updatesThatMendSomethingAboutSecurityShowAlone()
    {
        QVERIFY(names().contains(QStringLiteral("dogwood")));
        states()->setCurrentIndex(PackageTable::SecurityUpdates);
        QCOMPARE(names(), QStringList({QStringLiteral("alder")}));
        // Also behind a refresh, when others do.
        advise(QStringLiteral("dogwood=('Security: A5', 1, '')"));
        QCOMPARE(names(), QStringList({QStringLiteral("dogwood")}));
        states()->setCurrentIndex(PackageTable::Updatable);
        QVERIFY(names().contains(QStringLiteral("alder")));
    }

    void theColumnTellsSeverityByWordAndSignAndSortsByIt()
    {
        advise(QStringLiteral("alder=('Low: A1', 2, 'CVE-1'), dogwood=('Critical: A2, A3', 5, '')"));
        view()->header()->setShown(PackageTable::AdvisoryColumn, true);
        auto const of = [this](char const* name, int role) { return cell(QLatin1String(name), role); };
        QCOMPARE(of("dogwood", Qt::DisplayRole).toString(), QStringLiteral("Critical: A2, A3"));
        QCOMPARE(of("alder", Qt::ToolTipRole).toString(), QStringLiteral("CVE-1"));
        auto const sign = of("dogwood", Qt::DecorationRole).value<QIcon>();
        QVERIFY(!sign.isNull());
        QVERIFY(sign.cacheKey() != of("alder", Qt::DecorationRole).value<QIcon>().cacheKey());
        states()->setCurrentIndex(PackageTable::SecurityUpdates);
        view()->sortByColumn(PackageTable::AdvisoryColumn, Qt::DescendingOrder);
        QCOMPARE(names(), QStringList({QStringLiteral("dogwood"), QStringLiteral("alder")}));
        view()->sortByColumn(PackageTable::NameColumn, Qt::AscendingOrder);
        view()->header()->setShown(PackageTable::AdvisoryColumn, false);
    }

    void updatesThatMendSomethingAboutSecurityAreMarked()
    {
        marking()->trigger();
        QCOMPARE(states()->currentIndex(), int(PackageTable::Updatable));
        states()->setCurrentIndex(PackageTable::Marked);
        QCOMPARE(names(), QStringList({QStringLiteral("alder")}));
    }

    void metadataWithoutAdvisoriesIsTold()
    {
        QCOMPARE(
            script(QStringLiteral("standin.instead('rowDetails', lambda kind, packages: None)")), QString());
        window->refresh();
        QVERIFY(marking()->isEnabled());
        marking()->trigger();
        QString const words =
            QStringLiteral("The metadata of the repositories in use tells of no advisories.");
        QCOMPARE(boxes->take().value(0).text, words);
        EVENTUALLY_VERIFY(!marking()->isEnabled());
        QCOMPARE(marking()->toolTip(), words);
        states()->setCurrentIndex(PackageTable::SecurityUpdates);
        EVENTUALLY_VERIFY(std::ranges::any_of(view()->findChildren<QLabel*>(), [&](QLabel const* label) {
            return label->isVisible() && label->accessibleName().contains(words);
        }));
    }
};

QTEST_MAIN(MainWindowSecurityTest)
#include "tst_mainwindowsecurity.moc"
