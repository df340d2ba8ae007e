// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdEchoEdit.h"

#include "HeardTexts.h"
#include "PasswdUser.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QTest>

#include <memory>

using PasswdUser::mask;

class tst_PasswdEchoEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        edit = std::make_unique<PasswdEchoEdit>(nullptr);
        edit->show();
        QVERIFY(QTest::qWaitForWindowActive(edit.get()));
        edit->setFocus();
    }

    void cleanup() { edit.reset(); }

    void showsTheLengthAlone()
    {
        edit->setText(QStringLiteral("secret"));

        QCOMPARE(edit->text(), QStringLiteral("secret"));
        QCOMPARE(edit->displayText(), mask(6));
    }

    void readersHearTheLengthOfWhatIsSet()
    {
        HeardTexts const reader;
        edit->setText(QStringLiteral("secret"));
        QCOMPARE(reader.texts, QStringList(mask(6)));
        edit->setText(QStringLiteral("other secret"));
        edit->setText(QString());

        QCOMPARE(reader.texts, QStringList({mask(6), mask(6), mask(12)}));
    }

    void readersHearTheLengthOfWhatIsTyped()
    {
        HeardTexts const reader;
        QTest::keyClicks(edit.get(), QStringLiteral("se"));
        QTest::keyClick(edit.get(), Qt::Key_Backspace);

        QCOMPARE(edit->text(), QStringLiteral("s"));
        QCOMPARE(reader.texts, QStringList({mask(1), mask(1), mask(1)}));
    }

    void readersDoNotHearWhatIsPasted()
    {
        QApplication::clipboard()->setText(QStringLiteral("secret"));
        HeardTexts const reader;
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        PasswdUser::compose(edit.get(), QStringLiteral("composed"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Undo));

        // The toolkit takes all of a password back at once.
        QCOMPARE(reader.texts, QStringList({mask(6), mask(8), mask(14)}));
    }

    void readersDoNotHearWhatIsPastedByTheMenu()
    {
        QApplication::clipboard()->setText(QStringLiteral("secret"));
        HeardTexts const reader;
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), edit->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(edit.get(), &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (QAction* const action : menu->actions()) {
            if (action->text().startsWith(QLatin1String("&Paste"))) {
                action->trigger();
            }
        }
        menu->close();

        QCOMPARE(edit->text(), QStringLiteral("secret"));
        QCOMPARE(reader.texts, QStringList(mask(6)));
    }

    void readersDoNotHearWhatAReaderSets()
    {
        HeardTexts const reader;
        QAccessible::queryAccessibleInterface(edit.get())
            ->setText(QAccessible::Value, QStringLiteral("secret"));

        QCOMPARE(edit->text(), QStringLiteral("secret"));
        QCOMPARE(reader.texts, QStringList(mask(6)));
    }

private:
    std::unique_ptr<PasswdEchoEdit> edit;
};

QTEST_MAIN(tst_PasswdEchoEdit)
#include "tst_PasswdEchoEdit.moc"
