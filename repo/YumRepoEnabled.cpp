// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/YumRepoEnabled.h"

#include <QList>

namespace
{

/// Characters as code points, so that one beyond the first plane is never torn apart.
using Characters = QList<uint>;

QString escaped(uint character)
{
    char32_t const text = character;
    return QRegularExpression::escape(QString::fromUcs4(&text, 1));
}

bool negates(uint character)
{
    return character == U'!' || character == U'^';
}

/// Where the set that opens at `open` closes, or -1. A "]" in the first place belongs to the set.
qsizetype setEnd(Characters const& wildcard, qsizetype open)
{
    qsizetype first = open + 1;
    if (first < wildcard.size() && negates(wildcard[first]))
        ++first;
    return wildcard.indexOf(U']', first + 1);
}

/// The set that stands between the brackets. Its members are escaped one by one, since characters that are
/// plain in a shell's set have a meaning in a regular expression's.
QString setPattern(Characters const& set)
{
    bool const negated = negates(set.first());
    QString members;
    for (qsizetype at = negated ? 1 : 0; at < set.size(); ++at) {
        bool const isRange = at + 2 < set.size() && set[at + 1] == U'-';
        if (!isRange) {
            members += escaped(set[at]);
            continue;
        }
        // A range that runs backwards holds nothing.
        if (set[at] <= set[at + 2])
            members += escaped(set[at]) + u'-' + escaped(set[at + 2]);
        at += 2;
    }

    if (members.isEmpty())
        return negated ? QStringLiteral(".") : QStringLiteral("(?!)");
    return (negated ? QStringLiteral("[^") : QStringLiteral("[")) + members + u']';
}

QString patternOf(Characters const& wildcard)
{
    QString pattern;
    for (qsizetype at = 0; at < wildcard.size(); ++at) {
        uint const character = wildcard[at];
        if (character == U'*') {
            pattern += QStringLiteral(".*");
        } else if (character == U'?') {
            pattern += u'.';
        } else if (qsizetype const end = character == U'[' ? setEnd(wildcard, at) : -1; end >= 0) {
            pattern += setPattern(wildcard.mid(at + 1, end - at - 1));
            at = end;
        } else {
            pattern += escaped(character);
        }
    }
    return QRegularExpression::anchoredPattern(pattern);
}

} // namespace

YumRepoEnabled::YumRepoEnabled(bool enable, QString const& wildcard)
    : enabled(enable),
      repo(patternOf(wildcard.toUcs4()), QRegularExpression::DotMatchesEverythingOption)
{
}

bool YumRepoEnabled::matches(QString const& id) const
{
    return repo.isValid() && repo.match(id).hasMatch();
}
