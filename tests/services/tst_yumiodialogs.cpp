// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/KeyQuestion.h"
#include "services/ScrollableConfirmDialog.h"
#include "services/ScrollableErrorDialog.h"
#include "services/YumIODialogs.h"
#include "services/YumIODialogsUser.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <functional>

namespace
{

/// Waits, while other events are served, for a modal dialog and hands it to `answer`, once.
class Answer final
{
public:
    explicit Answer(std::function<void(QWidget*)> answer)
    {
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, answer = std::move(answer)] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog && dialog->isVisible()) {
                timer.stop();
                given = true;
                answer(dialog);
            }
        });
        timer.start();
    }

    [[nodiscard]] bool wasGiven() const { return given; }

private:
    QTimer timer;
    bool given = false;
};

QPushButton* buttonOf(QWidget* dialog, QString const& text)
{
    for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
        if (button->text().remove(u'&') == text) {
            return button;
        }
    }
    return nullptr;
}

std::function<void(QWidget*)> pressing(QString const& text)
{
    return [text](QWidget* dialog) {
        if (QPushButton* const button = buttonOf(dialog, text)) {
            button->click();
        } else {
            dialog->close();
        }
    };
}

void pressEscape(QWidget* dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

void closeWindow(QWidget* dialog)
{
    dialog->close();
}

QStringList buttonTexts(QWidget const* dialog)
{
    QStringList texts;
    for (QPushButton const* const button : dialog->findChildren<QPushButton*>()) {
        texts.append(button->text().remove(u'&'));
    }
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QWidget*)>)

class TestYumIODialogs final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void confirmAnswers_data();
    void confirmAnswers();
    void keyAnswers_data();
    void keyAnswers();
    void confirmShowsItsTextAndCaption();
    void scrollableComesBackHoweverItIsClosed_data();
    void scrollableComesBackHoweverItIsClosed();
    void longTextScrolls();
    void shortTextIsNotCutOff();

    void pressedButtonGivesItsNumber_data();
    void pressedButtonGivesItsNumber();
    void boxWithoutTextsHasOk_data();
    void boxWithoutTextsHasOk();
    void escapePressesTheEscapeButton();
    void closingTheWindowPressesTheEscapeButton();
    void escapeWithoutEscapeButtonDoesNothing();
    void numbersStayWhenATextIsMissing();
    void defaultButtonHasTheFocus();
    void iconsTellWarningAndError();

    void questionsOfAWorkerAreShownOnTheGuiThread();
    void workerWaitsForOneAnswerAfterTheOther();
    void guiThreadGoesOnWhileAWorkerAsks();
    void guardsRestoreTheFrontsInOrder();

private:
    QWidget window;
};

void TestYumIODialogs::initTestCase()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void TestYumIODialogs::confirmAnswers_data()
{
    QTest::addColumn<std::function<void(QWidget*)>>("action");
    QTest::addColumn<int>("expected");
    QTest::newRow("OK") << pressing(QStringLiteral("OK")) << 1;
    QTest::newRow("Cancel") << pressing(QStringLiteral("Cancel")) << 0;
    QTest::newRow("window closed") << std::function(closeWindow) << 0;
    QTest::newRow("Escape") << std::function(pressEscape) << 0;
}

/// From the GUI thread: had the call entered its loop, it would never come back from it.
void TestYumIODialogs::confirmAnswers()
{
    QFETCH(std::function<void(QWidget*)>, action);
    QFETCH(int, expected);
    YumIODialogs dialogs(&window);
    Answer const answer(action);
    QCOMPARE(dialogs.confirm(QStringLiteral("Apply"), QStringLiteral("Really?")), expected);
    QVERIFY(answer.wasGiven());
}

void TestYumIODialogs::keyAnswers_data()
{
    QTest::addColumn<std::function<void(QWidget*)>>("action");
    QTest::addColumn<int>("expected");
    QTest::newRow("Import Key") << pressing(QStringLiteral("Import Key")) << 1;
    QTest::newRow("Cancel") << pressing(QStringLiteral("Cancel")) << 0;
    QTest::newRow("window closed") << std::function(closeWindow) << 0;
    QTest::newRow("Escape") << std::function(pressEscape) << 0;
}

