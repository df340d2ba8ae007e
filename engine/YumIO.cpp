// SPDX-License-Identifier: GPL-2.0-or-later
// The engine's life: construction, the start of the interpreter and the helper script, the way one job runs
// on a worker, the reset between collections, and the end. Also access to the rows and the log.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "base/Application.h"
#include "base/Share.h"
#include "bridge/YumIOC.h"
#include "engine/WorkThreads.h"
#include "services/YumIODialogsUser.h"

#include <QEventLoop>
#include <QFile>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>

YumIO::EntryKey::EntryKey(bool isGroup, Package::Text keyName)
    : group(isGroup),
      name(std::move(keyName))
{
}

size_t qHash(YumIO::EntryKey const& key, size_t seed) noexcept
{
    return static_cast<unsigned int>(qHash(key.name, seed)) * 2U + (key.group ? 1U : 0U);
}

YumIO::YumIO() = default;

YumIO::~YumIO()
{
    if (initialized) {
        PyGILStateWrapper const lock(true);
        py("import sys\nsys.stdout = sys.__stdout__\nsys.stderr = sys.__stderr__\n");
        if (locked) {
            PyObject* const lockError = pyLookup("yum.Errors.LockError");
            pyExceptStart();
            YumIO::pyExceptExpect(lockError);
            PyRef const result = pyMethodCall(yumIO.get(), "unlock", "()");
            if (pyExceptMatches(result.get(), lockError)) {
                pythonException(tr("Unable to release yum lock"));
            }
            YumIO::pyExceptClear();
        }
        detachEntries();
        dropEntries();
        repos.reset();
        run.changes.reset();
        yumIO.reset();
        pyYumIOClass.reset();
        internedNames.clear();
        // What the interpreter runs at its end must not reach an engine that is going.
        YumIOC::initialize(nullptr);
    } else {
        detachEntries();
        dropEntries();
    }
}

void YumIO::setup(QWidget* dialogParent, HProgressBar* total, HProgressBar* item)
{
    jobs.setup(dialogParent, total, item);
}

bool YumIO::initialize()
{
    Python::initialize();
    PyGILStateWrapper lock(initialized);
    if (yumIO) {
        return true;
    }
    auto const fail = [this](char const* report) {
        if (initialized && PyErr_Occurred()) {
            handleException();
        }
        error(report);
        return false;
    };
    if (!initialized || !main_dict) {
        return false;
    }
    YumIOC::initialize(this);

    PyRef const argv = PyRef::steal(Py_BuildValue("[s,s]", program, "info"));
    pyAssign("sys", "argv", argv.get());

    // The thread that imports it first is taken for the main one, and is waited for at the end.
    py("import threading");
    lock.release();
    preload();
    lock.ensure();

    PyRef const rpm = PyRef::steal(PyImport_ImportModule("rpm"));
    if (!rpm) {
        return fail("Internal error: cannot find python rpm module");
    }
    rpmDict = PyModule_GetDict(rpm.get());
    if (!rpmDict) {
        return fail("Internal error: cannot find python rpm dict");
    }
    setEnablePythonSIGINTHandler(false);

    QByteArray const path = QFile::encodeName(Share::absolute(QStringLiteral("python/YumIO.py")));
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> source(std::fopen(path.constData(), "re"), &std::fclose);
    if (!source) {
        return fail("Internal error: unable to open YumIO.py");
    }
    // The script finds the modules beside it by its own path, which running an open file doesn't tell.
    PyRef const file = PyRef::steal(PyUnicode_DecodeFSDefault(path.constData()));
    if (file) {
        pyAssignGlobal("__file__", file.get());
    }
    if (PyRun_SimpleFileExFlags(source.get(), "YumIO.py", 0, nullptr) == -1) {
        return fail("Internal error: unable to execute YumIO.py");
    }
    source.reset();

    pyYumIOClass = PyRef::borrow(PyDict_GetItemString(main_dict, "YumIO"));
    if (!pyYumIOClass) {
        return fail("Internal error: cannot find python YumIO");
    }
    PyObject* const systemExit = pyLookup("exceptions.SystemExit");
    pyExceptStart();
    pyExceptExpect(systemExit);
    PyRef const none = PyRef::steal(PyTuple_New(0));
    yumIO = PyRef::steal(PyObject_Call(pyYumIOClass.get(), none.get(), nullptr));
    if (pyExceptMatches(yumIO.get(), systemExit)) {
        pythonException(tr("Unable to initialize"));
        PyErr_Clear();
        return false;
    }
    if (!yumIO) {
        return fail("Internal error: cannot create python yumIO");
    }
    libraryName = script.told("packageLibrary");
    offerStop();
    return true;
}

void YumIO::preload()
{
    if (QFile::exists(Share::absolute(QStringLiteral("python/preload.py")))) {
        jobs.runBare([this] { return preloadReal(); });
    }
}

