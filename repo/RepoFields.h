// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

/// What the text of a field has to be for a file to say what the user sees. No state; any thread.
namespace RepoFields
{

/// A text of one line: control characters, line feeds among them, are the blanks that a field shows for them;
/// at either end they vanish. Bytes beyond ASCII stay, since characters of UTF-8 consist of them.
[[nodiscard]] QString oneLine(QString text);

/// The lines of other options without blank lines in front, which would belong to the option before.
[[nodiscard]] QString optionLines(QString text);

/// A line of other options that means something else to who reads the file.
struct Misread
{
    enum Kind
    {
        Continuation, ///< indented below nothing that it could continue
        SectionHead,
        NoOption ///< lacks the sign between an option and its value, for which the library drops the whole
                 ///< file
    };

    Kind kind;
    int line; ///< from 1
};

/// The first such line of `text`; none of those that a file held already, in `loaded`.
[[nodiscard]] std::optional<Misread> findMisread(QString const& text, QString const& loaded);

} // namespace RepoFields
