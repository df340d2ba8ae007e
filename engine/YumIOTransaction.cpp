// SPDX-License-Identifier: GPL-2.0-or-later
// The running transaction: download meter, rpm's callback codes and the library's transaction events move
// the second run of the bars and name each step in the log.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "base/Interrupt.h"
#include "engine/BuffetUrl.h"
#include "engine/TransactionWeight.h"
#include "services/Progress.h"

#include <optional>

namespace
{

constexpr Steps getReadySteps = 1000;
constexpr Steps testSteps = 1000;
constexpr Steps runSteps = 8000;
/// The test is worth this part of the transaction's work.
constexpr unsigned long long testShare = 20;

// Bits of rpm's rpmCallbackType.
constexpr long instProgress = 0x001;
constexpr long instStart = 0x002;
constexpr long instOpenFile = 0x004;
constexpr long instCloseFile = 0x008;
constexpr long transProgress = 0x010;
constexpr long transStart = 0x020;
constexpr long transStop = 0x040;
constexpr long uninstProgress = 0x080;
constexpr long uninstStart = 0x100;
constexpr long uninstStop = 0x200;
constexpr long understoodCallbacks = instProgress | instStart | instOpenFile | instCloseFile | transProgress |
                                     transStart | transStop | uninstProgress | uninstStart | uninstStop;

// The yum library's transaction codes (yum.constants).
constexpr long tsUpdate = 10;
constexpr long tsInstall = 20;
constexpr long tsTrueInstall = 30;
constexpr long tsErase = 40;
constexpr long tsObsoleted = 50;
constexpr long tsObsoleting = 60;
constexpr long tsAvailable = 70;
constexpr long tsUpdated = 90;

constexpr qint64 rateInterval = 500; ///< milliseconds; faster, nobody could read it

QString duration(long long seconds)
{
    constexpr long long minute = 60;
    constexpr long long hour = 60 * minute;
    if (seconds < minute) {
        return YumIO::tr("%1 s").arg(seconds);
    }
    // Halves of minutes upwards: what is left is rather too long than too short.
    long long const minutes = (seconds + minute / 2) / minute;
    return seconds < hour ? YumIO::tr("%1 min").arg(minutes)
                          : YumIO::tr("%1 h %2 min").arg(minutes / minute).arg(minutes % minute);
}

} // namespace

