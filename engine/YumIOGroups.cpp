// SPDX-License-Identifier: GPL-2.0-or-later
// Groups: what a group holds, whether it is up to date, and the name lists that marks on it resolve by. An
// old library keeps all groups in one object by group name, a newer one gives each group an object of its
// own.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include <vector>

PyRef YumIO::getGroupItem_22(Package::Entry const& group, char const* key)
{
    if (hasDistribGroups()) {
        error("getGroupItem_22 called for incorrect version of yum");
        return {};
    }
    QString const keyText = QString::fromUtf8(key);
    PyRef const lists = pyAttribute(group.pyObject.get(), key);
    if (!lists) {
        error(tr("Internal error: groupInfo.%1 not evaluable").arg(keyText));
        return {};
    }
    PyRef item = PyRef::borrow(pyDictGetItem(lists.get(), group.name));
    if (!item) {
        error(tr("Internal error: groupInfo.%1[%2] not evaluable").arg(keyText, group.name));
    }
    return item;
}

PyRef YumIO::getGroupItem_25(Package::Entry const& group, char const* key)
{
    if (!hasDistribGroups()) {
        error("getGroupItem_25 called for incorrect version of yum");
        return {};
    }
    PyRef item = pyAttribute(group.pyObject.get(), key);
    if (!item) {
        error(tr("Internal error: group %1.%2 not evaluable").arg(QString::fromUtf8(key), group.name));
    }
    return item;
}

QString YumIO::getGroupGrps(Package::Entry const& group, char const* key)
{
    PyGILStateWrapper const lock(true);
    if (hasDistribGroups()) {
        return QString();
    }
    QStringList names = namesOf(getGroupItem_22(group, key).get());
    return makeSorted(names);
}

QString YumIO::getGroupPkgs(Package::Entry const& group, char const* oldKey, char const* newKey)
{
    PyGILStateWrapper const lock(true);
    PyRef const packages =
        hasDistribGroups() ? getGroupItem_25(group, newKey) : getGroupItem_22(group, oldKey);
    QStringList names = namesOf(packages.get());
    return makeSorted(names);
}

bool YumIO::upToDateGroup(Package::Entry const& group)
{
    return upToDateGroupGrps(group, "sub_groups") &&
           upToDateGroupPkgs(group, "mandatory_pkgs", "mandatory_packages");
}

bool YumIO::upToDateGroupGrps(Package::Entry const& group, char const* key)
{
    if (hasDistribGroups()) {
        return true;
    }
    // Group data may name a group inside itself; one that is being looked at doesn't count again.
    if (groupsBeingChecked.contains(group.name)) {
        return true;
    }
    groupsBeingChecked.insert(group.name);
    QStringList const names = namesOf(getGroupItem_22(group, key).get());
    bool upToDate = true;
    for (QString const& name : names) {
        Package::Entry const* const member = findGroup(name);
        if (member && !upToDateGroup(*member)) {
            upToDate = false;
            break;
        }
    }
    groupsBeingChecked.remove(group.name);
    return upToDate;
}

bool YumIO::upToDateGroupPkgs(Package::Entry const& group, char const* oldKey, char const* newKey)
{
    PyRef const packages =
        hasDistribGroups() ? getGroupItem_25(group, newKey) : getGroupItem_22(group, oldKey);
    QStringList const names = namesOf(packages.get());
    for (QString const& name : names) {
        Package::Entry const* const member = findPackage(name);
        if (member && member->state == Package::OutOfDate) {
            return false;
        }
    }
    return true;
}

QStringList YumIO::namesOf(PyObject* container)
{
    QStringList names;
    PyRef const iterator = PyRef::steal(container ? PyObject_GetIter(container) : nullptr);
    while (PyRef const item = PyRef::steal(iterator ? PyIter_Next(iterator.get()) : nullptr)) {
        names.append(pyString(item.get()));
    }
    PyErr_Clear();
    return names;
}

PyRef YumIO::joinPackageKeys(
    Package::Entry const& group, QList<char const*> const& attributes, char const* lacking,
    char const* improper)
{
    std::vector<PyRef> packages;
    for (char const* const attribute : attributes) {
        packages.push_back(pyAttribute(group.pyObject.get(), attribute));
        if (!packages.back()) {
            error(lacking);
            return {};
        }
    }
    PyRef joined = PyRef::steal(PyList_New(0));
    for (PyRef const& part : packages) {
        PyRef const keys = pyMethodCall(part.get(), "keys", "()");
        PyRef const list = PyRef::steal(keys ? PySequence_List(keys.get()) : nullptr);
        PyRef longer = PyRef::steal(list ? PySequence_Concat(joined.get(), list.get()) : nullptr);
        if (!longer) {
            PyErr_Clear();
            error(improper);
            return {};
        }
        joined = std::move(longer);
    }
    return joined;
}

PyRef YumIO::requiredPkgs(Package::Entry const* group)
{
    if (!hasDistribGroups()) {
        return pyMethodCall(
            group->pyObject.get(), "requiredPkgs", "(s)", group->name.toString().toUtf8().constData());
    }
    return joinPackageKeys(
        *group, {"mandatory_packages", "default_packages"},
        "Internal error: group lacks required package lists",
        "Internal error: group lacks required proper required package lists");
}

PyRef YumIO::pkgTree(Package::Entry const* group)
{
    if (!hasDistribGroups()) {
        return pyMethodCall(
            group->pyObject.get(), "pkgTree", "(s)", group->name.toString().toUtf8().constData());
    }
    return requiredPkgs(group);
}

PyRef YumIO::allPkgs(Package::Entry const* group)
{
    if (!hasDistribGroups()) {
        return requiredPkgs(group);
    }
    return joinPackageKeys(
        *group, {"mandatory_packages", "default_packages", "optional_packages", "conditional_packages"},
        "Internal error: group lacks package lists",
        "Internal error: group lacks required proper package lists");
}
