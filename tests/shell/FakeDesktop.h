// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// A desktop on the test's own session bus: takes notifications, and listens to what is told of task bars.
/// GUI thread.
class FakeDesktop final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification
    {
        uint replaced;
        QString summary;
        QString body;
        QVariantMap hints;
    };

    FakeDesktop();
    ~FakeDesktop() override;

    /// As a user who clicks on the notification of that number.
    void click(uint notification, QString const& token);

    QList<Notification> notifications;
    QList<uint> closed;
    QStringList progress; ///< "<entry> <percent>", or "<entry> none"

public Q_SLOTS:
    uint Notify(
        QString const& program, uint replaced, QString const& icon, QString const& summary,
        QString const& body, QStringList const& actions, QVariantMap const& hints, int milliseconds);
    void CloseNotification(uint notification) { closed.append(notification); }
    void update(QString const& entry, QVariantMap const& properties);

private:
    QDBusConnection bus;
};
