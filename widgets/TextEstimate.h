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

    /// A lower bound of the width that lies closer than `bounds`, for the price of a layout; 0 for a text
    /// beyond printable ASCII.
    [[nodiscard]] qreal closeLeast(QString const& text) const;

    /// A text that is exactly as wide, the same for as many texts as possible: each digit becomes a 0 where
    /// the font makes all digits alike in their place. Other texts come back as they are. Valid until the
    /// next call, and as long as `text`.
    [[nodiscard]] QStringView representative(QString const& text);

    /// Makes `folded` the text with a 0 for each digit, wherever it stands.
    static void fold(QString const& text, QString& folded);

private:
    static constexpr char16_t first = u' ';
    static constexpr char16_t last = u'~';
    static constexpr std::size_t printables = last - first + 1;

    [[nodiscard]] bool hasLikeDigitsBeside(QChar neighbour);

    QFontMetricsF const metrics;
    qreal const em;
    // In parts of a pixel, rounded up: sums of whole numbers take a quarter of the time.
    static constexpr qint64 partsOfPixel = 64;
    // More than any text is wide, so that one of these shows in the sum.
    static constexpr qint64 unknown = qint64(1) << 40;
    // By character; the last place is for all others.
    std::array<qint64, last + 2> advances{};
    // Whether the digits are alike beside each character, as far as it was asked.
    std::array<std::optional<bool>, printables> likeDigits{};
    // What `representative` answered last, kept so that a table of many rows doesn't allocate for each.
    QString folded;
};
