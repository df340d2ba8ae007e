// SPDX-License-Identifier: GPL-2.0-or-later
// The repository dialog behind the description's "Details".
#include "DescribeTest.h"
#include "tests/Eventually.h"

#include <QFile>
#include <QTemporaryDir>

class TestDescribeRepository final : public DescribeTest
{
    Q_OBJECT

private:
    struct Seen
    {
        QString title;
        QString header;
        QStringList rows;
        QStringList buttons;
    };

    /// Presses "Details"; answers what came of it, having done `act` in it.
    Seen details(std::function<void(QDialog&)> const& act = {})
    {
        Seen seen;
        boxes->whileShown([&] {
            auto* const top = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (top->windowTitle() != QLatin1String("VEM Repository Description")) {
                return;
            }
            seen.title = top->windowTitle();
            seen.header = top->findChild<QLabel*>()->text();
            seen.rows = gridRows(top->findChild<QGridLayout*>());
            for (QPushButton const* const pushButton : top->findChildren<QPushButton*>()) {
                seen.buttons.append(pushButton->text());
            }
            if (act) {
                act(*top);
            }
        });
        button(*dialog, QStringLiteral("Repository"))->click();
        boxes->whileShown(nullptr);
        return seen;
    }

    void addRepository(QString const& id, QString const& name, QString const& urls, QString const& mirrors)
    {
        Repo::Entry repo;
        repo.id = id;
        repo.name = name;
        repo.baseurl = urls;
        repo.mirrorlist = mirrors;
        conf.repos.append(repo);
    }

    static QPushButton* named(QDialog& window, QLatin1String text)
    {
        for (QPushButton* const pushButton : window.findChildren<QPushButton*>()) {
            if (pushButton->text() == text) {
                return pushButton;
            }
        }
        return nullptr;
    }

private Q_SLOTS:
    void detailsShowTheFirstRepositoryOfThatId()
    {
        addRepository(QStringLiteral("updates"), QStringLiteral("Newer trees"), {}, {});
        addRepository(
            QStringLiteral("base"), QStringLiteral("Trees & <b>Shrubs</b>"),
            QStringLiteral("http://a.example.org/\nhttp://b.example.org/"),
            QStringLiteral("http://m.example.org/"));
        addRepository(QStringLiteral("base"), QStringLiteral("Another"), {}, {});
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->press({QStringLiteral("Close")});
        Seen const seen = details();
        QCOMPARE(seen.title, QStringLiteral("VEM Repository Description"));
        QCOMPARE(seen.header, QStringLiteral("base"));
        QCOMPARE(
            seen.rows, QStringList({
                           QStringLiteral("Name: Trees & <b>Shrubs</b>"),
                           QStringLiteral("URLs: http://a.example.org/\nhttp://b.example.org/"),
                           QStringLiteral("Mirror list URL: http://m.example.org/"),
                       }));
        QCOMPARE(seen.buttons, QStringList({QStringLiteral("Browse Repository"), QStringLiteral("Close")}));
        QCOMPARE(boxes->take().size(), 1);
    }

    void passwordsInAddressesStayHidden()
    {
        addRepository(
            QStringLiteral("base"), {}, QStringLiteral("http://a/buffet?u=me&p=hush&path=/os"),
            QStringLiteral("http://m/buffet?u=me&p=hush&path=/os"));
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->press({QStringLiteral("Close")});
        QCOMPARE(
            details().rows, QStringList({
                                QStringLiteral("URLs: http://a/buffet?u=me&p=***&path=/os"),
                                QStringLiteral("Mirror list URL: http://m/buffet?u=me&p=***&path=/os"),
                            }));
        QCOMPARE(boxes->take().size(), 1);
    }

    void nothingOfAnEarlierRepositoryRemains()
    {
        addRepository(
            QStringLiteral("base"), QStringLiteral("Trees"), QStringLiteral("http://a.example.org/"), {});
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->press({QStringLiteral("Close")});
        details();
        boxes->take();
        conf.repos.clear();
        addRepository(QStringLiteral("base"), {}, {}, QStringLiteral("http://m.example.org/"));
        boxes->press({QStringLiteral("Close")});
        QCOMPARE(details().rows, QStringList(QStringLiteral("Mirror list URL: http://m.example.org/")));
        QCOMPARE(boxes->take().size(), 1);
    }

    void aRepositoryThatIsNotConfiguredOpensNothing()
    {
        addRepository(QStringLiteral("elsewhere"), {}, {}, {});
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QCOMPARE(details().title, QString());
        dialog->config(engine.get(), entry(QStringLiteral("elm")), nullptr);
        QCOMPARE(details().title, QString());
        QVERIFY(boxes->take().isEmpty());
    }

    void browsingOpensTheFirstUrlInTheOutsideBrowser()
    {
        QTemporaryDir directory;
        QString const notes = directory.filePath(QStringLiteral("notes"));
        QFile browser(directory.filePath(QStringLiteral("webbrowser")));
        QVERIFY(browser.open(QFile::WriteOnly));
        // Written elsewhere first, so that it is never seen half written.
        browser.write(
            "#!/bin/sh\nprintf %s \"$1\" > " + QFile::encodeName(notes) + ".part\nmv " +
            QFile::encodeName(notes) + ".part " + QFile::encodeName(notes) + "\n");
        browser.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        browser.close();
        addRepository(
            QStringLiteral("base"), {},
            QStringLiteral("http://a.example.org/$basearch/\nhttp://b.example.org/"), {});
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        QByteArray const share = qgetenv("VEMSHARE");
        qputenv("VEMSHARE", QFile::encodeName(directory.path()));
        boxes->press({QStringLiteral("Close")});
        details([](QDialog& window) {
            QPushButton* const browse = named(window, QLatin1String("Browse Repository"));
            QCOMPARE(
                browse->toolTip(),
                QStringLiteral("Browse the first URL specified for the selected repository "
                               "using an external web browser"));
            browse->click();
        });
        qputenv("VEMSHARE", share);
        EVENTUALLY_VERIFY(QFile::exists(notes));
        QFile told(notes);
        QVERIFY(told.open(QFile::ReadOnly));
        QCOMPARE(told.readAll(), QByteArray("http://a.example.org/x86_64/"));
        QCOMPARE(boxes->take().size(), 1);
    }

    void aRepositoryWithoutAnAddressCantBeBrowsed()
    {
        addRepository(QStringLiteral("base"), QStringLiteral("Trees"), {}, {});
        QVERIFY(collected());
        config(entry(QStringLiteral("elm")));
        boxes->press({QStringLiteral("OK"), QStringLiteral("Close")});
        details([](QDialog& window) { named(window, QLatin1String("Browse Repository"))->click(); });
        QStringList const texts = boxes->takeTexts();
        QCOMPARE(texts.size(), 2);
        QVERIFY(texts.contains(QStringLiteral("Repository configuration has no URL")));
    }
};

QTEST_MAIN(TestDescribeRepository)
#include "tst_packagetabledescriberepository.moc"
