// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// Ctrl-C on the terminal. Libraries take SIGINT for themselves at times, the interpreter while it starts and
/// a download while it runs, and what came then would be lost or end nothing but the download.
namespace Interrupt
{

/// From now on SIGINT ends the process at once, whatever handler somebody installs: a thread of its own waits
/// for the signal, which all others block. To be called once, early in `main`, before there are other
/// threads. Processes that are forked have the signal open; those of vfork, as short-lived children of the
/// interpreter may be, do not.
void endAtOnce();

/// While an rpm transaction runs, SIGINT does what those who work there have arranged, who know what must not
/// be cut off. Any thread.
void setTransactionRuns(bool runs);

} // namespace Interrupt
