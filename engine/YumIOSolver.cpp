// SPDX-License-Identifier: GPL-2.0-or-later
// Solver feedback: nobody knows beforehand how many packages the solver drags in, so the acts of the solver
// bar grow as its log lines, "TSINFO: …", name packages.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "engine/TransactionWeight.h"
#include "services/Progress.h"

#include <QFile>

PyObject* YumIO::dsTsCheck(PyObject*, PyObject*)
{
    if (jobs.progress) {
        run.actsDone += run.pkgActs;
        jobs.progress->startItemAct(tr("Resolve Dependencies"), 1, run.actsDone);
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::dsRestartLoop(PyObject*, PyObject*)
{
    run.pkgActs = run.nPkgs;
    run.totalPkgActs += run.pkgActs;
    updateSolverActs();
    Py_RETURN_NONE;
}

void YumIO::updateSolverActs()
{
    if (jobs.progress) {
        jobs.progress->changeItemActs(run.totalPkgActs + run.nHdrs * actsPerHeader);
    }
}

void YumIO::dsTsInfo(QString const& line)
{
    QLatin1String const updating("Updating ");
    QLatin1String const obsoleting("Obsoleting ");
    QLatin1String const marking("Marking ");
    QLatin1Char const blank(' ');
    // The name behind a prefix runs up to the first blank; null when there is no blank.
    auto const nameBehind = [&](QLatin1String prefix) {
        qsizetype const end = line.indexOf(blank, prefix.size());
        return end < 0 ? QString() : line.mid(prefix.size(), end - prefix.size());
    };

    QString name;
    if (line.startsWith(updating)) {
        name = nameBehind(updating);
        if (!name.isNull()) {
            dsTsNewPkg(name, 2, true);
            return;
        }
    } else if (line.startsWith(obsoleting)) {
        name = nameBehind(obsoleting);
        QLatin1String const with(" with ");
        qsizetype const nameEnd = obsoleting.size() + name.size();
        qsizetype const withAt = name.isNull() ? -1 : line.indexOf(with, nameEnd + 1);
        if (withAt >= 0 && line.indexOf(blank, withAt + with.size()) >= 0) {
            // Both calls count for the obsoleted package; the bar wants no more than their sum.
            dsTsNewPkg(name, 1, false);
            dsTsNewPkg(name, 1, true);
            return;
        }
    } else if (line.startsWith(marking)) {
        name = nameBehind(marking);
        if (!name.isNull()) {
            dsTsNewPkg(name, line.contains(QLatin1String(" update ")) ? 2 : 1, true);
            return;
        }
    } else if (line.contains(QLatin1String(" marked as erase"))) {
        return;
    }
    error(tr("Internal error: unexpected TSINFO: %1").arg(line));
}

void YumIO::dsTsNewPkg(QString const& name, unsigned int weight, bool withHeader)
{
    Package::Entry const* const entry = findPackage(name);
    if (!entry) {
        error(tr("Internal error: TSINFO mentions unknown package: %1").arg(name));
        return;
    }
    if (entry->state == Package::UpToDate) {
        error(tr("Internal error: TSINFO mentions intent to install or upgrade package that already seems "
                 "up-to-date: %1")
                  .arg(name));
        return;
    }
    run.nPkgs += weight;
    if (withHeader && !QFile::exists(getLocalHdr(entry->pyObject.get()))) {
        ++run.nHdrs;
    }
    updateSolverActs();
}
