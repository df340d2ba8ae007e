// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRegularExpression>
#include <QString>

class QWidget;

/// What the two password fields do alike to their texts. The shown text has the length of the real one, so
/// that a position means the same place in both. GUI thread.
class PasswdMask
{
public:
    /// What the widget's style shows for each character of a password.
    [[nodiscard]] static QChar character(QWidget const* widget);

    /// Replaces the first group of `match` in `text`, the subject of the match, by as many mask characters
    /// of the widget's style.
    static void cover(QString& text, QRegularExpressionMatch const& match, QWidget const* widget);

    /// The real text after `shown`, which stood for `real`, was replaced by `edited`: what both of these
    /// have in common at either end, and a mask that is still whole, stand for what they stood for.
    [[nodiscard]] static QString adopt(
        QString real, QString const& shown, QString const& edited, QWidget const* widget);
};
