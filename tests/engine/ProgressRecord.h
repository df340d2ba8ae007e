// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Steps.h"

#include <QStringList>

class Progress;

/// What a Progress told its bars, in words: compares what the engine reported with the same calls made by a
/// test. Written on the thread of the Progress; read when that has ended.
class ProgressRecord
{
public:
    /// Writes down all that `progress` tells from now on.
    void follow(Progress* progress);

    /// A line for each change. Of the values within one item the last stands, since those between may be
    /// dropped; repeated resets stand once.
    QStringList lines;

private:
    void add(QString const& line, bool replacesItsKind = false);
};
