// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;
class QWidget;

/// What the desktop shows of the program outside its windows: how far a job is, in the task bar
/// (com.canonical.Unity.LauncherEntry), and notifications (org.freedesktop.Notifications). Both go over the
/// session bus, and nobody waits for an answer; without a bus, or somebody there who listens, nothing
/// happens. GUI thread.
class Desktop final : public QObject
{
    Q_OBJECT

public:
    /// For this window, which owns it.
    explicit Desktop(QWidget* window);

    /// Shows in the task bar where `value` lies between the two; nothing below `minimum`.
    void showProgress(int value, int minimum, int maximum);
    void clearProgress();

    /// Notifies the user, unless a window of the program has the keyboard. The body is plain text, without
    /// what a desktop may take for markup. A new notification takes the place of the last one, and goes when
    /// the user comes back; a click on it brings the window forward.
    void notify(QString const& summary, QString const& body);

private Q_SLOTS:
    void notified(QDBusPendingCallWatcher* call);
    void invoked(uint notification, QString const& action);
    void takeToken(uint notification, QString const& token);
    void stateChanged(Qt::ApplicationState state);

private:
    void listen();
    void tellProgress(int percent);

    QWidget* window;
    QDBusConnection bus;
    int percentShown = -1; ///< -1: nothing
    uint shown = 0;        ///< the notification's number; 0: none
    bool listening = false;
};
