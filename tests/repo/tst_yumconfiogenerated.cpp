// SPDX-License-Identifier: GPL-2.0-or-later
// Files that subscription-manager generates: left alone where nothing is changed in them, asked about
// otherwise.
#include "BoxAnswer.h"
#include "ConfFiles.h"

#include <QTest>

using ConfFiles::content;
using ConfFiles::names;

namespace
{

constexpr char const* redhat = "/etc/yum.repos.d/redhat.repo";
constexpr char const* other = "/etc/yum.repos.d/other.repo";

QByteArray const head =
    "#\n# Certificate-Based Repositories\n# Managed by (rhsm) subscription-manager\n#\n"
    "# *** This file is auto-generated.  Changes made here will be over-written. ***\n#\n\n";
QByteArray const sections = "[base]\nname = Base\nbaseurl = https://cdn.example/base\nenabled = 1\n"
                            "sslverify = 1\n\n\n[extra]\nname = Extra\nenabled = no\n";

QString question(char const* files)
{
    return QStringLiteral(
               "subscription-manager generates these files and will write them anew, without the changes "
               "made "
               "here: %1.  Its own command, \"subscription-manager repo-override\", makes lasting ones.  "
               "Proceed?")
        .arg(QString::fromLatin1(files));
}

} // namespace

