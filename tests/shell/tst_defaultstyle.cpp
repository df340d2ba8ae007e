// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/DefaultStyle.h"

#include <QApplication>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

class DefaultStyleTest : public QObject
{
    Q_OBJECT

    static bool isSpecified(std::vector<char const*> arguments)
    {
        std::vector<QByteArray> texts(arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (QByteArray& text : texts) {
            argv.push_back(text.data());
        }
        return DefaultStyle(static_cast<int>(argv.size()), argv.data()).isSpecified();
    }

    static QSettings settings()
    {
        return QSettings(QSettings::UserScope, QStringLiteral("Trolltech"), QString());
    }

    QTemporaryDir configuration;

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    }

    void anArgumentNamesTheStyle_data()
    {
        QTest::addColumn<QByteArray>("argument");
        QTest::addColumn<bool>("specified");
        QTest::newRow("one word") << QByteArray("-style=windows") << true;
        QTest::newRow("two words") << QByteArray("-style") << true;
        QTest::newRow("no name") << QByteArray("-style=") << true;
        QTest::newRow("another option") << QByteArray("-stylesheet") << false;
        QTest::newRow("long form") << QByteArray("--style") << false;
    }

    void anArgumentNamesTheStyle()
    {
        QFETCH(QByteArray, argument);
        QFETCH(bool, specified);
        QCOMPARE(isSpecified({"vem", argument.constData()}), specified);
        QCOMPARE(isSpecified({"vem", "-l", argument.constData()}), specified);
    }

    void theProgramsOwnNameIsNoArgument() { QVERIFY(!isSpecified({"-style"})); }

    void theToolkitsSettingsNameTheStyle()
    {
        QVERIFY(!isSpecified({"vem"}));
        {
            QSettings user = settings();
            user.beginGroup(QStringLiteral("Qt"));
            user.setValue(QStringLiteral("style"), QStringLiteral("windows"));
        }
        QVERIFY(isSpecified({"vem"}));
        settings().clear();
        QVERIFY(!isSpecified({"vem"}));
    }

    void anUnknownStyleBecomesItsSuccessor()
    {
        std::vector<char> name{'v', 'e', 'm', '\0'};
        char* argv[] = {name.data()};
        DefaultStyle const style(1, argv);
        style.set(*qApp, QStringLiteral("plastique"));
        QCOMPARE(qApp->style()->name(), QStringLiteral("fusion"));
        QCOMPARE(qApp->palette(), qApp->style()->standardPalette());
    }

    void aStyleThatTheUserNamedIsLeftAlone()
    {
        std::vector<char> option{'-', 's', 't', 'y', 'l', 'e', '\0'};
        char* argv[] = {option.data(), option.data()};
        DefaultStyle const style(2, argv);
        style.set(*qApp, QStringLiteral("fusion"));
        style.set(*qApp, QStringLiteral("windows"));
        QCOMPARE(qApp->style()->name(), QStringLiteral("fusion"));
    }
};

QTEST_MAIN(DefaultStyleTest)
#include "tst_defaultstyle.moc"
