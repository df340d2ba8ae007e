// SPDX-License-Identifier: GPL-2.0-or-later
// Files whose lines end in CR LF, and files that begin with a byte order mark.
#include "BoxAnswer.h"
#include "ConfFiles.h"

#include <QTest>

using ConfFiles::content;

namespace
{

constexpr char const* some = "/etc/yum.repos.d/some.repo";
constexpr char const* mark = "\xef\xbb\xbf";

QByteArray withReturns(QByteArray text)
{
    return text.replace("\n", "\r\n");
}

} // namespace

class TestYumConfIOForms : public QObject
{
    Q_OBJECT

    BoxAnswer boxes;
    std::unique_ptr<ConfRoot> current;

    ConfRoot& root() { return *current; }

private Q_SLOTS:
    void init() { current = std::make_unique<ConfRoot>(); }

    void cleanup()
    {
        current.reset();
        QCOMPARE(boxes.texts, QStringList());
    }

    void formsAreReadAndKept_data()
    {
        QTest::addColumn<bool>("hasMark");
        QTest::addColumn<bool>("hasReturns");
        QTest::newRow("plain") << false << false;
        QTest::newRow("mark") << true << false;
        QTest::newRow("CR LF") << false << true;
        QTest::newRow("both") << true << true;
    }

    void formsAreReadAndKept();
    void mainFileKeepsItsForm_data() { formsAreReadAndKept_data(); }
    void mainFileKeepsItsForm();
    void lastLineMayLackItsEnd();
    void mixedEndsLoseNoSection();
    void mixedMainFileStaysByteForByte();
    void eachFileHasItsOwnForm();
    void markElsewhereIsText();
    void otherPathKeepsTheForm();
};

void TestYumConfIOForms::formsAreReadAndKept()
{
    QFETCH(bool, hasMark);
    QFETCH(bool, hasReturns);
    auto const formed = [&](QByteArray const& text) {
        return (hasMark ? QByteArray(mark) : QByteArray()) + (hasReturns ? withReturns(text) : text);
    };
    QVERIFY(root().readRepoFile(
        formed("[a]\nname = A\nbaseurl=http://1\n  http://2\nenabled=0\n# note\n\n[b]\nx=y\n z\n")));
    QCOMPARE(root().ids(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    Repo::Entry const& a = root().conf.repos[0];
    QCOMPARE(a.name, QStringLiteral("A"));
    QCOMPARE(a.baseurl, QStringLiteral("http://1\nhttp://2"));
    QCOMPARE(a.enabled, qint32(Repo::No));
    QCOMPARE(a.otherOptions, QStringLiteral("# note\n"));
    QCOMPARE(root().conf.repos[1].otherOptions, QStringLiteral("x=y\n z\n"));

    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(
        content(root(), some),
        formed("[a]\nname=A\nbaseurl=http://1\n        http://2\nenabled=0\n# note\n\n[b]\nx=y\n z\n"));
    root().conf.repos[1].otherOptions = QStringLiteral("one\ntwo");
    root().conf.repos.removeFirst();
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), some), formed("[b]\none\ntwo"));
}

