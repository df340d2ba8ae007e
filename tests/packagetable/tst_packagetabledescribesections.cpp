// SPDX-License-Identifier: GPL-2.0-or-later
// What a description tells of other packages, on demand, and how it leads on to them and back.
#include "DescribeTest.h"

#include "packagetable/PackageTableDescribeSection.h"
#include "tests/Eventually.h"

#include <QSignalSpy>
#include <QToolButton>

using PackageTable::Describe::Instance::Section;

class TestDescribeSections final : public DescribeTest
{
    Q_OBJECT

private:
    QList<Section*> sections() const { return dialog->findChildren<Section*>(); }

    QStringList titles() const
    {
        QStringList found;
        for (Section const* const section : sections()) {
            found.append(section->title());
        }
        return found;
    }

    Section* section(QString const& title) const
    {
        for (Section* const one : sections()) {
            if (one->title() == title) {
                return one;
            }
        }
        return nullptr;
    }

    static QLabel* content(Section const* of) { return of->findChild<QLabel*>(); }
    static QString told(Section const* of)
    {
        return QTextDocumentFragment::fromHtml(content(of)->text()).toPlainText();
    }
    static void click(Section const* of) { of->findChild<QToolButton*>()->click(); }

    QPushButton* back() const
    {
        for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("Back")) {
                return button;
            }
        }
        return nullptr;
    }

    QString heading() const { return dialog->findChild<QLabel*>()->text(); }

    /// Does something while the dialog is on the screen, and closes it.
    void onScreen(std::function<void()> const& act)
    {
        boxes->press({QStringLiteral("Close")});
        bool begun = false;
        boxes->whileShown([&begun, act] {
            if (!begun) {
                begun = true;
                act();
            }
        });
        dialog->exec();
        boxes->take();
    }

    void answer(QString const& expression)
    {
        QCOMPARE(
            engine->script(QStringLiteral("def relations(self, kind, package, most):\n"
                                          "    standin.asked.append((kind, package.name, most))\n"
                                          "    return %1\n"
                                          "YumIO.relations = relations")
                               .arg(expression)),
            QString());
    }

