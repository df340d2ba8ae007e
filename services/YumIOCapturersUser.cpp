// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIOCapturersUser.h"

#include "services/YumIOCapturers.h"

YumIOCapturersUser::YumIOCapturersUser(YumIOCapturers*& capturers, CaptureSink* sink)
    : installed(capturers),
      saved(capturers)
{
    installed = new YumIOCapturers(sink);
}

YumIOCapturersUser::~YumIOCapturersUser()
{
    delete installed;
    installed = saved;
}
