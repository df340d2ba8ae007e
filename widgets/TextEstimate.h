// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QString>
#include <array>
#include <optional>

/// Bounds for the width of a text on one line, from the advances of its characters and without laying it
/// out, which costs fifty times as much. Holds for one font. Not for several threads at a time.
class TextEstimate
{
public:
    /// In pixels. The laid out text is no narrower than `least` and no wider than `most`.
    struct Bounds
    {
        qreal least;
        qreal most;
    };

    explicit TextEstimate(QFont const& font);

    /// Close bounds for printable ASCII; for any other text the bounds are 0 and infinity.
    [[nodiscard]] Bounds bounds(QString const& text) const;

    /// A text that is exactly as wide, the same for as many texts as possible: each digit becomes a 0 where
    /// the font makes all digits alike in their place. Other texts come back as they are.
    [[nodiscard]] QString representative(QString const& text);

private:
    static constexpr char16_t first = u' ';
    static constexpr char16_t last = u'~';
    static constexpr std::size_t printables = last - first + 1;

    [[nodiscard]] bool hasLikeDigitsBeside(QChar neighbour);

    QFontMetricsF const metrics;
    qreal const em;
    std::array<qreal, printables> advances{};
    // Whether the digits are alike beside each character, as far as it was asked.
    std::array<std::optional<bool>, printables> likeDigits{};
};
