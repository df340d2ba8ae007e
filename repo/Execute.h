// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

/// Programs beside this one.
namespace Execute
{

/// Starts a program and forgets it; it outlives this one. `argv` ends in a null pointer; its first element is
/// the program's path, which is not searched for. A failure to start anything is told in a box over `parent`,
/// all later ones, such as a missing program, on standard error only. Returns at once. GUI thread.
void execute(QWidget* parent, char* const* argv);

} // namespace Execute
