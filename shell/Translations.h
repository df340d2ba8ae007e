// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

class QCoreApplication;

/// Makes the program speak the user's language. On the GUI thread, before the first window is made.
///
/// The texts come from "translations" in the share directory, those of the toolkit's own buttons and menus
/// from where the toolkit keeps them. A language that has no file leaves the program in English, and so does
/// a user who prefers English to a language that has one.
void installTranslations(QCoreApplication& app);

/// The suffix of the first file of texts that a user of these languages wants, empty for English.
///
/// languages: as QLocale::uiLanguages() gives them, the most wanted first, such as "pt-BR".
/// available: suffixes of the files that there are, such as "zh_CN".
[[nodiscard]] QString wantedTranslation(QStringList const& languages, QStringList const& available);
