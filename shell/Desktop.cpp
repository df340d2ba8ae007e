// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/Desktop.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>
#include <utility>

namespace
{

constexpr QLatin1String service("org.freedesktop.Notifications");
constexpr QLatin1String path("/org/freedesktop/Notifications");
constexpr QLatin1String launcher("com.canonical.Unity.LauncherEntry");
/// What a click on the notification itself is called.
constexpr QLatin1String defaultAction("default");
/// Lets the desktop decide how long a notification stays.
constexpr int desktopsChoice = -1;

/// The user's session bus. The bus library would start one where none is named, which isn't ours to do.
QDBusConnection sessionBus()
{
    QString const ofSession = qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus");
    bool const isThere =
        !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") || QFileInfo::exists(ofSession);
    return isThere ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

QDBusMessage call(QString const& method, QVariantList const& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, method);
    message.setArguments(arguments);
    return message;
}

} // namespace

Desktop::Desktop(QWidget* ofWindow)
    : QObject(ofWindow),
      window(ofWindow),
      bus(sessionBus())
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &Desktop::stateChanged);
}

void Desktop::showProgress(int value, int minimum, int maximum)
{
    constexpr qint64 whole = 100;
    bool const known = minimum < maximum && value >= minimum;
    tellProgress(known ? int(whole * (qint64(value) - minimum) / (qint64(maximum) - minimum)) : -1);
}

void Desktop::clearProgress()
{
    tellProgress(-1);
}

void Desktop::tellProgress(int percent)
{
    if (percent == percentShown || !bus.isConnected()) {
        return;
    }
    percentShown = percent;
    constexpr double whole = 100;
    QDBusMessage message =
        QDBusMessage::createSignal(QStringLiteral("/org/example/vem"), launcher, QStringLiteral("Update"));
    message << QStringLiteral("application://%1.desktop").arg(QGuiApplication::desktopFileName())
            << QVariantMap{
                   {QStringLiteral("progress"), qMax(0, percent) / whole},
                   {QStringLiteral("progress-visible"), percent >= 0}};
    bus.send(message);
}

void Desktop::notify(QString const& summary, QString const& body)
{
    if (QGuiApplication::applicationState() == Qt::ApplicationActive || !bus.isConnected()) {
        return;
    }
    listen();
    QVariantMap const hints{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    QStringList const actions{defaultAction, tr("Show")};
    auto* const watcher = new QDBusPendingCallWatcher(
        bus.asyncCall(call(
            QStringLiteral("Notify"), {QStringLiteral("VEM"), shown, QGuiApplication::desktopFileName(),
                                       summary, body, actions, hints, desktopsChoice})),
        this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Desktop::notified);
}

void Desktop::listen()
{
    if (listening) {
        return;
    }
    listening = true;
    // Whoever the service is: to be asked for its name would be to be waited for.
    bus.connect(
        QString(), path, service, QStringLiteral("ActionInvoked"), this, SLOT(invoked(uint, QString)));
    bus.connect(
        QString(), path, service, QStringLiteral("ActivationToken"), this, SLOT(takeToken(uint, QString)));
}

void Desktop::notified(QDBusPendingCallWatcher* call)
{
    QDBusPendingReply<uint> const reply = *call;
    shown = reply.isError() ? 0 : reply.value();
    call->deleteLater();
    // The user has been faster.
    stateChanged(QGuiApplication::applicationState());
}

void Desktop::invoked(uint notification, QString const& action)
{
    if (notification != shown || action != defaultAction) {
        return;
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

void Desktop::takeToken(uint notification, QString const& token)
{
    if (notification == shown) {
        // Where the toolkit looks for it when it asks the compositor to bring a window forward.
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
}

void Desktop::stateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive && shown != 0) {
        bus.asyncCall(call(QStringLiteral("CloseNotification"), {std::exchange(shown, 0)}));
    }
}
