// SPDX-License-Identifier: GPL-2.0-or-later
// What a collection had to do without: summed up in one dialog, and again only when it has changed.
#include "ShellTest.h"
#include "shell/StatusLine.h"
#include "tests/Eventually.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QTest>
#include <algorithm>

class MainWindowIncompleteTest : public ShellTest
{
    Q_OBJECT

    static Boxes::Box summary(QString const& lines)
    {
        return {
            QStringLiteral("Incomplete Table"),
            QStringLiteral(
                "Not everything that is configured could be used, so the table may not show what it "
                "should:\n\n") +
                lines,
            {QStringLiteral("Close")}};
    }

    static void lacks(char const* expression)
    {
        QCOMPARE(
            script(QStringLiteral("standin.instead('incomplete', lambda: %1)")
                       .arg(QString::fromUtf8(expression))),
            QString());
    }

    QList<Boxes::Box> seenBehindARefresh()
    {
        window->refresh();
        QCoreApplication::processEvents();
        return boxes->take();
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv(
            "VEM_TEST_STATEMENTS",
            "standin.instead('incomplete', lambda: ['extras: no harbour', 'more.repo:\\n  <b>'])\n"
            "standin.instead('unfinished', lambda: ('Cut off.', {}, []))\n");
        makeWindow();
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void isSummedUpAtTheStartBeforeAnythingElseIsTold()
    {
        EVENTUALLY_VERIFY(window->isEnabled());
        QCoreApplication::processEvents();
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen.first(), summary(QStringLiteral("extras: no harbour\n\nmore.repo:\n  <b>")));
        QCOMPARE(seen.last().text, QStringLiteral("Cut off."));
        QVERIFY(table()->isEnabled() && !names().isEmpty());
    }

    void theStatusLineTellsItOnceMoreOnRequest()
    {
        auto const labels = window->findChild<StatusLine*>()->findChildren<QLabel*>();
        auto const at = std::ranges::find_if(labels, [](QLabel const* label) {
            return label->accessibleName() == QLatin1String("Incomplete Table");
        });
        QVERIFY(at != labels.end() && (*at)->isVisible());
        Q_EMIT(*at)->linkActivated(QString());
        QCOMPARE(
            boxes->take(),
            QList<Boxes::Box>{summary(QStringLiteral("extras: no harbour\n\nmore.repo:\n  <b>"))});
        lacks("[]");
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>());
        QVERIFY(!(*at)->isVisible());
        lacks("['extras: no harbour', 'more.repo:\\n  <b>']");
        QCOMPARE(seenBehindARefresh().size(), 1);
    }

    void isNotToldAgainUnlessItHasChanged()
    {
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>());
        lacks("['extras: no harbour']");
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>{summary(QStringLiteral("extras: no harbour"))});
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>());
    }

    void isNotToldAgainBehindARefreshThatFailed()
    {
        QCOMPARE(
            script(QStringLiteral("standin.fail('setupRepos', standin.RepoError('no route'))")), QString());
        QCOMPARE(seenBehindARefresh().size(), 1);
        QCOMPARE(script(QStringLiteral("standin.reset()")), QString());
        lacks("['extras: no harbour']");
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>());
    }

    void isToldAgainWhenItHadBeenMendedMeanwhile()
    {
        lacks("[]");
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>());
        lacks("['extras: no harbour']");
        QCOMPARE(seenBehindARefresh(), QList<Boxes::Box>{summary(QStringLiteral("extras: no harbour"))});
    }
};

QTEST_MAIN(MainWindowIncompleteTest)
#include "tst_mainwindowincomplete.moc"
