// SPDX-License-Identifier: GPL-2.0-or-later
// What a transaction that was cut off has left: told once, its rows marked, and the older versions removed on
// demand.
#include "ShellTest.h"
#include "tests/Eventually.h"

#include "base/Share.h"
#include "packagetable/PackageTableColumns.h"

#include <QAbstractItemView>
#include <QTest>

class MainWindowUnfinishedTest : public ShellTest
{
    Q_OBJECT

    static QList<Boxes::Box> told()
    {
        return {
            {QStringLiteral("Unfinished Transaction"),
             QStringLiteral("Installed twice:\n    alder <b>: 1, 2"),
             {QStringLiteral("Remove Older Versions"), QStringLiteral("Leave Them")}}};
    }

    QList<Boxes::Box> seen()
    {
        QCoreApplication::processEvents();
        return boxes->take();
    }

    QVariant state(QString const& name, int role) const
    {
        return table()->model()->index(rowOf(name), PackageTable::StateColumn).data(role);
    }

    static QImage imageOf(QVariant const& icon) { return qvariant_cast<QIcon>(icon).pixmap(16).toImage(); }

    bool isMarked(QString const& name) const
    {
        return imageOf(state(name, Qt::DecorationRole)) ==
               imageOf(Share::icon(QStringLiteral("icons/doubled.png")));
    }

    static void leaves(char const* expression)
    {
        QCOMPARE(
            script(QStringLiteral("standin.instead('unfinished', lambda: %1)")
                       .arg(QString::fromUtf8(expression))),
            QString());
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv(
            "VEM_TEST_STATEMENTS",
            "older = []\n"
            "def left():\n"
            "    older[:] = older or [package for package in standin.world.installed if package.name == "
            "'alder'][:1]\n"
            "    return 'Installed twice:\\n    alder <b>: 1, 2', {'alder': '1, 2'}, older\n"
            "standin.instead('unfinished', left)\n");
        makeWindow();
        boxes->press({QStringLiteral("Leave Them")});
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void isToldAtTheStartAndNotAgainByARefresh()
    {
        EVENTUALLY_VERIFY(window->isEnabled());
        QCOMPARE(seen(), told());
        window->refresh();
        QCOMPARE(seen(), QList<Boxes::Box>());
    }

    void isNotToldAgainBehindARefreshThatFailed()
    {
        QCOMPARE(
            script(QStringLiteral("standin.fail('setupRepos', standin.RepoError('no harbour'))")), QString());
        window->refresh();
        QCOMPARE(seen().size(), 1);
        QCOMPARE(script(QStringLiteral("standin.reset()\nstandin.instead('unfinished', left)")), QString());
        window->refresh();
        QCOMPARE(seen(), QList<Boxes::Box>());
    }

    void rowsAreMarkedAndTellTheVersions()
    {
        QVERIFY(isMarked(QStringLiteral("alder")));
        QVERIFY(!isMarked(QStringLiteral("dogwood")));
        QCOMPARE(
            state(QStringLiteral("alder"), Qt::ToolTipRole).toString(),
            QStringLiteral("Package is available to update an out-of-date version\n"
                           "Installed in more than one version: 1, 2"));
    }

    void textWithoutAnythingToRemoveOffersNothing()
    {
        leaves("('Cut off.', {}, [])");
        window->refresh();
        QCOMPARE(
            seen(), (QList<Boxes::Box>{
                        {QStringLiteral("Unfinished Transaction"),
                         QStringLiteral("Cut off."),
                         {QStringLiteral("OK")}}}));
        QVERIFY(!isMarked(QStringLiteral("alder")));
    }

    void answerThatIsNoneIsReported_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("number") << QByteArray("1");
        QTest::newRow("short") << QByteArray("('Cut off.',)");
        QTest::newRow("no dictionary") << QByteArray("('Cut off.', 1, [])");
    }

    void answerThatIsNoneIsReported()
    {
        QFETCH(QByteArray, answer);
        leaves(answer.constData());
        window->refresh();
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{QStringLiteral("Internal error: execution of yumIO.unfinished failed")});
        QVERIFY(table()->isEnabled() && !names().isEmpty());
    }

    void failureIsReportedBesideAFullTable()
    {
        QCOMPARE(
            script(QStringLiteral("standin.fail('unfinished', standin.YumBaseError('no history'))")),
            QString());
        window->refresh();
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{QStringLiteral("no history\nUnable to see whether a transaction was cut off")});
        QVERIFY(table()->isEnabled() && !names().isEmpty());
    }

    void olderVersionsAreRemovedByAnApplyOfTheirOwn()
    {
        leaves("left()");
        QCOMPARE(
            script(QStringLiteral(
                "removed = []\n"
                "def apply(installs, updates, removes):\n"
                "    import types\n"
                "    removed.append((installs, updates, [package.name for package in removes]))\n"
                "    standin.instead('unfinished', lambda: None)\n"
                "    import yumIOC\n"
                "    yumIOC.userconfirm()\n"
                "standin.instead('apply', apply)")),
            QString());
        // A mark that the user has set has nothing to do with it.
        clickAction(QStringLiteral("dogwood"));
        boxes->press({QStringLiteral("Remove Older Versions"), QStringLiteral("OK")});
        window->refresh();
        EVENTUALLY_COMPARE(value(QStringLiteral("removed")), QStringLiteral("[([], [], ['alder'])]"));
        EVENTUALLY_VERIFY(table()->isEnabled());
        QList<Boxes::Box> const shown = seen();
        QCOMPARE(shown.size(), 2);
        QCOMPARE(shown.first(), told().first());
        QCOMPARE(shown.last().caption, QStringLiteral("Apply"));
        QVERIFY(!isMarked(QStringLiteral("alder")));
    }
};

QTEST_MAIN(MainWindowUnfinishedTest)
#include "tst_mainwindowunfinished.moc"
