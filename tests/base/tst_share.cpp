// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Share.h"

#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>

class ShareTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theVariableNamesTheDirectory()
    {
        qputenv("VEMSHARE", "/somewhere/else");
        QCOMPARE(
            Share::absolute(QStringLiteral("icons/a.png")), QStringLiteral("/somewhere/else/icons/a.png"));
    }

    void theVariableIsReadAtEveryCall()
    {
        qputenv("VEMSHARE", "/one");
        QCOMPARE(Share::absolute(QStringLiteral("x")), QStringLiteral("/one/x"));
        qputenv("VEMSHARE", "/two");
        QCOMPARE(Share::absolute(QStringLiteral("x")), QStringLiteral("/two/x"));
    }

    void anEmptyVariableCountsAsSet()
    {
        qputenv("VEMSHARE", "");
        QCOMPARE(Share::absolute(QStringLiteral("x")), QStringLiteral("/x"));
    }

    void withoutTheVariableThereIsADefault()
    {
        qunsetenv("VEMSHARE");
        QCOMPARE(
            Share::absolute(QStringLiteral("pixmaps/vem.icon.png")),
            QStringLiteral("/usr/share/vem/pixmaps/vem.icon.png"));
    }

    void aMarkerInTheDirectorysNameIsNoMarker()
    {
        qputenv("VEMSHARE", "/odd/%2");
        QCOMPARE(Share::absolute(QStringLiteral("x")), QStringLiteral("/odd/%2/x"));
    }

    void aMissingIconIsNoError()
    {
        qputenv("VEMSHARE", "/nowhere");
        QVERIFY(Share::icon(QStringLiteral("icons/none.png")).isNull());
    }

    void anIconIsReadAtOnce()
    {
        QTemporaryDir directory;
        QString const file = directory.filePath(QStringLiteral("a.png"));
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        QVERIFY(picture.save(file));
        QPixmap large(32, 32);
        large.fill(Qt::blue);
        QVERIFY(large.save(directory.filePath(QStringLiteral("a@2x.png"))));

        qputenv("VEMSHARE", QFile::encodeName(directory.path()));
        QIcon const icon = Share::icon(QStringLiteral("a.png"));
        QVERIFY(directory.remove());
        QCOMPARE(icon.pixmap(QSize(16, 16), 1.0).toImage().pixelColor(8, 8), QColor(Qt::red));
        QCOMPARE(icon.pixmap(QSize(16, 16), 2.0).toImage().pixelColor(8, 8), QColor(Qt::blue));
    }
};

QTEST_MAIN(ShareTest)
#include "tst_share.moc"
