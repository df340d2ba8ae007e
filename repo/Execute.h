// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

/// Programs beside this one.
namespace Execute
{

/// Starts a program and forgets it; it outlives this one. `argv` ends in a null pointer; its first element is
/// the program's path, which is not searched for. A failure to start anything is told in a box over `parent`,
/// all later ones, such as a missing program, on standard error only. The program has a session of its own,
/// starts where this one did (see `StartingPoint`), and gets nothing of it but descriptors 0 to 2. Returns at
/// once. GUI thread.
void execute(QWidget* parent, char* const* argv);

} // namespace Execute
