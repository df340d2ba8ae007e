// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>

class QPalette;

/// The colours of the whole system, by what they mean. The names go through the translation, so that a
/// locale can choose others. GUI thread.
///
/// They are made for dark text on light ground. On a dark palette a colour that could not be read there is
/// replaced by its companion: the same hue, as light as the ground asks for. What shows one has to ask anew
/// when its palette changes.
class Colors
{
    Q_DECLARE_TR_FUNCTIONS(Colors)

public:
    /// Background of fields that must be filled.
    [[nodiscard]] static QString required();
    /// Headings in the log.
    [[nodiscard]] static QString action();
    /// Errors, and rows that can be updated.
    [[nodiscard]] static QString error();
    /// `error` on a disabled table.
    [[nodiscard]] static QString errorDisabled();
    [[nodiscard]] static QString warning();
    /// Minor items, and rows that can be installed.
    [[nodiscard]] static QString minor();
    /// `minor` on a disabled table.
    [[nodiscard]] static QString minorDisabled();
    /// Good news, and standard output in the log.
    [[nodiscard]] static QString ok();

    /// The colour of that name, or its companion, for words on the ground of `palette`'s rows and texts,
    /// alternating rows included.
    [[nodiscard]] static QColor onBase(QString const& name, QPalette const& palette);
    /// The same for a name that stands for a disabled table: fainter than `onBase`, yet to be read.
    [[nodiscard]] static QColor onDisabledBase(QString const& name, QPalette const& palette);

    /// A copy in which links, and the words in empty fields, can be read: toolkit and desktops often leave
    /// links blue on dark ground, and those words too faint.
    [[nodiscard]] static QPalette makeLegible(QPalette const& palette);
    /// A copy in which a field that can be edited has the background `required`; a disabled one keeps its
    /// own. The colours' names are taken at the first call and kept for the life of the process, here and
    /// below.
    [[nodiscard]] static QPalette makeRequired(QPalette const& palette);
    /// Copies in which the text of a label has the colour of the name, or its companion.
    [[nodiscard]] static QPalette makeError(QPalette const& palette);
    [[nodiscard]] static QPalette makeWarning(QPalette const& palette);
    [[nodiscard]] static QPalette makeOK(QPalette const& palette);
};
