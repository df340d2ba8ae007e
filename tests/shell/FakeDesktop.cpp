// SPDX-License-Identifier: GPL-2.0-or-later
#include "FakeDesktop.h"

namespace
{

QString const busName = QStringLiteral("fake desktop");
QString const service = QStringLiteral("org.freedesktop.Notifications");
QString const path = QStringLiteral("/org/freedesktop/Notifications");

} // namespace

FakeDesktop::FakeDesktop()
    : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, busName))
{
    bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    bus.registerService(service);
    bus.connect(
        QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"),
        this, SLOT(update(QString, QVariantMap)));
}

FakeDesktop::~FakeDesktop()
{
    QDBusConnection::disconnectFromBus(busName);
}

void FakeDesktop::click(uint notification, QString const& token)
{
    for (auto const& [signal, word] :
         {std::pair(QStringLiteral("ActivationToken"), token),
          std::pair(QStringLiteral("ActionInvoked"), QStringLiteral("default"))}) {
        QDBusMessage message = QDBusMessage::createSignal(path, service, signal);
        message << notification << word;
        bus.send(message);
    }
}

uint FakeDesktop::Notify(
    QString const&, uint replaced, QString const&, QString const& summary, QString const& body,
    QStringList const&, QVariantMap const& hints, int)
{
    constexpr uint first = 7;
    notifications.append({replaced, summary, body, hints});
    return replaced != 0 ? replaced : first + uint(notifications.size()) - 1;
}

void FakeDesktop::update(QString const& entry, QVariantMap const& properties)
{
    constexpr double whole = 100;
    bool const visible = properties.value(QStringLiteral("progress-visible")).toBool();
    double const fraction = properties.value(QStringLiteral("progress")).toDouble();
    progress.append(
        entry + QLatin1Char(' ') +
        (visible ? QString::number(qRound(fraction * whole)) : QStringLiteral("none")));
}
