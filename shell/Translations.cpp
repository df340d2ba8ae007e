// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/Translations.h"

#include "base/Share.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace
{

QString const prefix = QStringLiteral("vem_");
QString const suffix = QStringLiteral(".qm");

QStringList availableTranslations(QString const& directory)
{
    QStringList available;
    for (QString const& file : QDir(directory).entryList({prefix + QLatin1Char('*') + suffix}, QDir::Files)) {
        available.append(file.mid(prefix.size(), file.size() - prefix.size() - suffix.size()));
    }
    return available;
}

void install(QCoreApplication& app, QString const& file, QString const& directory)
{
    auto translator = std::make_unique<QTranslator>(&app);
    if (translator->load(file, directory) && QCoreApplication::installTranslator(translator.get())) {
        static_cast<void>(translator.release()); // the application is its parent
    }
}

} // namespace

void installTranslations(QCoreApplication& app)
{
    QString const directory = Share::absolute(QStringLiteral("translations"));
    QString const wanted = wantedTranslation(QLocale().uiLanguages(), availableTranslations(directory));
    if (wanted.isEmpty()) {
        return;
    }
    install(app, QStringLiteral("qtbase_") + wanted, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // The last one installed is asked first.
    install(app, prefix + wanted, directory);
}

QString wantedTranslation(QStringList const& languages, QStringList const& available)
{
    for (QString const& language : languages) {
        QStringList parts = language.split(QLatin1Char('-'));
        bool const isEnglish = parts.first() == QLatin1String("en") || parts.first() == QLatin1String("C");
        // A language without the script and country that it was asked for in is better than another one.
        for (; !parts.isEmpty(); parts.removeLast()) {
            QString name = parts.join(QLatin1Char('_'));
            if (available.contains(name)) {
                return name;
            }
        }
        if (isEnglish) {
            break;
        }
    }
    return QString();
}
