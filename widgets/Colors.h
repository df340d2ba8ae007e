// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

class QPalette;

/// The colours of the whole system, by what they mean. The names go through the translation, so that a
/// locale can choose others. GUI thread.
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

    /// A copy in which a field that can be edited has the background `required`; a disabled one keeps its
    /// own. The colours are taken at the first call and kept for the life of the process, here and below.
    [[nodiscard]] static QPalette makeRequired(QPalette const& palette);
    /// Copies in which the text of a label has the colour of the name.
    [[nodiscard]] static QPalette makeError(QPalette const& palette);
    [[nodiscard]] static QPalette makeWarning(QPalette const& palette);
    [[nodiscard]] static QPalette makeOK(QPalette const& palette);
};
