// SPDX-License-Identifier: GPL-2.0-or-later
// Apply: the user's marks become three lists for one call of the helper script, during which everything
// else is called back: solving, listing, the question to the user, downloads and the transaction.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "base/Interrupt.h"
#include "base/StartingPoint.h"
#include "engine/TransactionWeight.h"
#include "services/Progress.h"
#include "services/YumIOCapturersUser.h"
#include "services/YumIODialogs.h"

#include <QDialog>
#include <QFile>

namespace
{

// Steps of the first run of the bars: preparing, then solving with its header downloads.
constexpr Steps preparingSteps = 100;
constexpr Steps solverSteps = 9900;

// Steps of the second run.
constexpr unsigned long long downloadSteps = 24000;
constexpr Steps testSteps = 2000;
/// Preparing 100, getting ready 1000, the transaction 8000.
constexpr Steps transactionSteps = 9100;

/// The script's word for it.
char const* scriptName(HistoryWish::Kind kind)
{
    switch (kind) {
    case HistoryWish::Kind::Undo:
        return "undo";
    case HistoryWish::Kind::Redo:
        return "redo";
    case HistoryWish::Kind::RollBack:
        return "rollback";
    }
    return "";
}

} // namespace

bool YumIO::applyReal(ApplyOf what)
{
    bool const applied = applyCalling("apply", [this, what] { return applyLists(what); });
    if (applied && what == ApplyOf::Marks) {
        closeInstalledFiles();
    }
    return applied;
}

bool YumIO::applyHistoryReal(HistoryWish const& wish, QStringList& obstacles)
{
    auto const wished = [&wish] {
        return PyRef::steal(
            Py_BuildValue("(s,i,O)", scriptName(wish.kind), wish.number, wish.without ? Py_True : Py_False));
    };
    return applyCalling("applyHistory", wished, &obstacles);
}

bool YumIO::applyCalling(
    char const* function, std::function<PyRef()> const& makeArguments, QStringList* obstacles)
{
    jobs.blocker.block();
    Jobs::Means const means(jobs);
    log(Log::Action, 0, tr("Applying"));
    PyGILStateWrapper const lock(true);
    jobs.progress->startTotal(tr("Checking Dependencies: Total Progress"), preparingSteps + solverSteps);
    jobs.progress->startItem(tr("Preparing"), preparingSteps, 1);

    run = ApplyRun();
    PyRef const arguments = makeArguments();
    if (!arguments) {
        return false;
    }
    run.pkgActs = run.nPkgs;
    run.totalPkgActs = run.pkgActs;
    jobs.progress->setupItemActs(solverSteps, run.totalPkgActs + run.nHdrs * actsPerHeader);

    {
        YumIOCapturersUser const capturersUser(jobs.capturers, this);
        PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
        pyExceptStart();
        pyExceptExpect(baseError);
        pyExceptExpect(PyExc_IOError);
        PyRef const result = pyMethodCall(yumIO.get(), function, "O", arguments.get());
        transactionBegun = false;
        if (Interrupt::transactionEnds()) {
            leaveAfterInterrupt(bool(result));
        }
        if (pyExceptMatches(result.get(), baseError)) {
            pythonExceptionV(tr("Error applying changes"));
            return false;
        }
        if (pyExceptMatches(result.get(), PyExc_IOError)) {
            pythonException(tr("Error applying changes: Exiting on Broken Pipe"));
            PyErr_Clear();
            return false;
        }
        pyExceptClear();
        if (obstacles && result) {
            *obstacles = script.texts(function, result).value_or(QStringList());
        }
    }
    pyMethodCall(yumIO.get(), "flush", "()");
    jobs.progress->reset();
    run.updateNames.clear();
    return run.applyConfirmed;
}

PyRef YumIO::applyLists(ApplyOf what)
{
    PyRef const installs = PyRef::steal(PyList_New(0));
    PyRef const updates = PyRef::steal(PyList_New(0));
    PyRef removes = PyRef::steal(PyList_New(0));
    if (what == ApplyOf::Older) {
        removes = PyRef::borrow(left.older.get());
        run.nPkgs = static_cast<unsigned int>(PyList_GET_SIZE(removes.get()));
    } else if (!collectMarks(installs.get(), updates.get(), removes.get())) {
        return PyRef();
    }
    return PyRef::steal(PyTuple_Pack(3, installs.get(), updates.get(), removes.get()));
}