PyObject* YumIO::applyGrabMeterStart(PyObject*, PyObject* args)
{
    PyObject* nameObject = nullptr;
    PyObject* ignoredUrl = nullptr;
    PyObject* ignoredBase = nullptr;
    long long size = 0;
    PyObject* textObject = nullptr;
    if (!PyArg_ParseTuple(args, "OOOLO", &nameObject, &ignoredUrl, &ignoredBase, &size, &textObject)) {
        return nullptr;
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    QString const text = pyProgressText(textObject, true, "Internal error: unexpected progress text");
    if (text == QLatin1String("<delta rebuild>")) {
        jobs.progress->endItemActs();
        run.deltaRebuild = true;
        jobs.progress->startItem(
            tr("Finishing RPM rebuild from deltas"), deltaSteps, static_cast<Steps>(size));
        Py_RETURN_NONE;
    }
    QString name = pyProgressText(nameObject, false, "Internal error: unexpected progress name");
    name.remove(0, name.lastIndexOf(QLatin1Char('/')) + 1);
    removeBuffetCredentials(name);
    if (name.endsWith(QLatin1String(".rpm")) || name.endsWith(QLatin1String(".hdr"))) {
        name.chop(4);
    }
    QString shown;
    if (run.applyConfirmed) {
        shown = tr("Downloading %1").arg(name);
        run.actsDone += weightOfSize(static_cast<unsigned long long>(qMax(size, 0LL)));
    } else {
        // Before the user's answer only headers are fetched, while solving.
        shown = tr("Downloading %1 header").arg(name);
        run.actsDone += actsPerHeader;
    }
    jobs.progress->startItemAct(shown, static_cast<Steps>(size), run.actsDone);
    if (run.applyConfirmed) {
        if (!run.clock.isValid()) {
            run.clock.start();
        }
        run.rate.startFile(size, run.clock.elapsed());
        run.rateShown = 0;
        tellRate(run.clock.elapsed());
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::applyGrabMeterUpdate(PyObject*, PyObject* args)
{
    long long bytes = 0;
    if (!PyArg_ParseTuple(args, "L", &bytes)) {
        return nullptr;
    }
    if (jobs.progress) {
        jobs.progress->setItemValue(static_cast<Steps>(bytes));
        if (run.clock.isValid() && !run.deltaRebuild) {
            qint64 const now = run.clock.elapsed();
            run.rate.update(bytes, now);
            tellRate(now);
        }
    }
    Py_RETURN_NONE;
}

void YumIO::tellRate(qint64 now)
{
    std::optional<double> const rate = run.rate.bytesPerSecond();
    if (!rate || (run.rateShown > 0 && now < run.rateShown + rateInterval)) {
        return;
    }
    run.rateShown = now;
    QString const speed = tr("%1/s").arg(bytesFormat(static_cast<unsigned long long>(*rate)));
    std::optional<long long> const seconds = run.rate.secondsLeft(static_cast<long long>(run.reportedBytes));
    jobs.progress->setItemNote(seconds ? tr("%1, %2 left").arg(speed, duration(*seconds)) : speed);
}

PyObject* YumIO::applyGrabMeterEnd(PyObject*, PyObject* args)
{
    long long ignored = 0;
    if (!PyArg_ParseTuple(args, "L", &ignored)) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::tsInitCallback(PyObject*, PyObject* args)
{
    long real = 0;
    if (!PyArg_ParseTuple(args, "l", &real)) {
        return nullptr;
    }
    if (watching) {
        // Behind this one the collection starts its bars again.
        watched = true;
        run = ApplyRun();
        if (jobs.progress) {
            jobs.progress->reset();
            jobs.progress->startTotal(tr("Running Transaction: Total Progress"), getReadySteps + runSteps);
            jobs.progress->startItem(tr("Preparing to Run Transaction"), getReadySteps, 1);
        }
        Py_RETURN_NONE;
    }
    if (real) {
        QString const words = tr("The transaction goes on; the program ends when it has come to its end.");
        transactionBegun = true;
        stop.tooLate();
        Interrupt::transactionBegins((words + QLatin1Char('\n')).toLocal8Bit().toStdString());
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    run.actsDone = 0;
    Steps const testActs = run.transactionActs / testShare;
    if (real) {
        if (hasTransTest()) {
            jobs.progress->endItemActs();
        }
        jobs.progress->startItem(tr("Preparing to Run Transaction"), getReadySteps, 1);
        jobs.progress->setupItemActs(runSteps, run.transactionActs + testActs);
        Py_RETURN_NONE;
    }
    if (!run.deltaRebuild) {
        jobs.progress->endItemActs();
        if (usesPresto()) {
            // The steps that were set aside for a rebuild which never came are spent at a stroke.
            jobs.progress->startItem(tr("Finishing RPM rebuild from deltas"), deltaSteps, 1);
            jobs.progress->setItemValue(1);
        }
    }
    if (hasTransTest()) {
        jobs.progress->startItem(tr("Preparing to Test Transaction"), getReadySteps, 1);
        jobs.progress->setupItemActs(testSteps, testActs);
    }
    Py_RETURN_NONE;
}

void YumIO::startPuttingIn(QString const& name, bool update, long long total)
{
    QString const text = update ? tr("Updating %1").arg(name) : tr("Installing %1").arg(name);
    if (watching) {
        ++run.actsDone;
    } else if (Package::Entry const* const entry = findPackage(name)) {
        run.actsDone += weightOfInstalling(entry->size);
    }
    log(Log::Info, 1, text);
    jobs.progress->startItemAct(text, static_cast<Steps>(total), run.actsDone);
}

void YumIO::startTakingOut(QString const& name, bool update, long long total)
{
    QString const text = update ? tr("Completing update for: %1").arg(name) : tr("Removing %1").arg(name);
    if (watching) {
        ++run.actsDone;
    } else if (Package::Entry const* const entry = findPackage(name)) {
        if (!update) {
            run.actsDone += weightOfSize(entry->size);
        } else if (entry->installed) {
            run.actsDone += weightOfCleanup(entry->installed->size);
        }
    }
    jobs.progress->startItemAct(text, static_cast<Steps>(total), run.actsDone);
}

PyObject* YumIO::tsCallback(PyObject*, PyObject* args)
{
    long what = 0;
    long long amount = 0;
    long long total = 0;
    PyObject* key = nullptr;
    PyObject* ignored = nullptr;
    if (!PyArg_ParseTuple(args, "lLLOO", &what, &amount, &total, &key, &ignored)) {
        return nullptr;
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    if (what & transStart) {
        run.actsDone += run.transactionActs / testShare;
        jobs.progress->startItemAct(tr("Transaction Test"), static_cast<Steps>(total), run.actsDone);
    }
    if (what & transProgress) {
        jobs.progress->setItemValue(static_cast<Steps>(amount));
    }
    if (what & transStop) {
        jobs.progress->setItemValue(static_cast<Steps>(total));
    }
    if (what & instStart) {
        // A key that isn't understood is reported, but doesn't stop what rpm has begun.
        PyRef const header = PyRef::steal(PySequence_GetItem(key, 0));
        if (!header) {
            handleException();
        }
        QString const name = header ? pyMappingString(header.get(), "name") : QString();
        startPuttingIn(name, run.updateNames.contains(name), total);
    }
    if (what & instProgress) {
        jobs.progress->setItemValue(static_cast<Steps>(amount));
    }
    if (what & uninstStart) {
        QString const name = pyString(key);
        startTakingOut(name, run.updateNames.contains(name), total);
    }
    if (what & uninstProgress) {
        jobs.progress->setItemValue(static_cast<Steps>(amount));
    }
    if (what & uninstStop) {
        jobs.progress->setItemValue(static_cast<Steps>(total));
    }
    if (!(what & understoodCallbacks)) {
        warning(tr("Internal error: YumIO::tsCallback what=%1 not understood; ignoring").arg(what));
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::scriptRuns(PyObject*, PyObject* args)
{
    char const* name = nullptr;
    if (!PyArg_ParseTuple(args, "s", &name)) {
        return nullptr;
    }
    if (jobs.progress) {
        run.scriptTold = true;
        jobs.progress->setItemNote(tr("script of %1").arg(QString::fromUtf8(name)));
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::tsEvent(PyObject*, PyObject* args)
{
    PyObject* package = nullptr;
    long action = 0;
    long long elementValue = 0;
    long long elementTotal = 0;
    long ordinal = 0;
    long count = 0;
    if (!PyArg_ParseTuple(
            args, "OlLLll", &package, &action, &elementValue, &elementTotal, &ordinal, &count)) {
        return nullptr;
    }
    if (!jobs.progress) {
        Py_RETURN_NONE;
    }
    if (run.scriptTold) {
        // What is reported now comes behind the script.
        run.scriptTold = false;
        jobs.progress->setItemNote(QString());
    }
    // Reported for every chunk of every file: a package is new when its ordinal is.
    bool const isNew = static_cast<unsigned long long>(ordinal) != run.lastEventPkg;
    if (watching && run.lastEventPkg == 0) {
        // There is no table yet to weigh the packages by: each counts the same.
        jobs.progress->setupItemActs(runSteps, static_cast<Steps>(count));
    }
    switch (action) {
    case tsUpdate:
    case tsObsoleting:
    case tsInstall:
    case tsTrueInstall:
        if (isNew) {
            startPuttingIn(
                pyStringDec(pyAttribute(package, "name")), action == tsUpdate || action == tsObsoleting,
                elementTotal);
        }
        break;
    case tsErase:
    case tsUpdated:
    case tsObsoleted:
        if (isNew) {
            startTakingOut(pyString(package), action != tsErase, elementTotal);
        }
        break;
    case tsAvailable:
        Py_RETURN_NONE;
    default:
        warning(tr("Internal error: YumIO::tsEvent action=%1 not understood; ignoring").arg(action));
        Py_RETURN_NONE;
    }
    run.lastEventPkg = static_cast<unsigned long long>(ordinal);
    jobs.progress->setItemValue(static_cast<Steps>(elementValue));
    Py_RETURN_NONE;
}

PyObject* YumIO::postTransactionOutput(PyObject*, PyObject* args)
{
    PyObject* holder = nullptr;
    if (!PyArg_ParseTuple(args, "O", &holder)) {
        return nullptr;
    }
    if (jobs.progress) {
        jobs.progress->endItemActs();
    }
    TransactionLists lists;
    if (!makeLists(holder, lists)) {
        return nullptr;
    }
    bool const shown = displayTransactionPkgs(tr("Removed"), lists.removed.get()) &&
                       displayTransactionPkgs(tr("Dependency Removed"), lists.depremoved.get()) &&
                       displayTransactionPkgs(tr("Installed"), lists.installed.get()) &&
                       displayTransactionPkgs(tr("Dependency Installed"), lists.depinstalled.get()) &&
                       displayTransactionPkgs(tr("Updated"), lists.updated.get()) &&
                       displayTransactionPkgs(tr("Dependency Updated"), lists.depupdated.get()) &&
                       displayTransactionPkgs(tr("Obsoleted"), lists.obsoleted.get());
    return shown ? PyUnicode_FromString("") : nullptr;
}

QString YumIO::getLocalPkg(PyObject* pkg)
{
    PyRef const path = pyMethodCall(pkg, "localPkg", "()");
    return path && path.get() != Py_None ? pyString(path.get()) : QString();
}

QString YumIO::getLocalHdr(PyObject* pkg)
{
    PyRef const path = pyMethodCall(pkg, "localHdr", "()");
    return path && path.get() != Py_None ? pyString(path.get()) : QString();
}
