// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <regex.h>

/// A compiled POSIX extended regular expression (regcomp(3)), case-sensitive, which only answers whether
/// it matches somewhere in a text. One thread at a time.
class PosixRegex final
{
public:
    PosixRegex() = default;
    ~PosixRegex();
    PosixRegex(PosixRegex const&) = delete;
    PosixRegex& operator=(PosixRegex const&) = delete;

    /// Takes `pattern`, in UTF-8, in place of the present expression. False when it doesn't compile; the
    /// present expression is gone even so.
    bool compile(QByteArray const& pattern);

    /// Whether the expression matches somewhere in `text`, in UTF-8. Without a compiled expression
    /// everything matches.
    [[nodiscard]] bool matches(QByteArray const& text) const;

private:
    int regCompResult = -1; ///< what regcomp(3) answered last; 0: `regex` holds a compiled expression
    regex_t regex{};
};
