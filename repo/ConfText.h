// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// How a configuration file's bytes differ from its text, which begins with its first character and whose
/// lines end in line feeds. A plain value.
struct ConfForm
{
    /// The bytes of `text` in this form.
    [[nodiscard]] QByteArray bytesOf(QByteArray const& text) const;

    bool hasMark = false;            ///< a UTF-8 byte order mark stands before the text
    bool hasCarriageReturns = false; ///< all lines end in CR LF
};

/// The text of a configuration file, to be taken line by line. Each byte is one character of the same value
/// (Latin-1). A value on the stack of the reader.
class ConfText final
{
public:
    explicit ConfText(QByteArray const& content);

    /// Takes the next logical line: a physical one with all that follow it and begin with a blank or a tab,
    /// joined by line feeds. A last line without a line feed counts unless it is empty. False at the end.
    ///
    /// Where only some lines of a file end in CR LF, the CRs are part of the lines.
    [[nodiscard]] bool takeLine(QString& line);

    /// Gives the line that was taken last back; the next `takeLine` takes it again.
    void putBack() { next = last; }

    [[nodiscard]] ConfForm form() const { return ownForm; }

private:
    [[nodiscard]] qsizetype endOfLine(qsizetype begin) const;

    ConfForm ownForm;
    QByteArray text;
    qsizetype next = 0; ///< where the next line begins
    qsizetype last = 0; ///< where the one taken last began
};
