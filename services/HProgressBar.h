// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QProgressBar>

/// A progress bar that says what is going on in front of the percentage. Owned by the window it stands
/// in; GUI thread only.
class HProgressBar final : public QProgressBar
{
    Q_OBJECT

public:
    explicit HProgressBar(QWidget* parent = nullptr);

    /// Sets the words that stand in front of the bar's own text; an empty text takes them away. They are
    /// the bar's accessible description, too.
    void setActivity(QString const& newActivity);

    /// Sets words that stand behind the bar's text, such as how long it will take; an empty text takes them
    /// away. They come and go too fast to be told to screen readers.
    void setNote(QString const& newNote);

    /// Takes the words away and rewinds the bar, which then shows no text at all.
    void reset();

    /// What the bar draws: "activity (percentage)", or the one of the two that isn't empty, and the note.
    [[nodiscard]] QString text() const override;

private:
    [[nodiscard]] QString told() const;

    QString activity;
    QString note;
};
