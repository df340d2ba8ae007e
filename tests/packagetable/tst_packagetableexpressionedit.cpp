// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableExpressionEdit.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <algorithm>

using PackageTable::ExpressionEdit;

namespace
{

/// A line that is shown, with another one to go to.
struct Lines
{
    QWidget window;
    ExpressionEdit line{QStringLiteral(".*"), &window};
    QLineEdit other{&window};
    QSignalSpy paused{&line, &ExpressionEdit::paused};
    QSignalSpy faults{&line, &ExpressionEdit::faultChanged};

    Lines()
    {
        window.show();
        line.setFocus();
        line.selectAll();
        QApplication::processEvents();
    }

    QAction* action(QString const& text) const
    {
        for (QAction* const candidate : line.findChildren<QAction*>()) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    QAbstractItemView* offer() const { return line.findChild<QCompleter*>()->popup(); }
};

} // namespace

class TestPackageTableExpressionEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Between the frame's left and right side and the letters nothing is drawn, whatever the display.
    void theLettersOfMatchCaseKeepClearOfTheirFrame()
    {
        Lines lines;
        for (qreal const scale : {1.0, 1.5, 2.0}) {
            QImage const picture =
                lines.action(QStringLiteral("Match Case"))->icon().pixmap(QSize(16, 16), scale).toImage();
            for (int const x : {qRound(1.25 * scale), picture.width() - 1 - qRound(1.25 * scale)}) {
                for (int y = picture.height() / 3; y < picture.height() * 2 / 3; ++y) {
                    QVERIFY(qAlpha(picture.pixel(x, y)) < 64);
                }
            }
        }
    }

    void aPauseInTypingIsTold()
    {
        Lines lines;
        QTest::keyClicks(&lines.line, QStringLiteral("bash"));
        QCOMPARE(lines.line.text(), QStringLiteral("bash"));
        QCOMPARE(lines.paused.count(), 0);
        QVERIFY(lines.paused.wait(5000));
        QCOMPARE(lines.paused.count(), 1);
    }

    void whatTheProgramWritesIsNotTyping()
    {
        Lines lines;
        lines.line.setText(QStringLiteral("bash"));
        QVERIFY(!lines.paused.wait(400));
    }

    void whatIsTakenIsNotToldOnceMore()
    {
        Lines lines;
        QTest::keyClicks(&lines.line, QStringLiteral("bash"));
        lines.line.taken();
        QVERIFY(!lines.paused.wait(400));
    }

    void aDisabledLineWaits()
    {
        Lines lines;
        QTest::keyClicks(&lines.line, QStringLiteral("bash"));
        lines.line.setEnabled(false);
        QVERIFY(!lines.paused.wait(400));
        lines.line.setEnabled(true);
        QVERIFY(lines.paused.count() == 1 || lines.paused.wait(5000));
    }

    void theButtonAtTheEndClears()
    {
        Lines lines;
        auto const buttons = lines.line.findChildren<QToolButton*>();
        auto const clear = std::ranges::find_if(
            buttons, [](QToolButton const* button) { return button->text() == QLatin1String("Clear"); });
        QVERIFY(clear != buttons.end());
        (*clear)->click();
        QCOMPARE(lines.line.text(), QString());
        QVERIFY(lines.paused.wait(5000));
    }

    void anExpressionThatDoesNotCompileIsMarkedAndTold()
    {
        Lines lines;
        QAction const* const sign = lines.action(QStringLiteral("Not Valid"));
        QVERIFY(sign && !sign->isVisible());
        QTest::keyClicks(&lines.line, QStringLiteral("ab(c"));
        QVERIFY(lines.faults.wait(5000));
        QCOMPARE(lines.paused.count(), 0);
        QString const fault = lines.faults.last().first().toString();
        QVERIFY2(fault.contains(QStringLiteral("at letter 3 of the expression: (")), qPrintable(fault));
        QCOMPARE(lines.line.fault(), fault);
        QCOMPARE(lines.line.accessibleDescription(), fault);
        QVERIFY(sign->isVisible());
        QCOMPARE(sign->toolTip(), fault);

        QTest::keyClicks(&lines.line, QStringLiteral(")"));
        QVERIFY(lines.paused.wait(5000));
        QCOMPARE(lines.line.fault(), QString());
        QCOMPARE(lines.faults.count(), 2);
        QCOMPARE(lines.line.accessibleDescription(), QString());
        QVERIFY(!sign->isVisible());
    }

