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
    if (PyRef const answer = script.object(method, {}, QString())) {
        incompleteTexts = script.texts(method, answer).value_or(QStringList());
    }
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