void TestYumIODialogs::keyAnswers()
{
    QFETCH(std::function<void(QWidget*)>, action);
    QFETCH(int, expected);
    KeyQuestion question;
    question.fingerprint = QStringLiteral("653B6A0B");
    YumIODialogs dialogs(&window);
    Answer const answer(action);
    QCOMPARE(dialogs.key(question), expected);
    QVERIFY(answer.wasGiven());
    // From a worker it crosses the threads whole.
    QString fingerprint;
    Answer const again([&](QWidget* dialog) {
        for (QTextEdit const* const edit : dialog->findChildren<QTextEdit*>()) {
            fingerprint +=
                edit->accessibleName() == QLatin1String("Fingerprint") ? edit->toPlainText() : QString();
        }
        action(dialog);
    });
    int answered = -1;
    runOnWorker([&] {
        YumIODialogs own(&window);
        answered = own.key(question);
    });
    QCOMPARE(answered, expected);
    QCOMPARE(fingerprint, QStringLiteral("653B 6A0B"));
}

void TestYumIODialogs::confirmShowsItsTextAndCaption()
{
    YumIODialogs dialogs(&window);
    QString caption;
    QStringList labels;
    QStringList buttons;
    QWidget const* parent = nullptr;
    bool scrollAreaHasFrame = true;
    Answer const answer([&](QWidget* dialog) {
        caption = dialog->windowTitle();
        parent = dialog->parentWidget();
        buttons = buttonTexts(dialog);
        if (auto const* const area = dialog->findChild<QScrollArea*>()) {
            scrollAreaHasFrame = area->frameWidth() != 0;
            if (auto const* const label = qobject_cast<QLabel*>(area->widget())) {
                labels.append(label->text());
            }
        }
        dialog->close();
    });
    QCOMPARE(dialogs.confirm(QStringLiteral("Apply"), QStringLiteral("Install:\n  a\n  b")), 0);
    QCOMPARE(caption, QStringLiteral("Apply"));
    QCOMPARE(parent, &window);
    QCOMPARE(labels, QStringList(QStringLiteral("Install:\n  a\n  b")));
    QCOMPARE(buttons, QStringList({QStringLiteral("OK"), QStringLiteral("Cancel")}));
    QVERIFY(!scrollAreaHasFrame);
}

void TestYumIODialogs::scrollableComesBackHoweverItIsClosed_data()
{
    QTest::addColumn<std::function<void(QWidget*)>>("action");
    QTest::newRow("Close") << pressing(QStringLiteral("Close"));
    QTest::newRow("window closed") << std::function(closeWindow);
    QTest::newRow("Escape") << std::function(pressEscape);
}

void TestYumIODialogs::scrollableComesBackHoweverItIsClosed()
{
    QFETCH(std::function<void(QWidget*)>, action);
    YumIODialogs dialogs(&window);
    QStringList buttons;
    QString caption;
    Answer const answer([&](QWidget* dialog) {
        buttons = buttonTexts(dialog);
        caption = dialog->windowTitle();
        action(dialog);
    });
    dialogs.scrollable(QStringLiteral("VEM Yum Error"), QStringLiteral("Something"));
    QVERIFY(answer.wasGiven());
    QCOMPARE(buttons, QStringList(QStringLiteral("Close")));
    QCOMPARE(caption, QStringLiteral("VEM Yum Error"));
}

void TestYumIODialogs::longTextScrolls()
{
    QString text;
    for (int line = 0; line < 800; ++line) {
        text += QStringLiteral("Line %1 %2\n").arg(line).arg(QString(400, u'x'));
    }
    ScrollableErrorDialog dialog(text, &window);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto const* const area = dialog.findChild<QScrollArea*>();
    QVERIFY(area);
    QSize const screen = dialog.screen()->geometry().size();
    QVERIFY(area->height() <= screen.height() * 9 / 10);
    QVERIFY(area->width() <= screen.width() * 9 / 10);
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
    QVERIFY(area->horizontalScrollBar()->maximum() > 0);
}

