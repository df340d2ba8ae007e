// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QApplication;

/// The one application object, set by main before the first window exists. Other folders use it to
/// find the GUI thread (`application->thread()`). Null in a program that has not set it.
extern QApplication* application;

/// The name that the program was started by: basename(argv[0]). Owned by main, lives for the process.
extern char const* program;
