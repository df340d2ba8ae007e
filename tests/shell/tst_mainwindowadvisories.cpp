// SPDX-License-Identifier: GPL-2.0-or-later
// The advisories' window: what it shows and finds, what it has marked, and what it says where there is
// nothing.
#include "ShellTest.h"
#include "advisories/AdvisoriesWindow.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>

class MainWindowAdvisoriesTest : public ShellTest
{
    Q_OBJECT

    [[nodiscard]] Advisories::Window* advisories() const { return window->findChild<Advisories::Window*>(); }

    template <typename Widget>
    [[nodiscard]] Widget* named(QString const& name) const
    {
        for (Widget* const widget : advisories()->findChildren<Widget*>()) {
            if (widget->accessibleName() == name) {
                return widget;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QTableView* list() const { return named<QTableView>(QStringLiteral("Advisories")); }
    [[nodiscard]] QTableView* packages() const { return named<QTableView>(QStringLiteral("Packages")); }
    [[nodiscard]] QTextBrowser* text() const { return advisories()->findChild<QTextBrowser*>(); }
    [[nodiscard]] QComboBox* show() const { return advisories()->findChild<QComboBox*>(); }
    [[nodiscard]] QLineEdit* searchEdit() const { return advisories()->findChild<QLineEdit*>(); }

    [[nodiscard]] QPushButton* markButton() const
    {
        for (QPushButton* const found : advisories()->findChildren<QPushButton*>()) {
            if (found->text() == QLatin1String("&Mark Its Updates")) {
                return found;
            }
        }
        return nullptr;
    }

    static QStringList row(QTableView const* view, int at)
    {
        QStringList cells;
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            cells.append(view->model()->index(at, column).data().toString());
        }
        return cells;
    }

    [[nodiscard]] QStringList identifiers() const
    {
        QStringList found;
        for (int at = 0; at < list()->model()->rowCount(); ++at) {
            found.append(row(list(), at).at(3));
        }
        return found;
    }

    static void run(QByteArray const& statements)
    {
        QCOMPARE(script(QString::fromUtf8(statements)), QString());
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        qputenv(
            "VEM_TEST_STATEMENTS",
            "def head(identifier, kind, severity, opened, **more):\n"
            "    return dict(identifier=identifier, type=kind, severity=severity, title='About <' + "
            "identifier,\n"
            "        issued=1700000000, count=2, cves=['CVE-2023-' + identifier], open=opened, **more)\n"
            "def whole(identifier):\n"
            "    packages = [dict(name=name, arch='noarch', version='2-1', installed=there, open=opened)\n"
            "        for name, there, opened in (('alder', '1-1', True), ('birch', '', False), ('elm', "
            "'2-1', False))]\n"
            "    references = [dict(type='cve', id='CVE-1', title='', address='https://host/a?b=1&c=2'),\n"
            "        dict(type='other', id='7', title='A <note>', address=''),\n"
            "        dict(type='other', id='8', title='Local', address='file:///etc/passwd'),\n"
            "        dict(type='other', id='9', title='Option', address='--profile')]\n"
            "    return head(identifier, 'security', 'Important', True, text='Do <b>it</b>\\n  now.',\n"
            "        references=references, packages=packages)\n"
            "advised = [head('A4', 'bugfix', '', True), head('A3', 'security', 'Low', True),\n"
            "    head('A2', 'security', 'Critical', True), head('A1', 'newpackage', 'odd', False)]\n"
            "standin.instead('advisoryList', lambda: advised)\n"
            "standin.instead('advisoryOf', whole)\n");
        makeWindow();
        QVERIFY(openWindow());
        action(QStringLiteral("Advisories"))->trigger();
        QVERIFY(advisories());
        EVENTUALLY_COMPARE(identifiers(), (QStringList{"A4", "A3", "A2"}));
        // It is a dialog itself.
        boxes->take();
    }

    void cleanupTestCase() { delete window; }

    void openOnesShowAtFirstAndTheLatestInFull()
    {
        QCOMPARE(
            row(list(), 1),
            (QStringList{"Open", "Security", "Low", "A3", "2023-11-14", "2", "About <A3", "CVE-2023-A3"}));
        QCOMPARE(row(list(), 0).mid(1, 2), (QStringList{"Bug fix", ""}));
        EVENTUALLY_VERIFY(text()->toPlainText().startsWith(
            QLatin1String("A4\nAbout <A4\nSecurity, Important, 2023-11-14")));
        QVERIFY(text()->toPlainText().contains(QLatin1String("Do <b>it</b>\n  now.")));
        QVERIFY(text()->toPlainText().contains(QLatin1String("A <note>")));
        QCOMPARE(row(packages(), 0), (QStringList{"alder", "2-1", "1-1", "noarch", "Open"}));
        QCOMPARE(row(packages(), 1).last(), QStringLiteral("Not installed"));
        QCOMPARE(row(packages(), 2).last(), QStringLiteral("Carried out"));
    }

    void choiceAndTextDecideWhatShows()
    {
        show()->setCurrentIndex(0);
        QCOMPARE(identifiers(), (QStringList{"A3", "A2"}));
        show()->setCurrentIndex(2);
        QCOMPARE(identifiers(), (QStringList{"A4", "A3", "A2", "A1"}));
        QCOMPARE(row(list(), 3).mid(0, 3), (QStringList{"Carried out", "New package", "odd"}));
        searchEdit()->setText(QStringLiteral("cve-2023-a2"));
        QCOMPARE(identifiers(), QStringList{"A2"});
        searchEdit()->setText(QStringLiteral("nothing"));
        QCOMPARE(identifiers(), QStringList());
        EVENTUALLY_COMPARE(text()->toPlainText(), QStringLiteral("No advisory fits what is to be shown."));
        QVERIFY(!markButton()->isEnabled());
        searchEdit()->clear();
        show()->setCurrentIndex(1);
    }

    void severitiesSortByGravityAndHaveSigns()
    {
        show()->setCurrentIndex(2);
        list()->sortByColumn(2, Qt::DescendingOrder);
        QCOMPARE(identifiers().mid(0, 2), (QStringList{"A2", "A3"}));
        auto const sign = [this](int at) {
            return !qvariant_cast<QIcon>(list()->model()->index(at, 2).data(Qt::DecorationRole)).isNull();
        };
        QVERIFY(sign(0) && sign(1) && !sign(2));
        list()->sortByColumn(3, Qt::DescendingOrder);
        show()->setCurrentIndex(1);
    }

    void linksAreOpenedByTheOutsideProgram()
    {
        EVENTUALLY_VERIFY(text()->toHtml().contains(QLatin1String("href=\"https://host/a?b=1&amp;c=2\"")));
        QVERIFY(!text()->openLinks());
        // Only addresses of the web are links.
        QCOMPARE(text()->toHtml().count(QLatin1String("href=")), qsizetype(1));
        QVERIFY(text()->toPlainText().contains(QLatin1String("Option")));
    }

    void updatesOfAnAdvisoryAreMarkedAndShown()
    {
        EVENTUALLY_VERIFY(markButton()->isEnabled());
        markButton()->click();
        QCOMPARE(names(), QStringList{"alder"});
        window->clearActions();
    }

    void metadataWithoutAdvisoriesIsTold()
    {
        run("standin.instead('advisoryList', lambda: None)");
        advisories()->reload();
        EVENTUALLY_COMPARE(
            text()->toPlainText(),
            QStringLiteral("The metadata of the repositories in use tells of no advisories."));
        run("standin.instead('advisoryList', lambda: [])");
        advisories()->reload();
        EVENTUALLY_COMPARE(
            text()->toPlainText(), QStringLiteral("No advisory is about an installed package."));
        run("standin.instead('advisoryList', lambda: advised)");
        advisories()->reload();
        QCOMPARE(identifiers(), (QStringList{"A4", "A3", "A2"}));
    }

    void failureAndAnswerThatIsNoneAreReported()
    {
        run("standin.fail('advisoryList', standin.YumBaseError('torn metadata'))");
        advisories()->reload();
        QCOMPARE(
            boxes->takeTexts(), QStringList{QStringLiteral("torn metadata\nUnable to read the advisories")});
        run("standin.instead('advisoryList', lambda: 1)");
        advisories()->reload();
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{QStringLiteral("Internal error: execution of yumIO.advisoryList failed")});
        run("standin.instead('advisoryList', lambda: advised)");
        advisories()->reload();
    }

    void olderScriptTurnsTheActionGreyAndSaysWhy()
    {
        advisories()->close();
        run("standin.without('advisoryList')");
        window->refresh();
        QVERIFY(!action(QStringLiteral("Advisories"))->isEnabled());
        QCOMPARE(
            action(QStringLiteral("Advisories"))->toolTip(),
            QStringLiteral("The helper script in use is too old to tell of advisories"));
    }
};

QTEST_MAIN(MainWindowAdvisoriesTest)
#include "tst_mainwindowadvisories.moc"
