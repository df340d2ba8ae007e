// SPDX-License-Identifier: GPL-2.0-or-later
// Listing of a solved transaction: the text of the confirmation dialog, and the byte counts and work units
// that scale the second run of the bars.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "engine/TransactionWeight.h"

#include <QFile>
#include <array>
#include <functional>

namespace
{

bool isEmpty(PyObject* sequence)
{
    Py_ssize_t const size = PySequence_Size(sequence);
    if (size < 0) {
        PyErr_Clear();
    }
    return size <= 0;
}

/// Calls `visit` with each member of an iterable until one answers false.
bool forEach(PyObject* iterable, std::function<bool(PyObject*)> const& visit)
{
    PyRef const iterator = PyRef::steal(PyObject_GetIter(iterable));
    if (!iterator) {
        return false;
    }
    while (PyRef const member = PyRef::steal(PyIter_Next(iterator.get()))) {
        if (!visit(member.get())) {
            return false;
        }
    }
    return !PyErr_Occurred();
}

} // namespace

PyObject* YumIO::reportDownloadSize(PyObject*, PyObject* args)
{
    PyObject* packages = nullptr;
    if (!PyArg_ParseTuple(args, "O", &packages)) {
        return nullptr;
    }
    unsigned long long sum = 0;
    bool const complete = forEach(packages, [&](PyObject* package) {
        sum += sizeOf(package);
        return true;
    });
    if (!complete) {
        return nullptr;
    }
    run.reportedBytes = sum;
    run.transactionText += tr("Total download size: %1\n").arg(bytesFormat(sum));
    Py_RETURN_NONE;
}

bool YumIO::makeLists(PyObject* holder, TransactionLists& result)
{
    result.tsInfo = pyAttribute(holder, "tsInfo");
    result.lists = pyMethodCall(result.tsInfo.get(), "makelists", "()");
    std::array<std::pair<char const*, PyRef*>, 7> const members{
        {{"updated", &result.updated},
         {"installed", &result.installed},
         {"removed", &result.removed},
         {"obsoleted", &result.obsoleted},
         {"depupdated", &result.depupdated},
         {"depinstalled", &result.depinstalled},
         {"depremoved", &result.depremoved}}};
    if (yumVersion() > 20301) {
        if (!result.lists) {
            return false;
        }
        for (auto const& [name, list] : members) {
            *list = pyAttribute(result.tsInfo.get(), name);
            if (!*list) {
                error(
                    tr("Internal error: %1 not found\n").arg(QLatin1String("tsInfo.") + QLatin1String(name)));
                return false;
            }
        }
        return true;
    }
    if (!result.lists || !PyTuple_Check(result.lists.get())) {
        error("Internal error: yumIO.makelists() did not return a tuple\n");
        return false;
    }
    if (PyTuple_GET_SIZE(result.lists.get()) != static_cast<Py_ssize_t>(members.size())) {
        error("Internal error: yumIO.makelists() returned tuple of incorrect size\n");
        return false;
    }
    Py_ssize_t at = 0;
    for (auto const& [name, list] : members) {
        *list = PyRef::borrow(PyTuple_GET_ITEM(result.lists.get(), at++));
    }
    return true;
}

PyObject* YumIO::listTransaction(PyObject*, PyObject* args)
{
    PyObject* holder = nullptr;
    if (!PyArg_ParseTuple(args, "O", &holder)) {
        return nullptr;
    }
    TransactionLists lists;
    if (!makeLists(holder, lists)) {
        return nullptr;
    }
    run.transactionText += tr("Transaction to be performed:\n");
    if (!displayTransactionPkgsRepo(tr("Install"), lists.installed.get()) ||
        !displayTransactionPkgsRepo(tr("Update"), lists.updated.get()) ||
        !displayTransactionPkgs(tr("Remove"), lists.removed.get())) {
        return nullptr;
    }
    if (!isEmpty(lists.depinstalled.get()) || !isEmpty(lists.depupdated.get()) ||
        !isEmpty(lists.depremoved.get())) {
        run.transactionText += tr("Performing the following to resolve dependencies:\n");
        if (!displayTransactionPkgsRepo(tr("Install"), lists.depinstalled.get()) ||
            !displayTransactionPkgsRepo(tr("Update"), lists.depupdated.get()) ||
            !displayTransactionPkgs(tr("Remove"), lists.depremoved.get())) {
            return nullptr;
        }
    }
    if (!isEmpty(lists.obsoleted.get())) {
        run.transactionText += tr("Other Transactions:\n");
        if (!displayTransactionPkgsObs(tr("Obsoleting"), lists.obsoleted.get())) {
            return nullptr;
        }
    }
    if (!displayEnabledStreams(lists.tsInfo.get())) {
        return nullptr;
    }
    noteTransactionPkgs(Package::Install, lists.installed.get());
    noteTransactionPkgs(Package::Update, lists.updated.get());
    noteTransactionPkgs(Package::Remove, lists.removed.get());
    noteTransactionPkgs(Package::Install, lists.depinstalled.get());
    noteTransactionPkgs(Package::Update, lists.depupdated.get());
    noteTransactionPkgs(Package::Remove, lists.depremoved.get());
    noteTransactionPkgs(Package::Remove, lists.obsoleted.get());
    Py_RETURN_NONE;
}

bool YumIO::displayTransactionPkgs(QString const& label, PyObject* members)
{
    return forEach(members, [&](PyObject* member) {
        PyRef const pkgtup = pyAttribute(member, "pkgtup");
        if (!pkgtup) {
            error("Internal error: txmbr lacks pkgtup\n");
            return false;
        }
        run.transactionText += tr("\t%1: %2\n").arg(label, pkgtupFormat(pkgtup.get()));
        return true;
    });
}