bool YumIO::preloadReal()
{
    PyGILStateWrapper const lock(true);
    QByteArray const path = QFile::encodeName(Share::absolute(QStringLiteral("python/preload.py")));
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(
        std::fopen(path.constData(), "re"), &std::fclose);
    PyRef const name = PyRef::steal(PyUnicode_DecodeFSDefault(path.constData()));
    PyRef const globals = PyRef::steal(PyDict_New());
    bool done = false;
    if (file && name && globals && PyDict_SetItemString(globals.get(), "__file__", name.get()) == 0 &&
        PyDict_SetItemString(globals.get(), "__builtins__", PyEval_GetBuiltins()) == 0) {
        done = bool(PyRef::steal(
            PyRun_File(file.get(), path.constData(), Py_file_input, globals.get(), globals.get())));
    }
    PyErr_Clear();
    return done;
}

void YumIO::clear()
{
    if (!initialized || !pyYumIOClass) {
        return;
    }
    detachEntries();
    jobs.runBare([this] { return clearReal(); });
}

bool YumIO::clearReal()
{
    YumIODialogsUser const dialogsUser(jobs.dialogs, jobs.parent);
    PyGILStateWrapper const lock(true);
    pyMethodCall(yumIO.get(), "flush", "()");
    dropEntries();
    repos.reset();
    yumIO.reset();
    PyRef const none = PyRef::steal(PyTuple_New(0));
    yumIO = PyRef::steal(PyObject_Call(pyYumIOClass.get(), none.get(), nullptr));
    if (!yumIO && PyErr_Occurred()) {
        handleException();
        PyErr_Clear();
    }
    return bool(yumIO);
}

void YumIO::detachEntries()
{
    // After a failed collection the entries stand in the hash alone.
    detached += entries.isEmpty() ? entryHash.values() : entries;
    entries.clear();
    entryHash.clear();
    for (Package::RowDetails& those : rowDetails) {
        those.clear();
    }
    installedSizes.clear();
    left.text.clear();
    left.versions.clear();
}

void YumIO::dropEntries()
{
    qDeleteAll(detached);
    detached = {};
    left.older.reset();
}

void YumIO::execWorkThread(QEventLoop& loop, QThread& thread)
{
    jobs.exec(loop, thread);
}

void YumIO::leave()
{
    // The job may keep the interpreter lock for as long as it takes.
    constexpr std::chrono::milliseconds patience(1500);
    std::thread([patience] {
        std::this_thread::sleep_for(patience);
        std::_Exit(EXIT_SUCCESS);
    }).detach();
    {
        PyGILStateWrapper const lock(initialized);
        if (locked) {
            pyMethodCall(yumIO.get(), "unlock", "()");
        }
    }
    std::_Exit(EXIT_SUCCESS);
}

// On the GUI thread, which may paint the table at any moment of the job.
void YumIO::takeEntries()
{
    entries.reserve(entryHash.size());
    for (Package::Entry* const entry : std::as_const(entryHash)) {
        entries.append(entry);
    }
}

bool YumIO::collectFileLists()
{
    if (fileListsCollected) {
        return true;
    }
    Stop::Job const stoppable(stop);
    QEventLoop loop;
    CollectFileListsThread thread(this, loop);
    execWorkThread(loop, thread);
    return thread.result;
}

bool YumIO::collectOtherData()
{
    if (otherDataCollected) {
        return true;
    }
    Stop::Job const stoppable(stop);
    QEventLoop loop;
    CollectOtherDataThread thread(this, loop);
    execWorkThread(loop, thread);
    return thread.result;
}

bool YumIO::collectBuildHost(Package::Entry const& entry)
{
    if (buildHostAtHand(entry)) {
        return true;
    }
    return jobs.runBare([&] { return collectBuildHostReal(entry); });
}

bool YumIO::apply()
{
    Stop::Job const stoppable(stop);
    QEventLoop loop;
    ApplyThread thread(this, loop, ApplyOf::Marks);
    execWorkThread(loop, thread);
    return thread.result;
}

bool YumIO::removeOlder()
{
    if (!left.older) {
        return false;
    }
    Stop::Job const stoppable(stop);
    QEventLoop loop;
    ApplyThread thread(this, loop, ApplyOf::Older);
    execWorkThread(loop, thread);
    return thread.result;
}

bool YumIO::applyHistory(HistoryWish const& wish, QStringList& obstacles)
{
    Stop::Job const stoppable(stop);
    return jobs.runBare([&] { return applyHistoryReal(wish, obstacles); });
}

QList<Package::Entry*>::const_iterator YumIO::begin() const
{
    return entries.constBegin();
}

QList<Package::Entry*>::const_iterator YumIO::end() const
{
    return entries.constEnd();
}

Package::Entry* YumIO::findPackage(QString const& name) const
{
    return entryHash.value(EntryKey(false, name), nullptr);
}

Package::Entry* YumIO::findGroup(QString const& name) const
{
    return entryHash.value(EntryKey(true, name), nullptr);
}

void YumIO::log(Log::Kind kind, unsigned int level, QString const& text)
{
    logEntries.add(kind, level, text);
}

void YumIO::writeStdout(QString const& text)
{
    logEntries.addStream(text, Log::Output, 0, stdoutBuffer);
}

void YumIO::writeStderr(QString const& text)
{
    logEntries.addStream(text, Log::Error, 0, stderrBuffer);
}
