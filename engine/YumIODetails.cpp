// SPDX-License-Identifier: GPL-2.0-or-later
// Details on demand: capabilities, files and change logs, from the rpm header of an installed package or from
// the repositories' data, which a job of its own loads at the first need.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/Progress.h"
#include "services/YumIODialogs.h"

#include <algorithm>
#include <array>

namespace
{

constexpr Steps readingSteps = 1000;
constexpr Steps repositorySteps = 14000;
constexpr Steps actsPerRepository = 5;

// Bits of rpm's rpmsenseFlags that compare versions.
constexpr long senseLess = 2;
constexpr long senseGreater = 4;
constexpr long senseEqual = 8;

/// The item of a list; null behind its end or where there is no list.
PyRef itemAt(PyObject* sequence, Py_ssize_t at)
{
    PyRef item =
        PyRef::steal(sequence && PySequence_Check(sequence) ? PySequence_GetItem(sequence, at) : nullptr);
    if (!item) {
        PyErr_Clear();
    }
    return item;
}

/// Header tags with one value come bare, those with several as a list: a bare value stands for all items.
PyRef valueAt(PyObject* value, Py_ssize_t at)
{
    return value && PyList_Check(value) ? itemAt(value, at) : PyRef::borrow(value);
}

Py_ssize_t sizeOfSequence(PyObject* sequence)
{
    Py_ssize_t const size = sequence ? PySequence_Size(sequence) : 0;
    if (size < 0) {
        PyErr_Clear();
    }
    return std::max<Py_ssize_t>(size, 0);
}

bool isThere(PyRef const& object)
{
    return object && object.get() != Py_None;
}

/// 0 for what is no number, or too large a one.
long longOf(PyObject* object)
{
    long const value = object ? PyLong_AsLong(object) : 0;
    if (!PyErr_Occurred()) {
        return value;
    }
    PyErr_Clear();
    return 0;
}

} // namespace

bool YumIO::collectFileListsReal()
{
    return collectExtraDataReal(
        &YumIO::fileListsCollected, tr("Collecting File Lists"), tr("file lists"),
        tr("Loading file lists: Total Progress"), "collectFileLists", tr("Unable to collect file lists"));
}

bool YumIO::collectOtherDataReal()
{
    return collectExtraDataReal(
        &YumIO::otherDataCollected, tr("Collecting Miscellaneous data"), tr("miscellaneous data"),
        tr("Loading miscellaneous data: Total Progress"), "collectOtherData",
        tr("Unable to collect miscellaneous data"));
}

bool YumIO::buildHostAtHand(Package::Entry const& entry) const
{
    return entry.kind == Package::Group || entry.state == Package::UpToDate ||
           buildHostRepos.contains(entry.repo);
}

bool YumIO::collectBuildHostReal(Package::Entry const& entry)
{
    Jobs::Means const means(jobs);
    PyGILStateWrapper const lock(true);
    jobs.progress->startTotal(tr("Loading build hosts: Total Progress"), readingSteps);
    jobs.progress->startItem(tr("Reading repositories"), readingSteps, 1);
    // A fault is left to whoever wants the text.
    bool const answered = bool(pyQuickCall(entry.pyObject.get(), "returnSimple", "buildhost"));
    buildHostRepos.insert(entry.repo);
    return answered;
}

bool YumIO::collectExtraDataReal(
    bool YumIO::*collected, QString const& heading, QString const& contents, QString const& total,
    char const* method, QString const& failure)
{
    Jobs::Means const means(jobs);
    log(Log::Action, 0, heading);
    repoContents = contents;
    repoAct = 0;
    PyGILStateWrapper const lock(true);
    jobs.progress->startTotal(total, readingSteps + repositorySteps);
    jobs.progress->startItem(tr("Reading repositories"), readingSteps, 1);
    jobs.progress->setupItemActs(repositorySteps, actsPerRepository * static_cast<Steps>(repoNames.size()));

    PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
    pyExceptStart();
    pyExceptExpect(baseError);
    PyRef const result = pyMethodCall(yumIO.get(), method, "()");
    if (pyExceptMatches(result.get(), baseError)) {
        pythonExceptionV(failure);
        return false;
    }
    if (!result) {
        error(tr("Internal error: execution of yumIO.%1 failed").arg(QLatin1String(method)));
        return false;
    }
    pyExceptClear();
    jobs.progress->endItemActs();
    this->*collected = true;
    Q_EMIT collectedExtraData();
    return true;
}