class TestYumConfIOGenerated : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<BoxAnswer> boxes;

    /// A system of that file and one other, which has been read.
    void make(char const* path, QByteArray const& text)
    {
        root->write("/etc/yum.conf", "[main]\n");
        root->write(other, "lost\n[mine]\nname = Mine\n");
        root->write(path, text);
        QVERIFY(root->conf.read(nullptr));
    }

    Repo::Entry& entry(char const* id)
    {
        for (Repo::Entry& candidate : root->conf.repos) {
            if (candidate.id == QLatin1String(id))
                return candidate;
        }
        static Repo::Entry none;
        return none = Repo::Entry();
    }

    void removeEntry(char const* id)
    {
        root->conf.repos.removeIf([id](Repo::Entry const& one) { return one.id == QLatin1String(id); });
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        boxes = std::make_unique<BoxAnswer>(QMessageBox::Yes);
    }

    void cleanup()
    {
        boxes.reset();
        root.reset();
    }

    void unchangedFileStaysByteForByte_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("by its name") << QByteArray(redhat) << sections;
        QTest::newRow("by its head") << QByteArray("/etc/yum.repos.d/candlepin.repo") << head + sections;
        QTest::newRow("without sections") << QByteArray(redhat) << head;
        QTest::newRow("head without sections") << QByteArray("/etc/yum.repos.d/candlepin.repo") << head;
        QTest::newRow("empty") << QByteArray(redhat) << QByteArray();
    }

    void unchangedFileStaysByteForByte()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, text);
        make(path.constData(), text);
        entry("mine").name = QStringLiteral("Yours");
        QVERIFY(root->conf.write(nullptr));
        QVERIFY(boxes->texts.isEmpty());
        QCOMPARE(content(*root, path), text);
        QCOMPARE(content(*root, other), QByteArray("[mine]\nname=Yours\n"));
        // Nor by a second write without a reading in between.
        QVERIFY(root->conf.write(nullptr));
        QCOMPARE(content(*root, path), text);
        QVERIFY(boxes->texts.isEmpty());
    }

    void otherFilesAreNoneOfItsOwn_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no comment") << QByteArray("managed by subscription-manager\n[base]\n");
        QTest::newRow("below the first section") << "[base]\n" + head;
        QTest::newRow("another manager") << QByteArray("# Managed by hand\n[base]\n");
    }

    void otherFilesAreNoneOfItsOwn()
    {
        QFETCH(QByteArray, text);
        make("/etc/yum.repos.d/some.repo", text);
        entry("base").name = QStringLiteral("changed");
        QVERIFY(root->conf.write(nullptr));
        QVERIFY(boxes->texts.isEmpty());
        QVERIFY(content(*root, "/etc/yum.repos.d/some.repo").startsWith("[base]\nname=changed\n"));
    }

    void changeIsAskedAboutOnce()
    {
        make(redhat, head + sections);
        entry("base").enabled = Repo::No;
        QWidget window;
        QVERIFY(root->conf.write(&window));
        QCOMPARE(boxes->texts, QStringList(question(redhat)));
        QCOMPARE(boxes->captions, QStringList(QStringLiteral("Repository Editor")));
        QCOMPARE(boxes->buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(boxes->defaultButton, QMessageBox::No);
        QCOMPARE(boxes->parent, &window);
        QCOMPARE(
            content(*root, redhat),
            QByteArray("[base]\nname=Base\nbaseurl=https://cdn.example/base\nenabled=0\nsslverify = 1\n\n"
                       "[extra]\nname=Extra\nenabled=1\n"));
        // It is what was written that counts from then on.
        QVERIFY(root->conf.write(nullptr));
        QCOMPARE(boxes->texts.size(), 1);
        entry("base").enabled = Repo::Yes;
        QVERIFY(root->conf.write(nullptr));
        QCOMPARE(boxes->texts.size(), 2);
    }

    void anythingButYesLeavesEverythingUnwritten_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("no") << QMessageBox::No;
        QTest::newRow("escape") << QMessageBox::NoButton;
    }

    void anythingButYesLeavesEverythingUnwritten()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        boxes->answer = answer;
        make(redhat, head + sections);
        root->write("/etc/yum.repos.d/note", "x");
        entry("base").enabled = Repo::No;
        entry("mine").name = QStringLiteral("Yours");
        for (int time = 1; time <= 2; ++time) {
            QVERIFY(!root->conf.write(nullptr));
            QCOMPARE(boxes->texts.size(), time);
        }
        QCOMPARE(content(*root, redhat), head + sections);
        QCOMPARE(content(*root, other), QByteArray("lost\n[mine]\nname = Mine\n"));
        QCOMPARE(names(*root, "/etc/yum.repos.d"), (QList<QByteArray>{"note", "other.repo", "redhat.repo"}));
        QCOMPARE(entry("base").enabled, qint32(Repo::No));
    }

    void everyWayOfChangingCounts_data()
    {
        QTest::addColumn<QString>("change");
        for (char const* const change :
             {"removed", "moved away", "moved in", "added", "order", "all removed"})
            QTest::newRow(change) << QString::fromLatin1(change);
    }

    void everyWayOfChangingCounts()
    {
        QFETCH(QString, change);
        boxes->answer = QMessageBox::No;
        make(redhat, head + sections);
        if (change == QLatin1String("removed") || change == QLatin1String("all removed"))
            removeEntry("base");
        if (change == QLatin1String("all removed"))
            removeEntry("extra");
        if (change == QLatin1String("moved away"))
            entry("extra").file = QString::fromLatin1(other);
        if (change == QLatin1String("moved in"))
            entry("mine").file = QString::fromLatin1(redhat);
        if (change == QLatin1String("added"))
            root->conf.repos += newRepo(QStringLiteral("new"), QString::fromLatin1(redhat));
        if (change == QLatin1String("order"))
            entry("extra").filePosition = 0.5;
        QVERIFY(!root->conf.write(nullptr));
        QCOMPARE(boxes->texts, QStringList(question(redhat)));
    }

    void positionWithoutAnotherOrderIsNoChange()
    {
        make(redhat, head + sections);
        entry("extra").filePosition = 7.0;
        QVERIFY(root->conf.write(nullptr));
        QVERIFY(boxes->texts.isEmpty());
        QCOMPARE(content(*root, redhat), head + sections);
    }

    void removedFileGoesAndIsForgotten()
    {
        make(redhat, head + sections);
        removeEntry("base");
        removeEntry("extra");
        QVERIFY(root->conf.write(nullptr));
        QVERIFY(root->conf.write(nullptr));
        QCOMPARE(boxes->texts.size(), 1);
        QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>{"other.repo"});
    }

    void newFileOfThatNameIsAskedAboutToo()
    {
        boxes->answer = QMessageBox::No;
        make("/etc/yum.repos.d/some.repo", "[base]\n");
        root->conf.repos += newRepo(QStringLiteral("new"), QString::fromLatin1(redhat));
        QVERIFY(!root->conf.write(nullptr));
        QCOMPARE(boxes->texts, QStringList(question(redhat)));
    }

    void severalFilesAreOneQuestion()
    {
        boxes->answer = QMessageBox::No;
        make("/etc/yum.repos.d/candlepin.repo", head + "[candle]\n");
        root->write(redhat, sections);
        QVERIFY(root->conf.read(nullptr));
        removeEntry("candle");
        entry("base").name.clear();
        QVERIFY(!root->conf.write(nullptr));
        QCOMPARE(
            boxes->texts,
            QStringList(question("/etc/yum.repos.d/candlepin.repo, /etc/yum.repos.d/redhat.repo")));
    }

    void identifiersAreAskedAboutBefore()
    {
        make(redhat, head + sections);
        entry("extra").id = QStringLiteral("base");
        QVERIFY(root->conf.write(nullptr));
        QCOMPARE(boxes->texts.size(), 2);
        QVERIFY(boxes->texts.first().contains(QLatin1String("same Identifier(s), base")));
        QCOMPARE(boxes->texts.last(), question(redhat));
    }

    void fileInWhichTheReadingStoppedIsNotAskedAbout()
    {
        root->write("/etc/yum.conf", "[main]\n");
        root->write(redhat, head + "[base]\n[extra]\n[broken\n");
        QVERIFY(!root->conf.read(nullptr));
        QVERIFY(!root->conf.write(nullptr));
        QCOMPARE(boxes->texts.size(), 2);
        QVERIFY(boxes->texts.last().startsWith(
            QLatin1String("The file /etc/yum.repos.d/redhat.repo has not been read, or not to its end.")));
        QCOMPARE(content(*root, redhat), head + "[base]\n[extra]\n[broken\n");
    }
};

QTEST_MAIN(TestYumConfIOGenerated)
#include "tst_yumconfiogenerated.moc"
