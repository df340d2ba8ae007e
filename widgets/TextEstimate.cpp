// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/TextEstimate.h"

#include <limits>

namespace
{

// How far kerning may widen or narrow a text against the sum of its advances. Fonts mostly pull letters
// together, by a tenth in the worst of pairs.
constexpr qreal mostWidening = 1.03;
constexpr qreal mostNarrowing = 0.8;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

TextEstimate::TextEstimate(QFont const& font)
    : metrics(font),
      em(metrics.height())
{
    for (std::size_t i = 0; i < printables; ++i) {
        advances[i] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(first + i)));
    }
}

TextEstimate::Bounds TextEstimate::bounds(QString const& text) const
{
    qreal sum = 0;
    for (QChar const character : text) {
        if (character < first || character > last) {
            return {0, std::numeric_limits<qreal>::infinity()};
        }
        sum += advances[static_cast<std::size_t>(character.unicode() - first)];
    }
    // The last letter of a slanted font hangs over its advance, by less than half an em.
    return {sum * mostNarrowing - em / 2, sum * mostWidening + em / 2};
}

QString TextEstimate::representative(QString const& text)
{
    QString result = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isDigit(text.at(i))) {
            continue;
        }
        QChar const before = i > 0 ? text.at(i - 1) : QChar(u'0');
        QChar const after = i + 1 < text.size() ? text.at(i + 1) : QChar(u'0');
        if (!hasLikeDigitsBeside(before) || !hasLikeDigitsBeside(after)) {
            return text;
        }
        result[i] = u'0';
    }
    return result;
}

bool TextEstimate::hasLikeDigitsBeside(QChar neighbour)
{
    if (neighbour < first || neighbour > last) {
        return false;
    }
    std::optional<bool>& known = likeDigits[static_cast<std::size_t>(neighbour.unicode() - first)];
    if (!known) {
        auto const isLikeZero = [&](QChar digit) {
            auto const width = [&](QChar left, QChar right) {
                return metrics.horizontalAdvance(QString(left) + right);
            };
            return width(digit, neighbour) == width(u'0', neighbour) &&
                   width(neighbour, digit) == width(neighbour, u'0');
        };
        known = true;
        for (char16_t digit = u'0'; digit <= u'9' && *known; ++digit) {
            known = isLikeZero(digit);
        }
    }
    return *known;
}