void TestYumIODialogs::shortTextIsNotCutOff()
{
    ScrollableConfirmDialog dialog(QStringLiteral("A short question\nof two lines"), &window);
    QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto const* const area = dialog.findChild<QScrollArea*>();
    QVERIFY(area);
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
}

void TestYumIODialogs::pressedButtonGivesItsNumber_data()
{
    QTest::addColumn<bool>("critical");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("expected");
    for (bool const critical : {false, true}) {
        char const* const operation = critical ? "critical" : "warning";
        QTest::addRow("%s, first", operation) << critical << QStringLiteral("Install") << 0;
        QTest::addRow("%s, second", operation) << critical << QStringLiteral("Remove") << 1;
        QTest::addRow("%s, third", operation) << critical << QStringLiteral("Cancel") << 2;
    }
}

void TestYumIODialogs::pressedButtonGivesItsNumber()
{
    QFETCH(bool, critical);
    QFETCH(QString, button);
    QFETCH(int, expected);
    YumIODialogs dialogs(&window);
    Answer const answer(pressing(button));
    auto const ask = critical ? &YumIODialogs::critical : &YumIODialogs::warning;
    int const number = (dialogs.*ask)(
        QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
        QStringLiteral("Remove"), QStringLiteral("Cancel"), 2, 2);
    QCOMPARE(number, expected);
}

void TestYumIODialogs::boxWithoutTextsHasOk_data()
{
    QTest::addColumn<std::function<void(QWidget*)>>("action");
    QTest::newRow("OK") << pressing(QStringLiteral("OK"));
    QTest::newRow("Escape") << std::function(pressEscape);
    QTest::newRow("window closed") << std::function(closeWindow);
}

void TestYumIODialogs::boxWithoutTextsHasOk()
{
    QFETCH(std::function<void(QWidget*)>, action);
    YumIODialogs dialogs(&window);
    QStringList buttons;
    QString caption;
    QString text;
    Answer const answer([&](QWidget* dialog) {
        buttons = buttonTexts(dialog);
        caption = dialog->windowTitle();
        if (auto const* const box = qobject_cast<QMessageBox*>(dialog)) {
            text = box->text();
        }
        action(dialog);
    });
    QCOMPARE(dialogs.warning(QStringLiteral("VEM Yum Warning"), QStringLiteral("Careful")), 0);
    QCOMPARE(buttons, QStringList(QStringLiteral("OK")));
    QCOMPARE(caption, QStringLiteral("VEM Yum Warning"));
    QCOMPARE(text, QStringLiteral("Careful"));
}

void TestYumIODialogs::escapePressesTheEscapeButton()
{
    YumIODialogs dialogs(&window);
    Answer const answer(pressEscape);
    QCOMPARE(
        dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), 0, 2),
        2);
}

void TestYumIODialogs::closingTheWindowPressesTheEscapeButton()
{
    YumIODialogs dialogs(&window);
    Answer const answer(closeWindow);
    QCOMPARE(
        dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), 2, 1),
        1);
}

void TestYumIODialogs::escapeWithoutEscapeButtonDoesNothing()
{
    YumIODialogs dialogs(&window);
    bool stillThere = false;
    Answer const answer([&](QWidget* dialog) {
        pressEscape(dialog);
        stillThere = dialog->isVisible();
        pressing(QStringLiteral("Remove"))(dialog);
    });
    QCOMPARE(
        dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
            QStringLiteral("Remove")),
        1);
    QVERIFY(stillThere);
}

void TestYumIODialogs::numbersStayWhenATextIsMissing()
{
    YumIODialogs dialogs(&window);
    Answer const answer(pressing(QStringLiteral("Cancel")));
    QCOMPARE(
        dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"), QString(),
            QStringLiteral("Cancel")),
        2);
}

void TestYumIODialogs::defaultButtonHasTheFocus()
{
    YumIODialogs dialogs(&window);
    Answer const answer([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    QCOMPARE(
        dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), 1, 2),
        1);
}

