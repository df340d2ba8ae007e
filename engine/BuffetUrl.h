// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Removes the credentials of buffet paths ("buffet?login=…&key=…&path=") from a file name or URL, so that
/// what is shown is the file alone.
void removeBuffetCredentials(QString& text);
