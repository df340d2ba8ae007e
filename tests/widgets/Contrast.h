// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QList>
#include <QPalette>

#include <algorithm>
#include <cmath>

/// How well words stand out from their ground, and dark palettes to try that on.
namespace Contrast
{

/// Words that are no larger than usual can be read from this ratio on.
constexpr double legible = 4.5;

inline double channel(int value)
{
    double const part = value / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline double luminance(QColor const& color)
{
    return 0.2126 * channel(color.red()) + 0.7152 * channel(color.green()) + 0.0722 * channel(color.blue());
}

/// From 1, the same, to 21, black on white.
inline double ratio(QColor const& one, QColor const& other)
{
    double const first = luminance(one) + 0.05;
    double const second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// As words that let their ground through come to the screen.
inline QColor blended(QColor const& words, QColor const& ground)
{
    int const alpha = words.alpha();
    auto const mix = [alpha](int one, int other) { return (one * alpha + other * (255 - alpha)) / 255; };
    return {
        mix(words.red(), ground.red()), mix(words.green(), ground.green()), mix(words.blue(), ground.blue())};
}

inline QPalette darkPalette(QColor const& window, QColor const& base, QColor const& alternateBase)
{
    QPalette palette(window);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, alternateBase);
    return palette;
}

/// As desktops have them as a rule.
inline QPalette darkPalette()
{
    return darkPalette(QColor(50, 50, 50), QColor(36, 36, 36), QColor(43, 43, 43));
}

inline QList<QColor> rowGrounds(QPalette const& palette)
{
    return {palette.color(QPalette::Base), palette.color(QPalette::AlternateBase)};
}

} // namespace Contrast
