// SPDX-License-Identifier: GPL-2.0-or-later
#include "bench/driver/Pinger.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <chrono>

namespace
{

/// What a gap may be told too short by.
constexpr std::chrono::milliseconds pauseBetween(2);

} // namespace

Pinger::Pinger()
{
    clock.start();
    thread = std::thread([this] { ping(); });
}

Pinger::~Pinger()
{
    {
        std::lock_guard<std::mutex> const lock(mutex);
        ending = true;
    }
    changed.notify_all();
    thread.join();
}

void Pinger::ping()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (!ending) {
        sent = clock.nsecsElapsed();
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        changed.wait(lock, [this] { return ending || sent == 0; });
        changed.wait_for(lock, pauseBetween, [this] { return ending; });
    }
}

bool Pinger::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    worst = std::max(worst, age());
    {
        std::lock_guard<std::mutex> const lock(mutex);
        sent = 0;
    }
    changed.notify_all();
    return true;
}

void Pinger::restart()
{
    begin = clock.nsecsElapsed();
    worst = 0;
}

qint64 Pinger::longest() const
{
    return std::max(worst, age());
}

qint64 Pinger::age() const
{
    qint64 const at = sent;
    return at == 0 ? 0 : clock.nsecsElapsed() - std::max(at, begin);
}
