// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"

#include <QByteArray>

/// What the functions of the host module `yumIOC` are answered by: one operation for each, of the same name.
/// The engine implements it; `YumIOC` knows no more of the engine than this.
///
/// All run with the interpreter lock held, on the thread that the script runs on. `self` is the module.
/// `args` is the tuple of arguments, null for a function without any. The answer is a new reference; null is
/// a failure, for which either an exception is set or the words are what `lastReport` answers.
class YumIOHost
{
public:
    virtual ~YumIOHost() = default;

    // Output and log.
    /// "s": text
    virtual PyObject* stdoutWrite(PyObject* self, PyObject* args) = 0;
    /// "s": text
    virtual PyObject* stderrWrite(PyObject* self, PyObject* args) = 0;
    /// "ls": level, text
    virtual PyObject* log(PyObject* self, PyObject* args) = 0;
    /// "ls": level, text
    virtual PyObject* warninglog(PyObject* self, PyObject* args) = 0;
    /// "ls": level, text
    virtual PyObject* errorlog(PyObject* self, PyObject* args) = 0;

    // Reading of repositories. Sizes are bytes; an argument shown as _ is ignored.
    /// "llO": value, total, name
    virtual PyObject* collectProgress(PyObject* self, PyObject* args) = 0;
    /// "sssOO": file, _, _, size, _
    virtual PyObject* collectGrabMeterStart(PyObject* self, PyObject* args) = 0;
    /// "L": size so far
    virtual PyObject* collectGrabMeterUpdate(PyObject* self, PyObject* args) = 0;
    /// "L": _
    virtual PyObject* collectGrabMeterEnd(PyObject* self, PyObject* args) = 0;

    // Download of packages.
    /// "OOOLO": file, _, _, size, text
    virtual PyObject* applyGrabMeterStart(PyObject* self, PyObject* args) = 0;
    /// "L": size so far
    virtual PyObject* applyGrabMeterUpdate(PyObject* self, PyObject* args) = 0;
    /// "L": _
    virtual PyObject* applyGrabMeterEnd(PyObject* self, PyObject* args) = 0;

    // Dependency solving and the user's consent, which `userconfirm` answers by the int 1 or 0.
    virtual PyObject* dsTsCheck(PyObject* self, PyObject* args) = 0;
    virtual PyObject* dsRestartLoop(PyObject* self, PyObject* args) = 0;
    virtual PyObject* userconfirm(PyObject* self, PyObject* args) = 0;
    /// "ssssssLL|p": location, repository, packages, user id, fingerprint, key id, created, expires,
    /// verified; see KeyQuestion. Answers the int 1 or 0. Downloads and reading of repositories ask it too.
    virtual PyObject* confirmKey(PyObject* self, PyObject* args) = 0;
    /// "O": packages
    virtual PyObject* reportDownloadSize(PyObject* self, PyObject* args) = 0;
    /// "OLLO": rows, bytes to download, growth in bytes, changes; see YumIOConfirm.cpp. Scripts may leave it
    /// out.
    virtual PyObject* transactionDetails(PyObject* self, PyObject* args) = 0;
    /// "O": holder of tsInfo
    virtual PyObject* listTransaction(PyObject* self, PyObject* args) = 0;

    // The transaction. `postTransactionOutput` answers a str.
    /// "l": 0 for the test
    virtual PyObject* tsInitCallback(PyObject* self, PyObject* args) = 0;
    /// "lLLOO": what, amount, total, key, _
    virtual PyObject* tsCallback(PyObject* self, PyObject* args) = 0;
    /// "OlLLll": package, action, teCurrent, teTotal, tsCurrent, _
    virtual PyObject* tsEvent(PyObject* self, PyObject* args) = 0;
    /// "s": name of the package whose scriptlet begins to run. Scripts may leave it out.
    virtual PyObject* scriptRuns(PyObject* self, PyObject* args) = 0;
    /// "O": holder of tsInfo
    virtual PyObject* postTransactionOutput(PyObject* self, PyObject* args) = 0;

    /// The words of the error reported last, in UTF-8. Become the text of the exception that the script sees
    /// when a function failed without setting one.
    virtual QByteArray lastReport() const = 0;
};
