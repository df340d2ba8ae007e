// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/KeyDialog.h"
#include "services/KeyQuestion.h"
#include "widgets/Colors.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextEdit>

#include <functional>

namespace
{

KeyQuestion aKey()
{
    return {
        QStringLiteral("file:///etc/pki/one"),
        QStringLiteral("base"),
        QStringLiteral("lamp-1.1-1.noarch, lone-1.0-1.noarch"),
        QStringLiteral("Estate Signing <signing@estate.example>"),
        QStringLiteral("653b6a0b10617ed25c453619458762d05376e0cd"),
        QStringLiteral("458762d05376e0cd"),
        1709294400,
        0,
        true};
}

KeyQuestion anAddress(QString const& location)
{
    return {location, QStringLiteral("base"), QString(), QString(), QString(), QString(), 0, 0, true};
}

/// A row's field, by the name that stands before it; null if there is no such row.
QTextEdit* field(QDialog const& dialog, char const* name)
{
    for (auto* const edit : dialog.findChildren<QTextEdit*>()) {
        if (edit->accessibleName() == QLatin1String(name)) {
            return edit;
        }
    }
    return nullptr;
}

/// What the field holds; null if there is none.
QString shown(QDialog const& dialog, char const* name)
{
    QTextEdit const* const edit = field(dialog, name);
    return edit ? edit->toPlainText() : QString();
}

QPushButton* button(QDialog const& dialog, char const* text)
{
    for (auto* const one : dialog.findChildren<QPushButton*>()) {
        if (one->text().remove(u'&') == QLatin1String(text)) {
            return one;
        }
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QDialog&)>)

class TestKeyDialog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void everythingOfTheKeyIsShown();
    void keyThatEndsHasItsDay();
    void keyOfMetadataSaysSo();
    void fingerprintStandsInOneLineOfEvenLetters();
    void wordsOfOthersAreNoMarkUp();
    void longWordsAreBrokenAndNothingIsHidden();
    void manyWordsScroll();
    void questionBeforeTheFetchKnowsTheAddressAlone();
    void onlyWhatNothingProtectsIsWarnedOf_data();
    void onlyWhatNothingProtectsIsWarnedOf();
    void serverThatNeedNotProveItsNameIsWarnedOf();
    void onlyTheFirstButtonAgrees_data();
    void onlyTheFirstButtonAgrees();
    void cancelHasTheFocus();
};

