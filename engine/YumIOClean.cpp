// SPDX-License-Identifier: GPL-2.0-or-later
// Cache cleaning: a job of a few calls of the helper script.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/YumIODialogsUser.h"

namespace
{

/// Whether a cleaning method's answer, a tuple, begins with the code for success.
bool isSuccess(PyObject* answer)
{
    if (!answer || !PyTuple_Check(answer) || PyTuple_GET_SIZE(answer) < 1) {
        return false;
    }
    long const code = PyLong_AsLong(PyTuple_GET_ITEM(answer, 0));
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return false;
    }
    return code == 0;
}

} // namespace

bool YumIO::cleanCaches(QString const& heading, QList<char const*> const& methods)
{
    Stop::Job const stoppable(stop);
    return jobs.runBare([&] { return cleanCachesReal(heading, methods); });
}

bool YumIO::cleanCachesReal(QString const& heading, QList<char const*> const& methods)
{
    YumIODialogsUser const dialogsUser(jobs.dialogs, jobs.parent);
    log(Log::Action, 0, heading);
    PyGILStateWrapper const lock(true);
    PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
    pyExceptStart();
    pyExceptExpect(baseError);
    bool areClean = true;
    // Every cache is cleaned, whatever the others answer.
    for (char const* const method : methods) {
        PyRef const answer = pyMethodCall(yumIO.get(), method, "()");
        if (pyExceptMatches(answer.get(), baseError)) {
            // Whoever may not clean one may clean none, and is to be told once; whoever stops wants no more.
            QString const words = pyString(pyExceptValuef().get());
            stop.stopped() ? log(Log::Action, 0, tr("Stopped")) : error(words);
            areClean = false;
            break;
        }
        areClean = isSuccess(answer.get()) && areClean;
    }
    pyExceptClear();
    return areClean;
}

bool YumIO::cleanHeaders()
{
    return cleanCaches(tr("Cleaning Headers"), {"cleanHeaders"});
}

bool YumIO::cleanPackages()
{
    return cleanCaches(tr("Cleaning Packages"), {"cleanPackages"});
}

bool YumIO::cleanXmlMetadata()
{
    return cleanCaches(tr("Cleaning Xml Metadata"), {"cleanMetadata"});
}

bool YumIO::cleanPickledCache()
{
    return cleanCaches(tr("Cleaning Pickled Cache"), {"cleanPickles"});
}

bool YumIO::cleanAll()
{
    QList<char const*> methods{"cleanHeaders", "cleanPackages", "cleanMetadata"};
    {
        PyGILStateWrapper const lock(true);
        if (hasPickledCache()) {
            methods.append("cleanPickles");
        }
    }
    return cleanCaches(tr("Cleaning All"), methods);
}
