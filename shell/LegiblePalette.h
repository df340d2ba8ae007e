// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class QApplication;

/// Keeps the application's palette legible, now and whenever the desktop or somebody else changes it, as
/// Colors::makeLegible tells. Links in texts take their colour from there, whatever a widget's palette says.
/// Lives on the stack of main behind the application. GUI thread.
class LegiblePalette final : public QObject
{
    Q_OBJECT

public:
    explicit LegiblePalette(QApplication& app);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void mend();

    QObject const* application;
};
