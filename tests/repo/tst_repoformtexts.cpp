// SPDX-License-Identifier: GPL-2.0-or-later
// What becomes of the texts in the form of a repository: those that are typed or pasted, and those that
// nobody touches.
#include "repo/RepoEditorConfigDialog.h"

#include "ConfRoot.h"
#include "FormUser.h"
#include "widgets/HTextEdit.h"
#include "widgets/PasswdLineEdit.h"
#include "widgets/PasswdTextEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <memory>

namespace
{

QString const buffetGroup = QStringLiteral("Buffet Authentication");
QString const optionsGroup = QStringLiteral("Repository Options");
QString const fileGroup = QStringLiteral("Configuration File (expert)");

/// Every byte but the line feed.
QString bytes()
{
    QString all;
    for (ushort code = 0; code < 256; ++code) {
        if (code != '\n') {
            all += QChar(code);
        }
    }
    return all;
}

} // namespace

class tst_repoformtexts : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<RepoEditor::ConfigDialog> dialog;
    Repo::Entry entry;

    FormUser form() const { return FormUser(dialog.get()); }
    QLineEdit* line(QString const& name, QString const& group = QString()) const
    {
        return form().field<QLineEdit>(name, group);
    }
    HTextEdit* options() const
    {
        return form().field<HTextEdit>(QStringLiteral("Other Options:"), optionsGroup);
    }

    void open(Repo::Entry const& shown)
    {
        entry = shown;
        dialog->setEntry(&entry);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }

    void paste(QWidget* field, QString const& text) const
    {
        QApplication::clipboard()->setText(text);
        field->setFocus();
        QTest::keySequence(field, QKeySequence(QKeySequence::Paste));
    }

    void pressOk() const { QTest::mouseClick(form().button(QStringLiteral("OK")), Qt::LeftButton); }

    /// A repository with all bytes in all fields, as lines of a file that were read.
    static Repo::Entry wild()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some\n ") + bytes();
        shown.name = QStringLiteral("A name\n of two lines ") + bytes();
        shown.baseurl = QStringLiteral("http://a/\u00a0\r\nhttp://h/buffet?u=\u00e9&p=\u00c3\u0089&path=/");
        shown.mirrorlist = QStringLiteral("http://m/\n  more ") + bytes();
        shown.otherOptions = QStringLiteral("#") + bytes() + QStringLiteral("\n\n  odd\n") + bytes() + u'\n';
        shown.file = QStringLiteral("/etc/yum.repos.d/") + bytes();
        return shown;
    }

    static void verifySame(Repo::Entry const& actual, Repo::Entry const& expected)
    {
        QCOMPARE(actual.id, expected.id);
        QCOMPARE(actual.name, expected.name);
        QCOMPARE(actual.baseurl, expected.baseurl);
        QCOMPARE(actual.mirrorlist, expected.mirrorlist);
        QCOMPARE(actual.otherOptions, expected.otherOptions);
        QCOMPARE(actual.file, expected.file);
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        root->readMain("[main]\n");
        dialog = std::make_unique<RepoEditor::ConfigDialog>(&root->conf, nullptr);
    }

    void cleanup()
    {
        dialog.reset();
        root.reset();
    }

    void pastedLinesBecomeOneLine()
    {
        open(Repo::Entry());
        paste(line(QStringLiteral("Identifier")), QStringLiteral("extras\n"));
        paste(line(QStringLiteral("Name")), QStringLiteral("Extra\r\nPackages\x01of\tmine"));
        paste(line(QStringLiteral("Mirror list URL")), QStringLiteral("http://m/\n"));
        paste(line(QStringLiteral("File"), fileGroup), QStringLiteral("x\n.repo\n"));
        pressOk();

        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(entry.id, QStringLiteral("extras"));
        QCOMPARE(entry.name, QStringLiteral("Extra Packages of mine"));
        QCOMPARE(entry.mirrorlist, QStringLiteral("http://m/"));
        QCOMPARE(entry.file, QStringLiteral("x .repo"));
        QVERIFY(root->conf.reposEnabled.contains(QStringLiteral("extras")));
    }

    void pastedLinesOfCredentialsStayOneLine()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        shown.baseurl = QStringLiteral("http://h/buffet?u=&p=&path=/");
        open(shown);
        paste(line(QStringLiteral("u"), buffetGroup), QStringLiteral("me\n"));
        paste(line(QStringLiteral("p"), buffetGroup), QStringLiteral("p\nw\n"));
        pressOk();

        QCOMPARE(entry.baseurl, QStringLiteral("http://h/buffet?u=me&p=p%20w&path=/"));
    }

    void textsThatAreLeftAloneStayByteForByte_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("group");
        QTest::newRow("Identifier") << QStringLiteral("Identifier") << QString();
        QTest::newRow("Name") << QStringLiteral("Name") << QString();
        QTest::newRow("URLs") << QStringLiteral("URLs") << QString();
        QTest::newRow("Mirror list URL") << QStringLiteral("Mirror list URL") << QString();
        QTest::newRow("Other Options") << QStringLiteral("Other Options:") << optionsGroup;
        QTest::newRow("File") << QStringLiteral("File") << fileGroup;
        QTest::newRow("Password") << QStringLiteral("p") << buffetGroup;
    }

    // Each field in turn is the one that is edited: all others stay.
    void textsThatAreLeftAloneStayByteForByte()
    {
        QFETCH(QString, field);
        QFETCH(QString, group);
        Repo::Entry const shown = wild();
        open(shown);
        auto* const edited = form().field<QWidget>(field, group);
        QVERIFY(edited);
        edited->setFocus();
        bool const isLine = qobject_cast<QLineEdit*>(edited);
        QTest::keyClick(edited, Qt::Key_End, isLine ? Qt::NoModifier : Qt::ControlModifier);
        bool const isOptions = group == optionsGroup;
        QTest::keyClicks(edited, isOptions ? QStringLiteral("y=z") : QStringLiteral("z"));
        pressOk();
        QCOMPARE(dialog->result(), int(QDialog::Accepted));

        Repo::Entry expected = shown;
        if (field == QLatin1String("Identifier")) {
            QVERIFY(entry.id.endsWith(QLatin1String("\xffz")));
            expected.id = entry.id;
        } else if (field == QLatin1String("Name")) {
            QVERIFY(entry.name.endsWith(QLatin1String("\xffz")));
            expected.name = entry.name;
        } else if (field == QLatin1String("URLs")) {
            expected.baseurl += u'z';
        } else if (field == QLatin1String("Mirror list URL")) {
            QVERIFY(entry.mirrorlist.endsWith(QLatin1String("\xffz")));
            expected.mirrorlist = entry.mirrorlist;
        } else if (field == QLatin1String("Other Options:")) {
            expected.otherOptions += QStringLiteral("y=z");
        } else if (field == QLatin1String("File")) {
            QVERIFY(entry.file.endsWith(QLatin1String("\xffz")));
            expected.file = entry.file;
        } else {
            expected.baseurl.replace(QStringLiteral("&path"), QStringLiteral("z&path"));
        }
        verifySame(entry, expected);
    }

    void aTextThatIsPutBackIsTheOneOfTheFile()
    {
        Repo::Entry const shown = wild();
        open(shown);
        for (QString const& name : {QStringLiteral("Identifier"), QStringLiteral("Name")}) {
            QTest::keyClick(line(name), Qt::Key_End);
            QTest::keyClicks(line(name), QStringLiteral("z"));
            QTest::keyClick(line(name), Qt::Key_Backspace);
        }
        pressOk();

        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        verifySame(entry, shown);
    }

    void optionsThatWouldBeMisreadAreRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QString const indented =
            QStringLiteral("Line %1 of Other Options is indented but continues no option");
        QTest::newRow("first") << " cost=5" << indented.arg(1);
        QTest::newRow("below a comment") << "cost=5\n# note\n\tgpgkey=x" << indented.arg(3);
        QTest::newRow("no option") << "cost=5\nfoo"
                                   << "Line 2 of Other Options is no option: it lacks \"=\"";
        QTest::newRow("head") << "cost=5\n[more]"
                              << "Line 2 of Other Options would begin another section";
    }

    void optionsThatWouldBeMisreadAreRefused()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        shown.baseurl = QStringLiteral("http://a/");
        shown.enabled = Repo::No;
        open(shown);
        paste(options(), text);
        QVERIFY(form().labels().contains(words));
        pressOk();
        QVERIFY(dialog->isVisible());
        QCOMPARE(entry.otherOptions, QString());

        options()->selectAll();
        paste(options(), QStringLiteral("cost=5\n  6"));
        QVERIFY(!form().labels().contains(words));
        pressOk();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(entry.otherOptions, QStringLiteral("cost=5\n  6"));
    }

    void blankLinesBeforeOptionsGo()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        open(shown);
        paste(options(), QStringLiteral("  \n\ncost=5\n"));
        pressOk();

        QCOMPARE(entry.otherOptions, QStringLiteral("cost=5\n"));
    }

    void oddLinesOfTheFileAreNoReasonToRefuse()
    {
        Repo::Entry shown;
        shown.id = QStringLiteral("some");
        shown.otherOptions = QStringLiteral("# note\n  of two lines\ncost=5\n");
        open(shown);
        options()->moveCursor(QTextCursor::End);
        QTest::keyClicks(options(), QStringLiteral("x=1"));
        pressOk();

        QCOMPARE(entry.otherOptions, shown.otherOptions + QStringLiteral("x=1"));
    }
};

QTEST_MAIN(tst_repoformtexts)
#include "tst_repoformtexts.moc"
