// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/UserSettings.h"
#include "widgets/RememberedSize.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QTest>

class RememberedSizeTest : public QObject
{
    Q_OBJECT

    static constexpr QSize first{210, 120};

    static QSize shownSize(QString const& name, QSize resized = {})
    {
        QDialog window;
        window.resize(first);
        new RememberedSize(name, &window);
        window.show();
        QSize const shown = window.size();
        if (resized.isValid()) {
            window.resize(resized);
        }
        window.close();
        return shown;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    }

    void firstTimeTheWindowHasItsOwnSize() { QCOMPARE(shownSize(QStringLiteral("new")), first); }

    void sizeIsThatOfTheLastTime()
    {
        shownSize(QStringLiteral("window"), QSize(300, 200));
        QCOMPARE(shownSize(QStringLiteral("window")), QSize(300, 200));
        QCOMPARE(shownSize(QStringLiteral("other")), first);
    }

    void windowThatIsShownAgainKeepsItsSize()
    {
        QDialog window;
        new RememberedSize(QStringLiteral("again"), &window);
        window.show();
        window.resize(310, 210);
        window.hide();
        window.resize(320, 220);
        window.show();
        QCOMPARE(window.size(), QSize(320, 220));
    }

    void damagedValueIsPassedOver()
    {
        UserSettings::setValue(QStringLiteral("odd/geometry"), QStringLiteral("wide"));
        QCOMPARE(shownSize(QStringLiteral("odd")), first);
    }

private:
    QTemporaryDir folder;
};

QTEST_MAIN(RememberedSizeTest)
#include "tst_RememberedSize.moc"
