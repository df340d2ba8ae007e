// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/Credentials.h"

#include <QTest>

class tst_credentials : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        auto const row = [](char const* text, int count) {
            QTest::newRow(text) << QString::fromLatin1(text) << count;
        };
        row("password=x\n", 1);
        row("[a]\nproxy_password = x\nname=b\n", 1);
        row("password : x", 1);
        row("#password=x", 1);
        row("password=\n  x\n", 1);
        row("password=x\nproxy_password=x\n", 2);
        row("password=\nname=b\n", 0);
        row("password=  \n", 0);
        row("username=me\n", 0);
        row("# the password: ask the admin\n", 0);
        row("name=password\n", 0);
        row("passwords=x\n", 0);
        row("baseurl=http://me:x@host/\n", 1);
        row("baseurl=http://a/\n        http://me:x@host/\n", 1);
        row("proxy=http://token:@host:80\n", 1);
        row("#gpgkey=https://:x@host\n", 1);
        row("baseurl=http://:@host/\n", 0);
        row("baseurl=http://me@host/\n", 0);
        row("baseurl=http://host:80/a@b\n", 0);
        row("baseurl=http://[::1]:80/a@b\n", 0);
        row("mirrorlist=http://h/buffet?u=me&p=x&path=/\n", 1);
        row("mirrorlist=http://h/buffet?u=me&p=&path=/\n", 1);
        row("mirrorlist=http://h/buffet?u=&p=x&path=/\n", 1);
        row("mirrorlist=http://h/buffet?u=&p=&path=/\n", 0);
        row("baseurl=http://h/buffet?u=&p=&path=/\n  http://h/buffet?u=a&p=b&path=/\n", 1);
        row("", 0);
    }

    void areFound()
    {
        QFETCH(QString, text);
        QTEST(int(credentialsIn(text).size()), "count");
    }

    void areToldApartByTheirWords()
    {
        QSet<QString> const one = credentialsIn(QStringLiteral("password=x\nurl=http://a:b@h/\n"));

        QCOMPARE(credentialsIn(QStringLiteral("url=http://a:b@other/\n#x\npassword=x\n")).size(), 2);
        QVERIFY(one.contains(QStringLiteral("password=x")));
        QVERIFY(one.contains(credentialsIn(QStringLiteral("url=http://a:b@other/\n"))));
        QVERIFY(!one.contains(credentialsIn(QStringLiteral("url=http://a:c@h/\n"))));
        QVERIFY(!one.contains(credentialsIn(QStringLiteral("password=y\n"))));
        QVERIFY(
            credentialsIn(QStringLiteral("http://a:p@b@h/")) !=
            credentialsIn(QStringLiteral("http://a:p@c@h/")));
    }
};

QTEST_APPLESS_MAIN(tst_credentials)
#include "tst_credentials.moc"
