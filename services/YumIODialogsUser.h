// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

class QWidget;
class YumIODialogs;

/// Gives a job a YumIODialogs of its own thread for as long as the guard stands on the job's stack.
/// `dialogs` has to outlive the guard. Guards nest.
class YumIODialogsUser final
{
    Q_DISABLE_COPY_MOVE(YumIODialogsUser)

public:
    /// Makes a YumIODialogs with `parent` on the calling thread and stores it in `dialogs`.
    YumIODialogsUser(YumIODialogs*& dialogs, QWidget* parent);

    /// Deletes what stands in `dialogs` and puts the earlier value back.
    ~YumIODialogsUser();

private:
    YumIODialogs*& installed;
    YumIODialogs* saved;
};
