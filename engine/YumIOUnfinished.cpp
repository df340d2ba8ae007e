// SPDX-License-Identifier: GPL-2.0-or-later
// What a transaction that was cut off has left: asked for behind each collection, and removed on demand by
// the same apply as the user's marks.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

void YumIO::collectUnfinished()
{
    constexpr char const* method = "unfinished";
    PyRef const answer = script.object(method, {}, tr("Unable to see whether a transaction was cut off"));
    PyObject* text = nullptr;
    PyObject* versions = nullptr;
    PyObject* older = nullptr;
    if (!answer || answer.get() == Py_None) {
        return;
    }
    if (!PyTuple_Check(answer.get()) ||
        PyArg_ParseTuple(answer.get(), "OO!O!", &text, &PyDict_Type, &versions, &PyList_Type, &older) == 0) {
        PyErr_Clear();
        script.misunderstood(method);
        return;
    }
    left.text = pyString(text);
    PyObject* name = nullptr;
    PyObject* those = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(versions, &position, &name, &those) != 0) {
        left.versions.insert(pyString(name), pyString(those));
    }
    if (PyList_GET_SIZE(older) > 0) {
        left.older = PyRef::borrow(older);
    }
}
