// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

class QWidget;

/// How grave a fault in a package is that can be exploited, as repositories rate it. The gravest last, so
/// that they compare.
enum class Severity
{
    Unknown,
    Low,
    Moderate,
    Important,
    Critical
};

/// A sign for each severity, from the style; a word always stands beside it. GUI thread.
class SeveritySigns
{
public:
    /// Takes those of the style of this widget.
    void take(QWidget const* widget);
    /// Null for one that nobody knows.
    [[nodiscard]] QIcon of(Severity severity) const;

private:
    QIcon critical, warning, information;
};