void TestKeyDialog::everythingOfTheKeyIsShown()
{
    KeyDialog const dialog(aKey(), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Import Key"));
    QCOMPARE(shown(dialog, "User ID"), QStringLiteral("Estate Signing <signing@estate.example>"));
    QCOMPARE(
        shown(dialog, "Fingerprint"), QStringLiteral("653B 6A0B 1061 7ED2 5C45 3619 4587 62D0 5376 E0CD"));
    QCOMPARE(shown(dialog, "Key ID"), QStringLiteral("458762D05376E0CD (short: 5376E0CD)"));
    QCOMPARE(shown(dialog, "Created"), QStringLiteral("Friday, 1 March 2024"));
    QCOMPARE(shown(dialog, "Expires"), QStringLiteral("never"));
    QCOMPARE(shown(dialog, "Address"), QStringLiteral("file:///etc/pki/one"));
    QCOMPARE(shown(dialog, "Transport"), QStringLiteral("a file of this system"));
    QCOMPARE(shown(dialog, "Repository"), QStringLiteral("base"));
    QCOMPARE(shown(dialog, "Signed with it"), QStringLiteral("lamp-1.1-1.noarch, lone-1.0-1.noarch"));
    for (QLabel const* const label : dialog.findChildren<QLabel*>()) {
        if (label->buddy()) {
            QCOMPARE(label->buddy()->accessibleName() + u':', label->text());
        }
    }
}

void TestKeyDialog::keyThatEndsHasItsDay()
{
    KeyQuestion question = aKey();
    question.expires = 1709294400;
    QCOMPARE(shown(KeyDialog(question, nullptr), "Expires"), QStringLiteral("Friday, 1 March 2024"));
}

void TestKeyDialog::keyOfMetadataSaysSo()
{
    KeyQuestion question = aKey();
    question.packages.clear();
    KeyDialog const dialog(question, nullptr);
    QCOMPARE(shown(dialog, "Signed with it"), QStringLiteral("the metadata of the repository"));
}

void TestKeyDialog::fingerprintStandsInOneLineOfEvenLetters()
{
    KeyDialog dialog(aKey(), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTextEdit const* const fingerprint = field(dialog, "Fingerprint");
    QVERIFY(fingerprint);
    QFontMetrics const metrics = fingerprint->fontMetrics();
    QCOMPARE(
        metrics.horizontalAdvance(QStringLiteral("1111")), metrics.horizontalAdvance(QStringLiteral("DDDD")));
    QVERIFY2(fingerprint->height() < 2 * metrics.lineSpacing(), "broken");
}

void TestKeyDialog::wordsOfOthersAreNoMarkUp()
{
    KeyQuestion question = aKey();
    question.userId = QStringLiteral("<b>Bold</b> &amp; <img src='http://127.0.0.1/'>");
    question.repository = QStringLiteral("<i>base</i>");
    question.packages = QStringLiteral("<u>lamp</u>");
    question.location = QStringLiteral("http://<b>host</b>/");
    KeyDialog const dialog(question, nullptr);
    QCOMPARE(shown(dialog, "User ID"), question.userId);
    QCOMPARE(shown(dialog, "Repository"), question.repository);
    QCOMPARE(shown(dialog, "Signed with it"), question.packages);
    QCOMPARE(shown(dialog, "Address"), question.location);
    for (QLabel const* const label : dialog.findChildren<QLabel*>()) {
        QVERIFY(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
    }
}

void TestKeyDialog::longWordsAreBrokenAndNothingIsHidden()
{
    KeyQuestion question = aKey();
    question.location = QStringLiteral("https://host/") + QString(150, u'x');
    question.userId = QString(150, u'W');
    KeyDialog dialog(question, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.width() <= dialog.screen()->geometry().width());
    for (char const* const name : {"Address", "User ID"}) {
        QTextEdit const* const text = field(dialog, name);
        QVERIFY(text);
        QVERIFY2(text->document()->size().height() <= text->height(), name);
        QVERIFY2(text->document()->size().height() > 2 * text->fontMetrics().lineSpacing(), name);
        QVERIFY2(text->document()->idealWidth() <= text->viewport()->width(), name);
    }
}

void TestKeyDialog::manyWordsScroll()
{
    KeyQuestion question = aKey();
    question.userId = QString(5000, u'W');
    KeyDialog dialog(question, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.height() <= dialog.screen()->geometry().height());
    QTextEdit const* const text = field(dialog, "User ID");
    QVERIFY(text && text->document()->size().height() > text->height());
}

void TestKeyDialog::questionBeforeTheFetchKnowsTheAddressAlone()
{
    KeyDialog const dialog(anAddress(QStringLiteral("https://host/key")), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Fetch Key"));
    QCOMPARE(shown(dialog, "Address"), QStringLiteral("https://host/key"));
    QVERIFY(shown(dialog, "Fingerprint").isNull());
    QVERIFY(shown(dialog, "Expires").isNull());
    QVERIFY(button(dialog, "Fetch Key"));
    QVERIFY(!button(dialog, "Import Key"));
}

void TestKeyDialog::onlyWhatNothingProtectsIsWarnedOf_data()
{
    QTest::addColumn<bool>("warns");
    QTest::newRow("file:///key") << false;
    QTest::newRow("FILE:/key") << false;
    QTest::newRow("/key") << false;
    QTest::newRow("https://host/key") << false;
    QTest::newRow("HTTPS://host/key") << false;
    QTest::newRow("http://host/key") << true;
    QTest::newRow("http://host/https://key") << true;
    QTest::newRow("ftp://host/key") << true;
}

void TestKeyDialog::onlyWhatNothingProtectsIsWarnedOf()
{
    QFETCH(bool, warns);
    for (bool const dark : {false, true}) {
        QPalette palette(dark ? QColor(40, 40, 40) : QColor(240, 240, 240));
        QApplication::setPalette(palette);
        KeyDialog const dialog(anAddress(QString::fromLatin1(QTest::currentDataTag())), nullptr);
        QTextEdit const* const transport = field(dialog, "Transport");
        QVERIFY(transport);
        QCOMPARE(transport->toPlainText().contains(QLatin1String("not encrypted")), warns);
        QColor const color = transport->palette().color(QPalette::Text);
        QColor const usual = dialog.palette().color(QPalette::WindowText);
        QCOMPARE(color, warns ? Colors::makeWarning(dialog.palette()).color(QPalette::WindowText) : usual);
        QCOMPARE(color != usual, warns);
    }
    QApplication::setPalette(QPalette());
}

void TestKeyDialog::serverThatNeedNotProveItsNameIsWarnedOf()
{
    for (auto const& [location, words] : std::initializer_list<std::pair<char const*, char const*>>{
             {"https://host/key", "https: encrypted, but any server may answer"},
             {"http://host/key", "http: not encrypted"},
             {"file:///key", "a file of this system"}}) {
        KeyQuestion question = anAddress(QString::fromLatin1(location));
        question.verified = false;
        KeyDialog const dialog(question, nullptr);
        QTextEdit const* const transport = field(dialog, "Transport");
        QVERIFY(transport);
        QVERIFY2(transport->toPlainText().startsWith(QLatin1String(words)), location);
        QColor const usual = dialog.palette().color(QPalette::WindowText);
        QCOMPARE(
            transport->palette().color(QPalette::Text) != usual,
            question.location.startsWith(QLatin1String("http")));
    }
}

void TestKeyDialog::onlyTheFirstButtonAgrees_data()
{
    QTest::addColumn<std::function<void(QDialog&)>>("action");
    QTest::addColumn<int>("expected");
    auto const row = [](char const* name, std::function<void(QDialog&)> action, QDialog::DialogCode code) {
        QTest::newRow(name) << std::move(action) << int(code);
    };
    row(
        "Import Key", [](QDialog& dialog) { button(dialog, "Import Key")->click(); }, QDialog::Accepted);
    row(
        "Cancel", [](QDialog& dialog) { button(dialog, "Cancel")->click(); }, QDialog::Rejected);
    row(
        "Escape", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, QDialog::Rejected);
    row(
        "Return", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }, QDialog::Rejected);
    row(
        "Enter", [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Enter); },
        QDialog::Rejected);
    row(
        "window closed", [](QDialog& dialog) { dialog.close(); }, QDialog::Rejected);
}

void TestKeyDialog::onlyTheFirstButtonAgrees()
{
    QFETCH(std::function<void(QDialog&)>, action);
    KeyDialog dialog(aKey(), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.isModal());
    action(dialog);
    QVERIFY(!dialog.isVisible());
    QTEST(dialog.result(), "expected");
}

void TestKeyDialog::cancelHasTheFocus()
{
    KeyDialog dialog(aKey(), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(dialog.focusWidget(), button(dialog, "Cancel"));
    QVERIFY(button(dialog, "Cancel")->isDefault());
    QVERIFY(!button(dialog, "Import Key")->autoDefault());
}

QTEST_MAIN(TestKeyDialog)
#include "tst_keydialog.moc"
