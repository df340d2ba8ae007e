// SPDX-License-Identifier: GPL-2.0-or-later
// Stopping: the helper script is told where to look for the user's wish, and what a stopped collection leaves
// is a table of what had been read before.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "engine/WorkThreads.h"

#include <QEventLoop>

void YumIO::offerStop()
{
    constexpr char const* function = "stopBy";
    // Scripts for older releases can't be stopped.
    if (stop.descriptor() < 0 || !PyDict_GetItemString(main_dict, function)) {
        return;
    }
    pyExceptStart();
    stop.setHeeded(bool(pyCall(function, "(i)", stop.descriptor())));
    pyExceptClear();
}

bool YumIO::collect(QHash<QString, bool> const& repoStates)
{
    if (runCollection(repoStates)) {
        return true;
    }
    if (!stop.stopped()) {
        return false;
    }
    packageFiles.closeFresh();
    // The table is to show what it showed before, or would have shown without a look at the network.
    log(Log::Action, 0, tr("Reading what was fetched before"));
    clear();
    onDisk = true;
    bool const collected = runCollection(repoStates);
    onDisk = false;
    return collected;
}

bool YumIO::runCollection(QHash<QString, bool> const& repoStates)
{
    Stop::Job const stoppable(stop);
    QEventLoop loop;
    CollectThread thread(this, loop, repoStates);
    execWorkThread(loop, thread);
    if (thread.result) {
        takeEntries();
        takeDetails();
    }
    return thread.result;
}

bool YumIO::stayOnDisk()
{
    constexpr char const* method = "stayOnDisk";
    return PyObject_HasAttrString(yumIO.get(), method) != 0 && bool(pyMethodCall(yumIO.get(), method, "()"));
}
