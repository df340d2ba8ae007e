// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class QDialog;

/// The user of a test: sees every dialog that is shown and presses a button of it at once. GUI thread.
class Boxes final : public QObject
{
    Q_OBJECT

public:
    struct Box
    {
        QString caption;
        QString text;
        QStringList buttons; ///< without mnemonics, in the order they were made
        bool operator==(Box const&) const = default;
    };

    Boxes();

    /// Which buttons to press in the dialogs to come, or "Escape". Behind the end of the list the first
    /// button is pressed.
    void press(QStringList const& buttons) { presses = buttons; }

    /// What to do while a dialog is up, before it is answered.
    void whileShown(std::function<void()> const& act) { shownAct = act; }

    /// The dialogs since the last call; the rest of the presses, and the act, are dropped.
    QList<Box> take();
    /// Of these the words alone.
    QStringList takeTexts();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog* dialog);

    QList<Box> seen;
    QStringList presses;
    std::function<void()> shownAct;
};