void TestYumConfIOForms::mainFileKeepsItsForm()
{
    QFETCH(bool, hasMark);
    QFETCH(bool, hasReturns);
    QByteArray text = "# note\n\n[main]\nreposdir=/etc/one\ncachedir=/c\nenabled=0\n[m]\nname=M\n";
    if (hasReturns)
        text = withReturns(text);
    if (hasMark)
        text.prepend(mark);
    QVERIFY(root().readMain(text));
    QCOMPARE(root().ids(), QStringList(QStringLiteral("m")));
    QCOMPARE(root().conf.reposdirs, QStringList(QStringLiteral("/etc/one")));
    QCOMPARE(root().conf.cachedir, QStringLiteral("/c"));
    QCOMPARE(root().conf.mainEnabled, false);
    QCOMPARE(
        root().conf.mainOptions,
        QStringLiteral("# note\n\n[main]\nreposdir=/etc/one\ncachedir=/c\nenabled=0\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), text);
}

void TestYumConfIOForms::lastLineMayLackItsEnd()
{
    for (QByteArray const text : {"[a]\r\nname=A", "[a]\r\nname=A\r"}) {
        QCOMPARE(root().readOne(text).name, QStringLiteral("A"));
        QVERIFY(root().conf.write(nullptr));
        QCOMPARE(content(root(), some), QByteArray("[a]\r\nname=A\r\n"));
    }
}

void TestYumConfIOForms::mixedEndsLoseNoSection()
{
    QVERIFY(root().readRepoFile("[a]\nname=A\r\nenabled=0\r\nx=y\r\n[b]\r\nmirrorlist=m\r\nname=B\n"));
    QCOMPARE(root().ids(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(root().conf.repos[0].name, QStringLiteral("A"));
    QCOMPARE(root().conf.repos[0].enabled, qint32(Repo::No));
    QCOMPARE(root().reposEnabled.value(QStringLiteral("a")), false);
    QCOMPARE(root().conf.repos[1].mirrorlist, QStringLiteral("m"));
    QVERIFY(root().conf.write(nullptr));
    // What is kept as text keeps its bytes.
    QCOMPARE(
        content(root(), some), QByteArray("[a]\nname=A\nenabled=0\nx=y\r\n\n[b]\nname=B\nmirrorlist=m\n"));
}

void TestYumConfIOForms::mixedMainFileStaysByteForByte()
{
    QByteArray const text = "# note\r\n[main]\r\nreposdir=/etc/one\r\nenabled=0\r\nx=1\n\r\n";
    QVERIFY(root().readMain(text + "[m]\r\n"));
    QCOMPARE(root().conf.reposdirs, QStringList(QStringLiteral("/etc/one")));
    QCOMPARE(root().conf.mainEnabled, false);
    QCOMPARE(root().ids(), QStringList(QStringLiteral("m")));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), text + "[m]\n");
}

void TestYumConfIOForms::eachFileHasItsOwnForm()
{
    root().write("/etc/yum.repos.d/windows.repo", "\xef\xbb\xbf[w]\r\nx=y\r\n");
    QVERIFY(root().readRepoFile("[a]\n[b]\nx=y\n"));
    for (Repo::Entry& entry : root().conf.repos) {
        if (entry.id == u'b')
            entry.file = QStringLiteral("/etc/yum.repos.d/windows.repo");
    }
    root().conf.repos += newRepo(QStringLiteral("new"), QStringLiteral("/etc/yum.repos.d/new.repo"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), some), QByteArray("[a]\n"));
    QByteArray const windows = content(root(), "/etc/yum.repos.d/windows.repo");
    QCOMPARE(windows, QByteArray("\xef\xbb\xbf[w]\r\nx=y\r\n\r\n[b]\r\nx=y\r\n"));
    QCOMPARE(content(root(), "/etc/yum.repos.d/new.repo"), QByteArray("[new]\n"));
}

void TestYumConfIOForms::markElsewhereIsText()
{
    QVERIFY(root().readRepoFile("[a]\n\xef\xbb\xbf[b]\n"));
    QCOMPARE(root().ids(), QStringList(QStringLiteral("a")));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), some), QByteArray("[a]\n\xef\xbb\xbf[b]\n"));
}

void TestYumConfIOForms::otherPathKeepsTheForm()
{
    QVERIFY(root().readRepoFile("[a]\r\n"));
    root().conf.repos[0].file = QStringLiteral("/etc//yum.repos.d/some.repo");
    root().conf.repos[0].name = QStringLiteral("A");
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), some), QByteArray("[a]\r\nname=A\r\n"));
}

QTEST_MAIN(TestYumConfIOForms)
#include "tst_yumconfioforms.moc"
