// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>

class QCheckBox;
class QComboBox;
class YumIO;

namespace PackageTable
{
class ExpressionEdit;
class View;
} // namespace PackageTable

/// What the filter's row holds, for who wants to read and to change it. Nothing is owned.
struct FilterControls
{
    QComboBox* mode;
    PackageTable::ExpressionEdit* expression;
    QComboBox* state;
    QCheckBox* groups;
};

/// Says in the middle of a table without rows why there are none, with links to what would show some: they
/// change the filter as the user would. Owned by the view's viewport; GUI thread.
class EmptyTableNote final : public QLabel
{
    Q_OBJECT

public:
    /// All of these outlive the note.
    EmptyTableNote(PackageTable::View* view, YumIO const* yumIO, FilterControls const& controls);

    [[nodiscard]] QSize sizeHint() const override;

private:
    void wait();
    void tell();
    void say(QStringList const& lines);
    [[nodiscard]] QString shownExpression() const;
    [[nodiscard]] QString reason() const;
    /// HTML, each one a link.
    [[nodiscard]] QStringList ways() const;
    void follow(QString const& link);

    PackageTable::View* view;
    YumIO const* yumIO;
    FilterControls controls;
    QTimer pause;
};
