// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QObject;
class QString;
class QWidget;

/// Keeps real texts off the accessibility bus, where the toolkit's fields put each text that they come to
/// hold, masked or not. While one of these stands, nobody hears of the texts of `field`, and nothing at all
/// of `twin`; in the end whoever changed them tells what the field shows. GUI thread; on the stack.
///
/// Not for a time in which a table may tell readers of a change: passing that on counts it twice.
class PasswdQuiet final
{
public:
    explicit PasswdQuiet(QObject const* field, QObject const* twin = nullptr);
    ~PasswdQuiet();
    PasswdQuiet(PasswdQuiet const&) = delete;
    PasswdQuiet& operator=(PasswdQuiet const&) = delete;

    /// The same until events are served again: for a field that has already begun to take a text that came by
    /// no event.
    static void untilEventsAreServed(QObject* field, QObject const* twin = nullptr);

    /// Tells that `field` now shows `now`, and before showed `before`.
    static void tell(QWidget* field, QString const& before, QString const& now);

private:
    QObject const* field;
    QObject const* twin;
};
