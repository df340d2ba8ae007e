// SPDX-License-Identifier: GPL-2.0-or-later
// A table without rows says why, and what would show some.
#include "ShellTest.h"
#include "tests/Eventually.h"

#include "shell/EmptyTableNote.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTextDocument>

class MainWindowEmptyTableTest : public ShellTest
{
    Q_OBJECT

    QComboBox* mode() const { return window->findChildren<QComboBox*>().at(0); }
    QComboBox* state() const { return window->findChildren<QComboBox*>().at(1); }
    QLineEdit* expression() const { return window->findChild<QLineEdit*>(); }
    EmptyTableNote* note() const { return window->findChild<EmptyTableNote*>(); }

    void apply(QString const& text) const
    {
        expression()->setText(text);
        QTest::keyClick(expression(), Qt::Key_Return);
    }

    QStringList lines() const
    {
        QTextDocument document;
        document.setHtml(note()->text());
        return document.toPlainText().split(QLatin1Char('\n'));
    }

    void follow(QString const& words) const
    {
        QTextDocument document;
        document.setHtml(note()->text());
        QTextCursor const at = document.find(words);
        QVERIFY2(!at.isNull(), qPrintable(words));
        Q_EMIT note()->linkActivated(at.charFormat().anchorHref());
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void init()
    {
        mode()->setCurrentIndex(0);
        state()->setCurrentIndex(3);
        window->findChild<QCheckBox*>()->setChecked(false);
        apply(QStringLiteral(".*"));
    }

    void nothingIsSaidWhileThereAreRows()
    {
        QTest::qWait(500);
        QVERIFY(!note()->isVisible());
    }

    void rowsOfOtherStatesAreOffered()
    {
        state()->setCurrentIndex(0);
        apply(QStringLiteral("^(elm|cedar)"));
        EVENTUALLY_VERIFY(note()->isVisible());
        QCOMPARE(
            lines(), QStringList(
                         {QStringLiteral("Nothing matches ^(elm|cedar) in View Updatable."),
                          QStringLiteral("2 match in View All"), QStringLiteral("Clear the expression")}));
        follow(QStringLiteral("2 match in View All"));
        QCOMPARE(state()->currentIndex(), 3);
        QCOMPARE(names(), QStringList({QStringLiteral("cedar"), QStringLiteral("elm")}));
        QVERIFY(!note()->isVisible());
    }

    void theOtherCaseIsOffered()
    {
        apply(QStringLiteral("ELM"));
        EVENTUALLY_VERIFY(note()->isVisible());
        QCOMPARE(
            lines(), QStringList(
                         {QStringLiteral("Nothing matches ELM in View All."),
                          QStringLiteral("1 match without case"), QStringLiteral("Clear the expression")}));
        follow(QStringLiteral("1 match without case"));
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
        action(QStringLiteral("Match Case"))->trigger();
    }

    void groupsAreOffered()
    {
        apply(QStringLiteral("^Trees"));
        EVENTUALLY_VERIFY(note()->isVisible());
        follow(QStringLiteral("1 match among groups"));
        QCOMPARE(names(), QStringList{QStringLiteral("Trees")});
    }

    void theExpressionCanBeCleared()
    {
        apply(QStringLiteral("<none & such>"));
        EVENTUALLY_VERIFY(note()->isVisible());
        QCOMPARE(lines().first(), QStringLiteral("Nothing matches <none & such> in View All."));
        follow(QStringLiteral("Clear the expression"));
        QCOMPARE(expression()->text(), QString());
        QCOMPARE(names().size(), 8);
    }

    // Each count would take as long as the search itself.
    void aSearchIsNotCounted()
    {
        mode()->setCurrentIndex(1);
        apply(QStringLiteral("ELMS?"));
        EVENTUALLY_VERIFY(note()->isVisible());
        QCOMPARE(
            lines(), QStringList(
                         {QStringLiteral("Nothing matches ELMS? in View All."),
                          QStringLiteral("Clear the expression")}));
    }
};

QTEST_MAIN(MainWindowEmptyTableTest)
#include "tst_mainwindowemptytable.moc"
