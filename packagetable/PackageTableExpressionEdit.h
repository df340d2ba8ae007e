// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>
#include <QLineEdit>
#include <QString>
#include <QTimer>

class QAction;
class QCompleter;
class QStringListModel;

namespace PackageTable
{

/// The line for the expression by which rows are filtered and searched. It tells when somebody who writes
/// pauses, and what is wrong with an expression that doesn't compile, which it also marks. The key
/// Down offers the expressions that have been in use; buttons at its end clear it and choose whether the case
/// of letters matters. It applies nothing by itself. Owned by its parent; GUI thread.
class ExpressionEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ExpressionEdit(QString const& text, QWidget* parent);

    [[nodiscard]] bool matchesCase() const;
    void setMatchesCase(bool matches);

    /// What is wrong with the expression that it holds, and where, in the user's words; empty for nothing.
    [[nodiscard]] QString fault() const;

    /// The text is applied without waiting for a pause.
    void taken();
    /// Takes a text that the user has chosen, to be applied at once.
    void choose(QString const& text);

Q_SIGNALS:
    /// The user has changed the expression, to one that compiles, and paused; never while the line is
    /// disabled.
    void paused();
    /// `fault` has changed.
    void faultChanged(QString const& fault);
    void matchesCaseChanged(bool matches);
    /// The user has chosen a text, which is in the line.
    void chosen();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void handlePause();
    void remember();
    void findFault();
    void showMatchesCase();
    [[nodiscard]] QIcon caseIcon() const;

    QAction* matchCase;
    QAction* wrong; ///< a sign that shows while something is
    QTimer pause;
    QStringListModel* used; ///< the latest first
    QCompleter* offer;      ///< shows them
    QString faultWords;
};

} // namespace PackageTable
