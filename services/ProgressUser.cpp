// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ProgressUser.h"

#include "services/Progress.h"

ProgressUser::ProgressUser(Progress*& progress, HProgressBar* totalBar, HProgressBar* itemBar)
    : installed(progress)
{
    installed = new Progress(totalBar, itemBar);
}

ProgressUser::~ProgressUser()
{
    delete installed;
    installed = nullptr;
}
