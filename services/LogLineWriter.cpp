// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/LogLineWriter.h"

#include "services/LogWindow.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"

#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

namespace Log
{

namespace
{

/// From this level up the package library's lines are debug information.
constexpr unsigned debugLevel = 10;

/// More sorts of lines than a reader ever brings about by moving the cursor.
constexpr qsizetype keptOutcomes = 64;

} // namespace

LineWriter::LineWriter(HTextEdit& textEdit)
    : edit(&textEdit)
{
}

void LineWriter::append(QList<Entry> const& entries, unsigned threshold)
{
    QPalette const& palette = edit->palette();
    if (palette.cacheKey() != inksPalette) {
        inks = inksOn(palette);
        inksPalette = palette.cacheKey();
    }
    QTextCursor end(edit->document());
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    Entry const* sample = nullptr;
    Tags tags;
    for (Entry const& entry : entries) {
        if (entry.level > threshold) {
            continue;
        }
        if (!sample || entry.kind != sample->kind || entry.level != sample->level) {
            sample = &entry;
            tags = tagsOf(entry, inks);
        }
        appendLine(entry.text, tags, end);
    }
    end.endEditBlock();
}

QString LineWriter::markUp(Entry const& entry, QPalette const& palette)
{
    return markUp(entry.text, tagsOf(entry, inksOn(palette)));
}

QString LineWriter::markUp(QString text, Tags const& tags)
{
    Window::htmlProtect(text);
    return tags.before + text + tags.after;
}

void LineWriter::appendLine(QString const& text, Tags const& tags, QTextCursor& end)
{
    bool const ordinary = !edit->document()->isEmpty() && isPlain(text);
    if (!ordinary) {
        edit->appendCompact(markUp(text, tags));
        end.movePosition(QTextCursor::End);
        return;
    }
    QTextCursor cursor = edit->textCursor();
    bool const selected = cursor.hasSelection();
    Outcome line{tags.before, text.isEmpty(), cursor.blockFormat(), cursor.charFormat(), {}, {}, {}};
    cursor = QTextCursor();
    auto const known = std::find_if(outcomes.cbegin(), outcomes.cend(), [&line](Outcome const& outcome) {
        return outcome.before == line.before && outcome.empty == line.empty &&
               outcome.cursorBlock == line.cursorBlock && outcome.cursorText == line.cursorText;
    });
    if (known != outcomes.cend()) {
        end.insertBlock(known->block, known->blockText);
        end.insertText(text, known->text);
        if (!selected) {
            // A cursor at the end has moved on and would take this line's colour to the next one.
            edit->setCurrentCharFormat(line.cursorText);
        }
        return;
    }
    edit->appendCompact(markUp(text, tags));
    end.movePosition(QTextCursor::End);
    QTextBlock const last = end.block();
    line.block = last.blockFormat();
    line.blockText = last.charFormat();
    line.text = line.empty ? line.blockText : last.begin().fragment().charFormat();
    if (outcomes.size() == keptOutcomes) {
        outcomes.clear();
    }
    outcomes.append(line);
}

LineWriter::Inks LineWriter::inksOn(QPalette const& palette)
{
    auto const ink = [&palette](QString const& name) {
        QColor const color = Colors::onBase(name, palette);
        return color == QColor(name) ? name : color.name();
    };
    return {
        ink(Colors::minor()), ink(Colors::ok()), ink(Colors::warning()), ink(Colors::action()),
        ink(Colors::error())};
}

LineWriter::Tags LineWriter::tagsOf(Entry const& entry, Inks const& inks)
{
    auto const coloured = [](QString const& colour) {
        return Tags{Window::tr("<font color=\"%1\">").arg(colour), Window::tr("</font>")};
    };
    switch (entry.kind) {
    case Info:
        return entry.level < debugLevel ? Tags{Window::tr("<font>"), Window::tr("</font>")}
                                        : coloured(inks.minor);
    case Output:
        return coloured(inks.output);
    case Warning:
        return coloured(inks.warning);
    case Action:
        return {Window::tr("<h2><font color=\"%1\">").arg(inks.action), Window::tr("</font></h2>")};
    case Error:
    default:
        return coloured(inks.error);
    }
}

bool LineWriter::isPlain(QString const& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        char16_t const unit = character.unicode();
        if (unit < u' ') {
            return unit == u'\t';
        }
        // The ampersand may begin an entity; the others are separators and the document's own marks.
        return unit != u'&' && unit != QChar::LineSeparator && unit != QChar::ParagraphSeparator &&
               unit != QChar::ObjectReplacementCharacter && (unit < 0xFDD0 || unit > 0xFDEF);
    });
}

} // namespace Log
