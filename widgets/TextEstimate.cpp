// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/TextEstimate.h"

#include <algorithm>
#include <cmath>
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
    advances.fill(unknown);
    for (char16_t printable = first; printable <= last; ++printable) {
        advances[printable] =
            static_cast<qint64>(std::ceil(metrics.horizontalAdvance(QChar(printable)) * partsOfPixel));
    }
}

TextEstimate::Bounds TextEstimate::bounds(QString const& text) const
{
    qint64 parts = 0;
    for (QChar const character : text) {
        parts += advances[std::min<std::size_t>(character.unicode(), advances.size() - 1)];
    }
    if (parts >= unknown) {
        return {0, std::numeric_limits<qreal>::infinity()};
    }
    qreal const sum = static_cast<qreal>(parts) / partsOfPixel;
    // The last letter of a slanted font hangs over its advance, by less than half an em.
    return {sum * mostNarrowing - em / 2, sum * mostWidening + em / 2};
}

qreal TextEstimate::closeLeast(QString const& text) const
{
    // What the rounding of each glyph and the hanging of the last one may take away is far less.
    return std::max(
        bounds(text).least, bounds(text).least > 0 ? metrics.horizontalAdvance(text) - em / 4 : 0);
}

QStringView TextEstimate::representative(QString const& text)
{
    folded.resize(text.size());
    QChar* const letters = folded.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        letters[i] = text.at(i);
        if (!isDigit(text.at(i))) {
            continue;
        }
        QChar const before = i > 0 ? text.at(i - 1) : QChar(u'0');
        QChar const after = i + 1 < text.size() ? text.at(i + 1) : QChar(u'0');
        if (!hasLikeDigitsBeside(before) || !hasLikeDigitsBeside(after)) {
            return text;
        }
        letters[i] = u'0';
    }
    return folded;
}

void TextEstimate::fold(QString const& text, QString& folded)
{
    folded.resize(text.size());
    QChar* const letters = folded.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        letters[i] = isDigit(text.at(i)) ? QChar(u'0') : text.at(i);
    }
}

bool TextEstimate::hasLikeDigitsBeside(QChar neighbour)
{
    if (neighbour < first || neighbour > last) {
        return false;
    }
    std::optional<bool>& known = likeDigits[static_cast<std::size_t>(neighbour.unicode() - first)];
    if (!known) {
        auto const width = [&](QChar left, QChar right) {
            return metrics.horizontalAdvance(QString(left) + right);
        };
        qreal const zeroBefore = width(u'0', neighbour);
        qreal const zeroBehind = width(neighbour, u'0');
        auto const isLikeZero = [&](QChar digit) {
            return width(digit, neighbour) == zeroBefore && width(neighbour, digit) == zeroBehind;
        };
        known = true;
        for (char16_t digit = u'0'; digit <= u'9' && *known; ++digit) {
            known = isLikeZero(digit);
        }
    }
    return *known;
}
