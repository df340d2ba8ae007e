// SPDX-License-Identifier: GPL-2.0-or-later
#include "bridge/PythonApi.h"

#include "bridge/PyRef.h"

#include <QtGlobal>

PyRef PyRef::borrow(PyObject* object) noexcept
{
    if (object) {
        Q_ASSERT(Py_IsInitialized() && PyGILState_Check());
        Py_INCREF(object);
    }
    return PyRef(object);
}

void PyRef::drop(PyObject* reference) noexcept
{
    Q_ASSERT(Py_IsInitialized() && PyGILState_Check());
    if (Py_IsInitialized()) {
        Py_DECREF(reference);
    }
}
