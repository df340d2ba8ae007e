// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class YumIOHost;

/// The host module `yumIOC`, by which the helper script calls back into the program. There is one per
/// process, without an owner; it only forwards to the host, with the interpreter lock held, on whatever
/// thread the script runs.
///
/// Nothing that the host does breaks the interpreter's rules: what it throws becomes a RuntimeError, so does
/// a null answer without an exception, and an exception beside a good answer is dropped.
class YumIOC
{
public:
    YumIOC() = delete;

    /// Makes `host` the one that answers, and at the first call adds the module to `sys.modules`. Needs the
    /// interpreter lock. The host isn't owned; pass null before it goes, so that the script's exit handlers
    /// get a RuntimeError instead of a dead object. A module that can't be made leaves its traceback on
    /// standard error, `moduleRegistered` false, and the script's `import yumIOC` failing.
    static void initialize(YumIOHost* host);

    static YumIOHost* yumIO;      ///< who answers; null: no one
    static bool moduleRegistered; ///< the script can import the module
};
