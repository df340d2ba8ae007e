// SPDX-License-Identifier: GPL-2.0-or-later
// Cache cleaning: short calls of the helper script on the GUI thread.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

bool YumIO::cleanCache(char const* method)
{
    PyRef const answer = pyMethodCall(yumIO.get(), method, "()");
    if (!answer || !PyTuple_Check(answer.get()) || PyTuple_GET_SIZE(answer.get()) < 1) {
        return false;
    }
    long const code = PyLong_AsLong(PyTuple_GET_ITEM(answer.get(), 0));
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return false;
    }
    return code == 0;
}

bool YumIO::cleanHeaders()
{
    log(Log::Action, 0, tr("Cleaning Headers"));
    PyGILStateWrapper const lock(true);
    return cleanCache("cleanHeaders");
}

bool YumIO::cleanPackages()
{
    log(Log::Action, 0, tr("Cleaning Packages"));
    PyGILStateWrapper const lock(true);
    return cleanCache("cleanPackages");
}

bool YumIO::cleanXmlMetadata()
{
    log(Log::Action, 0, tr("Cleaning Xml Metadata"));
    PyGILStateWrapper const lock(true);
    return cleanCache("cleanMetadata");
}

bool YumIO::cleanPickledCache()
{
    log(Log::Action, 0, tr("Cleaning Pickled Cache"));
    PyGILStateWrapper const lock(true);
    return cleanCache("cleanPickles");
}

bool YumIO::cleanAll()
{
    log(Log::Action, 0, tr("Cleaning All"));
    PyGILStateWrapper const lock(true);
    // Every cache is cleaned, whatever the others answer.
    bool const headers = cleanCache("cleanHeaders");
    bool const packages = cleanCache("cleanPackages");
    bool const metadata = cleanCache("cleanMetadata");
    bool const pickles = !hasPickledCache() || cleanCache("cleanPickles");
    return headers && packages && metadata && pickles;
}