void TestYumIODialogs::iconsTellWarningAndError()
{
    YumIODialogs dialogs(&window);
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    auto const look = [&icon](QWidget* dialog) {
        if (auto const* const box = qobject_cast<QMessageBox*>(dialog)) {
            icon = box->icon();
        }
        dialog->close();
    };
    {
        Answer const answer(look);
        dialogs.warning(QStringLiteral("Caption"), QStringLiteral("Text"));
        QCOMPARE(icon, QMessageBox::Warning);
    }
    Answer const answer(look);
    dialogs.critical(QStringLiteral("Caption"), QStringLiteral("Text"));
    QCOMPARE(icon, QMessageBox::Critical);
}

void TestYumIODialogs::questionsOfAWorkerAreShownOnTheGuiThread()
{
    int number = -1;
    bool shownOnGuiThread = false;
    Answer const answer([&](QWidget* dialog) {
        shownOnGuiThread = dialog->thread() == QThread::currentThread();
        pressing(QStringLiteral("Remove"))(dialog);
    });
    runOnWorker([&] {
        YumIODialogs dialogs(&window);
        number = dialogs.critical(
            QStringLiteral("Apply"), QStringLiteral("Which?"), QStringLiteral("Install"),
            QStringLiteral("Remove"), QStringLiteral("Cancel"), 2, 2);
    });
    QVERIFY(shownOnGuiThread);
    QCOMPARE(number, 1);
}

void TestYumIODialogs::workerWaitsForOneAnswerAfterTheOther()
{
    QStringList order;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&order] {
        if (QWidget* const dialog = QApplication::activeModalWidget()) {
            order.append(dialog->windowTitle());
            pressing(QStringLiteral("OK"))(dialog);
        }
    });
    user.start(5);
    QList<int> answers;
    runOnWorker([&] {
        YumIODialogs dialogs(&window);
        answers.append(dialogs.confirm(QStringLiteral("1"), QStringLiteral("Text")));
        dialogs.scrollable(QStringLiteral("2"), QStringLiteral("Text"));
        answers.append(dialogs.warning(QStringLiteral("3"), QStringLiteral("Text")));
        answers.append(dialogs.critical(QStringLiteral("4"), QStringLiteral("Text")));
    });
    QCOMPARE(answers, QList<int>({1, 0, 0}));
    QCOMPARE(
        order,
        QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")}));
}

void TestYumIODialogs::guiThreadGoesOnWhileAWorkerAsks()
{
    int ticksDuringDialog = 0;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, [&ticksDuringDialog] {
        if (QWidget* const dialog = QApplication::activeModalWidget()) {
            if (++ticksDuringDialog == 10) {
                dialog->close();
            }
        }
    });
    ticks.start(1);
    runOnWorker([this] {
        YumIODialogs dialogs(&window);
        dialogs.scrollable(QStringLiteral("Caption"), QStringLiteral("Text"));
    });
    QCOMPARE(ticksDuringDialog, 10);
}

void TestYumIODialogs::guardsRestoreTheFrontsInOrder()
{
    YumIODialogs ofTheGuiThread(&window);
    YumIODialogs* member = &ofTheGuiThread;
    QList<bool> right;
    int answered = -1;
    Answer const answer(pressing(QStringLiteral("OK")));
    runOnWorker([&] {
        YumIODialogsUser const outer(member, &window);
        YumIODialogs* const first = member;
        right.append(first != &ofTheGuiThread && first->thread() == QThread::currentThread());
        {
            YumIODialogsUser const inner(member, &window);
            right.append(member != first && member != &ofTheGuiThread);
        }
        right.append(member == first);
        answered = member->confirm(QStringLiteral("Caption"), QStringLiteral("Text"));
    });
    QCOMPARE(right, QList<bool>({true, true, true}));
    QCOMPARE(answered, 1);
    QCOMPARE(member, &ofTheGuiThread);
}

QTEST_MAIN(TestYumIODialogs)
#include "tst_yumiodialogs.moc"
