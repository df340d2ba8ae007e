// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HTextEdit.h"
#include "widgets/TextDialog.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class tst_TextDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isModalAndShowsItsTextUnwrapped()
    {
        TextDialog const dialog(nullptr);
        auto const* const edit = dialog.findChild<HTextEdit*>();

        QVERIFY(edit);
        QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
        QVERIFY(edit->isReadOnly());
        QCOMPARE(edit->lineWrapMode(), QTextEdit::NoWrap);
        QCOMPARE(edit->wordWrapMode(), QTextOption::NoWrap);
        QVERIFY(edit->tabChangesFocus());
        QCOMPARE(edit->sizeHint(), HTextEdit(80, 24, nullptr).sizeHint());
    }

    void showsMarkUpAsItStands()
    {
        TextDialog dialog(nullptr);

        dialog.setText(QStringLiteral("<b>/usr/bin/a</b>\n/usr/bin/b"));

        QCOMPARE(
            dialog.findChild<HTextEdit*>()->toPlainText(), QStringLiteral("<b>/usr/bin/a</b>\n/usr/bin/b"));
    }

    void closeAccepts()
    {
        TextDialog dialog(nullptr);
        QSignalSpy const accepted(&dialog, &QDialog::accepted);
        auto* const button = dialog.findChild<QPushButton*>();
        QCOMPARE(button->text(), QStringLiteral("Close"));
        dialog.show();

        QTest::mouseClick(button, Qt::LeftButton);

        QCOMPARE(accepted.count(), 1);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(tst_TextDialog)
#include "tst_TextDialog.moc"
