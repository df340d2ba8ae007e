// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

/// Ctrl-C on the terminal. Libraries take SIGINT for themselves at times, the interpreter while it starts and
/// a download while it runs, and what came then would be lost or end nothing but the download.
namespace Interrupt
{

/// From now on SIGINT ends the process at once, whatever handler somebody installs: a thread of its own waits
/// for the signal, which all others block. To be called once, early in `main`, before there are other
/// threads. Processes that are forked have the signal open; those of vfork, as short-lived children of the
/// interpreter may be, do not.
void endAtOnce();

/// From here on SIGINT doesn't end the process: it is answered by `words` on the terminal, and noted. Any
/// thread.
void transactionBegins(std::string words);

/// SIGINT ends the process again. True when it came since `transactionBegins`: the caller is to leave things
/// in order and call `end`. Any thread; a second call answers false.
[[nodiscard]] bool transactionEnds();

/// Ends the process as SIGINT does. Any thread.
[[noreturn]] void end();

} // namespace Interrupt
