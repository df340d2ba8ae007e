// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HTextEdit.h"

#include <QRegularExpression>

#include <memory>

/// A text of lines in which only parts are masked, such as the passwords within addresses; otherwise as
/// PasswdLineEdit. `toPlainText()` is the masked text. Tab moves the focus. Owned by its parent widget, GUI
/// thread.
class PasswdTextEdit : public HTextEdit
{
    Q_OBJECT

public:
    /// Masks the first group of each match of `regExp`.
    PasswdTextEdit(QRegularExpression const& regExp, QWidget* parent);
    /// The same with the size of HTextEdit, in characters and lines.
    PasswdTextEdit(QRegularExpression const& regExp, int columns, int rows, QWidget* parent);
    ~PasswdTextEdit() override;

    void setRealPlainText(QString const& text);
    [[nodiscard]] QString realPlainText() const;

Q_SIGNALS:
    /// Both texts are final. The field's own `textChanged` comes too early to ask for the real text.
    void realTextChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Nothing: the standard menu would act on the masked text alone.
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private Q_SLOTS:
    /// The shadow has a new text.
    void textChanged();

private:
    class Shadow;

    void init();
    [[nodiscard]] QString masked(QString const& text) const;
    /// Tells screen readers what is shown from now on.
    void tellShown();
    /// Handles an event by `base`, which is this field's, and by `twin`, which is the shadow's.
    template <typename Base, typename Twin>
    bool handle(QEvent* event, Base const& base, Twin const& twin);
    /// A press within the selection would begin a drag, whose move takes the text out of one field only.
    void preventDrag(QEvent const* event);
    /// Puts the shadow's selection, and what it would show, where the user sees them.
    void follow();
    /// The field has a text that came neither from the shadow nor by an event, as a screen reader sets it.
    void adopt();

    QRegularExpression pattern;
    /// Without a parent, so that nothing ever shows it.
    std::unique_ptr<Shadow> shadow;
    QString told; ///< the shown text as screen readers know it
    int busy = 0; ///< not 0 while a change of the shown text is known to stem from this class
};
