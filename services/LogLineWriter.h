// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Log.h"

#include <QList>
#include <QTextBlockFormat>
#include <QTextCharFormat>

class HTextEdit;
class QPalette;
class QTextCursor;

namespace Log
{

/// Appends records to a text edit as lines in the colours of their kinds. What a line looks like is told
/// by its mark-up, which HTextEdit::appendCompact() reads. Reading mark-up is most of the work, though,
/// and nearly all lines differ in nothing but their words: the formats that came of one are kept and the
/// words of the next of its sort are put in with them. Owned by the log window, GUI thread.
class LineWriter final
{
    Q_DISABLE_COPY_MOVE(LineWriter)

public:
    /// `edit` is not owned and outlives this.
    explicit LineWriter(HTextEdit& edit);

    /// Appends those of `entries` that show at the detail level `threshold`, as one change of the document.
    void append(QList<Entry> const& entries, unsigned threshold);

    /// The text of `entry` between the tags of its kind, whose colours can be read on `palette`.
    [[nodiscard]] static QString markUp(Entry const& entry, QPalette const& palette);

private:
    /// The tags around a line of one kind.
    struct Tags
    {
        QString before;
        QString after;
    };

    /// The names of the colours, as they can be read on the edit's palette.
    struct Inks
    {
        QString minor, output, warning, action, error;
    };

    /// What became of a line, and everything but its words that decided it. The edit's cursor counts,
    /// since a new paragraph begins with the formats that stand there.
    struct Outcome
    {
        QString before;
        bool empty = false;
        QTextBlockFormat cursorBlock;
        QTextCharFormat cursorText;

        QTextBlockFormat block;
        QTextCharFormat blockText;
        QTextCharFormat text;
    };

    [[nodiscard]] static Inks inksOn(QPalette const& palette);
    [[nodiscard]] static Tags tagsOf(Entry const& entry, Inks const& inks);
    [[nodiscard]] static QString markUp(QString text, Tags const& tags);
    /// Whether `text` reads the same as mark-up and as it stands.
    [[nodiscard]] static bool isPlain(QString const& text);

    void appendLine(QString const& text, Tags const& tags, QTextCursor& end);

    HTextEdit* edit;
    Inks inks;
    qint64 inksPalette = -1; ///< the key of the palette that `inks` are for
    QList<Outcome> outcomes;
};

} // namespace Log
