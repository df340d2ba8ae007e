// SPDX-License-Identifier: GPL-2.0-or-later
// The form of a repository in its window, used as by a user.
#include "repo/RepoEditorConfigDialog.h"
#include "tests/Eventually.h"

#include "ConfRoot.h"
#include "FormUser.h"
#include "repo/Buffet.h"
#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"
#include "widgets/PasswdLineEdit.h"
#include "widgets/PasswdTextEdit.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>

#include <functional>
#include <memory>

namespace
{

QString const buffetGroup = QStringLiteral("Buffet Authentication");
QString const optionsGroup = QStringLiteral("Repository Options");
QString const fileGroup = QStringLiteral("Configuration File (expert)");

QString buffet(QString const& credentials, QString const& host = QStringLiteral("host"))
{
    return QStringLiteral("http://%1/buffet?%2&path=os").arg(host, credentials);
}

} // namespace

class tst_repoform : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<RepoEditor::ConfigDialog> dialog;
    Repo::Entry entry;

    FormUser form() const { return FormUser(dialog.get()); }
    QLineEdit* id() const { return form().field<QLineEdit>(QStringLiteral("Identifier")); }
    QLineEdit* name() const { return form().field<QLineEdit>(QStringLiteral("Name")); }
    PasswdTextEdit* urls() const { return form().field<PasswdTextEdit>(QStringLiteral("URLs")); }
    PasswdLineEdit* mirrors() const
    {
        return form().field<PasswdLineEdit>(QStringLiteral("Mirror list URL"));
    }
    QLineEdit* authName(QString const& key = QStringLiteral("Name")) const
    {
        return form().field<QLineEdit>(key, buffetGroup);
    }
    QLineEdit* authPassword(QString const& key = QStringLiteral("Password")) const
    {
        return form().field<QLineEdit>(key, buffetGroup);
    }
    QComboBox* enabledBox() const { return form().field<QComboBox>(QStringLiteral("Enabled"), optionsGroup); }
    QComboBox* gpgcheckBox() const
    {
        return form().field<QComboBox>(QStringLiteral("Check GPG Keys"), optionsGroup);
    }
    HTextEdit* otherOptions() const
    {
        return form().field<HTextEdit>(QStringLiteral("Other Options:"), optionsGroup);
    }
    QLineEdit* file() const { return form().field<QLineEdit>(QStringLiteral("File"), fileGroup); }
    QDoubleSpinBox* position() const
    {
        return form().field<QDoubleSpinBox>(QStringLiteral("Sort Position"), fileGroup);
    }

    void click(QString const& text) const { QTest::mouseClick(form().button(text), Qt::LeftButton); }

    /// Shows the form for a repository.
    void open(Repo::Entry const& shown)
    {
        entry = shown;
        dialog->setEntry(&entry);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }

    void openBuffet(QString const& baseurl, QString const& mirrorlist = QString())
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        shown.baseurl = baseurl;
        shown.mirrorlist = mirrorlist;
        open(shown);
    }

    /// The status line; the label is found by what it may say.
    QLabel* status() const
    {
        QLabel* last = nullptr;
        for (QLabel* const label : dialog->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!label->buddy()) {
                last = label;
            }
        }
        return last;
    }

    void verifyStatus(QString const& text, QString const& color) const
    {
        QCOMPARE(status()->text(), text);
        QCOMPARE(status()->palette().color(QPalette::WindowText), QColor(color));
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        root->readMain("[main]\nenabled=1\n");
        dialog = std::make_unique<RepoEditor::ConfigDialog>(&root->conf, nullptr);
    }

    void cleanup()
    {
        dialog.reset();
        root.reset();
    }

    void isDisabledUntilItHasARepository()
    {
        QVERIFY(id() && name() && urls() && mirrors() && authName() && authPassword() && enabledBox());
        QVERIFY(gpgcheckBox() && otherOptions() && file() && position());
        for (QWidget const* const field :
             {static_cast<QWidget*>(id()), static_cast<QWidget*>(urls()), static_cast<QWidget*>(mirrors()),
              static_cast<QWidget*>(authName()), static_cast<QWidget*>(otherOptions()),
              static_cast<QWidget*>(position())}) {
            QVERIFY(!field->isEnabled());
        }
        QCOMPARE(enabledBox()->currentIndex(), 1);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("VEM Repository Configuration"));
    }

    void everyFieldGoesThereAndBack()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        shown.name = QStringLiteral("Some Repository");
        shown.baseurl = QStringLiteral("http://a/\n") + buffet(QStringLiteral("u=me&p=se%26cret"));
        shown.mirrorlist = QStringLiteral("http://m/");
        shown.enabled = Repo::Yes;
        shown.gpgcheck = Repo::No;
        shown.otherOptions = QStringLiteral("gpgkey=x\n# note\n");
        shown.file = QStringLiteral("/etc/yum.repos.d/some.repo");
        shown.filePosition = 2.5;
        open(shown);
        QCOMPARE(authName(QStringLiteral("u"))->text(), QStringLiteral("me"));
        QCOMPARE(authPassword(QStringLiteral("p"))->text(), QStringLiteral("se&cret"));
        QCOMPARE(authPassword(QStringLiteral("p"))->echoMode(), QLineEdit::Password);
        QVERIFY(!urls()->toPlainText().contains(QLatin1String("cret")));
        QCOMPARE(status()->text(), QString());

        QTest::keyClicks(name(), QStringLiteral("!"));
        click(QStringLiteral("OK"));

        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(entry.id, shown.id);
        QCOMPARE(entry.name, shown.name + u'!');
        QCOMPARE(entry.baseurl, shown.baseurl);
        QCOMPARE(entry.mirrorlist, shown.mirrorlist);
        QCOMPARE(entry.enabled, shown.enabled);
        QCOMPARE(entry.gpgcheck, shown.gpgcheck);
        QCOMPARE(entry.otherOptions, shown.otherOptions);
        QCOMPARE(entry.file, shown.file);
        QCOMPARE(entry.filePosition, shown.filePosition);
    }

    void clearingTheBuffetNameRewritesTheAddressAndWarns()
    {
        openBuffet(buffet(QStringLiteral("u=me&p=pw")));
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        authName(QStringLiteral("u"))->setFocus();
        QTest::keyClick(authName(QStringLiteral("u")), Qt::Key_Backspace);
        QTest::keyClick(authName(QStringLiteral("u")), Qt::Key_Backspace);

        QCOMPARE(urls()->realPlainText(), buffet(QStringLiteral("u=&p=pw")));
        verifyStatus(QStringLiteral("No Buffet Authentication Name specified"), Colors::warning());
    }

    void aMissingPasswordIsWarnedOf()
    {
        openBuffet(QString(), buffet(QStringLiteral("u=me&p=")));

        verifyStatus(QStringLiteral("No Buffet Authentication Password specified"), Colors::warning());
    }

    void thePasswordGoesToEveryBuffetAddress()
    {
        openBuffet(
            buffet(QStringLiteral("u=a&p=b")) + u'\n' +
                buffet(QStringLiteral("x=c&y=d"), QStringLiteral("other")),
            buffet(QStringLiteral("s=a&t=b")));
        QTest::keyClicks(authPassword(QStringLiteral("p")), QStringLiteral("&1"));

        QCOMPARE(
            urls()->realPlainText(), buffet(QStringLiteral("u=a&p=b%261")) + u'\n' +
                                         buffet(QStringLiteral("u=a&p=b%261"), QStringLiteral("other")));
        QCOMPARE(mirrors()->realText(), buffet(QStringLiteral("s=a&t=b%261")));
        QVERIFY(!urls()->toPlainText().contains(QLatin1String("b%261")));
        QVERIFY(!mirrors()->text().contains(QLatin1String("b%261")));
        QVERIFY(!form().labels().join(u' ').contains(QLatin1String("b%261")));
    }

    void typingABuffetAddressLightsUpTheCredentials()
    {
        openBuffet(QString());
        QVERIFY(!authName()->isEnabled());
        mirrors()->setFocus();
        QTest::keyClicks(mirrors(), buffet(QStringLiteral("login=me&key=pw")));

        QVERIFY(authName(QStringLiteral("login")) && authPassword(QStringLiteral("key")));
        QVERIFY(authName(QStringLiteral("login"))->isEnabled());
        QCOMPARE(authName(QStringLiteral("login"))->text(), QStringLiteral("me"));
        QCOMPARE(authPassword(QStringLiteral("key"))->text(), QStringLiteral("pw"));
        QTest::keySequence(mirrors(), QKeySequence(QKeySequence::SelectAll));
        QTest::keyClick(mirrors(), Qt::Key_Delete);
        QVERIFY(!authName()->isEnabled());
        QCOMPARE(authName()->text(), QString());
    }

    void credentialsFollowEachTypedCharacter()
    {
        openBuffet(QString(), buffet(QStringLiteral("u=me&p=pw")));
        mirrors()->setFocus();
        mirrors()->setCursorPosition(static_cast<int>(mirrors()->text().indexOf(QLatin1String("u=")) + 2));
        QTest::keyClicks(mirrors(), QStringLiteral("so"));

        QCOMPARE(authName(QStringLiteral("u"))->text(), QStringLiteral("some"));
    }

    void keysMayHoldWhatIsAShortcutOrMarkupElsewhere()
    {
        openBuffet(buffet(QStringLiteral("%26a<b>=me&p=pw")));

        QVERIFY(authName(QStringLiteral("&a<b>")));
        QVERIFY(form().labels().contains(QStringLiteral("&a<b>")));
        QTest::keyClicks(authName(QStringLiteral("&a<b>")), QStringLiteral("2"));
        QCOMPARE(urls()->realPlainText(), buffet(QStringLiteral("%26a%3cb%3e=me2&p=pw")));
    }

    void aMalformedBuffetAddressIsNone()
    {
        openBuffet(buffet(QStringLiteral("u=me")));

        QVERIFY(!authName()->isEnabled() && !authPassword()->isEnabled());
        QCOMPARE(status()->text(), QString());
    }

    void theFileIsChecked_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("text");
        QString const elsewhere = QStringLiteral("File is not in any reposdir directory");
        QTest::newRow("none") << ""
                              << "";
        QTest::newRow("main file") << "/etc/yum.conf"
                                   << "";
        QTest::newRow("good") << "/etc/yum.repos.d/x.repo"
                              << "";
        QTest::newRow("below") << "/etc/yum.repos.d/sub/x.repo"
                               << "";
        QTest::newRow("bare") << "x.repo" << elsewhere;
        QTest::newRow("prefix only") << "/etc/yum.repos.dx/x.repo" << elsewhere;
        QTest::newRow("suffix") << "/etc/yum.repos.d/x.conf" << QStringLiteral("File lacks .repo suffix");
    }

    void theFileIsChecked()
    {
        QFETCH(QString, path);
        QFETCH(QString, text);
        openBuffet(QStringLiteral("http://a/"));
        QTest::keyClicks(file(), path);

        verifyStatus(
            text, text.isEmpty() ? QApplication::palette().windowText().color().name() : Colors::warning());
    }

    void aNewRepositoryLacksItsIdentifierUntilItIsTyped()
    {
        open(Repo::Entry());
        QVERIFY(id()->hasFocus());
        verifyStatus(QStringLiteral("No Identifier specified"), Colors::error());
        QTest::keyClicks(id(), QStringLiteral("x"));
        verifyStatus(QStringLiteral("No URLs or Mirror list URL specified"), Colors::warning());
        QTest::keyClicks(urls(), QStringLiteral("http://a/"));
        QCOMPARE(status()->text(), QString());
        QCOMPARE(status()->palette(), QLabel().palette());
    }

    void darkPalettesCanBeRead()
    {
        QPalette const light = QApplication::palette();
        QPalette const dark = Contrast::darkPalette();
        QColor const ground = dark.color(QPalette::Window);
        auto const statusColor = [this] { return status()->palette().color(QPalette::WindowText); };
        open(Repo::Entry());
        QApplication::setPalette(dark);
        EVENTUALLY_COMPARE(status()->palette().color(QPalette::Window), ground);
        QCOMPARE(status()->text(), QStringLiteral("No Identifier specified"));
        QVERIFY(Contrast::ratio(statusColor(), ground) >= Contrast::legible);
        QTest::keyClicks(id(), QStringLiteral("x"));
        QCOMPARE(status()->text(), QStringLiteral("No URLs or Mirror list URL specified"));
        QVERIFY(Contrast::ratio(statusColor(), ground) >= Contrast::legible);
        // A required field stays light.
        for (QPalette::ColorGroup const group : {QPalette::Active, QPalette::Inactive}) {
            QPalette const field = id()->palette();
            QCOMPARE(field.color(group, QPalette::Base), QColor(Colors::required()));
            QVERIFY(
                Contrast::ratio(field.color(group, QPalette::Text), field.color(group, QPalette::Base)) >=
                Contrast::legible);
        }
        QApplication::setPalette(light);
        EVENTUALLY_COMPARE(status()->palette().color(QPalette::WindowText), QColor(Colors::warning()));
        verifyStatus(QStringLiteral("No URLs or Mirror list URL specified"), Colors::warning());
    }

    void okWithoutAChangeIsARejection()
    {
        open(Repo::Entry());
        click(QStringLiteral("OK"));

        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QVERIFY(!dialog->isVisible());
        QVERIFY(!root->conf.reposEnabled.contains(QString()));
    }

    void okSetsTheSessionFlag_data()
    {
        QTest::addColumn<QByteArray>("main");
        QTest::addColumn<int>("choice");
        QTest::addColumn<bool>("flag");
        QTest::newRow("no") << QByteArray("[main]\nenabled=1\n") << 0 << false;
        QTest::newRow("yes") << QByteArray("[main]\nenabled=0\n") << 2 << true;
        QTest::newRow("default on") << QByteArray("[main]\nenabled=1\n") << 1 << true;
        QTest::newRow("default off") << QByteArray("[main]\nenabled=0\n") << 1 << false;
    }

    void okSetsTheSessionFlag()
    {
        QFETCH(QByteArray, main);
        QFETCH(int, choice);
        QFETCH(bool, flag);
        root->readMain(main);
        root->conf.mainEnabled = !main.contains("enabled=0");
        root->conf.reposEnabled[QStringLiteral("somex")] = !flag;
        openBuffet(QStringLiteral("http://a/"));
        enabledBox()->setCurrentIndex(choice);
        QTest::keyClick(id(), Qt::Key_End);
        QTest::keyClicks(id(), QStringLiteral("x"));
        click(QStringLiteral("OK"));

        QCOMPARE(root->conf.reposEnabled.value(QStringLiteral("somex"), !flag), flag);
        QCOMPARE(entry.enabled, qint32(choice));
    }

    void defaultTellsWhatItStandsFor()
    {
        root->conf.mainEnabled = false;
        root->conf.mainGpgcheck = true;
        open(Repo::Entry());

        QCOMPARE(enabledBox()->itemText(0), QStringLiteral("No"));
        QCOMPARE(enabledBox()->itemText(1), QStringLiteral("Default (No)"));
        QCOMPARE(enabledBox()->itemText(2), QStringLiteral("Yes"));
        QCOMPARE(gpgcheckBox()->itemText(1), QStringLiteral("Default (Yes)"));
    }

    void aPositionBeyondTheLastOneIsClamped()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("far");
        shown.filePosition = 250.0;
        open(shown);
        QCOMPARE(position()->value(), position()->maximum());
        QVERIFY2(!form().button(QStringLiteral("Reset"))->isEnabled(), "loading is no change");

        QTest::keyClicks(name(), QStringLiteral("n"));
        click(QStringLiteral("OK"));
        QCOMPARE(entry.filePosition, position()->maximum());
        QVERIFY(entry.filePosition < 250.0);
    }

    void resetUndoesAndCancelLeaves()
    {
        openBuffet(buffet(QStringLiteral("u=me&p=pw")));
        QPushButton* const resetButton = form().button(QStringLiteral("Reset"));
        QVERIFY(!resetButton->isEnabled());
        QTest::keyClicks(authPassword(QStringLiteral("p")), QStringLiteral("x"));
        QVERIFY(resetButton->isEnabled());
        click(QStringLiteral("Reset"));
        QVERIFY(!resetButton->isEnabled());
        QCOMPARE(urls()->realPlainText(), buffet(QStringLiteral("u=me&p=pw")));
        QCOMPARE(authPassword(QStringLiteral("p"))->text(), QStringLiteral("pw"));

        QTest::keyClicks(id(), QStringLiteral("x"));
        click(QStringLiteral("Cancel"));
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(entry.id, QStringLiteral("some"));
    }

    void everyFieldIsAChange()
    {
        QPushButton* const resetButton = form().button(QStringLiteral("Reset"));
        QList<std::function<void()>> const changes{
            [this] { QTest::keyClicks(id(), QStringLiteral("x")); },
            [this] { QTest::keyClicks(name(), QStringLiteral("x")); },
            [this] { QTest::keyClicks(urls(), QStringLiteral("x")); },
            [this] { QTest::keyClicks(mirrors(), QStringLiteral("x")); },
            [this] { QTest::keyClick(enabledBox(), Qt::Key_Down); },
            [this] { QTest::keyClick(gpgcheckBox(), Qt::Key_Up); },
            [this] { QTest::keyClicks(otherOptions(), QStringLiteral("x")); },
            [this] { QTest::keyClicks(file(), QStringLiteral("x")); },
            [this] { QTest::keyClick(position(), Qt::Key_Up); }};
        open(Repo::Entry());
        for (auto const& change : changes) {
            click(QStringLiteral("Reset"));
            QVERIFY(!resetButton->isEnabled());
            change();
            QVERIFY(resetButton->isEnabled());
        }
    }

    void tabReachesEveryControlInTheOrderSeen()
    {
        openBuffet(buffet(QStringLiteral("u=me&p=pw")));
        QTest::keyClicks(name(), QStringLiteral("x"));
        id()->setFocus();
        QStringList reached;
        do {
            QWidget* const at = dialog->focusWidget();
            auto const* const button = qobject_cast<QPushButton const*>(at);
            reached += button ? button->text() : at->accessibleName();
            QTest::keyClick(at, Qt::Key_Tab);
        } while (dialog->focusWidget() != id() && reached.size() < 20);

        QCOMPARE(
            reached,
            QStringList(
                {QStringLiteral("Identifier"), QStringLiteral("Name"), QStringLiteral("URLs"),
                 QStringLiteral("Mirror list URL"), QStringLiteral("u"), QStringLiteral("p"),
                 QStringLiteral("Enabled"), QStringLiteral("Check GPG Keys"),
                 QStringLiteral("Other Options:"), QStringLiteral("File"), QStringLiteral("Sort Position"),
                 QStringLiteral("Reset"), QStringLiteral("Cancel"), QStringLiteral("OK")}));
    }

    void fieldsStandBelowEachOtherBesideTheirNames()
    {
        openBuffet(buffet(QStringLiteral("u=me&p=pw")));
        int above = 0;
        for (QWidget const* const field :
             {static_cast<QWidget*>(id()), static_cast<QWidget*>(name()), static_cast<QWidget*>(urls()),
              static_cast<QWidget*>(mirrors()), static_cast<QWidget*>(authName(QStringLiteral("u"))),
              static_cast<QWidget*>(authPassword(QStringLiteral("p"))), static_cast<QWidget*>(enabledBox()),
              static_cast<QWidget*>(gpgcheckBox()), static_cast<QWidget*>(otherOptions()),
              static_cast<QWidget*>(file())}) {
            int const top = field->mapTo(dialog.get(), QPoint(0, 0)).y();
            QVERIFY2(top >= above, qPrintable(field->accessibleName()));
            above = top + field->height();
        }
        for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
            if (QWidget const* const field = label->buddy(); field && field != otherOptions()) {
                QRect const beside(label->mapTo(dialog.get(), QPoint(0, 0)), label->size());
                QRect const place(field->mapTo(dialog.get(), QPoint(0, 0)), field->size());
                QVERIFY2(place.left() > beside.right(), qPrintable(label->text()));
                QVERIFY2(
                    place.top() < beside.bottom() && place.bottom() > beside.top(),
                    qPrintable(label->text()));
            }
        }
    }

    void onlyTheFormsOwnFieldsAreOnTheScreen()
    {
        openBuffet(buffet(QStringLiteral("u=me&p=secret")));
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            QVERIFY(window == dialog.get() || !window->isVisible());
        }
    }
};

QTEST_MAIN(tst_repoform)
#include "tst_repoform.moc"
