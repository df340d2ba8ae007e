// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Colors.h"

#include <QColor>
#include <QPalette>
#include <QTest>

class tst_Colors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesStandForTheirColours();
    void requiredChangesTheBaseOfEnabledFields();
    void labelsTakeTheColourInAllGroups_data();
    void labelsTakeTheColourInAllGroups();
};

void tst_Colors::namesStandForTheirColours()
{
    QCOMPARE(Colors::required(), QStringLiteral("#fffacd"));
    QCOMPARE(Colors::action(), QStringLiteral("blue"));
    QCOMPARE(Colors::error(), QStringLiteral("red"));
    QCOMPARE(Colors::errorDisabled(), QStringLiteral("#ffa9b8"));
    QCOMPARE(Colors::warning(), QStringLiteral("darkorange"));
    QCOMPARE(Colors::minor(), QStringLiteral("#8b5a2b"));
    QCOMPARE(Colors::minorDisabled(), QStringLiteral("#ffbd94"));
    QCOMPARE(Colors::ok(), QStringLiteral("green"));
}

void tst_Colors::requiredChangesTheBaseOfEnabledFields()
{
    QPalette const before(Qt::gray);

    QPalette const after = Colors::makeRequired(before);

    QPalette expected(before);
    expected.setColor(QPalette::Active, QPalette::Base, QColor(0xff, 0xfa, 0xcd));
    expected.setColor(QPalette::Inactive, QPalette::Base, QColor(0xff, 0xfa, 0xcd));
    QCOMPARE(after, expected);
    QCOMPARE(
        after.color(QPalette::Disabled, QPalette::Base), before.color(QPalette::Disabled, QPalette::Base));
}

void tst_Colors::labelsTakeTheColourInAllGroups_data()
{
    using Helper = QPalette (*)(QPalette const&);
    QTest::addColumn<Helper>("helper");
    QTest::addColumn<QColor>("color");
    QTest::newRow("error") << &Colors::makeError << QColor(Qt::red);
    QTest::newRow("warning") << &Colors::makeWarning << QColor(0xff, 0x8c, 0x00);
    QTest::newRow("ok") << &Colors::makeOK << QColor(0x00, 0x80, 0x00);
}

void tst_Colors::labelsTakeTheColourInAllGroups()
{
    using Helper = QPalette (*)(QPalette const&);
    QFETCH(Helper, helper);
    QFETCH(QColor, color);
    QPalette const before(Qt::gray);

    QPalette const after = helper(before);

    for (auto const group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(after.color(group, QPalette::WindowText), color);
        QCOMPARE(after.color(group, QPalette::Base), before.color(group, QPalette::Base));
    }
}

QTEST_MAIN(tst_Colors)
#include "tst_Colors.moc"
