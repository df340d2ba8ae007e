// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class MainWindow;

/// Reads the options that the toolkit has left into the window's start-up flags. Help and every mistake end
/// the process with status 1: help on standard output, a mistake with a message on standard error. Call once,
/// before the window is shown.
void readCommandLine(int argc, char** argv, MainWindow& window);
