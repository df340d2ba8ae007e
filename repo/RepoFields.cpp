// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoFields.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>

namespace
{

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

QList<RepoFields::Misread> misreadLines(QStringList const& lines)
{
    QList<RepoFields::Misread> found;
    bool followsOption = false;
    for (int at = 0; at < lines.size(); ++at) {
        QString const& line = lines[at];
        if (line.isEmpty()) {
            followsOption = false;
        } else if (!isBlank(line.front())) {
            followsOption = line.front() != u'#' && line.front() != u';';
            if (line.front() == u'[') {
                found.append({RepoFields::Misread::SectionHead, at + 1});
            } else if (followsOption && !line.contains(u'=')) {
                found.append({RepoFields::Misread::NoOption, at + 1});
            }
        } else if (!followsOption && !line.trimmed().isEmpty()) {
            found.append({RepoFields::Misread::Continuation, at + 1});
        }
    }
    return found;
}

} // namespace

QString RepoFields::oneLine(QString text)
{
    static QRegularExpression const controls(QStringLiteral("[\\x00-\\x1f\\x7f]+"));
    static QRegularExpression const controlsAtEnd(
        QStringLiteral("^[\\x00-\\x1f\\x7f]+|[\\x00-\\x1f\\x7f]+$"));
    return text.remove(controlsAtEnd).replace(controls, QStringLiteral(" "));
}

QString RepoFields::optionLines(QString text)
{
    static QRegularExpression const blankLines(QStringLiteral("^(?:[ \\t]*\\n)*(?:[ \\t]+$)?"));
    return text.remove(blankLines);
}

std::optional<RepoFields::Misread> RepoFields::findMisread(QString const& text, QString const& loaded)
{
    QStringList const lines = text.split(u'\n');
    QStringList const linesBefore = loaded.split(u'\n');
    QStringList known;
    for (Misread const& misread : misreadLines(linesBefore)) {
        known += linesBefore[misread.line - 1];
    }
    qsizetype const first = text.size() - optionLines(text).size();
    for (Misread const& misread : misreadLines(lines)) {
        // The first line would continue an option that stands in another field.
        bool const isFirst = text.left(first).count(u'\n') == misread.line - 1;
        if (isFirst || !known.contains(lines[misread.line - 1])) {
            return misread;
        }
    }
    return std::nullopt;
}