    // What matches everything in front is dropped before the system's library sees the rest.
    void thePlaceIsThatInTheLine()
    {
        Lines lines;
        QTest::keyClicks(&lines.line, QStringLiteral(".*x[a"));
        QVERIFY(lines.faults.wait(5000));
        QVERIFY2(
            lines.line.fault().contains(QStringLiteral("at letter 4 of the expression: [")),
            qPrintable(lines.line.fault()));
    }

    void downOffersWhatHasBeenInUseTheLatestFirst()
    {
        Lines lines;
        QSignalSpy chosen(&lines.line, &ExpressionEdit::chosen);
        for (char const* const text : {"one", "two", "(", ".*", "one"}) {
            lines.line.setText(QString::fromUtf8(text));
            QTest::keyClick(&lines.line, Qt::Key_Return);
        }
        lines.line.setText(QStringLiteral("three"));
        lines.other.setFocus();
        lines.line.setFocus();
        QTest::keyClick(&lines.line, Qt::Key_Down);
        QVERIFY(lines.offer()->isVisible());
        QStringList offered;
        for (int row = 0; row < lines.offer()->model()->rowCount(); ++row) {
            offered.append(lines.offer()->model()->index(row, 0).data().toString());
        }
        QCOMPARE(
            offered, QStringList({QStringLiteral("three"), QStringLiteral("one"), QStringLiteral("two")}));
        QTest::keyClick(lines.offer(), Qt::Key_Down);
        QTest::keyClick(lines.offer(), Qt::Key_Down);
        QTest::keyClick(lines.offer(), Qt::Key_Return);
        QCOMPARE(lines.line.text(), QStringLiteral("one"));
        QCOMPARE(chosen.count(), 1);
        QVERIFY(!lines.offer()->isVisible());
    }

    void downOffersNothingAtFirst()
    {
        Lines lines;
        QTest::keyClick(&lines.line, Qt::Key_Down);
        QVERIFY(!lines.offer()->isVisible());
    }

    void theWindowsKeysGoBeforeThoseOfALine()
    {
        Lines lines;
        QAction edit;
        edit.setParent(&lines.window);
        lines.window.addAction(&edit);
        edit.setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
        QSignalSpy const triggered(&edit, &QAction::triggered);
        QVERIFY(QTest::qWaitForWindowActive(&lines.window));
        QTest::keyClick(&lines.line, Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(triggered.count(), 1);
        edit.setParent(nullptr);
    }

    void oneClickChoosesWhetherCaseMatters()
    {
        Lines lines;
        QSignalSpy changed(&lines.line, &ExpressionEdit::matchesCaseChanged);
        QAction* const matchCase = lines.action(QStringLiteral("Match Case"));
        QVERIFY(matchCase);
        QVERIFY(lines.line.matchesCase());
        QImage const on = matchCase->icon().pixmap(16).toImage();
        matchCase->trigger();
        QVERIFY(!lines.line.matchesCase());
        QCOMPARE(changed, QList<QVariantList>{{false}});
        QVERIFY(matchCase->icon().pixmap(16).toImage() != on);
        lines.line.setMatchesCase(true);
        QCOMPARE(matchCase->icon().pixmap(16).toImage(), on);
    }
};

QTEST_MAIN(TestPackageTableExpressionEdit)
#include "tst_packagetableexpressionedit.moc"
