// SPDX-License-Identifier: GPL-2.0-or-later
// Which language the program speaks.
#include "shell/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTest>
#include <QTranslator>

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstLanguageThatHasTextsIsTaken_data()
    {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("wanted");
        QTest::newRow("its own") << QStringList{"de-DE", "de"} << "de";
        QTest::newRow("a region's") << QStringList{"zh-Hans-CN", "zh-CN", "zh"} << "zh_CN";
        QTest::newRow("not another region's") << QStringList{"zh-Hant-TW", "zh-TW", "zh"} << "";
        QTest::newRow("without the country") << QStringList{"es-MX"} << "es";
        QTest::newRow("without script and country") << QStringList{"de-Latn-DE"} << "de";
        QTest::newRow("the second wish") << QStringList{"pt-BR", "pt", "es-ES", "es"} << "es";
        QTest::newRow("English first") << QStringList{"en-GB", "en", "de"} << "";
        QTest::newRow("English second") << QStringList{"pt-BR", "pt", "en-US", "en", "de"} << "";
        QTest::newRow("no locale") << QStringList{"C"} << "";
        QTest::newRow("none") << QStringList() << "";
    }

    void theFirstLanguageThatHasTextsIsTaken()
    {
        QFETCH(QStringList const, languages);
        QFETCH(QString const, wanted);
        QCOMPARE(wantedTranslation(languages, {"de", "es", "fr", "ja", "zh_CN"}), wanted);
    }

    void theProgramAndItsStandardButtonsSpeakTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("describe");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("English") << "en_GB"
                                 << "&Describe"
                                 << "Cancel";
        QTest::newRow("German") << "de_DE"
                                << "&Beschreiben"
                                << "Abbrechen";
        QTest::newRow("Spanish") << "es_MX"
                                 << "&Describir"
                                 << "Cancelar";
        QTest::newRow("French") << "fr_FR"
                                << "Déc&rire"
                                << "Annuler";
        QTest::newRow("Japanese") << "ja_JP"
                                  << "詳細(&D)"
                                  << "キャンセル";
        QTest::newRow("Simplified Chinese") << "zh_CN"
                                            << "详细信息(&D)"
                                            << "取消";
        QTest::newRow("no file") << "pt_BR"
                                 << "&Describe"
                                 << "Cancel";
    }

    void theProgramAndItsStandardButtonsSpeakTheUsersLanguage()
    {
        QFETCH(QString const, locale);
        QFETCH(QString const, describe);
        QFETCH(QString const, cancel);
        QLocale::setDefault(QLocale(locale));
        installTranslations(*QCoreApplication::instance());
        QString const describeText = QCoreApplication::translate("MainWindow", "&Describe");
        QString const cancelText = QCoreApplication::translate("QPlatformTheme", "Cancel");
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
        QCOMPARE(describeText, describe);
        QCOMPARE(cancelText, cancel);
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "tst_translations.moc"
