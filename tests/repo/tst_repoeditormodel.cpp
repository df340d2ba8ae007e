// SPDX-License-Identifier: GPL-2.0-or-later
// The editor's table of repositories, without a window.
#include "BoxReader.h"
#include "ConfRoot.h"
#include "Launches.h"
#include "tests/Eventually.h"

#include "repo/RepoEditorModel.h"
#include "tests/packagetable/TestEngine.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>

using RepoEditor::Model;

class RepoEditorModelTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<Model> model;
    std::unique_ptr<QAbstractItemModelTester> tester;

    QVariant at(int row, int column, int role = Qt::DisplayRole) const
    {
        return model->index(row, column).data(role);
    }

    QImage picture(int row, int column) const
    {
        return at(row, column, Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    }

    QList<Repo::Entry>& repos() const { return root->conf.repos; }

    /// Where the model said that cells have changed: row, first and last column.
    static QList<QList<int>> places(QSignalSpy const& changes)
    {
        QList<QList<int>> found;
        for (QList<QVariant> const& change : changes) {
            auto const first = change.at(0).toModelIndex();
            found.append({first.row(), first.column(), change.at(1).toModelIndex().column()});
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        engine = std::make_unique<TestEngine>();
        QVERIFY(root->readRepoFile("[plain]\nname=Plain things\n"
                                   "[off]\nname=Switched off\nenabled=0\n"
                                   "[on]\nname=Switched on\nenabled=1\n"));
        model = std::make_unique<Model>(engine.get(), &root->conf, nullptr);
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        tester.reset();
        model.reset();
        engine.reset();
        root.reset();
    }

    void rowsAreTheRepositoriesInTheirOrder()
    {
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(model->columnCount(), 4);
        QCOMPARE(at(0, 2).toString(), QStringLiteral("plain"));
        QCOMPARE(at(2, 2).toString(), QStringLiteral("on"));
        QCOMPARE(at(1, 3).toString(), QStringLiteral("Switched off"));
        QVERIFY(!at(0, 0).isValid() && !at(0, 1).isValid());
    }

    void headersSayWhatTheColumnsAre_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("session")
            << 0 << "Sess"
            << "Whether or not the repository is used during this session.\n"
               "It overrides the persistent Enabled flag in the repository configuration.";
        QTest::newRow("permanent")
            << 1 << "Perm"
            << "Whether or not the repository is configured to be enabled by default.\n"
               "It can be overridden for a particular session.";
        QTest::newRow("identifier") << 2 << "Identifier"
                                    << "Unique identifier for the repository";
        QTest::newRow("name") << 3 << "Name"
                              << "Description of the repository";
    }

    void headersSayWhatTheColumnsAre()
    {
        QFETCH(int const, column);
        QTEST(model->headerData(column, Qt::Horizontal).toString(), "text");
        QTEST(model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString(), "toolTip");
    }

    void boxesShowTheSessionAndThePermanentState()
    {
        QImage const checked = picture(2, 0);
        QImage const empty = picture(1, 0);
        QVERIFY(!checked.isNull() && !empty.isNull() && checked != empty);
        QCOMPARE(picture(0, 0), checked);
        QCOMPARE(picture(0, 1), checked);
        QCOMPARE(picture(1, 1), empty);
        QCOMPARE(picture(2, 1), checked);
        root->conf.mainEnabled = false;
        QCOMPARE(picture(0, 1), empty);
        QCOMPARE(picture(2, 1), checked);
        QVERIFY(!at(0, 2, Qt::DecorationRole).isValid());
    }

    // The icon of the second column tells the permanent state; its tip follows the session.
    void tipsOfBothBoxesAskTheSession()
    {
        root->reposEnabled[QStringLiteral("on")] = false;
        QCOMPARE(at(2, 0, Qt::ToolTipRole).toString(), "Repository is not enabled for this session");
        QCOMPARE(at(2, 1, Qt::ToolTipRole).toString(), "Repository is not configured to be enabled");
        root->reposEnabled[QStringLiteral("off")] = true;
        QCOMPARE(at(1, 0, Qt::ToolTipRole).toString(), "Repository is enabled for this session");
        QCOMPARE(at(1, 1, Qt::ToolTipRole).toString(), "Repository is configured to be enabled");
        QVERIFY(!at(1, 2, Qt::ToolTipRole).isValid());
    }

    void screenReadersHearWhatTheBoxesShow()
    {
        root->reposEnabled[QStringLiteral("on")] = false;
        auto const spoken = [this](int row, int column) {
            return at(row, column, Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken(0, 0), "Repository is enabled for this session");
        QCOMPARE(spoken(2, 0), "Repository is not enabled for this session");
        // Other than the tip, which asks the session.
        QCOMPARE(spoken(2, 1), "Repository is configured to be enabled");
        QCOMPARE(spoken(1, 1), "Repository is not configured to be enabled");
        QCOMPARE(spoken(0, 1), "Repository is configured to be enabled");
        root->conf.mainEnabled = false;
        QCOMPARE(spoken(0, 1), "Repository is not configured to be enabled");
        // The others are read out as they stand there.
        QVERIFY(!at(0, 2, Qt::AccessibleTextRole).isValid());
        QVERIFY(!at(0, 3, Qt::AccessibleTextRole).isValid());
    }

    void anUnknownIdentifierBecomesKnownAsNotUsed()
    {
        repos()[0].id = QStringLiteral("renamed");
        QCOMPARE(at(0, 0, Qt::ToolTipRole).toString(), "Repository is not enabled for this session");
        QVERIFY(root->reposEnabled.contains(QStringLiteral("renamed")));
        QVERIFY(!root->reposEnabled.value(QStringLiteral("renamed")));
    }

    void aMissingIdentifierShowsAsNewInItalics()
    {
        QFont font(QStringLiteral("Courier"), 17);
        model->setViewFont(font);
        QVERIFY(!at(0, 2, Qt::FontRole).isValid());
        repos()[0].id.clear();
        QCOMPARE(at(0, 2).toString(), QStringLiteral("(new)"));
        font.setItalic(true);
        QCOMPARE(at(0, 2, Qt::FontRole).value<QFont>(), font);
        QVERIFY(!at(0, 3, Qt::FontRole).isValid());
    }

    void sessionBoxTurnsOverNothingButTheSession()
    {
        QSignalSpy const used(model.get(), &Model::useChanged);
        QSignalSpy const configured(model.get(), &Model::configChanged);
        QSignalSpy const changes(model.get(), &QAbstractItemModel::dataChanged);
        model->toggleUse(model->index(1, 0));
        QVERIFY(root->reposEnabled.value(QStringLiteral("off")));
        QCOMPARE(repos()[1].enabled, 0);
        QCOMPARE(used.count(), 1);
        QCOMPARE(configured.count(), 0);
        QCOMPARE(places(changes), (QList<QList<int>>{{1, 0, 0}}));
        model->toggleUse(model->index(1, 0));
        QVERIFY(!root->reposEnabled.value(QStringLiteral("off")));
    }

    void sessionBoxOfARepositoryWithoutIdentifierTurnsOverTheEmptyOne()
    {
        repos()[1].id.clear();
        model->toggleUse(model->index(1, 0));
        QVERIFY(root->reposEnabled.value(QString()));
        model->toggleUse(model->index(1, 0));
        QVERIFY(!root->reposEnabled.value(QString()));
    }

    void permanentBoxTurnsOverWhatItShows_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<bool>("mainEnabled");
        QTest::addColumn<int>("after");
        QTest::newRow("no") << 0 << true << 2;
        QTest::newRow("no, default no") << 0 << false << 2;
        QTest::newRow("default yes") << 1 << true << 0;
        QTest::newRow("default no") << 1 << false << 2;
        QTest::newRow("yes") << 2 << true << 0;
        QTest::newRow("yes, default no") << 2 << false << 0;
    }

    void permanentBoxTurnsOverWhatItShows()
    {
        QFETCH(int const, before);
        QFETCH(bool const, mainEnabled);
        repos()[0].enabled = before;
        root->conf.mainEnabled = mainEnabled;
        QHash<QString, bool> const session = root->reposEnabled;
        QSignalSpy const used(model.get(), &Model::useChanged);
        QSignalSpy const configured(model.get(), &Model::configChanged);
        QSignalSpy const changes(model.get(), &QAbstractItemModel::dataChanged);
        model->toggleEnabled(model->index(0, 1));
        QTEST(repos()[0].enabled, "after");
        QCOMPARE(root->reposEnabled, session);
        QCOMPARE(used.count(), 0);
        QCOMPARE(configured.count(), 1);
        QCOMPARE(places(changes), (QList<QList<int>>{{0, 1, 1}}));
    }

    void rowsAreAddedAtTheEndAndRemoved()
    {
        Repo::Entry entry;
        entry.id = QStringLiteral("added");
        QCOMPARE(model->addRow(entry), 3);
        QCOMPARE(at(3, 2).toString(), QStringLiteral("added"));
        QVERIFY(model->removeRow(0, {}));
        QCOMPARE(root->ids(), (QStringList{"off", "on", "added"}));
        QCOMPARE(model->rowCount(), 3);
    }

    void rowsThatAreNotThereAreLeftAlone()
    {
        QVERIFY(model->removeRow(-1, {}));
        QVERIFY(model->removeRow(3, {}));
        QSignalSpy const used(model.get(), &Model::useChanged);
        QSignalSpy const configured(model.get(), &Model::configChanged);
        model->toggleUse({});
        model->toggleEnabled({});
        model->browse({}, nullptr);
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(used.count() + configured.count(), 0);
    }

    // As while the configuration is being read: a message box may let the table paint in the middle of it.
    void rowsThatTheConfigurationHasDroppedShowNothing()
    {
        QModelIndex const second = model->index(1, 2);
        repos().clear();
        QVERIFY(!second.data().isValid());
        model->toggleUse(second);
        model->toggleEnabled(second);
        model->browse(second, nullptr);
        model->reset();
        QCOMPARE(model->rowCount(), 0);
    }

    void aChangedRowIsToldAsAWhole()
    {
        QSignalSpy const changes(model.get(), &QAbstractItemModel::dataChanged);
        model->dataChanged(2);
        QCOMPARE(places(changes), (QList<QList<int>>{{2, 0, 3}}));
    }

    void browsesNoMoreRowsThanThereArePackages()
    {
        BoxReader boxes;
        model->browse(model->index(0, 2), nullptr);
        QCOMPARE(boxes.texts, QStringList());
        engine->add(QStringLiteral("only"), Package::Available);
        model->browse(model->index(1, 2), nullptr);
        QCOMPARE(boxes.texts, QStringList());
        model->browse(model->index(0, 2), nullptr);
        QCOMPARE(boxes.texts, QStringList{QStringLiteral("Repository configuration has no URL")});
    }

    void browsingReachesTheBrowser()
    {
        QVERIFY(engine->initialize());
        Launches const launches;
        launches.add(QStringLiteral("webbrowser"));
        QByteArray const share = qgetenv("VEMSHARE");
        qputenv("VEMSHARE", QFile::encodeName(launches.path(QString())));
        engine->add(QStringLiteral("one"), Package::Available);
        engine->add(QStringLiteral("two"), Package::Available);
        repos()[1].baseurl = QStringLiteral("http://moor/os\nhttp://fen/os");

        model->browse(model->index(1, 3), nullptr);
        EVENTUALLY_COMPARE(
            launches.started(),
            (QByteArrayList{
                QFile::encodeName(launches.path(QStringLiteral("webbrowser"))), "http://moor/os"}));
        qputenv("VEMSHARE", share);
    }
};

QTEST_MAIN(RepoEditorModelTest)
#include "tst_repoeditormodel.moc"
