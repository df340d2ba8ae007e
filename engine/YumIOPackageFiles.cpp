// SPDX-License-Identifier: GPL-2.0-or-later
// Package files from elsewhere: handed to the script in each collection, and forgotten once they are
// installed.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

namespace
{

constexpr char const* openFiles = "openPackageFiles";

} // namespace

bool YumIO::opensPackageFiles()
{
    PyGILStateWrapper const lock(initialized);
    return initialized && yumIO && PyObject_HasAttrString(yumIO.get(), openFiles) != 0;
}

bool YumIO::collectPackageFiles()
{
    if (packageFiles.isEmpty() || PyObject_HasAttrString(yumIO.get(), openFiles) == 0) {
        return true;
    }
    PyRef const words = PyRef::steal(PyList_New(0));
    for (QString const& word : packageFiles.words()) {
        QByteArray const bytes = word.toUtf8();
        PyRef const text = PyRef::steal(PyUnicode_FromStringAndSize(bytes.constData(), bytes.size()));
        if (!text || PyList_Append(words.get(), text.get()) != 0) {
            PyErr_Clear();
        }
    }
    PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
    pyExceptStart();
    pyExceptExpect(baseError);
    PyRef const answer = pyMethodCall(yumIO.get(), openFiles, "(O)", words.get());
    if (pyExceptMatches(answer.get(), baseError)) {
        pythonExceptionV(tr("Unable to open package files"));
        return false;
    }
    pyExceptClear();
    QStringList refusals;
    bool understood = answer && PyList_Check(answer.get());
    for (Py_ssize_t at = 0; understood && at < PyList_GET_SIZE(answer.get()); ++at) {
        PyObject* word = nullptr;
        PyObject* name = nullptr;
        PyObject* refusal = nullptr;
        PyObject* const one = PyList_GET_ITEM(answer.get(), at);
        understood = PyTuple_Check(one) && PyArg_ParseTuple(one, "UUU", &word, &name, &refusal) != 0;
        if (!understood) {
            PyErr_Clear();
        } else if (PyUnicode_GetLength(name) > 0) {
            packageFiles.settle(pyString(word), pyString(name));
        } else {
            packageFiles.close(pyString(word));
            refusals.append(pyString(refusal));
        }
    }
    if (!understood) {
        error(QStringLiteral("Internal error: execution of yumIO.%1 failed").arg(QLatin1String(openFiles)));
        return false;
    }
    if (!refusals.isEmpty()) {
        error(
            tr("These package files can't be used:") + QLatin1String("\n\n") +
            refusals.join(QLatin1Char('\n')));
    }
    return true;
}

void YumIO::closeInstalledFiles()
{
    QStringList names;
    for (Package::Entry const* const entry : std::as_const(entries)) {
        bool const wentIn = entry->applyAction == Package::Install || entry->applyAction == Package::Update;
        if (wentIn && entry->kind != Package::Group && entry->repo.toString() == PackageFiles::repository) {
            names.append(entry->name);
        }
    }
    packageFiles.closeNamed(names);
}