PyRef YumIO::getRpmHdrValue(PyObject* pkg, char const* tag)
{
    PyRef const header = pyAttribute(pkg, "hdr");
    if (!header) {
        error("getRpmHdrValue called for package with no hdr (i.e. not installed)");
        return {};
    }
    QByteArray const name = QByteArray("RPMTAG_") + tag;
    PyObject* const number = rpmDict ? PyDict_GetItemString(rpmDict, name.constData()) : nullptr;
    if (!number) {
        error(tr("Internal error: cannot find rpm.%1").arg(QString::fromUtf8(name)));
        return {};
    }
    PyRef value = PyRef::steal(PyObject_GetItem(header.get(), number));
    if (!value) {
        PyErr_Clear();
    }
    return value;
}

QString YumIO::getRpmTime(PyObject* pkg, char const* tag)
{
    PyGILStateWrapper const lock(true);
    if (!pyAttribute(pkg, "hdr")) {
        return QString();
    }
    PyRef time = getRpmHdrValue(pkg, tag);
    return isThere(time) ? timeFormat(pyTimeDec(std::move(time))) : QString();
}

QString YumIO::getRpmList(PyObject* pkg, char const* tag)
{
    PyGILStateWrapper const lock(true);
    if (!pyAttribute(pkg, "hdr")) {
        return QString();
    }
    PyRef const list = getRpmHdrValue(pkg, tag);
    QStringList lines;
    for (Py_ssize_t at = 0, size = isThere(list) ? sizeOfSequence(list.get()) : 0; at < size; ++at) {
        lines.append(pyStringDec(itemAt(list.get(), at)));
    }
    return lines.join(QLatin1Char('\n'));
}

QString YumIO::getPrco(PyObject* pkg, char const* hdrPrefix, char const* prcoKey)
{
    PyGILStateWrapper const lock(true);
    if (pyAttribute(pkg, "hdr")) {
        return headerCapabilities(pkg, QByteArray(hdrPrefix));
    }
    PyRef const prco = pyAttribute(pkg, "prco");
    if (!prco) {
        return QString();
    }
    PyRef const items = pyAttribute(pkg, "returnPrco")
                            ? pyMethodCall(pkg, "returnPrco", "(s)", prcoKey)
                            : PyRef::borrow(pyDictGetItem(prco.get(), QString::fromUtf8(prcoKey)));
    PyRef const iterator = PyRef::steal(items ? PyObject_GetIter(items.get()) : nullptr);
    if (!iterator) {
        PyErr_Clear();
        error(tr("Internal error: cannot find package's prco.%1").arg(QString::fromUtf8(prcoKey)));
        return QString();
    }
    QStringList lines;
    while (PyRef const item = PyRef::steal(PyIter_Next(iterator.get()))) {
        lines.append(capabilityLine(item.get()));
    }
    PyErr_Clear();
    return makeSorted(lines);
}

QString YumIO::headerCapabilities(PyObject* pkg, QByteArray const& prefix)
{
    PyRef const names = getRpmHdrValue(pkg, (prefix + "NAME").constData());
    PyRef const flags = getRpmHdrValue(pkg, (prefix + "FLAGS").constData());
    PyRef const versions = getRpmHdrValue(pkg, (prefix + "VERSION").constData());
    QStringList lines;
    for (Py_ssize_t at = 0, size = isThere(names) ? sizeOfSequence(names.get()) : 0; at < size; ++at) {
        QString line = pyStringDec(itemAt(names.get(), at));
        PyRef const flag = isThere(flags) ? valueAt(flags.get(), at) : PyRef();
        PyRef const version = isThere(flags) && isThere(versions) ? valueAt(versions.get(), at) : PyRef();
        if (isThere(flag) && isThere(version)) {
            long const bits = longOf(flag.get());
            line += QLatin1Char(' ');
            line += bits & senseLess ? QStringLiteral("<") : QString();
            line += bits & senseGreater ? QStringLiteral(">") : QString();
            line += bits & senseEqual ? QStringLiteral("=") : QString();
            line += QLatin1Char(' ') + pyString(version.get());
        }
        lines.append(line);
    }
    return makeSorted(lines);
}

QString YumIO::capabilityLine(PyObject* item)
{
    QString line = pyStringDec(itemAt(item, 0));
    PyRef const flags = itemAt(item, 1);
    PyRef const evr = itemAt(item, 2);
    if (!isThere(flags) || !isThere(evr)) {
        return line;
    }
    PyRef const epoch = itemAt(evr.get(), 0);
    PyRef const version = itemAt(evr.get(), 1);
    PyRef const release = itemAt(evr.get(), 2);
    if (!isThere(version)) {
        return line;
    }
    static QHash<QString, QString> const operators{
        {QStringLiteral("GT"), QStringLiteral(">")},
        {QStringLiteral("GE"), QStringLiteral(">=")},
        {QStringLiteral("LT"), QStringLiteral("<")},
        {QStringLiteral("LE"), QStringLiteral("<=")},
        {QStringLiteral("EQ"), QStringLiteral("=")}};
    QString const flag = pyString(flags.get());
    line += QLatin1Char(' ') + operators.value(flag, flag) + QLatin1Char(' ');
    QString const epochText = isThere(epoch) ? pyString(epoch.get()) : QString();
    if (isThere(epoch) && epochText != QLatin1String("0")) {
        line += epochText + QLatin1Char(':');
    }
    line += pyString(version.get());
    if (isThere(release)) {
        line += QLatin1Char('-') + pyString(release.get());
    }
    return line;
}

