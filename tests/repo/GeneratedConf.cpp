// SPDX-License-Identifier: GPL-2.0-or-later
#include "GeneratedConf.h"

#include <array>

namespace
{

bool isGap(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n';
}

QByteArray withoutLeadingBlanks(QByteArray text)
{
    while (text.startsWith(' ') || text.startsWith('\t'))
        text.remove(0, 1);
    return text;
}

/// Addresses as they are written: one a line, the further ones indented.
QByteArray addressLines(QByteArray const& value)
{
    QByteArray lines;
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (!isGap(value[at]))
            lines += value[at];
        else if (at == 0 || !isGap(value[at - 1]))
            lines += "\n        ";
    }
    return lines;
}

QByteArray withFinalLineFeed(QByteArray const& text)
{
    return text.isEmpty() || text.endsWith('\n') ? text : text + '\n';
}

/// The value of an option as it is understood: a CR before the line feed is none of it.
QByteArray withoutReturns(QByteArray value)
{
    while (value.endsWith('\r'))
        value.chop(1);
    return value;
}

/// Whether not all lines end in CR LF, by chance, which would make it a file of another form.
bool hasPlainEnd(QByteArray const& text)
{
    return text.count("\r\n") < text.count('\n');
}

} // namespace

GeneratedConf::GeneratedConf(quint32 seed)
    : random(seed)
{
}

QByteArray GeneratedConf::bytes(int most)
{
    // The bytes that mean something come often.
    static constexpr char special[] = "  \t\t[]=:#,%\r\0abc";
    QByteArray result;
    for (int count = below(most + 1); count > 0; --count) {
        char const byte = maybe(2) ? special[below(int(sizeof special) - 1)] : char(random.bounded(256));
        if (byte != '\n')
            result += byte;
    }
    return result;
}

QByteArray GeneratedConf::continuations()
{
    QByteArray lines;
    while (maybe(4))
        lines += (maybe(2) ? "\n " : "\n\t") + bytes(12);
    return lines;
}

QByteArray GeneratedConf::plainLine()
{
    static constexpr std::array<char const*, 10> starts{
        "#", "# name=", "#baseurl = ", "Name=", "names=", "x", "=", ":", "enabled ,=", "gpgkey="};
    return starts[size_t(below(int(starts.size())))] + bytes(20) + continuations();
}

GeneratedConf::File GeneratedConf::mainFile(QByteArray const& reposdir)
{
    File file;
    while (maybe(3))
        file.text += maybe(3) ? QByteArray("\n") : plainLine() + '\n';
    if (!maybe(5))
        file.text += "[main]\n";
    if (maybe(2))
        file.text += "enabled" + blanks() + '=' + bytes(2) + '\n';
    file.text += "reposdir" + blanks() + (maybe(2) ? ":" : "=") + blanks() + reposdir;
    while (maybe(2))
        file.text += '\n' + (maybe(4) ? QByteArray() : plainLine());
    // Not a line of blanks, which would be one more directory.
    if (!maybe(4))
        file.text += '\n';

    file.written = withFinalLineFeed(file.text);
    if (maybe(3)) {
        file.text = file.written;
        addSections(file, 1 + below(3));
    }
    return file;
}

GeneratedConf::File GeneratedConf::repoFile()
{
    File file;
    // What stands above the first section is lost.
    while (maybe(3))
        file.text += maybe(4) ? blanks() + '\n' : plainLine() + '\n';
    addSections(file, below(6));
    return file;
}

void GeneratedConf::addSections(File& file, int count)
{
    for (; file.sections < count; ++file.sections) {
        if (file.sections > 0)
            file.written += '\n';
        addSection(file);
    }
    // A last line without a line feed counts.
    if (count > 0 && maybe(3) && hasPlainEnd(file.text.chopped(1)))
        file.text.chop(1);
}

void GeneratedConf::addSection(File& file)
{
    QByteArray const head = '[' + bytes(4) + QByteArray::number(++ids) + bytes(4) + "]\n";
    QByteArray text = head;
    std::array<QByteArray, 5> options;
    QByteArray others;

    // A line that is indented would belong to the head.
    for (int lines = below(9); lines > 0; --lines) {
        int const kind = below(8);
        if (kind < 5) {
            static constexpr std::array<char const*, 5> names{
                "name", "baseurl", "mirrorlist", "enabled", "gpgcheck"};
            QByteArray value = withoutLeadingBlanks(bytes(15));
            if (kind >= 3)
                value = QByteArrayList{"0", "1", "0 ", "00", "no", ""}[below(6)];
            value += continuations();
            text += names[size_t(kind)] + blanks() + (maybe(2) ? ":" : "=") + blanks() + value + '\n';
            value = withoutReturns(value);
            if (kind >= 3)
                value = value == "0" ? "0" : "1";
            else if (kind == 1)
                value = addressLines(value);
            options[size_t(kind)] =
                value.isEmpty() ? QByteArray() : names[size_t(kind)] + ('=' + value) + '\n';
        } else if (kind < 7) {
            QByteArray const line = plainLine() + '\n';
            text += line;
            others += line;
        } else {
            QByteArray const more = continuations();
            text += more + '\n';
            // A blank line is lost, but one that is continued says something.
            if (!more.isEmpty())
                others += more + '\n';
        }
    }

    file.text += text;
    file.written += head;
    for (QByteArray const& option : options)
        file.written += option;
    file.written += others;
}
