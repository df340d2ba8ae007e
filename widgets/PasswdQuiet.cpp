// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdQuiet.h"

#include "widgets/CommonEnds.h"

#include <QAccessible>
#include <QList>
#include <QWidget>

#include <memory>

namespace
{

QList<QObject const*> fields;
QList<QObject const*> twins;
QAccessible::UpdateHandler next = nullptr; ///< who hears what is passed on; null for the toolkit itself

void passOn(QAccessibleEvent* event);

bool tellsText(QAccessible::Event type)
{
    switch (type) {
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
    case QAccessible::ValueChanged:
        return true;
    default:
        return false;
    }
}

void filter(QAccessibleEvent* event)
{
    QObject const* const teller = event->object();
    bool const isKept =
        teller && (twins.contains(teller) || (fields.contains(teller) && tellsText(event->type())));
    if (!isKept) {
        passOn(event);
    }
}

void passOn(QAccessibleEvent* event)
{
    if (next) {
        next(event);
        return;
    }
    // Only without a handler does the toolkit send it itself.
    QAccessible::UpdateHandler const handler = QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(handler);
}

} // namespace

PasswdQuiet::PasswdQuiet(QObject const* quietField, QObject const* quietTwin)
    : field(quietField),
      twin(quietTwin)
{
    bool const isFirst = fields.isEmpty();
    fields.append(field);
    twins.append(twin);
    QAccessible::UpdateHandler const handler = QAccessible::installUpdateHandler(filter);
    if (isFirst) {
        next = handler;
    } else if (handler != filter) {
        // Whoever has come in between may pass on to the filter already.
        QAccessible::installUpdateHandler(handler);
    }
}

PasswdQuiet::~PasswdQuiet()
{
    fields.removeOne(field);
    twins.removeOne(twin);
    if (!fields.isEmpty()) {
        return;
    }
    QAccessible::UpdateHandler const handler = QAccessible::installUpdateHandler(next);
    if (handler != filter) {
        // Somebody has come in between, and stays.
        QAccessible::installUpdateHandler(handler);
    }
    next = nullptr;
}

void PasswdQuiet::untilEventsAreServed(QObject* field, QObject const* twin)
{
    QMetaObject::invokeMethod(
        field, [quiet = std::make_shared<PasswdQuiet>(field, twin)] {}, Qt::QueuedConnection);
}

void PasswdQuiet::tell(QWidget* field, QString const& before, QString const& now)
{
    if (before == now) {
        return;
    }
    CommonEnds const ends(before, now);
    int const start = static_cast<int>(ends.start);
    QString const removed = ends.middleOf(before);
    QString const inserted = ends.middleOf(now);
    // Of a text that is replaced, as one that is masked from now on, the length has to do, as in all edits of
    // several lines.
    std::unique_ptr<QAccessibleEvent> event;
    if (removed.isEmpty()) {
        event = std::make_unique<QAccessibleTextInsertEvent>(field, start, inserted);
    } else if (inserted.isEmpty()) {
        event = std::make_unique<QAccessibleTextRemoveEvent>(field, start, removed);
    } else {
        event = std::make_unique<QAccessibleTextUpdateEvent>(
            field, start, QString(removed.size(), u' '), inserted);
    }
    if (fields.isEmpty()) {
        QAccessible::updateAccessibility(event.get());
    } else {
        passOn(event.get());
    }
}
