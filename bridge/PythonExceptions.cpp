// SPDX-License-Identifier: GPL-2.0-or-later
// The exception protocol: frames of expected types, what becomes of an exception, and its value for display.
#include "bridge/PythonApi.h"

#include "bridge/Python.h"

#include "bridge/PendingException.h"

#include <algorithm>

FetchedException::FetchedException() noexcept
{
    PyObject* parts[3] = {};
    PyErr_Fetch(&parts[0], &parts[1], &parts[2]);
    type = PyRef::steal(parts[0]);
    value = PyRef::steal(parts[1]);
    traceback = PyRef::steal(parts[2]);
}

void FetchedException::normalize() noexcept
{
    if (!type) {
        return;
    }
    PyObject* parts[3] = {type.release(), value.release(), traceback.release()};
    PyErr_NormalizeException(&parts[0], &parts[1], &parts[2]);
    type = PyRef::steal(parts[0]);
    value = PyRef::steal(parts[1]);
    traceback = PyRef::steal(parts[2]);
}

PendingException::~PendingException()
{
    if (exception.type && !PyErr_Occurred()) {
        PyErr_Restore(exception.type.release(), exception.value.release(), exception.traceback.release());
    }
}

void Python::pyExceptStart()
{
    PyErr_Clear();
    exceptStack.emplace();
}

void Python::pyExceptExpect(PyObject* type)
{
    if (!type) {
        report("Internal error: pyExceptExpect called with NULL\n");
    }
    if (exceptStack.empty()) {
        exceptStack.emplace();
    }
    exceptStack.top().push_back(type);
}

void Python::pyExceptClear()
{
    if (!exceptStack.empty()) {
        exceptStack.pop();
    }
    PyErr_Clear();
}

bool Python::pyExceptMatches(PyObject* result, PyObject* type)
{
    return !result && type && PyErr_Occurred() && PyErr_ExceptionMatches(type);
}

void Python::handleException()
{
    auto const raised = [](PyObject* type) { return type && PyErr_ExceptionMatches(type); };
    if (!exceptStack.empty() && std::ranges::any_of(exceptStack.top(), raised)) {
        exceptionExpected();
    } else {
        exceptionError();
    }
}

void Python::exceptionExpected() {}

void Python::exceptionError()
{
    {
        FetchedException exception;
        exception.normalize();
        if (exception.type) {
            PyErr_Display(exception.type.get(), exception.value.get(), exception.traceback.get());
        }
        PyErr_Clear();
    }
    error("Internal error: python exception occurred from C code\n");
}

void Python::handleFailure()
{
    if (PyErr_Occurred()) {
        handleException();
    }
}

PyRef Python::pyExceptValue()
{
    FetchedException exception;
    exception.normalize();
    return std::move(exception.value);
}

PyRef Python::pyExceptValuef()
{
    PyRef const exception = pyExceptValue();
    if (!exception) {
        return {};
    }
    PyRef value = PyRef::steal(PyObject_GetAttrString(exception.get(), "value"));
    if (value) {
        return value;
    }
    PyErr_Clear();
    return pyCall("__builtins__.str", "(O)", exception.get());
}
