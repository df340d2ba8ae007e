// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// What the process was started with, for the programs that it starts itself. Later on descriptors 1 and 2
/// may lead into pipes, and the whole process may stand in another root, while rpm works there.
namespace StartingPoint
{

/// Opens those of the descriptors 0 to 2 that are closed, on /dev/null: whatever is opened next, such as the
/// connection to the display, would get their numbers, and would be taken for them. Then remembers the three,
/// the root and the working directory, by descriptors that no program inherits. To be called once, as the
/// first thing of `main`. What can't be had is not remembered.
void remember();

/// Writes words for whoever started the process to the error output that it was started with. Any thread.
void tell(char const* words);

/// Back to what was remembered, and to a signal mask and signal actions as a program expects them; no other
/// descriptor stays open. For a process between fork and exec, which has no other threads: only what a signal
/// handler may call is called. Without `remember` the descriptors, root and directory stay as they are.
void restoreInChild();

} // namespace StartingPoint
