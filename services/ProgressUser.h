// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

class HProgressBar;
class Progress;

/// Gives a job its Progress for as long as the guard stands on the job's stack. The object lives on the
/// calling thread; `progress` has to outlive the guard.
class ProgressUser final
{
    Q_DISABLE_COPY_MOVE(ProgressUser)

public:
    /// Makes a Progress for the two bars and stores it in `progress`.
    ProgressUser(Progress*& progress, HProgressBar* totalBar, HProgressBar* itemBar);

    /// Deletes what stands in `progress`, which empties the bars, and sets it to null.
    ~ProgressUser();

private:
    Progress*& installed;
};
