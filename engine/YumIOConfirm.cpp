// SPDX-License-Identifier: GPL-2.0-or-later
// The question before a transaction: what the helper script tells of each package becomes the second page of
// the dialog, and the changelogs are loaded while the dialog stands, if the user wants them.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/Progress.h"
#include "services/YumIODialogs.h"
#include "services/YumIODialogsUser.h"

#include <QDialog>
#include <QScopedValueRollback>
#include <array>
#include <utility>

namespace
{

using Details = TransactionDetails;

template <class Value, std::size_t count>
Value meant(std::array<std::pair<char const*, Value>, count> const& words, char const* word, Value otherwise)
{
    for (auto const& [known, value] : words) {
        if (qstrcmp(known, word) == 0) {
            return value;
        }
    }
    return otherwise;
}

constexpr std::array<std::pair<char const*, Details::Action>, 6> actions{
    {{"install", Details::Action::Install},
     {"upgrade", Details::Action::Update},
     {"downgrade", Details::Action::Downgrade},
     {"reinstall", Details::Action::Reinstall},
     {"remove", Details::Action::Remove},
     {"obsoleted", Details::Action::Replace}}};

constexpr std::array<std::pair<char const*, Details::Why>, 8> reasons{
    {{"marked", Details::Why::Marked},
     {"required", Details::Why::Required},
     {"recommended", Details::Why::Recommended},
     {"together", Details::Why::Together},
     {"needs", Details::Why::Needs},
     {"supplanted", Details::Why::Supplanted},
     {"unneeded", Details::Why::Unneeded},
     {"surplus", Details::Why::Surplus}}};

constexpr std::array<std::pair<char const*, Details::Warnings>, 5> warnings{
    {{"unmarked", Details::Unmarked},
     {"protected", Details::Protected},
     {"running", Details::Running},
     {"older", Details::Older},
     {"unchecked", Details::Unchecked}}};

constexpr char const* installedRepository = "@System";

} // namespace

PyObject* YumIO::transactionDetails(PyObject*, PyObject* args)
{
    PyObject* rows = nullptr;
    long long download = 0;
    long long growth = 0;
    PyObject* changes = nullptr;
    if (!PyArg_ParseTuple(args, "OLLO", &rows, &download, &growth, &changes)) {
        return nullptr;
    }
    run.details = TransactionDetails();
    if (!takeTransactionDetails(rows)) {
        run.details = TransactionDetails();
        return nullptr;
    }
    run.details.download = bytesFormat(static_cast<unsigned long long>(qMax(0LL, download)));
    run.details.growth = bytesFormat(static_cast<unsigned long long>(qAbs(growth)));
    run.details.growthSign = growth > 0 ? 1 : growth < 0 ? -1 : 0;
    run.details.changes = changes != Py_None;
    run.changes = PyRef::borrow(changes);
    Py_RETURN_NONE;
}

bool YumIO::takeTransactionDetails(PyObject* rows)
{
    PyRef const sequence = PyRef::steal(PySequence_Fast(rows, "the rows are no sequence"));
    if (!sequence) {
        return false;
    }
    auto const texts = [this](PyObject* list) {
        QStringList found;
        Py_ssize_t const count = PySequence_Size(list);
        for (Py_ssize_t at = 0; at < count; ++at) {
            found.append(pyStringDec(PyRef::steal(PySequence_GetItem(list, at))));
        }
        return found;
    };
    Py_ssize_t const count = PySequence_Fast_GET_SIZE(sequence.get());
    run.details.rows.reserve(count);
    for (Py_ssize_t at = 0; at < count; ++at) {
        char const* action = nullptr;
        char const* name = nullptr;
        char const* arch = nullptr;
        char const* oldVersion = nullptr;
        char const* newVersion = nullptr;
        char const* repository = nullptr;
        char const* why = nullptr;
        PyObject* whom = nullptr;
        PyObject* replaces = nullptr;
        PyObject* told = nullptr;
        TransactionDetails::Row row;
        PyObject* const values = PySequence_Fast_GET_ITEM(sequence.get(), at);
        if (!PyTuple_Check(values)) {
            PyErr_SetString(PyExc_TypeError, "a row is no tuple");
            return false;
        }
        if (!PyArg_ParseTuple(
                values, "ssssssLsOiOO", &action, &name, &arch, &oldVersion, &newVersion, &repository,
                &row.size, &why, &whom, &row.more, &replaces, &told)) {
            return false;
        }
        row.action = meant(actions, action, Details::Action::Install);
        row.name = QString::fromUtf8(name);
        row.arch = QString::fromUtf8(arch);
        row.oldVersion = QString::fromUtf8(oldVersion);
        row.newVersion = QString::fromUtf8(newVersion);
        if (qstrcmp(repository, installedRepository) != 0) {
            row.repository = QString::fromUtf8(repository);
        }
        row.sizeText = bytesFormat(static_cast<unsigned long long>(qMax(0LL, row.size)));
        row.why = meant(reasons, why, Details::Why::Solver);
        row.whom = texts(whom);
        row.replaces = texts(replaces);
        for (QString const& warning : texts(told)) {
            row.warnings |= meant(warnings, warning.toUtf8().constData(), Details::Warnings());
        }
        if (PyErr_Occurred()) {
            return false;
        }
        run.details.rows.append(row);
    }
    return true;
}

bool YumIO::askUser()
{
    QString const caption = tr("Apply");
    if (run.details.rows.isEmpty()) {
        return jobs.dialogs->confirm(caption, run.transactionText) == QDialog::Accepted;
    }
    int const answer =
        jobs.dialogs->confirm(caption, run.transactionText, run.details, [this] { return newerChanges(); });
    run.changes.reset();
    return answer == QDialog::Accepted;
}

QStringList YumIO::newerChanges()
{
    // Loading is a job with bars of its own and a call that may fail, in the middle of the script's apply.
    // Trouble is told by a front of its own: the one of the apply waits for the answer.
    YumIODialogsUser const dialogsUser(jobs.dialogs, jobs.parent);
    Progress* const ofTheApply = jobs.progress;
    QScopedValueRollback<qsizetype> const mark(logMark);
    bool const loaded = otherDataCollected || collectOtherDataReal();
    jobs.progress = ofTheApply;
    if (!loaded) {
        pyExceptClear();
    }
    jobs.progress->reset();
    if (!loaded) {
        return {};
    }
    PyRef const texts = PyRef::steal(PyObject_CallObject(run.changes.get(), nullptr));
    QStringList found;
    Py_ssize_t const count = texts ? PySequence_Size(texts.get()) : -1;
    for (Py_ssize_t at = 0; at < count; ++at) {
        found.append(pyStringDec(PyRef::steal(PySequence_GetItem(texts.get(), at))));
    }
    if (count < 0) {
        pythonExceptionV(tr("Unable to read the changes"));
        PyErr_Clear();
    }
    return found;
}
