// SPDX-License-Identifier: GPL-2.0-or-later
// Thousands of made up files through read, write, read and write: what is kept, what changes its form, and
// what is lost.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "GeneratedConf.h"

#include <QTest>

#include <algorithm>
#include <map>

namespace
{

constexpr quint32 rounds = 250;
constexpr int filesPerRound = 12;

using Contents = std::map<QByteArray, QByteArray>;

Contents onDisk(ConfRoot const& root)
{
    Contents contents{{"/etc/yum.conf", ConfFiles::content(root, "/etc/yum.conf")}};
    for (QByteArray const directory : {"/etc/one/", "/etc/two/"}) {
        for (QByteArray const& name : ConfFiles::names(root, directory))
            contents.insert({directory + name, ConfFiles::content(root, directory + name)});
    }
    return contents;
}

/// Everything that is known of the repositories, in the order of writing.
QStringList known(YumConfIO const& conf)
{
    QList<Repo::Entry> repos = conf.repos;
    std::sort(repos.begin(), repos.end(), YumConfIO::filePositionLessThan);
    QStringList lines{conf.cachedir, conf.mainOptions, conf.reposdirs.join(u'|')};
    for (Repo::Entry const& entry : repos) {
        lines += QStringList{
            entry.id,
            entry.name,
            entry.baseurl,
            entry.mirrorlist,
            entry.otherOptions,
            entry.file,
            QString::number(entry.enabled),
            QString::number(entry.gpgcheck),
            QString::number(entry.filePosition)};
    }
    return lines;
}

QByteArray firstDifference(Contents const& expected, Contents const& found)
{
    for (auto const& [path, text] : expected) {
        auto const at = found.find(path);
        if (at == found.end())
            return path + " is gone; expected " + text.toPercentEncoding(" \n=:[]#");
        if (at->second != text) {
            return path + " is " + at->second.toPercentEncoding(" \n=:[]#") + "; expected " +
                   text.toPercentEncoding(" \n=:[]#");
        }
    }
    for (auto const& [path, text] : found) {
        if (expected.count(path) == 0)
            return path + " is still there";
    }
    return QByteArray();
}

} // namespace

class TestYumConfIORoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesKeepTheirContents();
};

void TestYumConfIORoundTrip::filesKeepTheirContents()
{
    BoxAnswer boxes;
    int sections = 0;
    for (quint32 round = 0; round < rounds; ++round) {
        GeneratedConf generated(round);
        ConfRoot root;
        Contents expected;
        GeneratedConf::File const main = generated.mainFile("/etc/one,/etc/two");
        root.write("/etc/yum.conf", main.text);
        expected["/etc/yum.conf"] = main.written;
        sections += main.sections;
        for (int at = 0; at < filesPerRound; ++at) {
            QByteArray const path = (at % 2 ? "/etc/one/" : "/etc/two/") + QByteArray::number(at) + ".repo";
            GeneratedConf::File const file = generated.repoFile();
            root.write(path, file.text);
            if (file.sections > 0)
                expected[path] = file.written;
            sections += file.sections;
        }

        QByteArray const where = "round " + QByteArray::number(round) + ": ";
        QVERIFY2(root.conf.read(nullptr), where);
        QStringList const before = known(root.conf);
        QVERIFY2(root.conf.write(nullptr), where);
        QByteArray const difference = firstDifference(expected, onDisk(root));
        QVERIFY2(difference.isEmpty(), where + difference);

        QVERIFY2(root.conf.read(nullptr), where);
        QVERIFY2(known(root.conf) == before, where + "another read knows something else");
        QVERIFY2(root.conf.write(nullptr), where);
        QByteArray const change = firstDifference(expected, onDisk(root));
        QVERIFY2(change.isEmpty(), where + "another write changes it: " + change);
    }
    QCOMPARE(boxes.texts, QStringList());
    QVERIFY(sections > 5000);
}

QTEST_MAIN(TestYumConfIORoundTrip)
#include "tst_yumconfioroundtrip.moc"
