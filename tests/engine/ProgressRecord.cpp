// SPDX-License-Identifier: GPL-2.0-or-later
#include "ProgressRecord.h"

#include "services/Progress.h"

void ProgressRecord::follow(Progress* progress)
{
    QObject::connect(progress, &Progress::startTotalSig, progress, [this](QString const& name, Steps max) {
        add(QStringLiteral("== %1, %2 steps").arg(name).arg(max));
    });
    QObject::connect(
        progress, &Progress::startItemSig, progress, [this](QString const& name, Steps total, Steps max) {
            add(QStringLiteral("%1, up to %2, from step %3").arg(name).arg(max).arg(total));
        });
    QObject::connect(progress, &Progress::changeItemActsSig, progress, [this](Steps total) {
        add(QStringLiteral("acts changed, at step %1").arg(total));
    });
    QObject::connect(progress, &Progress::setItemValueSig, progress, [this](Steps total, Steps value) {
        add(QStringLiteral("value: %1, at step %2").arg(value).arg(total), true);
    });
    QObject::connect(progress, &Progress::endItemActsSig, progress, [this](Steps total) {
        add(QStringLiteral("acts ended, at step %1").arg(total));
    });
    QObject::connect(
        progress, &Progress::resetSig, progress, [this] { add(QStringLiteral("reset:"), true); });
}

void ProgressRecord::add(QString const& line, bool replacesItsKind)
{
    QString const kind = line.left(line.indexOf(QLatin1Char(':')) + 1);
    if (replacesItsKind && !lines.isEmpty() && lines.constLast().startsWith(kind)) {
        lines.last() = line;
    } else {
        lines.append(line);
    }
}
