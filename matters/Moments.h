// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Moments in the form that sorts, in local time. Any thread.
namespace Moments
{

/// Day and time of seconds since 1970; empty for 0, which stands for nobody knows.
[[nodiscard]] QString moment(qint64 seconds);
/// The day alone.
[[nodiscard]] QString day(qint64 seconds);

} // namespace Moments
