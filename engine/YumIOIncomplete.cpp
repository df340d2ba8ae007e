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
    if (!script.has(method)) {
        return;
    }
    PyRef const answer = script.object(method, {}, QString());
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
        script.misunderstood(method);
        return;
    }
    incompleteTexts = texts;
}

void YumIO::collectRepositoryTimes()
{
    readTimes.clear();
    PyRef const answer = script.object("repositoryTimes", {}, QString());
    PyObject* name = nullptr;
    PyObject* time = nullptr;
    Py_ssize_t position = 0;
    while (answer && PyDict_Check(answer.get()) && PyDict_Next(answer.get(), &position, &name, &time) != 0) {
        readTimes.insert(pyString(name), pyTime(time));
    }
}
