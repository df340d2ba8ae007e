// SPDX-License-Identifier: GPL-2.0-or-later
#include "LifecycleTest.h"

#include "base/Application.h"

#include <QApplication>
#include <QDir>
#include <QMetaMethod>
#include <QProcess>

int LifecycleTest::runAlone(QObject& test, int argc, char* argv[])
{
    if (argc > 1) {
        return QTest::qExec(&test, argc, argv);
    }
    int failures = 0;
    QMetaObject const& meta = *test.metaObject();
    for (int at = meta.methodOffset(); at < meta.methodCount(); ++at) {
        QByteArray const name = meta.method(at).name();
        if (!name.endsWith("_data") &&
            QProcess::execute(QCoreApplication::applicationFilePath(), {QString::fromLatin1(name)}) != 0) {
            ++failures;
        }
    }
    return failures;
}

void LifecycleTest::initTestCase()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    QVERIFY(QDir(directory.path()).mkpath("python"));
    qputenv("VEMSHARE", directory.path().toLocal8Bit());
    boxes = std::make_unique<Boxes>();
    engine = std::make_unique<TestEngine>();
    engine->setup(nullptr, &totalBar, &itemBar);
}

void LifecycleTest::cleanup()
{
    engine.reset();
    QCOMPARE(boxes->takeTexts(), QStringList());
}

void LifecycleTest::writeText(QString const& text)
{
    QFile file(directory.filePath("python/YumIO.py"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(text.toUtf8()) == text.toUtf8().size());
}

void LifecycleTest::writeScript(QString const& more)
{
    writeText(QStringLiteral("import sys\n"
                             "sys.dont_write_bytecode = True\n"
                             "sys.path.insert(0, '%1')\n"
                             "import standin\n"
                             "standin.install(globals(), standin.Era('3.2.19'))\n"
                             "standin.calls_file = '%2'\n"
                             "%3\n")
                  .arg(QStringLiteral(VEM_TEST_SOURCE "/standins"), directory.filePath("calls"), more));
}

QStringList LifecycleTest::calls() const
{
    QFile file(directory.filePath("calls"));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
               : QStringList();
}
