// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIODialogsUser.h"

#include "services/YumIODialogs.h"

YumIODialogsUser::YumIODialogsUser(YumIODialogs*& dialogs, QWidget* parent)
    : installed(dialogs),
      saved(dialogs)
{
    installed = new YumIODialogs(parent);
}

YumIODialogsUser::~YumIODialogsUser()
{
    delete installed;
    installed = saved;
}