QString YumIO::getFiles(Package::Entry const& entry)
{
    if (entry.kind == Package::Group) {
        return QString();
    }
    PyGILStateWrapper lock(true);
    PyObject* const pkg = entry.pyObject.get();
    QStringList files;
    if (pyAttribute(pkg, "hdr")) {
        PyRef const names = getRpmHdrValue(pkg, "BASENAMES");
        PyRef const directories = getRpmHdrValue(pkg, "DIRNAMES");
        PyRef const indexes = getRpmHdrValue(pkg, "DIRINDEXES");
        for (Py_ssize_t at = 0, size = isThere(names) ? sizeOfSequence(names.get()) : 0; at < size; ++at) {
            PyRef const index = valueAt(indexes.get(), at);
            PyRef directory = itemAt(directories.get(), isThere(index) ? longOf(index.get()) : 0);
            QString const path = directory ? pyStringDec(std::move(directory)) : QString();
            files.append(path + pyStringDec(itemAt(names.get(), at)));
        }
    } else if (pyAttribute(pkg, "files")) {
        if (jobHolds == 0) {
            // The worker of the job needs the lock that this thread holds.
            lock.release();
            collectFileLists();
            lock.ensure();
        }
        PyRef const fileEntries = pyMethodCall(pkg, "returnFileEntries", "(s)", "file");
        PyRef const iterator = PyRef::steal(fileEntries ? PyObject_GetIter(fileEntries.get()) : nullptr);
        if (!iterator) {
            PyErr_Clear();
            error("Internal error: cannot find package's files");
            return QString();
        }
        while (PyRef file = PyRef::steal(PyIter_Next(iterator.get()))) {
            files.append(pyStringDec(std::move(file)));
        }
        PyErr_Clear();
    }
    return makeSortedUniq(files);
}

QString YumIO::getChangeLog(Package::Entry const& entry)
{
    if (entry.kind == Package::Group) {
        return QString();
    }
    PyGILStateWrapper lock(true);
    PyObject* const pkg = entry.pyObject.get();
    QStringList paragraphs;
    auto const add = [&](PyObject* time, PyObject* author, PyObject* text) {
        QString const date = time ? dateFormat(pyTime(time)) : QString();
        paragraphs.append(
            QStringLiteral("* ") + date + QLatin1Char(' ') + (author ? pyString(author) : QString()) +
            QLatin1Char('\n') + (text ? pyString(text) : QString()));
    };
    if (pyAttribute(pkg, "hdr")) {
        PyRef const authors = getRpmHdrValue(pkg, "CHANGELOGNAME");
        PyRef const times = getRpmHdrValue(pkg, "CHANGELOGTIME");
        PyRef const texts = getRpmHdrValue(pkg, "CHANGELOGTEXT");
        for (Py_ssize_t at = 0, size = isThere(authors) ? sizeOfSequence(authors.get()) : 0; at < size;
             ++at) {
            add(valueAt(times.get(), at).get(), itemAt(authors.get(), at).get(),
                itemAt(texts.get(), at).get());
        }
    } else if (pyAttribute(pkg, "changelog")) {
        if (jobHolds == 0) {
            lock.release();
            collectOtherData();
            lock.ensure();
        }
        PyRef const changes =
            yumVersion() > 20300 ? pyMethodCall(pkg, "returnChangelog", "()") : pyAttribute(pkg, "changelog");
        if (changes.get() == Py_None) {
            return QString();
        }
        PyRef const iterator = PyRef::steal(changes ? PyObject_GetIter(changes.get()) : nullptr);
        if (!iterator) {
            PyErr_Clear();
            error("Internal error: cannot find package's changelog");
            return QString();
        }
        while (PyRef const item = PyRef::steal(PyIter_Next(iterator.get()))) {
            add(itemAt(item.get(), 0).get(), itemAt(item.get(), 1).get(), itemAt(item.get(), 2).get());
        }
        PyErr_Clear();
    }
    return paragraphs.join(QStringLiteral("\n\n"));
}

QString YumIO::makeSorted(QStringList& list)
{
    std::sort(list.begin(), list.end());
    return list.join(QLatin1Char('\n'));
}

QString YumIO::makeSortedUniq(QStringList& list)
{
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    return list.join(QLatin1Char('\n'));
}
