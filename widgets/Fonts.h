// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

class QFont;

/// The variations of a font that the system uses. Each gives a changed copy. GUI thread.
class Fonts
{
    Q_DECLARE_TR_FUNCTIONS(Fonts)

public:
    /// For headings: bold, of a proportional family, half as large again.
    [[nodiscard]] static QFont makeHeader(QFont const& font);
    /// For texts whose characters stand below each other.
    [[nodiscard]] static QFont makeFixed(QFont const& font);
    [[nodiscard]] static QFont makeBold(QFont const& font);
};
