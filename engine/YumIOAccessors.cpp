// SPDX-License-Identifier: GPL-2.0-or-later
// What can be told of one entry: its fields, and the single texts that the package object is asked for; and
// of the configuration: its variables.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

QString YumIO::getName(Package::Entry const& entry) const
{
    return entry.name;
}

QString YumIO::getVerRel(Package::Entry const& entry) const
{
    return entry.verRel;
}

QString YumIO::getRepo(Package::Entry const& entry) const
{
    return entry.repo;
}

QString YumIO::getArch(Package::Entry const& entry) const
{
    return entry.arch;
}

QString YumIO::getSize(Package::Entry const& entry) const
{
    return entry.sizeText;
}

QString YumIO::getSummary(Package::Entry const& entry) const
{
    return entry.summary;
}

QString YumIO::getBuildTime(Package::Entry const& entry) const
{
    return entry.buildTimeText;
}

QString YumIO::getState(Package::Entry const& entry) const
{
    switch (entry.state) {
    case Package::OutOfDate:
        return tr("Available for update");
    case Package::Available:
        return tr("Available for installation");
    case Package::UpToDate:
        return tr("Installed");
    }
    return QString();
}

QString YumIO::getKind(Package::Entry const& entry) const
{
    switch (entry.kind) {
    case Package::Suite:
        return tr("Suite of packages");
    case Package::Group:
        return tr("Group of packages");
    case Package::Ordinary:
        return tr("Ordinary package");
    }
    return QString();
}

QString YumIO::getDescription(Package::Entry const& entry)
{
    if (entry.kind == Package::Group) {
        // Groups of older releases have none.
        PyGILStateWrapper const lock(true);
        PyRef const text = pyAttribute(entry.pyObject.get(), "description");
        return text && text.get() != Py_None ? trimmedField(pyStringX(text.get())) : QString();
    }
    return simpleString(entry.pyObject.get(), "description");
}

QString YumIO::getGroup(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "group");
}

QString YumIO::getVendor(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "vendor");
}

QString YumIO::getBuildHost(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "buildhost");
}

QString YumIO::getBinaryRpm(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "relativepath");
}

QString YumIO::getSourceRpm(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "sourcerpm");
}

QString YumIO::getLicense(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "license");
}

QString YumIO::getPackager(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "packager");
}

QString YumIO::getUrl(Package::Entry const& entry)
{
    return simpleString(entry.pyObject.get(), "url");
}

QString YumIO::getInstallTime(Package::Entry const& entry)
{
    return getRpmTime(entry.pyObject.get(), "INSTALLTIME");
}

QString YumIO::getRelocations(Package::Entry const& entry)
{
    return getRpmList(entry.pyObject.get(), "PREFIXES");
}

QString YumIO::getProvides(Package::Entry const& entry)
{
    return getPrco(entry.pyObject.get(), "PROVIDE", "provides");
}

QString YumIO::getRequires(Package::Entry const& entry)
{
    return getPrco(entry.pyObject.get(), "REQUIRE", "requires");
}

QString YumIO::getConflicts(Package::Entry const& entry)
{
    return getPrco(entry.pyObject.get(), "CONFLICT", "conflicts");
}

QString YumIO::getObsoletes(Package::Entry const& entry)
{
    return getPrco(entry.pyObject.get(), "OBSOLETE", "obsoletes");
}

QString YumIO::getRequiredGroups(Package::Entry const& group)
{
    return getGroupGrps(group, "sub_groups");
}

QString YumIO::getDefaultMetaPkgs(Package::Entry const& group)
{
    return getGroupGrps(group, "default_metapkgs");
}

QString YumIO::getOptionalMetaPkgs(Package::Entry const& group)
{
    return getGroupGrps(group, "optional_metapkgs");
}

QString YumIO::getMandatoryPkgs(Package::Entry const& group)
{
    return getGroupPkgs(group, "mandatory_pkgs", "mandatory_packages");
}

QString YumIO::getDefaultPkgs(Package::Entry const& group)
{
    return getGroupPkgs(group, "default_pkgs", "default_packages");
}

QString YumIO::getOptionalPkgs(Package::Entry const& group)
{
    return getGroupPkgs(group, "optional_pkgs", "optional_packages");
}

QString YumIO::getConditionalPkgs(Package::Entry const& group)
{
    return hasDistribGroups() ? getGroupPkgs(group, "", "conditional_packages") : QString();
}

QString YumIO::getYumVar(QString const& name)
{
    PyRef const conf = pyAttribute(yumIO.get(), "conf");
    PyRef const yumvar = pyAttribute(conf.get(), "yumvar");
    if (!yumvar) {
        return QString();
    }
    return pyMappingString(yumvar.get(), name.toUtf8().constData());
}
