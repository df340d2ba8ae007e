// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLineEdit>
#include <QRegularExpression>

#include <memory>

/// A line in which only a part of the text is masked, such as the password within an address. Owned by its
/// parent widget, GUI thread.
///
/// A hidden twin, the shadow, holds the real text. The field passes on what the user does; whenever the
/// shadow's text changes, the shown text is made from it anew. `text()` is the masked text, which is also
/// what screen readers are told.
class PasswdLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// Masks the first group of `regExp` where that matches the whole text.
    PasswdLineEdit(QRegularExpression const& regExp, QWidget* parent);

    void setRealText(QString const& text);
    [[nodiscard]] QString realText() const;

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// Both texts are final; `text` is the real one. The field's own `textChanged` comes too early to ask for
    /// the real text.
    void realTextChanged(QString const& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    /// Nothing: the standard menu would act on the masked text alone.
    void contextMenuEvent(QContextMenuEvent* event) override;

private Q_SLOTS:
    /// The shadow has a new text.
    void textChanged(QString const& text);

private:
    [[nodiscard]] QString masked(QString const& text) const;
    /// Makes the shown text from the real one and tells it to screen readers.
    void showMasked(QString const& text);
    /// Puts the shadow's selection where the user sees it.
    void follow();
    /// The field has a text that came neither from the shadow nor by an event, as a screen reader sets it.
    void adopt(QString const& edited);

    QRegularExpression pattern;
    /// Without a parent, so that nothing ever shows it.
    std::unique_ptr<QLineEdit> shadow;
    QString told; ///< the shown text as screen readers know it
    int busy = 0; ///< not 0 while a change of the shown text is known to stem from this class
};
