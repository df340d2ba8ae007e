// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QApplication;

/// Chooses the widget style: the program's own default, unless the user has named one. Lives on the stack of
/// main, and must be built before the QApplication, which removes "-style" from the arguments.
class DefaultStyle
{
public:
    /// Looks for "-style" among the arguments and for the key "style" in the user's toolkit settings.
    DefaultStyle(int argc, char** argv);

    /// Installs the style `name` with its palette when the user has named none. Where the toolkit doesn't
    /// have it, its successor "Fusion" takes its place.
    void set(QApplication& app, QString const& name) const;

    [[nodiscard]] bool isSpecified() const { return styleSpecified; }

private:
    bool styleSpecified = false;
};
