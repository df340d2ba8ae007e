// SPDX-License-Identifier: GPL-2.0-or-later
// How current a collection is, and what it had to do without: repositories that cannot be read and may be
// left out, files and sections of the configuration that nobody understands. Asked for behind each
// collection.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

void YumIO::collectIncomplete()
{
    constexpr char const* method = "incomplete";
    incompleteTexts.clear();
    // Older scripts don't know the question.
    if (PyObject_HasAttrString(yumIO.get(), method) == 0) {
        return;
    }
    PyRef const answer = pyMethodCall(yumIO.get(), method, "()");
    QStringList texts;
    bool const isList = answer && PyList_Check(answer.get());
    for (Py_ssize_t at = 0; isList && at < PyList_GET_SIZE(answer.get()); ++at) {
        PyObject* const text = PyList_GET_ITEM(answer.get(), at);
        if (!PyUnicode_Check(text)) {
            break;
        }
        texts.append(pyString(text));
    }
    if (!isList || texts.size() != PyList_GET_SIZE(answer.get())) {
        error(QStringLiteral("Internal error: execution of yumIO.%1 failed").arg(QLatin1String(method)));
        return;
    }
    incompleteTexts = texts;
}

void YumIO::collectRepositoryTimes()
{
    constexpr char const* method = "repositoryTimes";
    readTimes.clear();
    if (PyObject_HasAttrString(yumIO.get(), method) == 0) {
        return;
    }
    PyRef const answer = pyMethodCall(yumIO.get(), method, "()");
    PyObject* name = nullptr;
    PyObject* time = nullptr;
    Py_ssize_t position = 0;
    while (answer && PyDict_Check(answer.get()) && PyDict_Next(answer.get(), &position, &name, &time) != 0) {
        readTimes.insert(pyString(name), pyTime(time));
    }
}
