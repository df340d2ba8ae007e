// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Application.h"

QApplication* application = nullptr;
char const* program = "vem";
