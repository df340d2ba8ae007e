// SPDX-License-Identifier: GPL-2.0-or-later
// What the form of a repository and the window for credentials say and offer before a user does anything.
#include "ConfRoot.h"
#include "FormUser.h"
#include "repo/RepoAuthDialog.h"
#include "repo/RepoEditorConfigDialog.h"
#include "widgets/Fonts.h"
#include "widgets/HTextEdit.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace
{

QString const authName =
    QStringLiteral("Authentication name for a repository using the buffet authentication method");
QString const authPassword =
    QStringLiteral("Authentication password for a repository using the buffet authentication method");

/// The texts of the buttons, from left to right.
QStringList buttonsOf(QWidget const& window)
{
    QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(), [](QPushButton const* a, QPushButton const* b) {
        return a->x() < b->x();
    });
    QStringList texts;
    for (QPushButton const* const button : buttons) {
        texts += button->text();
    }
    return texts;
}

} // namespace

class tst_repowords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        // A hidden window for credentials leaves the main window's busy cursor.
        while (QGuiApplication::overrideCursor()) {
            QGuiApplication::restoreOverrideCursor();
        }
    }

    void fieldsOfTheFormExplainThemselves_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("toolTip");
        QString const options = QStringLiteral("Repository Options");
        QString const file = QStringLiteral("Configuration File (expert)");
        QString const buffet = QStringLiteral("Buffet Authentication");
        QTest::newRow("Identifier") << QString() << "Unique identifier for the repository";
        QTest::newRow("Name") << QString() << "Description of the repository";
        QTest::newRow("URLs") << QString()
                              << "List of URLs to the repository.\nIf more than one is specified, they all "
                                 "should be identical mirrors,\nand will provide redundancy if some URLs are "
                                 "unreachable.";
        QTest::newRow("Mirror list URL")
            << QString() << "URL to a file containing a list of URLs to the repository.";
        QTest::newRow("Name, buffet") << buffet << authName;
        QTest::newRow("Password") << buffet << authPassword;
        QTest::newRow("Enabled") << options << "Whether or not the repository is enabled for use";
        QTest::newRow("Check GPG Keys")
            << options
            << "Whether or not GPG key signatures of packages from the repository are checked to "
               "ensure authenticity";
        QTest::newRow("Other Options:")
            << options << "Any other yum options for this repository.  See yum.conf(5)";
        QTest::newRow("File") << file
                              << "Name of the yum configuration file into which to place this repository "
                                 "configuration.\nIf left blank, defaults to the repository's identifier";
        QTest::newRow("Sort Position")
            << file
            << "A numeric sort key which determines the order of this repository configuration\nin a "
               "configuration file which contains multiple configurations";
    }

    void fieldsOfTheFormExplainThemselves()
    {
        QFETCH(QString const, group);
        ConfRoot root;
        RepoEditor::ConfigDialog dialog(&root.conf, nullptr);
        QString const name = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        auto const* const field = FormUser(&dialog).field<QWidget>(name, group);
        QVERIFY(field);
        QTEST(field->toolTip(), "toolTip");
    }

    void buttonsOfTheFormExplainThemselves_data()
    {
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("Reset") << "Undo changes to this repository configuration";
        QTest::newRow("Cancel") << "Undo changes to this repository configuration and close the window";
        QTest::newRow("OK") << "Apply changes to all repository configurations, and close the window";
    }

    void buttonsOfTheFormExplainThemselves()
    {
        ConfRoot root;
        RepoEditor::ConfigDialog dialog(&root.conf, nullptr);
        QString const text = QString::fromLatin1(QTest::currentDataTag());
        QPushButton const* const button = FormUser(&dialog).button(text);
        QTEST(button->toolTip(), "toolTip");
        QCOMPARE(button->isDefault(), text == QLatin1String("OK"));
    }

    void formIsBuiltAsTold()
    {
        ConfRoot root;
        RepoEditor::ConfigDialog dialog(&root.conf, nullptr);
        FormUser const user(&dialog);
        QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
        dialog.adjustSize();
        QCOMPARE(buttonsOf(dialog), QStringList({"Reset", "Cancel", "OK"}));

        auto const* const position =
            user.field<QDoubleSpinBox>(QStringLiteral("Sort Position"), "Configuration File (expert)");
        QCOMPARE(position->decimals(), 1);
        QCOMPARE(position->singleStep(), 1.0);
        QCOMPARE(position->minimum(), 0.0);
        QCOMPARE(position->value(), 0.0);

        auto const* const options =
            user.field<HTextEdit>(QStringLiteral("Other Options:"), QStringLiteral("Repository Options"));
        QVERIFY(options->font().bold());
        QCOMPARE(options->font().family(), Fonts::makeFixed(dialog.font()).family());
        HTextEdit twin(80, 3, nullptr);
        twin.setFont(options->font());
        QCOMPARE(options->sizeHint(), twin.sizeHint());

        for (QString const& name : {QStringLiteral("Enabled"), QStringLiteral("Check GPG Keys")}) {
            auto const* const box = user.field<QComboBox>(name, QStringLiteral("Repository Options"));
            for (int value = 0; value < 3; ++value) {
                QCOMPARE(box->itemData(value).toInt(), value);
            }
        }
    }

    void windowForCredentialsIsBuiltAsTold()
    {
        RepoAuth::Dialog dialog(nullptr);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("VEM Authentication"));
        QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
        dialog.adjustSize();
        QCOMPARE(
            buttonsOf(dialog), QStringList(
                                   {"Quit", "Disable for Session", "Skip All", "Apply to All",
                                    "Apply to All with this Host", "OK"}));
        QList<QLineEdit*> const fields = dialog.findChildren<QLineEdit*>();
        QCOMPARE(fields.size(), 2);
        QCOMPARE(fields[0]->toolTip(), authName);
        QCOMPARE(fields[1]->toolTip(), authPassword);

        QList<QLabel*> const labels = dialog.findChildren<QLabel*>();
        QCOMPARE(labels[0]->text(), QStringLiteral("Some configured repositories require authentication"));
        QCOMPARE(labels[0]->font(), Fonts::makeHeader(QLabel(&dialog).font()));
        QVERIFY(labels[0]->alignment() & Qt::AlignHCenter);
        QStringList captions;
        for (QLabel const* const label : labels) {
            if (label->x() == labels[0]->x() && !label->text().isEmpty()) {
                captions += label->text();
            }
        }
        captions.removeFirst();
        QCOMPARE(
            captions, QStringList({"Identifier", "Name", "URLs", "Mirror list URL", "Name", "Password"}));

        // Room for addresses.
        int const room = dialog.sizeHint().width() - dialog.QDialog::sizeHint().width();
        QCOMPARE(room, 40 * dialog.fontMetrics().horizontalAdvance(u'n'));
    }

    void endOfAQuestionIsTold_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("accepted");
        QTest::addColumn<int>("rejected");
        QTest::newRow("Skip All") << 0 << 0 << 1;
        QTest::newRow("OK") << 1 << 1 << 0;
        QTest::newRow("Apply to All") << 2 << 0 << 0;
        QTest::newRow("Apply to All with this Host") << 3 << 0 << 0;
        QTest::newRow("Disable for Session") << 4 << 0 << 0;
        QTest::newRow("Quit") << 5 << 0 << 0;
    }

    void endOfAQuestionIsTold()
    {
        QFETCH(int const, code);
        RepoAuth::Dialog dialog(nullptr);
        QSignalSpy const finished(&dialog, &QDialog::finished);
        QSignalSpy const accepted(&dialog, &QDialog::accepted);
        QSignalSpy const rejected(&dialog, &QDialog::rejected);
        FormUser const user(&dialog);
        QString const pressed = QString::fromLatin1(QTest::currentDataTag());
        QTimer::singleShot(0, &dialog, [&] { user.button(pressed)->click(); });
        Repo::Entry entry;
        dialog.exec(&entry);

        QCOMPARE(dialog.result(), code);
        QCOMPARE(finished, (QList<QList<QVariant>>{{code}}));
        QTEST(int(accepted.size()), "accepted");
        QTEST(int(rejected.size()), "rejected");
        QVERIFY2(dialog.isVisible(), "the next question comes into the same window");
        for (QString const& text : buttonsOf(dialog)) {
            QCOMPARE(user.button(text)->isEnabled(), text.startsWith(QLatin1String("Apply")));
        }
        dialog.hide();
    }

    void hidingTheWindowBringsTheBusyCursor()
    {
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        RepoAuth::Dialog dialog(nullptr);
        dialog.show();
        QVERIFY(!QGuiApplication::overrideCursor());
        dialog.hide();
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
    }
};

QTEST_MAIN(tst_repowords)
#include "tst_repowords.moc"
