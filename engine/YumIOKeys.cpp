// SPDX-License-Identifier: GPL-2.0-or-later
// Keys: the helper script's question whether a key that signs packages or metadata is to be fetched, or
// trusted, becomes a dialog.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/YumIODialogs.h"

#include <QDialog>

PyObject* YumIO::confirmKey(PyObject*, PyObject* args)
{
    char const* location = nullptr;
    char const* repository = nullptr;
    char const* packages = nullptr;
    char const* userId = nullptr;
    char const* fingerprint = nullptr;
    char const* keyId = nullptr;
    long long created = 0;
    long long expires = 0;
    int verified = 1;
    if (!PyArg_ParseTuple(
            args, "ssssssLL|p", &location, &repository, &packages, &userId, &fingerprint, &keyId, &created,
            &expires, &verified)) {
        return nullptr;
    }
    if (!jobs.progress || !jobs.dialogs) {
        return PyLong_FromLong(0);
    }
    KeyQuestion const question{
        QString::fromUtf8(location),
        QString::fromUtf8(repository),
        QString::fromUtf8(packages),
        QString::fromUtf8(userId),
        QString::fromUtf8(fingerprint),
        QString::fromUtf8(keyId),
        created,
        expires,
        verified != 0};
    // Nobody needs to wait for the interpreter as long as the user thinks.
    PyThreadState* const state = PyEval_SaveThread();
    bool const agreed = jobs.dialogs->key(question) == QDialog::Accepted;
    PyEval_RestoreThread(state);
    if (!question.fingerprint.isEmpty()) {
        log(Log::Action, 0,
            agreed ? tr("Key %1: OK").arg(question.fingerprint)
                   : tr("Key %1: Canceled").arg(question.fingerprint));
    }
    return PyLong_FromLong(agreed ? 1 : 0);
}
