// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <memory>
#include <regex.h>

/// A compiled POSIX extended regular expression (regcomp(3)), case-sensitive, which only answers whether
/// it matches somewhere in a text. One thread at a time.
class PosixRegex final
{
public:
    /// Takes `pattern`, in UTF-8, in place of the present expression. False when it doesn't compile; the
    /// present expression is gone even so.
    bool compile(QByteArray const& pattern);

    /// Whether the expression matches somewhere in `text`, in UTF-8. Without a compiled expression
    /// everything matches.
    [[nodiscard]] bool matches(QByteArray const& text) const;

private:
    struct Free
    {
        void operator()(regex_t* regex) const;
    };
    using Compiled = std::unique_ptr<regex_t, Free>;

    /// What regcomp(3) makes of the pattern in the locale of this thread; null when it doesn't compile.
    static Compiled compiled(QByteArray const& pattern);
    static Compiled compiledForBytes(QByteArray const& pattern);
    /// Letters that stand in every text that `pattern` matches; may be fewer than there are.
    static QByteArray neededLetters(QByteArray const& pattern);

    QByteArray needed;       ///< of the present expression
    bool onlyNeeded = false; ///< the expression is nothing but them
    Compiled regex;
    Compiled forBytes; ///< the same for texts of ASCII; null where it might mean something else
};
