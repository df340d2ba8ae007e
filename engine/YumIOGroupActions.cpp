// SPDX-License-Identifier: GPL-2.0-or-later
// Marks on groups: at the start of an apply each marked group hands its mark on to its packages, and the user
// is asked where that collides with a mark that a package has already got.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/YumIODialogs.h"

namespace
{

/// The number of the button that ends the apply, in the box about a conflict.
constexpr int wouldBeButton = 0;
constexpr int cancelButton = 2;

} // namespace

bool YumIO::applyGroups()
{
    for (Package::Entry const* const entry : std::as_const(entries)) {
        if (entry->kind != Package::Group) {
            continue;
        }
        bool goOn = true;
        switch (entry->applyAction) {
        case Package::Remove:
            goOn = applyGrpRemove(entry);
            break;
        case Package::Install:
            goOn = applyGrpInstall(entry);
            break;
        case Package::Update:
            goOn = applyGrpUpdate(entry);
            break;
        case Package::None:
            break;
        }
        if (!goOn) {
            return false;
        }
    }
    return true;
}

bool YumIO::applyGrpInstall(Package::Entry const* group)
{
    PyRef const tree = pkgTree(group);
    return tree && applyGrpPutIn(group, namesOf(tree.get()), [](QString const&) { return true; });
}

bool YumIO::applyGrpUpdate(Package::Entry const* group)
{
    PyRef const required = requiredPkgs(group);
    PyRef const tree = required ? pkgTree(group) : PyRef();
    if (!tree) {
        return false;
    }
    QStringList const requiredNames = namesOf(required.get());
    QSet<QString> const insisted(requiredNames.constBegin(), requiredNames.constEnd());
    return applyGrpPutIn(
        group, namesOf(tree.get()), [&insisted](QString const& name) { return insisted.contains(name); });
}

bool YumIO::applyGrpPutIn(
    Package::Entry const* group, QStringList const& names,
    std::function<bool(QString const&)> const& insistsOn)
{
    for (QString const& name : names) {
        Package::Entry* const entry = findPackage(name);
        if (!entry) {
            continue;
        }
        switch (entry->applyAction) {
        case Package::Update:
        case Package::Install:
            applyGrpLogWas(group, entry);
            break;
        case Package::Remove:
            if (!applyGrpConflict(group, entry)) {
                return false;
            }
            break;
        case Package::None:
            if (entry->state == Package::OutOfDate) {
                entry->applyAction = Package::Update;
                applyGrpLog(group, entry);
            } else if (entry->state == Package::Available && insistsOn(name)) {
                entry->applyAction = Package::Install;
                applyGrpLog(group, entry);
            } else if (entry->state == Package::Available) {
                applyGrpLogNot(group, entry, Package::Install, tr("the package is optional"));
            }
            break;
        }
    }
    return true;
}

bool YumIO::applyGrpRemove(Package::Entry const* group)
{
    PyRef const all = allPkgs(group);
    for (QString const& name : namesOf(all.get())) {
        Package::Entry* const entry = findPackage(name);
        if (!entry) {
            continue;
        }
        switch (entry->applyAction) {
        case Package::Remove:
            applyGrpLog(group, entry);
            break;
        case Package::Update:
        case Package::Install:
            if (!applyGrpConflict(group, entry)) {
                return false;
            }
            break;
        case Package::None:
            // What would go in in the place of others isn't there to be removed.
            if (entry->state != Package::Available && !entry->replacesOthers()) {
                entry->applyAction = Package::Remove;
                applyGrpLog(group, entry);
            }
            break;
        }
    }
    return true;
}

QString YumIO::actionName(Package::Action action)
{
    switch (action) {
    case Package::Update:
        return tr("Update");
    case Package::Install:
        return tr("Install");
    case Package::Remove:
        return tr("Remove");
    case Package::None:
        break;
    }
    return tr("ERROR");
}

bool YumIO::applyGrpConflict(Package::Entry const* group, Package::Entry* entry)
{
    Package::Action wouldBe = Package::None;
    switch (entry->state) {
    case Package::Available:
        wouldBe = Package::Install;
        break;
    case Package::UpToDate:
        wouldBe = Package::Remove;
        break;
    case Package::OutOfDate:
        wouldBe = Package::Update;
        break;
    default:
        error("Internal error: applyGrpConflict unexpected package state\n");
        return false;
    }
    QString const groupAction = actionName(group->applyAction);
    QString const wouldBeAction = actionName(wouldBe);
    QString const present = actionName(entry->applyAction);
    QString text;
    if (entry->applyCause == entry) {
        text =
            tr("Package %1 is included in group %2 which was marked for %3,\nso the package would be marked "
               "for %4,\nbut it was marked individually for %5.\nHow do you wish to proceed?")
                .arg(entry->name, group->name, groupAction, wouldBeAction, present);
    } else if (!entry->applyCause) {
        text =
            tr("Package %1 is included in group %2 which was marked for %3,\nso the package would be marked "
               "for %4,\nbut you resolved an earlier conflict by marking it for %5.\nHow do you wish to "
               "proceed?")
                .arg(entry->name, group->name, groupAction, wouldBeAction, present);
    } else {
        text =
            tr("Package %1 is included in group %2 which was marked for %3,\nso the package would be marked "
               "for %4,\nbut it also was part of group %5 and so was marked for %6.\nHow do you wish to "
               "proceed?")
                .arg(entry->name, group->name, groupAction, wouldBeAction, entry->applyCause->name, present);
    }
    int const answer = jobs.dialogs->critical(
        tr("Apply"), text, wouldBeAction, present, tr("Cancel"), cancelButton, cancelButton);
    if (answer == cancelButton) {
        return false;
    }
    if (answer == wouldBeButton) {
        entry->applyAction = wouldBe;
    }
    // The text has no second marker: the second value lands on the third.
    log(Log::Info, 4,
        tr("Manually resolving conflict: marking package %1 for %3")
            .arg(entry->name, actionName(entry->applyAction)));
    entry->applyCause = nullptr;
    return true;
}

void YumIO::applyGrpLog(Package::Entry const* group, Package::Entry const* entry)
{
    log(Log::Info, 4,
        tr("For group %1, marking package %2 for %3")
            .arg(group->name, entry->name, actionName(entry->applyAction)));
}

void YumIO::applyGrpLogWas(Package::Entry const* group, Package::Entry const* entry)
{
    log(Log::Info, 4,
        tr("For group %1, package %2 already was marked for %3")
            .arg(group->name, entry->name, actionName(entry->applyAction)));
}

void YumIO::applyGrpLogNot(
    Package::Entry const* group, Package::Entry const* entry, Package::Action action, QString const& reason)
{
    log(Log::Info, 4,
        tr("For group %1, not marking package %2 for %3, becuase %4")
            .arg(group->name, entry->name, actionName(action), reason));
}