bool YumIO::collectMarks(PyObject* installs, PyObject* updates, PyObject* removes)
{
    for (Package::Entry* const entry : std::as_const(entries)) {
        entry->applyAction = entry->action;
        entry->applyCause = entry;
    }
    return applyGroups() && splitMarks(installs, updates, removes);
}

void YumIO::leaveAfterInterrupt(bool succeeded)
{
    PyRef const value = succeeded ? PyRef() : pyExceptValuef();
    QString const cause = value ? pyString(value.get()) : QString();
    pyExceptClear();
    PyErr_Clear();
    pyMethodCall(yumIO.get(), "unlock", "()");
    if (!succeeded) {
        // There is no window any more to tell it in.
        QString const words = tr("Error applying changes") + QLatin1Char('\n') + cause + QLatin1Char('\n');
        StartingPoint::tell(words.toLocal8Bit().constData());
    }
    Interrupt::end();
}

bool YumIO::splitMarks(PyObject* installs, PyObject* updates, PyObject* removes)
{
    auto const append = [this](PyObject* list, Package::Entry const& entry, QString const& report) {
        if (!entry.pyObject || PyList_Append(list, entry.pyObject.get()) != 0) {
            PyErr_Clear();
            error(report);
        }
    };
    auto const countHeader = [this](Package::Entry const& entry) {
        if (!QFile::exists(getLocalHdr(entry.pyObject.get()))) {
            ++run.nHdrs;
        }
    };
    for (Package::Entry* const entry : std::as_const(entries)) {
        if (entry->kind == Package::Group) {
            continue;
        }
        // There is no old version to make a pair with.
        bool const goesInAnew = entry->applyAction == Package::Update && entry->replacesOthers();
        switch (goesInAnew ? Package::Install : entry->applyAction) {
        case Package::Remove:
            append(
                removes, entry->installed ? *entry->installed : *entry,
                tr("Unable to add package %1 to removes list").arg(entry->name));
            ++run.nPkgs;
            break;
        case Package::Install:
            append(installs, *entry, tr("Unable to add package %1 to installs list").arg(entry->name));
            ++run.nPkgs;
            countHeader(*entry);
            break;
        case Package::Update:
            if (!addUpdatePair(*entry, updates)) {
                return false;
            }
            run.nPkgs += 2;
            countHeader(*entry);
            break;
        case Package::None:
            break;
        }
    }
    return true;
}

bool YumIO::addUpdatePair(Package::Entry const& entry, PyObject* updates)
{
    if (!entry.installed) {
        error(tr("Unable to find installed version for package update %1").arg(entry.name));
        return false;
    }
    PyRef const pair = PyRef::steal(PyList_New(0));
    auto const append = [this, &entry](PyObject* list, PyObject* object, QString const& report) {
        if (!object || PyList_Append(list, object) != 0) {
            PyErr_Clear();
            error(report.arg(entry.name));
        }
    };
    append(pair.get(), entry.pyObject.get(), tr("Unable to add new package to pair for updated package %1"));
    append(
        pair.get(), entry.installed->pyObject.get(),
        tr("Unable to add old package to pair for updated package %1"));
    append(updates, pair.get(), tr("Unable to add package %1 to updates list"));
    return true;
}

PyObject* YumIO::userconfirm(PyObject*, PyObject*)
{
    if (!jobs.progress || !jobs.dialogs) {
        return PyLong_FromLong(0);
    }
    jobs.progress->endItemActs();
    jobs.progress->reset();
    run.applyConfirmed = askUser();
    log(Log::Action, 0, run.applyConfirmed ? tr("Applying: OK") : tr("Not Applying: Canceled"));
    if (run.applyConfirmed) {
        prepareTransactionProgress();
    }
    return PyLong_FromLong(run.applyConfirmed ? 1 : 0);
}

void YumIO::prepareTransactionProgress()
{
    run.downloadActs = run.totalBytes == 0
                           ? 0
                           : static_cast<unsigned int>(run.downloadBytes * downloadSteps / run.totalBytes);
    Steps const total = run.downloadActs + (usesPresto() ? deltaSteps : 0) +
                        (hasTransTest() ? testSteps : 0) + transactionSteps;
    jobs.progress->startTotal(tr("Running Transaction: Total Progress"), total);
    jobs.progress->startItem(tr("Preparing"), preparingSteps, 1);
    jobs.progress->setupItemActs(run.downloadActs, run.downloadBytes);
}