private Q_SLOTS:
    void init()
    {
        DescribeTest::init();
        SCRIPT("standin.asked = []\n"
               "'relations' in YumIO.__dict__ and delattr(YumIO, 'relations')");
        QVERIFY(collected());
    }

    void scriptsThatTellNothingOfItOfferNoSection()
    {
        config(entry(QStringLiteral("birch")));
        QCOMPARE(titles(), QStringList());
    }

    void eachKindHasASectionWhichIsClosedAndAsksNothing()
    {
        answer(QStringLiteral("([], 0)"));
        config(entry(QStringLiteral("birch")));
        QCOMPARE(
            titles(), QStringList(
                          {QStringLiteral("Required By"), QStringLiteral("Recommended By"),
                           QStringLiteral("Provides What It Requires"), QStringLiteral("Why Installed"),
                           QStringLiteral("Advisories"), QStringLiteral("Other Versions")}));
        for (Section const* const one : sections()) {
            QVERIFY(!one->isOpen());
            QVERIFY(!one->findChild<QToolButton*>()->toolTip().isEmpty());
            QVERIFY(!one->findChild<QToolButton*>()->accessibleDescription().isEmpty());
        }
        QCOMPARE(engine->value(QStringLiteral("standin.asked")), QStringLiteral("[]"));
    }

    void whatIsNotInstalledIsNotAskedWhyItIs()
    {
        answer(QStringLiteral("([], 0)"));
        config(entry(QStringLiteral("hazel")));
        QCOMPARE(entry(QStringLiteral("hazel")).state, Package::Available);
        QVERIFY(!titles().contains(QStringLiteral("Why Installed")));
        QCOMPARE(titles().size(), 5);
        config(*group(QStringLiteral("Trees")));
        QCOMPARE(titles(), QStringList());
    }

    void aSectionIsReadOnceWhenItIsOpened()
    {
        answer(QStringLiteral("([['<b>fir</b> & ', 'more'], ['second']], 2)"));
        config(entry(QStringLiteral("birch")));
        Section* const why = section(QStringLiteral("Why Installed"));
        click(why);
        QVERIFY(why->isOpen());
        QCOMPARE(told(why), QStringLiteral("<b>fir</b> & more\nsecond"));
        QCOMPARE(engine->value(QStringLiteral("standin.asked")), QStringLiteral("[('why', 'birch', 100)]"));
        click(why);
        QVERIFY(content(why)->isHidden());
        click(why);
        QVERIFY(!content(why)->isHidden());
        QCOMPARE(engine->value(QStringLiteral("len(standin.asked)")), QStringLiteral("1"));
    }

    void anEmptyAnswerSaysSo()
    {
        answer(QStringLiteral("([], 0)"));
        config(entry(QStringLiteral("birch")));
        Section* const one = section(QStringLiteral("Required By"));
        click(one);
        QCOMPARE(told(one), QStringLiteral("None"));
    }

    void aFailureIsReportedAndTheSectionCanBeOpenedAgain()
    {
        answer(QStringLiteral("(_ for _ in ()).throw(yum.Errors.YumBaseError('gone'))"));
        config(entry(QStringLiteral("birch")));
        Section* const one = section(QStringLiteral("Required By"));
        click(one);
        QVERIFY(boxes->takeTexts().join(QLatin1Char('\n')).contains(QLatin1String("gone")));
        QVERIFY(!one->isOpen());
        answer(QStringLiteral("([['there']], 1)"));
        click(one);
        QCOMPARE(told(one), QStringLiteral("there"));
    }

    void aLongAnswerShowsItsFirstPartAndEverythingOnDemand()
    {
        answer(QStringLiteral("([['line %d' % n] for n in range(min(most, 1234))], 1234)"));
        config(entry(QStringLiteral("birch")));
        Section* const one = section(QStringLiteral("Required By"));
        click(one);
        QStringList const lines = told(one).split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 101);
        QCOMPARE(lines.last(), QStringLiteral("These are the first 100 of %L1. Show all").arg(1234));
        Shown shown;
        boxes->whileShown([&shown] {
            QWidget const* const window = QApplication::activeModalWidget();
            shown = {window->windowTitle(), window->findChild<QTextEdit*>()->toPlainText()};
        });
        Q_EMIT content(one)->linkActivated(QStringLiteral("all"));
        boxes->whileShown(nullptr);
        QCOMPARE(shown.title, QStringLiteral("birch 1:3.1-2 Required By"));
        QCOMPARE(shown.text.split(QLatin1Char('\n')).size(), 1234);
        boxes->take();
    }

    void aLinkLeadsToTheDescriptionOfThatPackageAndBackReturns()
    {
        answer(QStringLiteral(
            "([['by ', ('hazel-1', standin.world.find('available', 'hazel'), 'available', [])]], 1) "
            "if package.name == 'birch' else ([['nothing']], 1)"));
        config(entry(QStringLiteral("birch")));
        onScreen([this] {
            QVERIFY(!back()->isVisible());
            click(section(QStringLiteral("Required By")));
            QCOMPARE(told(section(QStringLiteral("Required By"))), QStringLiteral("by hazel-1"));
            Q_EMIT content(section(QStringLiteral("Required By")))->linkActivated(QStringLiteral("0"));
            EVENTUALLY_COMPARE(heading(), QStringLiteral("hazel"));
            QCOMPARE(rows(*dialog).at(0), QStringLiteral("Available for installation"));
            QVERIFY(back()->isVisible());
            click(section(QStringLiteral("Required By")));
            QCOMPARE(told(section(QStringLiteral("Required By"))), QStringLiteral("nothing"));
            QTest::keyClick(dialog.get(), Qt::Key_Left, Qt::AltModifier);
            EVENTUALLY_COMPARE(heading(), QStringLiteral("birch"));
            QVERIFY(!back()->isVisible());
            // What was open is open again.
            QCOMPARE(told(section(QStringLiteral("Required By"))), QStringLiteral("by hazel-1"));
            QVERIFY(!section(QStringLiteral("Advisories"))->isOpen());
        });
        QCOMPARE(sections().size(), 0);
    }

    void anUpdateIsDescribedWithWhatItTakesThePlaceOf()
    {
        answer(QStringLiteral("([[('new', standin.world.find('updates', 'alder'), 'update', "
                              "[standin.world.find('installed', 'birch')])]], 1)"));
        config(entry(QStringLiteral("birch")));
        onScreen([this] {
            click(section(QStringLiteral("Other Versions")));
            Q_EMIT content(section(QStringLiteral("Other Versions")))->linkActivated(QStringLiteral("0"));
            EVENTUALLY_COMPARE(heading(), QStringLiteral("alder"));
            QCOMPARE(rows(*dialog).at(0), QStringLiteral("Available for update"));
            QCOMPARE(areas(*dialog).size(), 2);
            QCOMPARE(rows(*dialog, 1).at(0), QStringLiteral("Installed"));
        });
    }

    void returnOpensASectionAndDoesNotCloseTheDialog()
    {
        answer(QStringLiteral("([['there']], 1)"));
        config(entry(QStringLiteral("birch")));
        onScreen([this] {
            Section* const one = section(QStringLiteral("Required By"));
            QTest::keyClick(one->findChild<QToolButton*>(), Qt::Key_Return);
            QVERIFY(one->isOpen());
            QVERIFY(dialog->isVisible());
        });
    }

    void whileASectionIsReadNothingElseCanBeStartedAndTheDialogStays()
    {
        answer(QStringLiteral("(standin.pause(), [], 0)[1:]"));
        SCRIPT("import time\nstandin.pause = lambda: time.sleep(0.3)");
        config(entry(QStringLiteral("birch")));
        onScreen([this] {
            Section* const one = section(QStringLiteral("Required By"));
            bool seen = false;
            QTimer::singleShot(100, dialog.get(), [&] {
                seen = true;
                QVERIFY(!section(QStringLiteral("Advisories"))->isEnabled());
                QVERIFY(!button(*dialog, QStringLiteral("Files"))->isEnabled());
                dialog->reject();
                QVERIFY(dialog->isVisible());
                QCOMPARE(told(one), QStringLiteral("Reading…"));
            });
            click(one);
            QVERIFY(seen);
            QVERIFY(section(QStringLiteral("Advisories"))->isEnabled());
        });
    }
};

QTEST_MAIN(TestDescribeSections)
#include "tst_packagetabledescribesections.moc"
