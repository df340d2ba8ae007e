// SPDX-License-Identifier: GPL-2.0-or-later
// What the description dialog shows of each kind of entry, and how the model uses it.
#include "DescribeTest.h"

#include "packagetable/PackageTableModel.h"
#include "widgets/Sizing.h"

#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>

class TestDescribeDialog final : public DescribeTest
{
    Q_OBJECT

private:
    using Model = PackageTable::Model;

    /// Gives a package every text that the stand-in's packages lack.
    void completeTexts(char const* list, char const* name)
    {
        QCOMPARE(
            engine->script(QStringLiteral("standin.world.find('%1', '%2').simple.update(\n"
                                          "    vendor='Wood & Co', buildhost='forest.example.org',\n"
                                          "    packager='Ash <ash@example.org>')")
                               .arg(QLatin1String(list), QLatin1String(name))),
            QString());
    }

    /// The words of the window's labels, from above.
    static QStringList words(QWidget const& window)
    {
        QStringList found;
        for (QLabel const* const label : window.findChildren<QLabel*>()) {
            found.append(label->text());
        }
        return found;
    }

    int rowOf(QString const& name) const
    {
        for (int row = 0; row < engine->count(); ++row) {
            if ((*engine)[row]->name == name) {
                return row;
            }
        }
        return -1;
    }

private Q_SLOTS:
    void anInstalledPackageShowsWhatItsHeaderHolds()
    {
        SCRIPT("birch = standin.world.find('installed', 'birch')\n"
               "birch.hdr.tags.update(standin.world.alder_tags())\n"
               "birch.hdr.tags.update(\n"
               "    CONFLICTNAME=['moss'], CONFLICTFLAGS=[2], CONFLICTVERSION=['2'],\n"
               "    OBSOLETENAME=['fern'], OBSOLETEFLAGS=[0], OBSOLETEVERSION=[None])");
        completeTexts("installed", "birch");
        QVERIFY(collected());
        config(entry(QStringLiteral("birch")));
        QCOMPARE(
            rows(*dialog), QStringList({
                               QStringLiteral("Installed"),
                               QStringLiteral("Kind: Ordinary package"),
                               QStringLiteral("Version: 1:3.1-2"),
                               QStringLiteral("Architecture: noarch"),
                               QStringLiteral("Size: 59Kb"),
                               QStringLiteral("Summary: A tree called birch"),
                               QStringLiteral("Description: First line of birch\n\nlast line"),
                               QStringLiteral("Group: Plants"),
                               QStringLiteral("Vendor: Wood & Co"),
                               QStringLiteral("Build Time: Fri Jan  2 00:00:00 1970"),
                               QStringLiteral("Build Host: forest.example.org"),
                               QStringLiteral("Install Time: Fri Jan  2 00:00:00 1970"),
                               QStringLiteral("Binary RPM: birch-3.1-2.noarch.rpm"),
                               QStringLiteral("Source RPM: birch-3.1-2.noarch.rpm"),
                               QStringLiteral("License: GPLv2+"),
                               QStringLiteral("Packager: Ash <ash@example.org>"),
                               QStringLiteral("URL: http://example.org/birch"),
                               QStringLiteral("Relocations: /usr\n/opt"),
                               QStringLiteral("Provides: alder = 1.0-1\ntree  \nwood >= 3"),
                               QStringLiteral("Requires: acorn <= 5\nbark <= 2:1.0"),
                               QStringLiteral("Conflicts: moss < 2"),
                               QStringLiteral("Obsoletes: fern"),
                               QStringLiteral("Files: [Show]"),
                               QStringLiteral("Change Log: [Show]"),
                           }));
        QCOMPARE(areas(*dialog).size(), 1);
    }

