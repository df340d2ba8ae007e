// SPDX-License-Identifier: GPL-2.0-or-later
// Details of all rows at a time, for whoever shows them as a column.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include <utility>

using Package::Detail;

namespace
{

/// How the script's function `rowDetails` calls those that it can tell; null for what each package tells.
char const* scriptName(Detail detail)
{
    switch (detail) {
    case Detail::InstalledSize:
        return "installedSize";
    case Detail::Reason:
        return "reason";
    case Detail::Advisory:
        return "advisory";
    case Detail::Group:
    case Detail::Licence:
    case Detail::Vendor:
        break;
    }
    return nullptr;
}

long long numberOf(PyObject* value)
{
    long long const number = PyLong_AsLongLong(value);
    PyErr_Clear();
    return number;
}

} // namespace

Package::RowDetails const& YumIO::details(Detail detail) const
{
    return rowDetails.at(static_cast<std::size_t>(detail));
}

bool YumIO::wantDetails(Detail detail, bool wanted)
{
    detailsWanted.at(static_cast<std::size_t>(detail)) = wanted;
    if (Package::RowDetails& those = rowDetails.at(static_cast<std::size_t>(detail));
        wanted && those.hasFailed()) {
        those.clear();
    }
    return !wanted || collectDetails();
}

bool YumIO::detailsAtHand() const
{
    for (std::size_t detail = 0; detail < Package::detailCount; ++detail) {
        if (detailsWanted.at(detail) && !rowDetails.at(detail).isFor(count())) {
            return false;
        }
    }
    return true;
}

bool YumIO::collectDetails()
{
    if (!yumIO || detailsAtHand()) {
        return true;
    }
    bool const collected = jobs.runBare([this] { return collectDetailsReal(); });
    takeDetails();
    return collected;
}

bool YumIO::collectDetailsReal()
{
    Jobs::Means const means(jobs);
    PyGILStateWrapper const lock(true);
    return readDetails(entries);
}

bool YumIO::readDetails(QList<Package::Entry*> const& rows)
{
    bool all = true;
    for (std::size_t detail = 0; detail < Package::detailCount; ++detail) {
        Package::RowDetails& those = arrivingDetails.at(detail);
        those.clear();
        if (detailsWanted.at(detail)) {
            char const* const name = scriptName(static_cast<Detail>(detail));
            if (name) {
                all = askScript(name, rows, those) && all;
            } else {
                askPackages(static_cast<Detail>(detail), rows, those);
            }
            those.finish();
        }
    }
    return all;
}

// On the GUI thread, which may paint the table at any moment of the job.
void YumIO::takeDetails()
{
    rowDetails = std::exchange(arrivingDetails, {});
}

void YumIO::askPackages(Detail detail, QList<Package::Entry*> const& rows, Package::RowDetails& those)
{
    for (Package::Entry const* const entry : rows) {
        if (entry->kind == Package::Group) {
            those.append(QString());
        } else if (detail == Detail::Group) {
            those.append(getGroup(*entry));
        } else if (detail == Detail::Licence) {
            those.append(getLicense(*entry));
        } else {
            those.append(getVendor(*entry));
        }
    }
}

bool YumIO::askScript(char const* name, QList<Package::Entry*> const& rows, Package::RowDetails& those)
{
    PyRef const answer = scriptDetails(name, rows);
    if (!answer) {
        those.setFailed();
    }
    those.setKnown(!answer || answer.get() != Py_None);
    PyRef const values = PyRef::steal(answer ? PySequence_Fast(answer.get(), "not a sequence") : nullptr);
    PyErr_Clear();
    Py_ssize_t const told = values ? PySequence_Fast_GET_SIZE(values.get()) : 0;
    Py_ssize_t next = 0;
    for (Package::Entry const* const entry : rows) {
        PyObject* value = Py_None;
        if (entry->kind != Package::Group && next < told) {
            value = PySequence_Fast_GET_ITEM(values.get(), next++);
        }
        if (PyLong_Check(value)) {
            long long const number = numberOf(value);
            those.append(bytesFormat(static_cast<unsigned long long>(number)), number);
        } else if (PyTuple_Check(value) && PyTuple_GET_SIZE(value) == 3) {
            those.append(
                pyString(PyTuple_GET_ITEM(value, 0)), numberOf(PyTuple_GET_ITEM(value, 1)),
                pyString(PyTuple_GET_ITEM(value, 2)));
        } else {
            those.append(value == Py_None ? QString() : pyString(value), 0);
        }
    }
    return bool(answer);
}

PyRef YumIO::scriptDetails(char const* name, QList<Package::Entry*> const& rows)
{
    constexpr char const* method = "rowDetails";
    if (!script.has(method)) {
        return PyRef::borrow(Py_None);
    }
    PyRef const packages = PyRef::steal(PyList_New(0));
    for (Package::Entry const* const entry : rows) {
        if (entry->kind != Package::Group && PyList_Append(packages.get(), entry->pyObject.get()) != 0) {
            PyErr_Clear();
            return PyRef();
        }
    }
    return script.object(
        method, {QLatin1String(name), Script::Argument::object(packages)},
        tr("Unable to read what a column shows"));
}

std::optional<long long> YumIO::installedSize(QList<Package::Entry const*> const& those)
{
    // A click marks one, and a button perhaps some thousand, which takes some milliseconds.
    constexpr qsizetype most = 5000;
    QList<Package::Entry*> unknown;
    for (Package::Entry const* const entry : those) {
        if (!installedSizes.contains(entry->serial)) {
            unknown.append(const_cast<Package::Entry*>(entry));
        }
    }
    if (unknown.size() > most || jobRuns()) {
        return std::nullopt;
    }
    if (!unknown.isEmpty() && yumIO) {
        PyGILStateWrapper const lock(true);
        Package::RowDetails sizes;
        if (!askScript("installedSize", unknown, sizes)) {
            return std::nullopt;
        }
        for (qsizetype i = 0; i < unknown.size(); ++i) {
            if (!sizes.text(static_cast<int>(i)).isEmpty()) {
                installedSizes.insert(unknown[i]->serial, sizes.number(static_cast<int>(i)));
            }
        }
    }
    long long sum = 0;
    for (Package::Entry const* const entry : those) {
        auto const size = installedSizes.constFind(entry->serial);
        if (size == installedSizes.constEnd()) {
            return std::nullopt;
        }
        sum += *size;
    }
    return sum;
}
