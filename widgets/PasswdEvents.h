// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QEvent>

#include <functional>

/// Which events the password fields pass on to their hidden twins. GUI thread.
class PasswdEvents
{
public:
    [[nodiscard]] static bool isMouse(QEvent const* event);

    /// What keeps the twin's geometry like the field's. It may arrive while the field's text changes.
    [[nodiscard]] static bool isGeometry(QEvent const* event);

    /// What the user does to the text. Keys that move the focus are not for the twin.
    [[nodiscard]] static bool isInput(QEvent const* event);

    /// Gives the event to `twin`, the handler of the hidden field. Of an input method only the finished text:
    /// composition shows in the field alone.
    static void passOn(QEvent* event, std::function<void(QEvent*)> const& twin);
};
