// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// Carries a window's size and place from one time to the next. Owned by the window; GUI thread.
class RememberedSize final : public QObject
{
    Q_OBJECT

public:
    /// `name`: that of the window in the user's settings.
    RememberedSize(QString const& name, QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window;
    QString const key;
    bool restored = false;
};
