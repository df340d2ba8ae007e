// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSet>
#include <QString>

/// Every credential that a text of the configuration holds, each as the words that give it, be it in a line
/// that is commented out: passwords as options, users with a password before the host of an address, and the
/// names and passwords of buffet addresses. One that is left blank is none. No state; any thread.
[[nodiscard]] QSet<QString> credentialsIn(QString const& text);
