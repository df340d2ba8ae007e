// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Colors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace
{

// Ratios of luminance between words and their ground, as accessibility guidelines count them: 1 is nothing
// to be seen, 21 black on white.
constexpr double leastContrast = 4.5;
constexpr double companionContrast = 6.0; ///< more, so that a disabled companion can be fainter
constexpr double placeholderContrast =
    4.8; ///< some more than the least, since colours on a screen are rounded

double linear(float channel)
{
    double const value = static_cast<double>(channel);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QColor const& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(QColor const& color, QColor const& ground)
{
    double const one = luminance(color) + 0.05;
    double const other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// The lightest of the grounds that words of the palette can stand on.
QColor lightestGround(QPalette const& palette, std::initializer_list<QPalette::ColorRole> roles)
{
    QColor lightest(Qt::black);
    for (QPalette::ColorGroup const group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (QPalette::ColorRole const role : roles) {
            QColor const& ground = palette.color(group, role);
            if (luminance(ground) > luminance(lightest)) {
                lightest = ground;
            }
        }
    }
    return lightest;
}

/// White words are easier to read on it than black ones.
bool isDark(QColor const& ground)
{
    return contrast(Qt::white, ground) > contrast(Qt::black, ground);
}

/// The darkest colour of the same hue that has the contrast.
QColor companion(QColor const& color, QColor const& ground, double wanted)
{
    constexpr int full = 255;
    for (int lightness = 0; lightness < full; ++lightness) {
        // As it is on the screen, in whole steps of each channel.
        QColor const lighter(QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness).rgb());
        if (luminance(lighter) > luminance(ground) && contrast(lighter, ground) >= wanted) {
            return lighter;
        }
    }
    return Qt::white;
}

QColor legible(QColor const& color, QColor const& ground)
{
    bool const isLegible = !isDark(ground) || contrast(color, ground) >= leastContrast;
    return isLegible ? color : companion(color, ground, companionContrast);
}

QPalette withText(QPalette palette, QColor const& color)
{
    palette.setColor(QPalette::WindowText, legible(color, lightestGround(palette, {QPalette::Window})));
    return palette;
}

QColor blended(QColor const& words, QColor const& ground)
{
    float const share = words.alphaF();
    return QColor::fromRgbF(
        words.redF() * share + ground.redF() * (1 - share),
        words.greenF() * share + ground.greenF() * (1 - share),
        words.blueF() * share + ground.blueF() * (1 - share));
}

QColor legibleLink(QPalette const& palette)
{
    QColor const link = palette.color(QPalette::Link);
    auto const canBeRead = [&](QPalette::ColorRole ground) {
        return contrast(link, palette.color(ground)) >= leastContrast;
    };
    if (canBeRead(QPalette::Window) && canBeRead(QPalette::Base)) {
        return link;
    }
    QColor const ground = lightestGround(palette, {QPalette::Window, QPalette::Base});
    return isDark(ground) ? companion(link, ground, companionContrast) : QColor(Qt::blue);
}

/// Fainter than what somebody has filled in, as far as that can be read.
QColor legiblePlaceholder(QPalette const& palette)
{
    QColor const ground = palette.color(QPalette::Base);
    QColor words = palette.color(QPalette::PlaceholderText);
    if (contrast(blended(words, ground), ground) >= leastContrast) {
        return words;
    }
    words = palette.color(QPalette::Text);
    constexpr int full = 255;
    for (int alpha = full / 2; alpha < full; ++alpha) {
        words.setAlpha(alpha);
        if (contrast(blended(words, ground), ground) >= placeholderContrast) {
            break;
        }
    }
    return words;
}

QColor rowGround(QPalette const& palette)
{
    return lightestGround(palette, {QPalette::Base, QPalette::AlternateBase});
}

} // namespace

QString Colors::required()
{
    return tr("#fffacd");
}

QString Colors::action()
{
    return tr("blue");
}

QString Colors::error()
{
    return tr("red");
}

QString Colors::errorDisabled()
{
    return tr("#ffa9b8");
}

QString Colors::warning()
{
    return tr("darkorange");
}

QString Colors::minor()
{
    return tr("#8b5a2b");
}

QString Colors::minorDisabled()
{
    return tr("#ffbd94");
}

QString Colors::ok()
{
    return tr("green");
}

QColor Colors::onBase(QString const& name, QPalette const& palette)
{
    return legible(QColor(name), rowGround(palette));
}

QColor Colors::onDisabledBase(QString const& name, QPalette const& palette)
{
    QColor const color(name);
    QColor const ground = rowGround(palette);
    return isDark(ground) ? companion(color, ground, leastContrast) : color;
}

QPalette Colors::makeLegible(QPalette const& palette)
{
    QPalette copy(palette);
    QColor const link = legibleLink(palette);
    QColor const placeholder = legiblePlaceholder(palette);
    if (link != palette.color(QPalette::Link)) {
        copy.setColor(QPalette::Link, link);
    }
    if (placeholder != palette.color(QPalette::PlaceholderText)) {
        copy.setColor(QPalette::PlaceholderText, placeholder);
    }
    return copy;
}

QPalette Colors::makeRequired(QPalette const& palette)
{
    static QColor const color(required());
    QPalette copy(palette);
    copy.setColor(QPalette::Active, QPalette::Base, color);
    copy.setColor(QPalette::Inactive, QPalette::Base, color);
    return copy;
}

QPalette Colors::makeError(QPalette const& palette)
{
    static QColor const color(error());
    return withText(palette, color);
}

QPalette Colors::makeWarning(QPalette const& palette)
{
    static QColor const color(warning());
    return withText(palette, color);
}

QPalette Colors::makeOK(QPalette const& palette)
{
    static QColor const color(ok());
    return withText(palette, color);
}
