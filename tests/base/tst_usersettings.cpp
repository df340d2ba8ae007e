// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/UserSettings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class UserSettingsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;

    QString name() const { return folder.filePath(QStringLiteral("vem/vem.ini")); }

    static QByteArray contents(QString const& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path()); }

    void whatIsRememberedIsInTheUsersFile()
    {
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), true), QVariant(true));
        UserSettings::setValue(QStringLiteral("table/matchCase"), false);
        QVERIFY2(contents(name()).contains("matchCase=false"), contents(name()).constData());
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), true).toBool(), false);
        QCOMPARE(UserSettings::putAside(), QString());
    }

    void aDamagedFileIsPutAsideWhole()
    {
        QByteArray const damage("[table\nnothing of the kind\n\xff\n");
        QDir(folder.path()).mkpath(QStringLiteral("vem"));
        QFile file(name());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(damage) == damage.size());
        file.close();
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), true), QVariant(true));
        QCOMPARE(UserSettings::putAside(), name() + QLatin1String(".damaged"));
        QCOMPARE(contents(UserSettings::putAside()), damage);
        UserSettings::setValue(QStringLiteral("table/matchCase"), false);
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), true).toBool(), false);
    }
};

QTEST_GUILESS_MAIN(UserSettingsTest)
#include "tst_usersettings.moc"
