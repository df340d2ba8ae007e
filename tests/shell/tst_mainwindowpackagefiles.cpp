// SPDX-License-Identifier: GPL-2.0-or-later
// Package files from elsewhere: words of the command line and drops become marked rows, which survive a
// refresh and are forgotten once they are installed.
#include "ShellTest.h"
#include "shell/CommandLine.h"
#include "shell/PackageFilesDialog.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

class MainWindowPackageFilesTest : public ShellTest
{
    Q_OBJECT

    QTemporaryDir const folder;

    QString file(QString const& name) const
    {
        QFile made(folder.filePath(name));
        return made.open(QIODevice::WriteOnly) ? made.fileName() : QString();
    }

    QComboBox* view() const
    {
        for (QComboBox* const combo : window->findChildren<QComboBox*>()) {
            if (combo->accessibleName() == QLatin1String("View")) {
                return combo;
            }
        }
        return nullptr;
    }

    QStringList shown() const
    {
        QStringList found = names();
        found.sort();
        return found;
    }

    QString opened() const { return value(QStringLiteral("' '.join(asked)")); }

    /// The stand-in makes a package of each file whose name begins with "good", and refuses the others.
    static char const* standin()
    {
        return "asked = []\n"
               "def answer(words):\n"
               "    asked[:] = [word.rsplit('/', 1)[-1] for word in words]\n"
               "    told = []\n"
               "    for word in words:\n"
               "        name = word.rsplit('/', 1)[-1].split('.')[0]\n"
               "        if name.startswith('good'):\n"
               "            found = standinpackages.Package(\n"
               "                standin.era, name, ('0', '1.0', '1'), 'noarch', 'files', 10)\n"
               "            standin.world.available = [found, *standin.world.available]\n"
               "            told.append((word, name, ''))\n"
               "        else:\n"
               "            told.append((word, '', word.rsplit('/', 1)[-1] + ': damaged'))\n"
               "    return told\n"
               "import standin, standinpackages\n"
               "standin.instead('openPackageFiles', answer)\n";
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("VEM_TEST_STATEMENTS", standin());
        makeWindow();
        QByteArray const good = QFile::encodeName(file(QStringLiteral("good-one.rpm")));
        QByteArray const bad = QFile::encodeName(file(QStringLiteral("bad.rpm")));
        QList<QByteArray> words{"vem", "--disablerepo=none", good, bad, "https://example.org/good-two.rpm"};
        QList<char*> arguments;
        for (QByteArray& word : words) {
            arguments.append(word.data());
        }
        arguments.append(nullptr);
        readCommandLine(static_cast<int>(words.size()), arguments.data(), *window);
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void wordsOfTheCommandLineAreMarkedRowsThatShow()
    {
        EVENTUALLY_VERIFY(window->isEnabled());
        QCOMPARE(shown(), (QStringList{QStringLiteral("good-one"), QStringLiteral("good-two")}));
        QCOMPARE(view()->currentText(), QStringLiteral("View Marked"));
        QVERIFY(button(QStringLiteral("Apply Actions"))->isEnabled());
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen.first().text, QStringLiteral("These package files can't be used:\n\nbad.rpm: damaged"));
    }

    void marksAndFilesSurviveARefresh()
    {
        window->refresh();
        QCOMPARE(opened(), QStringLiteral("good-one.rpm good-two.rpm"));
        QCOMPARE(shown(), (QStringList{QStringLiteral("good-one"), QStringLiteral("good-two")}));
    }

    void aMarkThatWasTakenAwayStaysAwayBehindARefresh()
    {
        clickAction(QStringLiteral("good-two"));
        window->refresh();
        QCOMPARE(opened(), QStringLiteral("good-one.rpm good-two.rpm"));
        QCOMPARE(shown(), QStringList{QStringLiteral("good-one")});
    }

    void aDropOpensFilesBesideThoseThatAreOpen()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file(QStringLiteral("good-three.RPM")))});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window, &drop);
        EVENTUALLY_COMPARE(shown(), (QStringList{QStringLiteral("good-one"), QStringLiteral("good-three")}));
        QCOMPARE(opened(), QStringLiteral("good-one.rpm good-two.rpm good-three.RPM"));
    }

    void whatIsNoPackageIsNotTaken()
    {
        QMimeData data;
        data.setUrls(
            {QUrl::fromLocalFile(file(QStringLiteral("picture.png"))),
             QUrl(QStringLiteral("http://a/b.rpm"))});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(window, &enter);
        QVERIFY(!enter.isAccepted());
    }

    void theMenuAsksForFilesAndAddresses()
    {
        QString const named = file(QStringLiteral("good-four.rpm"));
        boxes->whileShown([&named] {
            auto* const dialog = qobject_cast<PackageFilesDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto* const edit = dialog->findChild<QPlainTextEdit*>();
            QPushButton const* open = nullptr;
            for (QPushButton const* const one : dialog->findChildren<QPushButton*>()) {
                open = one->isDefault() ? one : open;
            }
            QVERIFY(open && !open->isEnabled());
            edit->setPlainText(named + QStringLiteral("\nnonsense"));
            QVERIFY(!open->isEnabled());
            edit->setPlainText(named + QStringLiteral("\n  https://example.org/good-five.rpm\n"));
            QVERIFY(open->isEnabled());
        });
        boxes->press({QStringLiteral("Open")});
        action(QStringLiteral("Open Package Files..."))->trigger();
        QCOMPARE(boxes->take().size(), 1);
        QCOMPARE(
            opened(), QStringLiteral("good-one.rpm good-two.rpm good-three.RPM good-four.rpm good-five.rpm"));
        QVERIFY(shown().contains(QStringLiteral("good-five")));
    }

    void whatAGoodApplyHasPutInIsClosed()
    {
        boxes->press({QStringLiteral("OK")});
        QTest::mouseClick(button(QStringLiteral("Apply Actions")), Qt::LeftButton);
        boxes->take();
        QCOMPARE(opened(), QStringLiteral("good-two.rpm"));
    }

    void aScriptThatCannotOpenThemDisablesTheAction()
    {
        QVERIFY(action(QStringLiteral("Open Package Files..."))->isEnabled());
        QCOMPARE(script(QStringLiteral("standin.without('openPackageFiles')")), QString());
        window->refresh();
        QVERIFY(!action(QStringLiteral("Open Package Files..."))->isEnabled());
        QCOMPARE(
            action(QStringLiteral("Open Package Files..."))->toolTip(),
            QStringLiteral("The package library in use can't open package files here"));
    }
};

QTEST_MAIN(MainWindowPackageFilesTest)
#include "tst_mainwindowpackagefiles.moc"
