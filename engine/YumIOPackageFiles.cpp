// SPDX-License-Identifier: GPL-2.0-or-later
// Package files from elsewhere: handed to the script in each collection, and forgotten once they are
// installed.
#include "engine/YumIO.h"

#include <QJsonArray>

namespace
{

constexpr char const* openFiles = "openPackageFiles";

} // namespace

bool YumIO::opensPackageFiles()
{
    return script.has(openFiles);
}

bool YumIO::collectPackageFiles()
{
    if (packageFiles.isEmpty() || !script.has(openFiles)) {
        return true;
    }
    std::optional<QJsonValue> const answer = script.call(
        openFiles, {QJsonArray::fromStringList(packageFiles.words())}, tr("Unable to open package files"));
    if (!answer) {
        return false;
    }
    QStringList refusals;
    bool understood = answer->isArray();
    QJsonArray const answers = answer->toArray();
    for (QJsonValue const one : answers) {
        QJsonArray const told = one.toArray();
        understood =
            understood && told.size() == 3 && told[0].isString() && told[1].isString() && told[2].isString();
        if (!understood) {
            break;
        }
        if (!told[1].toString().isEmpty()) {
            packageFiles.settle(told[0].toString(), told[1].toString());
        } else {
            packageFiles.close(told[0].toString());
            refusals.append(told[2].toString());
        }
    }
    if (!understood) {
        script.misunderstood(openFiles);
        return false;
    }
    if (!refusals.isEmpty()) {
        error(
            tr("These package files can't be used:") + QLatin1String("\n\n") +
            refusals.join(QLatin1Char('\n')));
    }
    return true;
}

void YumIO::closeInstalledFiles()
{
    QStringList names;
    for (Package::Entry const* const entry : std::as_const(entries)) {
        bool const wentIn = entry->applyAction == Package::Install || entry->applyAction == Package::Update;
        if (wentIn && entry->kind != Package::Group && entry->repo.toString() == PackageFiles::repository) {
            names.append(entry->name);
        }
    }
    packageFiles.closeNamed(names);
}
