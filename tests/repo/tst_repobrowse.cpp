// SPDX-License-Identifier: GPL-2.0-or-later
// Which address of a repository goes to the browser, and in which form.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "Launches.h"
#include "bridge/Python.h"
#include "engine/YumIO.h"
#include "repo/RepoBrowse.h"
#include "tests/Eventually.h"

#include <QTest>

namespace
{

/// An engine whose variables the test makes; no helper script runs. It reports to a list.
class TestEngine : public YumIO
{
public:
    using YumIO::error;

    /// Starts the interpreter and gives the engine an object with these variables.
    bool start(char const* variables)
    {
        if (!Python::initialize())
            return false;
        PyGILStateWrapper const lock(true);
        py("import types");
        yumIO = pyrf("types.SimpleNamespace(conf=types.SimpleNamespace(yumvar=%s))", variables);
        return bool(yumIO);
    }

    void error(char const* message) override { reports += QString::fromUtf8(message); }

    QStringList reports;
};

Repo::Entry withUrls(char const* baseurl, char const* mirrorlist = "")
{
    Repo::Entry entry;
    entry.id = QStringLiteral("id");
    entry.baseurl = QString::fromLatin1(baseurl);
    entry.mirrorlist = QString::fromLatin1(mirrorlist);
    return entry;
}

} // namespace

class TestRepoBrowse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void addressOfARepository_data();
    void addressOfARepository();
    void bytesOfTheAddressAreThoseOfTheFile();
    void variableThatIsNotThereIsReportedIfItIsWanted();
    void repositoryWithoutAddressIsTold();
    void firstRepositoryOfTheIdentifierCounts();
    void unknownIdentifierDoesNothing();

private:
    /// What the browser is given.
    QByteArray opened(Repo::Entry const& entry);

    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<Launches> launches;
    std::unique_ptr<BoxAnswer> boxes;
};

void TestRepoBrowse::initTestCase()
{
    engine = std::make_unique<TestEngine>();
    QVERIFY(engine->start("{'basearch': 'x86_64', 'arch': 'ia32e', 'releasever': '7'}"));
    launches = std::make_unique<Launches>();
    launches->add(QStringLiteral("webbrowser"));
    qputenv("VEMSHARE", QFile::encodeName(launches->path(QString())));
}

void TestRepoBrowse::init()
{
    launches->forget();
    boxes = std::make_unique<BoxAnswer>();
}

void TestRepoBrowse::cleanup()
{
    QStringList const reports = std::exchange(engine->reports, {});
    boxes.reset();
    QCOMPARE(reports, QStringList());
}

void TestRepoBrowse::cleanupTestCase()
{
    engine.reset();
}

QByteArray TestRepoBrowse::opened(Repo::Entry const& entry)
{
    RepoBrowse::browse(nullptr, entry, engine.get());
    if (!QTest::qWaitFor([this] { return !launches->started().isEmpty(); }))
        return "nothing was started";
    QByteArrayList const words = launches->started();
    return words.size() == 2 && words[0].endsWith("/webbrowser") ? words[1] : "not the browser";
}

void TestRepoBrowse::addressOfARepository_data()
{
    QTest::addColumn<QByteArray>("baseurl");
    QTest::addColumn<QByteArray>("mirrorlist");
    QTest::addColumn<QByteArray>("address");
    auto const row = [](char const* name, char const* baseurl, char const* mirrorlist, char const* address) {
        QTest::newRow(name) << QByteArray(baseurl) << QByteArray(mirrorlist) << QByteArray(address);
    };
    row("one", "http://1/", "", "http://1/");
    row("first of several", "http://1/\nhttp://2/", "", "http://1/");
    row("white space before", " \n\thttp://1/ http://2/", "", "http://1/");
    row("both fields", "http://base/", "http://mirror/", "http://base/");
    row("mirror list", "", "http://mirror/", "http://mirror/");
    row("all of the mirror list", "", "http://mirror/ x", "http://mirror/ x");
    row("variables", "http://$releasever/$basearch/$arch/$basearch", "", "http://7/x86_64/ia32e/x86_64");
    row("variables of the mirror list", "", "http://m/?r=$releasever&a=$arch", "http://m/?r=7&a=ia32e");
    row("other variables", "http://$YUM0/$ARCH/$basearc/$", "", "http://$YUM0/$ARCH/$basearc/$");
    row("credentials", "http://h/buffet?l=a%26&k=b&path=p", "", "http://h/buffet?l=a%26&k=b&path=p");
    row("words of a shell", "http://1/$(x);`y`&'z'\"", "", "http://1/$(x);`y`&'z'\"");
}

void TestRepoBrowse::addressOfARepository()
{
    QFETCH(QByteArray, baseurl);
    QFETCH(QByteArray, mirrorlist);
    QFETCH(QByteArray, address);
    QCOMPARE(opened(withUrls(baseurl.constData(), mirrorlist.constData())), address);
    QCOMPARE(boxes->texts, QStringList());
}

void TestRepoBrowse::bytesOfTheAddressAreThoseOfTheFile()
{
    QCOMPARE(opened(withUrls("http://h/\xc3\xa4\xff")), QByteArray("http://h/\xc3\xa4\xff"));
}

void TestRepoBrowse::variableThatIsNotThereIsReportedIfItIsWanted()
{
    engine->start("{'basearch': 'x86_64'}");
    QCOMPARE(opened(withUrls("http://h/$basearch")), QByteArray("http://h/x86_64"));
    QCOMPARE(engine->reports, QStringList());
    launches->forget();
    QCOMPARE(opened(withUrls("http://h/$releasever/")), QByteArray("http://h//"));
    QCOMPARE(std::exchange(engine->reports, {}).size(), 1);
}

void TestRepoBrowse::repositoryWithoutAddressIsTold()
{
    QWidget window;
    RepoBrowse::browse(&window, withUrls(""), engine.get());
    QCOMPARE(boxes->texts, QStringList(QStringLiteral("Repository configuration has no URL")));
    QCOMPARE(boxes->captions, QStringList(QStringLiteral("Error")));
    QCOMPARE(boxes->icon, QMessageBox::Critical);
    QCOMPARE(boxes->buttons, QMessageBox::Ok);
    QCOMPARE(boxes->parent, &window);
    QCOMPARE(launches->started(), QByteArrayList());
}

void TestRepoBrowse::firstRepositoryOfTheIdentifierCounts()
{
    ConfRoot root;
    QVERIFY(root.readRepoFile("[b]\nbaseurl=http://b/\n[a]\nbaseurl=http://1/\n[a]\nbaseurl=http://2/\n"));
    RepoBrowse::browse(nullptr, QStringLiteral("a"), engine.get(), &root.conf);
    EVENTUALLY_COMPARE(launches->started().value(1), QByteArray("http://1/"));
}

void TestRepoBrowse::unknownIdentifierDoesNothing()
{
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\nbaseurl=http://1/\n"));
    RepoBrowse::browse(nullptr, QStringLiteral("A"), engine.get(), &root.conf);
    QCOMPARE(boxes->texts, QStringList());
    // What is started afterwards is the only thing that was.
    QCOMPARE(opened(withUrls("http://last/")), QByteArray("http://last/"));
}

QTEST_MAIN(TestRepoBrowse)
#include "tst_repobrowse.moc"
