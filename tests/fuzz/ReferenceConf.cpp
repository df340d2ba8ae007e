// SPDX-License-Identifier: GPL-2.0-or-later
#include "ReferenceConf.h"

#include <array>
#include <optional>

namespace
{

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t';
}

QByteArrayList physicalLines(QByteArray const& text)
{
    QByteArrayList lines = text.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

/// Whether a CR stands before each line feed; not where there is none.
bool endsInReturns(QByteArray const& text)
{
    char before = 0;
    bool isFound = false;
    for (char const byte : text) {
        if (byte == '\n' && before != '\r')
            return false;
        isFound = isFound || byte == '\n';
        before = byte;
    }
    return isFound;
}

QByteArray withoutReturns(QByteArray text)
{
    while (text.endsWith('\r'))
        text.chop(1);
    return text;
}

QByteArrayList logicalLines(QByteArrayList const& physical)
{
    QByteArrayList logical;
    for (QByteArray const& line : physical) {
        if (!logical.isEmpty() && !line.isEmpty() && isBlank(line.front()))
            logical.last() += '\n' + line;
        else
            logical += line;
    }
    return logical;
}

/// The value, when the line sets the option.
std::optional<QByteArray> valueOf(QByteArray const& line, QByteArray const& option)
{
    qsizetype separator = 0;
    while (separator < line.size() && line[separator] != ':' && line[separator] != '=')
        ++separator;
    if (separator == line.size())
        return std::nullopt;

    QByteArray name = line.left(separator);
    while (!name.isEmpty() && isBlank(name.back()))
        name.chop(1);
    if (name != option)
        return std::nullopt;

    QByteArray value = line.mid(separator + 1);
    while (!value.isEmpty() && isBlank(value.front()))
        value.remove(0, 1);
    return withoutReturns(value);
}

/// Addresses as they are written: one a line, the further ones indented.
QByteArray addressLines(QByteArray const& value)
{
    QByteArray lines;
    bool inGap = false;
    for (char const byte : value) {
        bool const isGap = isBlank(byte) || byte == '\n';
        if (!isGap)
            lines += byte;
        else if (!inGap)
            lines += "\n        ";
        inGap = isGap;
    }
    return lines;
}

/// A section while its lines come in.
struct OpenSection
{
    QByteArray head;
    std::array<QByteArray, 3> texts;    ///< name, addresses, list of mirrors
    std::array<QByteArray, 2> switches; ///< enabled, gpgcheck: empty when not stated
    QByteArray others;

    void take(QByteArray const& line, ReferenceConf::Section& section)
    {
        static std::array<QByteArray, 3> const textNames{"name", "baseurl", "mirrorlist"};
        static std::array<QByteArray, 2> const switchNames{"enabled", "gpgcheck"};
        for (size_t at = 0; at < textNames.size(); ++at) {
            if (auto const value = valueOf(line, textNames[at])) {
                texts[at] = at == 1 ? addressLines(*value) : *value;
                return;
            }
        }
        for (size_t at = 0; at < switchNames.size(); ++at) {
            if (auto const value = valueOf(line, switchNames[at])) {
                switches[at] = *value == "0" ? "0" : "1";
                if (at == 0)
                    section.enabled += *value != "0";
                return;
            }
        }
        if (!line.isEmpty())
            others += line + '\n';
    }

    [[nodiscard]] QByteArray written() const
    {
        static std::array<QByteArray, 5> const names{
            "name=", "baseurl=", "mirrorlist=", "enabled=", "gpgcheck="};
        QByteArray text = head + '\n';
        for (size_t at = 0; at < names.size(); ++at) {
            QByteArray const& value = at < 3 ? texts[at] : switches[at - 3];
            if (!value.isEmpty())
                text += names[at] + value + '\n';
        }
        return text + others;
    }
};

} // namespace

ReferenceConf::ReferenceConf(QByteArray const& content, Kind kind)
    : hasMark(content.left(3) == "\xef\xbb\xbf")
{
    QByteArray const text = content.mid(hasMark ? 3 : 0);
    hasReturns = endsInReturns(text);
    QByteArrayList physical = physicalLines(text);
    for (QByteArray& line : physical) {
        if (hasReturns && line.endsWith('\r'))
            line.chop(1);
    }
    // What half of an end leaves is no line.
    if (hasReturns && !physical.isEmpty() && physical.last().isEmpty() && !text.endsWith('\n'))
        physical.removeLast();

    QByteArrayList lines = logicalLines(physical);
    while (kind == MainFile && !lines.isEmpty() &&
           (withoutReturns(lines.first()) == "[main]" || !lines.first().startsWith('['))) {
        readMainOption(lines.first());
        mainOptions += lines.takeFirst() + '\n';
    }
    readSections(lines);
}

QByteArray ReferenceConf::formed(QByteArray const& text) const
{
    QByteArray result = hasMark ? "\xef\xbb\xbf" : "";
    for (char const byte : text) {
        if (hasReturns && byte == '\n')
            result += '\r';
        result += byte;
    }
    return result;
}

void ReferenceConf::readMainOption(QByteArray const& line)
{
    if (auto value = valueOf(line, "reposdir")) {
        reposdirs = value->replace(',', ' ').split(' ');
        reposdirs.removeAll(QByteArray());
    } else if (auto const enabled = valueOf(line, "enabled")) {
        mainEnabled = *enabled != "0";
    }
}

void ReferenceConf::readSections(QByteArrayList const& lines)
{
    std::optional<OpenSection> open;
    for (QByteArray const& line : lines) {
        if (!line.startsWith('[')) {
            if (open)
                open->take(line, sections.last());
            continue;
        }
        if (open)
            sections.last().written = open->written();
        open.reset();
        QByteArray const head = withoutReturns(line);
        if (!head.endsWith(']')) {
            isWellFormed = false;
            return;
        }
        open.emplace();
        open->head = head;
        sections += Section{head.mid(1, head.size() - 2), {}, {}};
    }
    if (open)
        sections.last().written = open->written();
}
