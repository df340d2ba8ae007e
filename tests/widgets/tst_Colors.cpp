// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Colors.h"

#include "Contrast.h"

#include <QColor>
#include <QPalette>
#include <QTest>

#include <cstdlib>

class tst_Colors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesStandForTheirColours();
    void requiredChangesTheBaseOfEnabledFields();
    void labelsTakeTheColourInAllGroups_data();
    void labelsTakeTheColourInAllGroups();
    void lightRowsKeepTheColours_data();
    void lightRowsKeepTheColours();
    void darkPaletteColoursCanBeRead_data();
    void darkPaletteColoursCanBeRead();
    void linksAndPlaceholdersCanBeRead_data();
    void linksAndPlaceholdersCanBeRead();
    void whatCanBeReadStaysAsItIs();
    void darkDisabledRowsAreFainter();
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

void tst_Colors::lightRowsKeepTheColours_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("white") << QPalette(Qt::lightGray);
    QTest::newRow("grey") << QPalette(Qt::gray, Qt::gray);
}

void tst_Colors::lightRowsKeepTheColours()
{
    QFETCH(QPalette, palette);

    for (QString const& name :
         {Colors::action(), Colors::error(), Colors::warning(), Colors::minor(), Colors::ok()}) {
        QCOMPARE(Colors::onBase(name, palette), QColor(name));
    }
    for (QString const& name : {Colors::errorDisabled(), Colors::minorDisabled()}) {
        QCOMPARE(Colors::onDisabledBase(name, palette), QColor(name));
    }
}

void tst_Colors::darkPaletteColoursCanBeRead_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("usual") << Contrast::darkPalette();
    QTest::newRow("black") << Contrast::darkPalette(Qt::black, Qt::black, QColor(20, 20, 20));
    QTest::newRow("slate") << Contrast::darkPalette(
        QColor(0x40, 0x46, 0x55), QColor(0x30, 0x36, 0x42), QColor(0x40, 0x46, 0x55));
    QTest::newRow("greenish") << Contrast::darkPalette(QColor(0, 60, 30), QColor(0, 50, 0), QColor(0, 60, 0));
}

void tst_Colors::darkPaletteColoursCanBeRead()
{
    QFETCH(QPalette, palette);
    auto const verify = [](QColor const& found, QString const& name, QColor const& ground) {
        QVERIFY2(
            Contrast::ratio(found, ground) >= Contrast::legible,
            qPrintable(
                name + QStringLiteral(" as ") + found.name() + QStringLiteral(" on ") + ground.name()));
        int const turned = std::abs(found.hslHue() - QColor(name).hslHue());
        QVERIFY2(std::min(turned, 360 - turned) <= 2, qPrintable(name + QStringLiteral(" has another hue")));
    };

    for (QColor const& ground : Contrast::rowGrounds(palette)) {
        for (QString const& name :
             {Colors::action(), Colors::error(), Colors::warning(), Colors::minor(), Colors::ok()}) {
            verify(Colors::onBase(name, palette), name, ground);
        }
        for (QString const& name : {Colors::errorDisabled(), Colors::minorDisabled()}) {
            verify(Colors::onDisabledBase(name, palette), name, ground);
        }
    }
    QColor const window = palette.color(QPalette::Window);
    auto const words = [](QPalette const& label) { return label.color(QPalette::WindowText); };
    verify(words(Colors::makeError(palette)), Colors::error(), window);
    verify(words(Colors::makeWarning(palette)), Colors::warning(), window);
    verify(words(Colors::makeOK(palette)), Colors::ok(), window);
}

void tst_Colors::linksAndPlaceholdersCanBeRead_data()
{
    darkPaletteColoursCanBeRead_data();
    QTest::newRow("light") << QPalette(QColor(0xef, 0xef, 0xef));
    QPalette stale(QColor(0xef, 0xef, 0xef));
    stale.setColor(QPalette::Link, QColor(0x99, 0x99, 0xff));
    QTest::newRow("light with the links of a dark one") << stale;
}

void tst_Colors::linksAndPlaceholdersCanBeRead()
{
    QFETCH(QPalette, palette);

    QPalette const after = Colors::makeLegible(palette);

    QColor const base = after.color(QPalette::Base);
    for (QColor const& ground : {base, after.color(QPalette::Window)}) {
        QVERIFY(Contrast::ratio(after.color(QPalette::Link), ground) >= Contrast::legible);
    }
    QColor const words = after.color(QPalette::PlaceholderText);
    double const ratio = Contrast::ratio(Contrast::blended(words, base), base);
    QVERIFY2(ratio >= Contrast::legible, qPrintable(QString::number(ratio)));
    QVERIFY(ratio < Contrast::ratio(after.color(QPalette::Text), base));
    QCOMPARE(Colors::makeLegible(after), after);
}

void tst_Colors::whatCanBeReadStaysAsItIs()
{
    QPalette palette(QColor(0xef, 0xef, 0xef));
    palette.setColor(QPalette::Link, Qt::darkBlue);
    palette.setColor(QPalette::PlaceholderText, QColor(80, 80, 80));
    QCOMPARE(Colors::makeLegible(palette), palette);
}

void tst_Colors::darkDisabledRowsAreFainter()
{
    QPalette const dark = Contrast::darkPalette();
    QColor const ground = dark.color(QPalette::Base);

    QVERIFY(
        Contrast::ratio(Colors::onDisabledBase(Colors::errorDisabled(), dark), ground) <
        Contrast::ratio(Colors::onBase(Colors::error(), dark), ground));
    QVERIFY(
        Contrast::ratio(Colors::onDisabledBase(Colors::minorDisabled(), dark), ground) <
        Contrast::ratio(Colors::onBase(Colors::minor(), dark), ground));
}

QTEST_MAIN(tst_Colors)
#include "tst_Colors.moc"