    void anAvailablePackageShowsWhatItsRepositoryTells()
    {
        SCRIPT("elm = standin.world.find('available', 'elm')\n"
               "prco = {'provides': [('elm', 'EQ', ('0', '1.0', '1'))],\n"
               "    'requires': [('bark', 'GE', ('1', '3.2', '1')), ('acorn', None, (None, None, None))],\n"
               "    'conflicts': [('moss', 'LT', ('0', '2', None))],\n"
               "    'obsoletes': [('fern', None, (None, None, None))]}\n"
               "elm.returnPrco = prco.__getitem__");
        completeTexts("available", "elm");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QCOMPARE(
            rows(*dialog), QStringList({
                               QStringLiteral("Available for installation"),
                               QStringLiteral("Kind: Ordinary package"),
                               QStringLiteral("Version: 1.0-1"),
                               QStringLiteral("Repository: base [Details]"),
                               QStringLiteral("Architecture: noarch"),
                               QStringLiteral("Size: 500b"),
                               QStringLiteral("Summary: A tree called elm"),
                               QStringLiteral("Description: First line of elm\n\nlast line"),
                               QStringLiteral("Group: Plants"),
                               QStringLiteral("Vendor: Wood & Co"),
                               QStringLiteral("Build Time: Fri Jan  2 00:00:00 1970"),
                               QStringLiteral("Build Host: forest.example.org"),
                               QStringLiteral("Binary RPM: elm-1.0-1.noarch.rpm"),
                               QStringLiteral("Source RPM: elm-1.0-1.noarch.rpm"),
                               QStringLiteral("License: GPLv2+"),
                               QStringLiteral("Packager: Ash <ash@example.org>"),
                               QStringLiteral("URL: http://example.org/elm"),
                               QStringLiteral("Provides: elm = 1.0-1"),
                               QStringLiteral("Requires: acorn\nbark >= 1:3.2-1"),
                               QStringLiteral("Conflicts: moss < 2"),
                               QStringLiteral("Obsoletes: fern"),
                               QStringLiteral("Files: [Show (must load extra data)]"),
                               QStringLiteral("Change Log: [Show (must load extra data)]"),
                           }));
    }

    void anUpdatablePackageShowsTheInstalledVersionInBrief()
    {
        SCRIPT("del standin.world.installed[1]");
        completeTexts("updates", "alder");
        completeTexts("installed", "alder");
        QVERIFY(collected());
        config(entry(QStringLiteral("alder")));
        QCOMPARE(areas(*dialog).size(), 2);
        QStringList const update = rows(*dialog, 0);
        QCOMPARE(update.first(), QStringLiteral("Available for update"));
        QVERIFY(update.contains(QStringLiteral("Version: 2.0-1")));
        QVERIFY(update.contains(QStringLiteral("Repository: updates [Details]")));
        QVERIFY(update.contains(QStringLiteral("Vendor: Wood & Co")));
        QCOMPARE(
            rows(*dialog, 1), QStringList({
                                  QStringLiteral("Installed"),
                                  QStringLiteral("Version: 1.0-1"),
                                  QStringLiteral("Size: 98Kb"),
                                  QStringLiteral("Build Time: Fri Jan  2 00:00:00 1970"),
                                  QStringLiteral("Packager: Ash <ash@example.org>"),
                                  QStringLiteral("Files: [Show]"),
                                  QStringLiteral("Change Log: [Show]"),
                              }));
    }

