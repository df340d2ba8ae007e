// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAccessible>
#include <QGuiApplication>
#include <QStringList>
#include <QTest>

/// A screen reader that hears, for as long as it lives, each text that the program tells.
class HeardTexts
{
public:
    HeardTexts()
    {
        texts.clear();
        tellers.clear();
        // Without a display nobody listens, and the toolkit's widgets tell nothing; on one they begin soon.
        if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
            QVERIFY(QTest::qWaitFor([] { return QAccessible::isActive(); }));
        }
        before = QAccessible::installUpdateHandler(hear);
    }
    ~HeardTexts() { QAccessible::installUpdateHandler(before); }
    HeardTexts(HeardTexts const&) = delete;
    HeardTexts& operator=(HeardTexts const&) = delete;

    /// All texts, removed ones before those in their place.
    static QStringList texts;
    /// Whatever an event was about, of any kind.
    static QList<QObject*> tellers;

    [[nodiscard]] static bool contain(QString const& secret) { return texts.join(u'\n').contains(secret); }

private:
    static void hear(QAccessibleEvent* event)
    {
        if (!tellers.contains(event->object())) {
            tellers.append(event->object());
        }
        switch (event->type()) {
        case QAccessible::TextInserted:
            texts.append(static_cast<QAccessibleTextInsertEvent*>(event)->textInserted());
            break;
        case QAccessible::TextRemoved:
            texts.append(static_cast<QAccessibleTextRemoveEvent*>(event)->textRemoved());
            break;
        case QAccessible::TextUpdated:
            texts.append(static_cast<QAccessibleTextUpdateEvent*>(event)->textRemoved());
            texts.append(static_cast<QAccessibleTextUpdateEvent*>(event)->textInserted());
            break;
        case QAccessible::ValueChanged:
            texts.append(static_cast<QAccessibleValueChangeEvent*>(event)->value().toString());
            break;
        default:
            break;
        }
    }

    QAccessible::UpdateHandler before = nullptr;
};

inline QStringList HeardTexts::texts;
inline QList<QObject*> HeardTexts::tellers;
