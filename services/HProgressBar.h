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

    /// Takes the words away and rewinds the bar, which then shows no text at all.
    void reset();

    /// What the bar draws: "activity (percentage)", or the one of the two that isn't empty.
    [[nodiscard]] QString text() const override;

private:
    QString activity;
};
