// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PythonApi.h"

#include "bridge/Python.h"

#include <QStringList>

/// The interpreter wrapper with its reports recorded and its protected operations open to a test.
class RecordingPython : public Python
{
public:
    using Python::exceptionError;
    using Python::handleException;
    using Python::pyExceptClear;
    using Python::pyExceptExpect;
    using Python::pyExceptMatches;
    using Python::pyExceptStart;

    void error(char const* message) override { errors.append(QString::fromUtf8(message)); }
    void warning(char const* message) override { warnings.append(QString::fromUtf8(message)); }
    void exceptionExpected() override { ++expectedCount; }

    /// The reports since the last call.
    QStringList takeErrors() { return std::exchange(errors, {}); }

    /// The text of an expression's value.
    QString text(char const* expression)
    {
        PyRef const value = pyr(expression);
        return value ? QString::fromUtf8(pyString(value.get())) : QString();
    }

    /// Sends `sys.stderr` into a buffer, whose text `takeStderr` answers.
    void captureStderr() { py("import sys, io\nsys.stderr = io.StringIO()"); }
    QString takeStderr()
    {
        QString const written = text("sys.stderr.getvalue()");
        captureStderr();
        return written;
    }

    QStringList errors;
    QStringList warnings;
    int expectedCount = 0;
};

/// The number of references to an object, for comparing before and after.
inline Py_ssize_t referencesTo(PyObject* object)
{
    return Py_REFCNT(object);
}
