// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

/// A sunken horizontal line between the parts of a window. Owned by its parent widget, GUI thread.
class HSeparator : public QFrame
{
    Q_OBJECT

public:
    explicit HSeparator(QWidget* parent);
};
