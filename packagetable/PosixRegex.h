// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <Qt>
#include <memory>
#include <optional>
#include <regex.h>

/// A compiled POSIX extended regular expression (regcomp(3)), which only answers whether it matches somewhere
/// in a text. One thread at a time.
class PosixRegex final
{
public:
    /// What keeps a pattern from being compiled.
    struct Fault
    {
        QString words; ///< regerror(3), in the user's language
        /// Which of the pattern's characters it is that nothing behind it makes good, from 0. Nothing for
        /// long patterns: to find out takes as many compilations.
        std::optional<int> at;
    };
    /// Nothing for a pattern that compiles.
    [[nodiscard]] static std::optional<Fault> fault(QString const& pattern);

    /// Takes `pattern`, in UTF-8, in place of the present expression. False when it doesn't compile; the
    /// present expression is gone even so.
    bool compile(QByteArray const& pattern, Qt::CaseSensitivity newSensitivity = Qt::CaseSensitive);

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
    Compiled compiled(QByteArray const& pattern) const;
    Compiled compiledForBytes(QByteArray const& pattern) const;
    /// Whether a text can't match since it lacks the needed letters.
    [[nodiscard]] bool lacksLetters(QByteArray const& text, bool ascii) const;
    /// Letters that stand in every text that `pattern` matches; may be fewer than there are.
    static QByteArray neededLetters(QByteArray const& pattern);

    Qt::CaseSensitivity sensitivity = Qt::CaseSensitive;
    QByteArray needed;       ///< of the present expression
    bool onlyNeeded = false; ///< the expression is nothing but them
    Compiled regex;
    Compiled forBytes; ///< the same for texts of ASCII; null where it might mean something else
};