bool YumIO::displayTransactionPkgsRepo(QString const& label, PyObject* members)
{
    return forEach(members, [&](PyObject* member) {
        PyRef const pkgtup = pyAttribute(member, "pkgtup");
        if (!pkgtup) {
            error("Internal error: txmbr lacks pkgtup\n");
            return false;
        }
        QString const repo = pyStringDec(pyAttribute(member, "repoid"));
        run.transactionText += tr("\t%1: %2\n").arg(label, pkgtupRepoFormat(pkgtup.get(), repo));
        return true;
    });
}

bool YumIO::displayEnabledStreams(PyObject* tsInfo)
{
    constexpr char const* attribute = "enabledStreams";
    if (PyObject_HasAttrString(tsInfo, attribute) == 0) {
        return true;
    }
    PyRef const streams = pyAttribute(tsInfo, attribute);
    if (isEmpty(streams.get())) {
        return true;
    }
    run.transactionText += tr("Enabling module streams:\n");
    return forEach(streams.get(), [&](PyObject* stream) {
        run.transactionText += tr("\t%1\n").arg(pyString(stream));
        return true;
    });
}

bool YumIO::displayTransactionPkgsObs(QString const& label, PyObject* members)
{
    return forEach(members, [&](PyObject* member) {
        PyRef const pkgtup = pyAttribute(member, "pkgtup");
        if (!pkgtup) {
            error("Internal error: txmbr lacks pkgtup\n");
            return false;
        }
        PyRef const relatedto = pyAttribute(member, "relatedto");
        if (!relatedto) {
            error("Internal error: package has no relatedto\n");
            return false;
        }
        // Older libraries name the obsoleting package by its tuple, newer ones by its member.
        PyRef obsoleting = findRelation(relatedto.get(), "obsoletedby");
        if (obsoleting && yumVersion() > 20301) {
            obsoleting = pyAttribute(obsoleting.get(), "pkgtup");
        }
        if (!obsoleting) {
            error("Internal error: couldn't find obsoletedby package\n");
            return false;
        }
        run.transactionText +=
            tr("\t%1: %2 with %3\n").arg(label, pkgtupFormat(pkgtup.get()), pkgtupFormat(obsoleting.get()));
        return true;
    });
}

PyRef YumIO::findRelation(PyObject* relatedto, char const* relation)
{
    PyRef found;
    forEach(relatedto, [&](PyObject* pair) {
        if (!PyTuple_Check(pair) || PyTuple_GET_SIZE(pair) != 2) {
            return true;
        }
        if (pyString(PyTuple_GET_ITEM(pair, 1)) != QLatin1String(relation)) {
            return true;
        }
        found = PyRef::borrow(PyTuple_GET_ITEM(pair, 0));
        return false;
    });
    PyErr_Clear();
    return found;
}

void YumIO::noteTransactionPkgs(Package::Action action, PyObject* members)
{
    forEach(members, [&](PyObject* member) {
        PyRef const pkgtup = pyAttribute(member, "pkgtup");
        PyRef const nameObject = PyRef::steal(pkgtup ? PySequence_GetItem(pkgtup.get(), 0) : nullptr);
        if (!nameObject) {
            PyErr_Clear();
            return true;
        }
        QString const name = pyString(nameObject.get());
        Package::Entry const* const entry = findPackage(name);
        if (!entry) {
            return true;
        }
        if (action == Package::Remove) {
            run.transactionActs += weightOfSize(entry->size);
            return true;
        }
        unsigned long long const bytes = weightOfSize(entry->size);
        run.totalBytes += bytes;
        if (!QFile::exists(getLocalPkg(entry->pyObject.get()))) {
            run.downloadBytes += bytes;
        }
        run.transactionActs += weightOfInstalling(entry->size);
        if (action == Package::Update) {
            if (entry->installed) {
                run.transactionActs += weightOfCleanup(entry->installed->size);
            }
            run.updateNames.insert(name);
        }
        return true;
    });
    PyErr_Clear();
}

QString YumIO::pkgtupFormat(PyObject* pkgtup)
{
    std::array<QString, 5> parts;
    for (std::size_t at = 0; at < parts.size(); ++at) {
        PyRef item = PyRef::steal(PySequence_GetItem(pkgtup, static_cast<Py_ssize_t>(at)));
        if (item) {
            parts.at(at) = pyStringDec(std::move(item));
        } else {
            PyErr_Clear();
        }
    }
    auto const& [name, arch, epoch, version, release] = parts;
    return epoch == QLatin1String("0") ? tr("%1 %3-%4 (%2)").arg(name, arch, version, release)
                                       : tr("%1 %3:%4-%5 (%2)").arg(name, arch, epoch, version, release);
}

QString YumIO::pkgtupRepoFormat(PyObject* pkgtup, QString const& repo)
{
    return pkgtupFormat(pkgtup) + tr(" [%1]").arg(repo);
}

QString YumIO::replacedPkgs(PyObject* pkg)
{
    QStringList replaced;
    // As with `plainForm`, the class is asked first.
    bool const tells = bool(pyAttribute(reinterpret_cast<PyObject*>(Py_TYPE(pkg)), "replaces"));
    if (PyRef const packages = tells ? pyAttribute(pkg, "replaces") : PyRef()) {
        forEach(packages.get(), [&](PyObject* package) {
            if (PyRef const pkgtup = pyAttribute(package, "pkgtup")) {
                replaced.append(pkgtupFormat(pkgtup.get()));
            }
            return true;
        });
        PyErr_Clear();
    }
    return replaced.join(QLatin1String(", "));
}
