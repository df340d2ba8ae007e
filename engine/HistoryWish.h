// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// What the user wants done about a transaction of the package library's history.
struct HistoryWish
{
    enum class Kind
    {
        Undo,
        Redo,
        RollBack ///< undo all that came behind it
    };

    Kind kind;
    int number;           ///< the transaction's, as the library counts
    bool without = false; ///< what cannot be done is left alone
};
