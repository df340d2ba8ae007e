// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/ConfText.h"

namespace
{

constexpr char const* mark = "\xef\xbb\xbf";

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t';
}

} // namespace

QByteArray ConfForm::bytesOf(QByteArray const& text) const
{
    QByteArray bytes = text;
    if (hasCarriageReturns)
        bytes.replace("\n", "\r\n");
    return hasMark ? mark + bytes : bytes;
}

ConfText::ConfText(QByteArray const& content)
    : text(content)
{
    ownForm.hasMark = text.startsWith(mark);
    if (ownForm.hasMark)
        text.remove(0, qsizetype(qstrlen(mark)));
    qsizetype const lines = text.count('\n');
    ownForm.hasCarriageReturns = lines > 0 && text.count("\r\n") == lines;
    if (ownForm.hasCarriageReturns) {
        text.replace("\r\n", "\n");
        // The last line may lack its end, or half of it.
        if (text.endsWith('\r'))
            text.chop(1);
    }
}

bool ConfText::takeLine(QString& line)
{
    if (next >= text.size())
        return false;
    last = next;
    qsizetype end = endOfLine(next);
    while (end + 1 < text.size() && isBlank(text[end + 1]))
        end = endOfLine(end + 1);
    line = QString::fromLatin1(text.constData() + next, end - next);
    next = end + 1;
    return true;
}

/// Where the physical line's line feed stands, or the end of the text.
qsizetype ConfText::endOfLine(qsizetype begin) const
{
    qsizetype const at = text.indexOf('\n', begin);
    return at < 0 ? text.size() : at;
}
