// SPDX-License-Identifier: GPL-2.0-or-later
// Loading of repositories: the package library announces no plan, it just fetches files and parses them.
// Its reports become a fixed plan of five acts per repository and the text of the item bar.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "engine/BuffetUrl.h"
#include "services/Progress.h"

#include <array>

void YumIO::collectProgress(QString const& name, bool newAct, RepoAct act, long long value, long long total)
{
    if (!newAct) {
        jobs.progress->setItemValue(static_cast<Steps>(value));
        return;
    }
    if (yumVersion() > 30106) {
        repoAct = repoAct / 5 * 5 + act + 1;
    } else if (act == ActMirrorList || act == ActRepomd) {
        // Older libraries fetch the indexes of all repositories first.
        repoAct = repoAct / 2 * 2 + act + 1;
    } else {
        int const base = 2 * static_cast<int>(repoNames.size());
        repoAct = qMax(repoAct, base);
        repoAct = (repoAct - base) / 3 * 3 + act - 1 + base;
    }
    repoActTotal = total;
    repoActName = name;

    struct Messages
    {
        QString plain, named;
    };
    QString message;
    if (act < ActNone) {
        std::array<Messages, ActNone> const messages{{
            {tr("Downloading repository %1 mirror list"), tr("Downloading repository %1 mirror list for %2")},
            {tr("Downloading repository %1 repomd"), tr("Downloading repository %1 repomd for %2")},
            {tr("Downloading repository %1"), tr("Downloading repository %1 for %2")},
            {tr("Converting repository %1"), tr("Converting repository %1 for %2")},
            {tr("Reading repository %1"), tr("Reading repository %1 for %2")},
        }};
        Messages const& choice = messages.at(act);
        message = name.isEmpty() ? choice.plain.arg(repoContents) : choice.named.arg(repoContents, name);
    } else {
        error("Internal error: invalid collect act\n");
    }
    jobs.progress->startItemAct(message, static_cast<Steps>(total), static_cast<Steps>(repoAct));
    if (value != 0) {
        jobs.progress->setItemValue(static_cast<Steps>(value));
    }
}

QString YumIO::pyProgressText(PyObject* object, bool noneIsEmpty, char const* report)
{
    if (PyUnicode_Check(object) || PyBytes_Check(object)) {
        return pyString(object);
    }
    if (!noneIsEmpty || object != Py_None) {
        error(report);
    }
    return QString();
}

PyObject* YumIO::collectProgress(PyObject*, PyObject* args)
{
    long value = 0;
    long total = 0;
    PyObject* nameObject = nullptr;
    if (!PyArg_ParseTuple(args, "llO", &value, &total, &nameObject)) {
        return nullptr;
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    QString const name = pyProgressText(nameObject, true, "Internal error: unexpected progress name");
    bool const sameTotal = repoAct > 0 && repoActTotal == total;
    if (sameTotal && repoActName == name) {
        collectProgress(name, false, ActNone, value, total);
    } else if (value == -1 && total == -1) {
        collectProgress(name, true, ActRead, 1, 1);
    } else if (name == QLatin1String("MD Read")) {
        // The report of parsing metadata, which names no repository.
        if (sameTotal && repoActName.isEmpty()) {
            collectProgress(name, false, ActNone, value, total);
        } else {
            collectProgress(QString(), true, ActConvert, value, total);
        }
    } else {
        collectProgress(name, true, usesSqlite() ? ActConvert : ActRead, value, total);
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::collectGrabMeterStart(PyObject*, PyObject* args)
{
    char const* file = nullptr;
    char const* ignoredUrl = nullptr;
    char const* ignoredBase = nullptr;
    PyObject* sizeObject = nullptr;
    PyObject* ignoredText = nullptr;
    if (!PyArg_ParseTuple(args, "sssOO", &file, &ignoredUrl, &ignoredBase, &sizeObject, &ignoredText)) {
        return nullptr;
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    long long size = 1;
    if (PyLong_Check(sizeObject)) {
        size = PyLong_AsLongLong(sizeObject);
        if (PyErr_Occurred()) {
            return nullptr;
        }
    } else if (sizeObject != Py_None) {
        warning("Internal error: collect grab size not understood");
    }

    QString text = QString::fromUtf8(file);
    qsizetype const last = text.lastIndexOf(QLatin1Char('/'));
    bool const isRepomd = last >= 0 && QStringView(text).mid(last + 1, 6) == QLatin1String("repomd");
    bool const isMetalink = last >= 0 && QStringView(text).mid(last + 1, 8) == QLatin1String("metalink");
    qsizetype const previous = last > 0 ? text.lastIndexOf(QLatin1Char('/'), last - 1) : -1;
    if (previous >= 0) {
        // The directory that holds the file is what tells the user which repository this is.
        text = text.mid(previous + 1, last - previous - 1);
    }
    removeBuffetCredentials(text);
    RepoAct const act = isMetalink ? ActMirrorList : isRepomd ? ActRepomd : ActDownload;
    collectProgress(text, true, act, 0, size);
    Py_RETURN_NONE;
}

PyObject* YumIO::collectGrabMeterUpdate(PyObject*, PyObject* args)
{
    long long bytes = 0;
    if (!PyArg_ParseTuple(args, "L", &bytes)) {
        return nullptr;
    }
    if (jobs.progress) {
        collectProgress(QString(), false, ActNone, bytes, -1);
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::collectGrabMeterEnd(PyObject*, PyObject* args)
{
    long long ignored = 0;
    if (!PyArg_ParseTuple(args, "L", &ignored)) {
        return nullptr;
    }
    Py_RETURN_NONE;
}