    void everyInstalledVersionHasAnArea()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("alder")));
        QCOMPARE(areas(*dialog).size(), 3);
        QVERIFY(rows(*dialog, 1).contains(QStringLiteral("Version: 1.0-1")));
        QVERIFY(rows(*dialog, 2).contains(QStringLiteral("Version: 0.9-1")));
    }

    void aSuiteIsDescribedAsThePackageThatItIs()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("fir")));
        QStringList const shown = rows(*dialog);
        QCOMPARE(shown.at(1), QStringLiteral("Kind: Suite of packages"));
        QCOMPARE(shown.at(2), QStringLiteral("Version: 2:1.5-3.1"));
        QVERIFY(shown.contains(QStringLiteral("Group: Suite")));
        QCOMPARE(shown.last(), QStringLiteral("Change Log: [Show (must load extra data)]"));
    }

    void aGroupShowsWhatItHoldsAndNothingOfAPackage()
    {
        QVERIFY(collected());
        config(*group(QStringLiteral("Trees")));
        QStringList expected{
            QStringLiteral("Available for update"), QStringLiteral("Kind: Group of packages"),
            QStringLiteral("Mandatory Packages: alder"), QStringLiteral("Default Packages: birch"),
            QStringLiteral("Optional Packages: elm")};
        if (engine->hasDistribGroups()) {
            expected.append(QStringLiteral("Conditional Packages: fir"));
        } else {
            expected.insert(2, QStringLiteral("Default MetaPkgs: meta-Trees"));
        }
        QCOMPARE(rows(*dialog), expected);
        QCOMPARE(areas(*dialog).size(), 1);
        QCOMPARE(words(*dialog).first(), QStringLiteral("Trees"));
    }

    void aGroupOfGroupsShowsThemWhereTheReleaseKnowsSuch()
    {
        QVERIFY(collected());
        config(*group(QStringLiteral("Garden")));
        QStringList expected{engine->getState(*group(QStringLiteral("Garden")))};
        expected.append(QStringLiteral("Kind: Group of packages"));
        if (!engine->hasDistribGroups()) {
            expected.append(QStringLiteral("Required Groups: Nowhere\nShrubs\nTrees"));
            expected.append(QStringLiteral("Default MetaPkgs: meta-Garden"));
        }
        QCOMPARE(rows(*dialog), expected);
    }

    void anEmptyFieldTakesNoRow()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("birch")));
        QStringList const shown = labels(rows(*dialog));
        QVERIFY(!shown.contains(QStringLiteral("Vendor")));
        QCOMPARE(shown.indexOf(QStringLiteral("Build Time")), shown.indexOf(QStringLiteral("Group")) + 1);
        // The rows below have moved up.
        auto const* const grid = areas(*dialog).first()->widget()->findChild<QGridLayout*>();
        QCOMPARE(grid->rowCount(), shown.size());
    }

    void aPackageThatIsInstalledHasNoRepository()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("birch")));
        QCOMPARE(engine->getRepo(entry(QStringLiteral("birch"))), QStringLiteral("installed"));
        QVERIFY(!labels(rows(*dialog)).contains(QStringLiteral("Repository")));
        for (QPushButton const* const pushButton : dialog->findChildren<QPushButton*>()) {
            QVERIFY(pushButton->text() != QLatin1String("Details"));
        }
    }

    void whatAPackageSaysIsNoMarkup()
    {
        SCRIPT("standin.world.find('available', 'elm').simple.update(\n"
               "    description='<b>bold</b> &amp; <a href=\"x\">loud</a>', license='A & B')");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QVERIFY(
            rows(*dialog).contains(QStringLiteral("Description: <b>bold</b> &amp; <a href=\"x\">loud</a>")));
        for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
            QVERIFY(label->textFormat() == Qt::PlainText || label->text().contains(QLatin1String("http:")));
            QVERIFY(!label->buddy());
        }
        // Not beside an address either.
        SCRIPT("standin.world.find('available', 'elm').simple['description'] = '<b>see</b>\\n"
               "  http://example.org/?a&b=<i>.'");
        config(entry(QStringLiteral("elm")));
        QVERIFY(rows(*dialog).contains(
            QStringLiteral("Description: <b>see</b>\n  http://example.org/?a&b=<i>.")));
    }

    void textsCanBeSelectedAndAddressesFollowed()
    {
        SCRIPT("standin.world.find('available', 'elm').simple.update(\n"
               "    description='Read (https://example.org/a_(b)?c=d&e) or ftp://example.org/x.',"
               " url='no address')");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QStringList addresses;
        int readable = 0;
        for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
            readable += label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse) ? 1 : 0;
            static QRegularExpression const link(QStringLiteral("href=\"([^\"]*)\""));
            auto found = link.globalMatch(label->text());
            while (found.hasNext()) {
                addresses.append(found.next().captured(1));
                QVERIFY(label->textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard));
            }
        }
        QVERIFY(readable > 10);
        QCOMPARE(
            addresses, QStringList(
                           {QStringLiteral("https://example.org/a_(b)?c=d&amp;e"),
                            QStringLiteral("ftp://example.org/x")}));
    }

    void aLongParagraphIsWrappedAtTheDialogsWidthAndAListIsNot()
    {
        SCRIPT("standin.world.find('available', 'elm').simple['description'] = 'word ' * 200");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->whileShown([this] {
            HScrollArea const* const area = areas(*dialog).first();
            QVERIFY(!area->horizontalScrollBar()->isVisible());
            QLabel const* paragraph = nullptr;
            for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
                paragraph = label->text().startsWith(QLatin1String("word ")) ? label : paragraph;
            }
            QVERIFY(paragraph);
            int const lines = paragraph->height() / paragraph->fontMetrics().lineSpacing();
            QVERIFY(lines > 5);
            dialog->resize(dialog->width() + 300, dialog->height());
            QCoreApplication::processEvents();
            QVERIFY(paragraph->height() / paragraph->fontMetrics().lineSpacing() < lines);
        });
        dialog->exec();
        boxes->whileShown(nullptr);
        boxes->take();
    }

    void keysScrollWhereverTheKeyboardIs()
    {
        SCRIPT("standin.world.find('available', 'elm').simple['description'] = 'word\\n' * 200");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->whileShown([this] {
            QScrollBar const* const bar = areas(*dialog).first()->verticalScrollBar();
            QWidget* const close = dialog->findChildren<QPushButton*>().last();
            QTest::keyClick(close, Qt::Key_PageDown);
            QVERIFY(bar->value() > 0);
            QTest::keyClick(close, Qt::Key_End);
            QCOMPARE(bar->value(), bar->maximum());
            QTest::keyClick(close, Qt::Key_PageUp);
            QVERIFY(bar->value() < bar->maximum());
            QTest::keyClick(close, Qt::Key_Home);
            QCOMPARE(bar->value(), 0);
        });
        dialog->exec();
        boxes->whileShown(nullptr);
        boxes->take();
    }

    void aScriptThatRaisesLeavesItsFieldsEmpty()
    {
        QVERIFY(collected());
        SCRIPT("def refuse(*args):\n"
               "    raise RuntimeError('not today')\n"
               "elm = standin.world.find('available', 'elm')\n"
               "elm.returnSimple = elm.returnPrco = elm.returnFileEntries = elm.returnChangelog = refuse");
        config(entry(QStringLiteral("elm")));
        QVERIFY(!boxes->take().isEmpty());
        QCOMPARE(
            labels(rows(*dialog)),
            QStringList(
                {QStringLiteral("Available for installation"), QStringLiteral("Kind"),
                 QStringLiteral("Version"), QStringLiteral("Repository"), QStringLiteral("Architecture"),
                 QStringLiteral("Size"), QStringLiteral("Summary"), QStringLiteral("Build Time"),
                 QStringLiteral("Files"), QStringLiteral("Change Log")}));
        QCOMPARE(show(QStringLiteral("Files")).text, QString());
        QCOMPARE(show(QStringLiteral("Change Log")).text, QString());
        boxes->take();
    }

    void anInstalledPackageThatRaisesLeavesItsFieldsEmpty()
    {
        QVERIFY(collected());
        SCRIPT("def refuse(*args):\n"
               "    raise RuntimeError('not today')\n"
               "birch = standin.world.find('installed', 'birch')\n"
               "birch.returnSimple = refuse\n"
               "birch.hdr = type('Refusing', (), {'__getitem__': refuse})()");
        config(entry(QStringLiteral("birch")));
        QVERIFY(!boxes->take().isEmpty());
        QCOMPARE(
            labels(rows(*dialog)),
            QStringList(
                {QStringLiteral("Installed"), QStringLiteral("Kind"), QStringLiteral("Version"),
                 QStringLiteral("Architecture"), QStringLiteral("Size"), QStringLiteral("Summary"),
                 QStringLiteral("Build Time"), QStringLiteral("Files"), QStringLiteral("Change Log")}));
        QCOMPARE(show(QStringLiteral("Files")).text, QString());
        QCOMPARE(show(QStringLiteral("Change Log")).text, QString());
        QCOMPARE(boxes->take().size(), 2);
    }

    void theWordsOfARowAreMadeInTheirOrder()
    {
        // The order in which a screen reader tells them.
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QObjectList const made = areas(*dialog).first()->widget()->children();
        QPushButton const* const details = button(*dialog, QStringLiteral("Repository"));
        qsizetype const at = made.indexOf(const_cast<QPushButton*>(details));
        QVERIFY(at > 1);
        QCOMPARE(qobject_cast<QLabel*>(made.at(at - 2))->text(), QStringLiteral("Repository:"));
        QCOMPARE(qobject_cast<QLabel*>(made.at(at - 1))->text(), QStringLiteral("base"));
    }

    void theDialogIsModalAndNamesItsEntryOnTop()
    {
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("VEM Package Description"));
        boxes->whileShown([this] {
            QVERIFY(dialog->isModal());
            auto const labelsShown = dialog->findChildren<QLabel*>();
            QLabel const* const name = labelsShown.first();
            QCOMPARE(name->text(), QStringLiteral("elm"));
            QVERIFY(name->font().bold());
            for (QLabel const* const label : labelsShown) {
                QVERIFY(label->y() >= 0);
                QVERIFY(label->mapTo(dialog.get(), QPoint()).y() >= name->mapTo(dialog.get(), QPoint()).y());
            }
        });
        dialog->exec();
        QCOMPARE(boxes->take().size(), 1);
    }

    void aLongAreaTakesEightyCharactersByTwentyFourLinesWithoutAFrame()
    {
        SCRIPT("standin.world.find('available', 'elm').simple.update(\n"
               "    description='\\n'.join(['wide ' * 60] * 60))");
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        HScrollArea const* const area = areas(*dialog).first();
        QCOMPARE(area->sizeHint(), QSize(Sizing::columns(area, 80), 24 * area->fontMetrics().height()));
        QCOMPARE(area->frameShape(), QFrame::NoFrame);
    }

    void installedVersionsShowAllTheirRowsUpToNineTenthsOfTheScreen()
    {
        SCRIPT("standin.world.find('available', 'alder').simple.update(\n"
               "    description='\\n'.join(['word'] * 60))");
        QVERIFY(collected());
        QFont const before = QApplication::font();
        // So that there is a window that two thirds of this screen are too low for, and nine tenths not.
        int const screen = dialog->screen()->geometry().height();
        QSize wanted;
        for (int pixels = 40; pixels > 4; --pixels) {
            QFont font = before;
            font.setPixelSize(pixels);
            QApplication::setFont(font);
            dialog = std::make_unique<Dialog>(nullptr);
            config(entry(QStringLiteral("alder")));
            wanted = dialog->sizeHint();
            if (wanted.height() <= screen * 9 / 10) {
                break;
            }
        }
        QVERIFY(wanted.height() > screen * 2 / 3);
        boxes->whileShown([&] {
            QCOMPARE(dialog->size(), wanted.boundedTo(Sizing::screenLimit(dialog.get())));
            for (HScrollArea const* const area : areas(*dialog)) {
                QCOMPARE(area->height(), area->sizeHint().height());
            }
        });
        dialog->exec();
        QApplication::setFont(before);
        QCOMPARE(boxes->take().size(), 1);
    }

    void eachDescriptionBeginsWithNothingOfTheOneBefore()
    {
        QVERIFY(collected());
        Model model(engine.get(), nullptr);
        QWidget window;
        QList<QPointer<QWidget>> shown;
        QList<QStringList> seen;
        QList<QSize> sizes;
        boxes->whileShown([&] {
            QWidget* const top = QApplication::activeModalWidget();
            shown.append(top);
            sizes.append(top->size());
            QCOMPARE(areas(*top).size(), seen.isEmpty() ? 3 : 1);
            seen.append(rows(*top));
        });
        model.describe(model.index(rowOf(QStringLiteral("alder")), 0), &window);
        QVERIFY(areas(*shown.first()).isEmpty());
        model.describe(model.index(rowOf(QStringLiteral("Garden")), 3), nullptr);
        QCOMPARE(shown.size(), 2);
        QCOMPARE(shown.at(0), shown.at(1));
        QVERIFY(seen.at(0).contains(QStringLiteral("Version: 2.0-1")));
        QVERIFY(seen.at(1).contains(QStringLiteral("Kind: Group of packages")));
        QVERIFY(!labels(seen.at(1)).contains(QStringLiteral("Version")));
        QVERIFY(sizes.at(1).height() < sizes.at(0).height());
        QCOMPARE(boxes->take().size(), 2);
    }

    void whatTakesLongIsReadBeforeTheDialogOpens()
    {
        QVERIFY(collected());
        Model model(engine.get(), nullptr);
        QWidget window;
        QSignalSpy const busy(&model, &Model::busy);
        QList<qsizetype> changesBefore;
        boxes->whileShown([&] { changesBefore.append(busy.size()); });
        // Once for a repository, and never for what is installed.
        for (char const* const name : {"birch", "elm", "fir"}) {
            model.describe(model.index(rowOf(QString::fromLatin1(name)), 0), &window);
        }
        QCOMPARE(changesBefore, (QList<qsizetype>{0, 2, 2}));
        QCOMPARE(busy.size(), 2);
        QCOMPARE(busy.at(0), QVariantList{true});
        QCOMPARE(busy.at(1), QVariantList{false});
        QCOMPARE(boxes->take().size(), 3);
    }

    void theWidgetOfTheFirstDescriptionOwnsTheDialog()
    {
        QVERIFY(collected());
        auto model = std::make_unique<Model>(engine.get(), nullptr);
        auto window = std::make_unique<QWidget>();
        QPointer<QWidget> shown;
        boxes->whileShown([&] { shown = QApplication::activeModalWidget(); });
        model->describe(model->index(0, 0), window.get());
        QCOMPARE(shown->parentWidget(), window.get());
        window.reset();
        QVERIFY(!shown);
        // Without it, the next one makes another.
        QWidget second;
        model->describe(model->index(0, 0), &second);
        QCOMPARE(shown->parentWidget(), &second);
        model.reset();
        QVERIFY(shown);
        QCOMPARE(boxes->take().size(), 2);
    }

    void aRowThatHasVanishedIsNotDescribed()
    {
        QVERIFY(collected());
        Model model(engine.get(), nullptr);
        QModelIndex const last = model.index(engine->count() - 1, 0);
        engine->clear();
        model.describe(last, nullptr);
        model.describe(QModelIndex(), nullptr);
        QVERIFY(boxes->take().isEmpty());
    }
};

QTEST_MAIN(TestDescribeDialog)
#include "tst_packagetabledescribedialog.moc"
