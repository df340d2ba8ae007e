// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HDialog.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class tst_HDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnAndEnterLeaveTheDefaultButtonAlone()
    {
        HDialog dialog(nullptr);
        auto* const layout = new QVBoxLayout(&dialog);
        auto* const edit = new QLineEdit(&dialog);
        auto* const button = new QPushButton(QStringLiteral("OK"), &dialog);
        layout->addWidget(edit);
        layout->addWidget(button);
        button->setDefault(true);
        QSignalSpy const clicked(button, &QPushButton::clicked);
        QSignalSpy const finished(&dialog, &QDialog::finished);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();

        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClick(edit, Qt::Key_Enter);

        QCOMPARE(clicked.count(), 0);
        QCOMPARE(finished.count(), 0);
        QVERIFY(dialog.isVisible());

        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void escapeClosesTheDialog()
    {
        HDialog dialog(nullptr);
        QSignalSpy const rejected(&dialog, &QDialog::rejected);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));

        QTest::keyClick(&dialog, Qt::Key_Escape);

        QCOMPARE(rejected.count(), 1);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(tst_HDialog)
#include "tst_HDialog.moc"
