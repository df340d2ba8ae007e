// SPDX-License-Identifier: GPL-2.0-or-later
// Collection: the job that fills the table. It takes the lock, has the repositories read, and merges
// updatable, installed and available packages and groups into one entry per name.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/Progress.h"
#include "services/YumIODialogs.h"

#include <memory>
#include <string_view>
#include <utility>

namespace
{

// Steps of the total bar. Only the reading of repositories moves the bars inside an item.
constexpr Steps preparingSteps = 100;
constexpr Steps setupSteps = 900;
constexpr Steps repositorySteps = 14000;
constexpr Steps updatesSteps = 4000;
constexpr Steps packagesSteps = 4000;
constexpr Steps groupsSteps = 1000;
constexpr Steps collectionSteps =
    preparingSteps + setupSteps + repositorySteps + updatesSteps + packagesSteps + groupsSteps;
constexpr Steps actsPerRepository = 5;

/// What `plainForm` gives, in this order.
enum Field : Py_ssize_t
{
    NameField,
    ArchField,
    EvrField,
    SizeField,
    GroupField,
    SummaryField,
    BuildTimeField,
    RepoField,
    fieldCount
};

bool isPlainForm(PyObject* values)
{
    return values && PyTuple_CheckExact(values) && PyTuple_GET_SIZE(values) == fieldCount;
}

/// One of the values, which lives as long as they all do. Null without them.
PyObject* plainValue(PyObject* values, Field field)
{
    return values ? PyTuple_GET_ITEM(values, field) : nullptr;
}

/// The text of a field as a plain value. False for anything but a text or None, which is to be asked for, and
/// reported, the long way. The value is to outlive this.
class PlainText
{
public:
    explicit PlainText(PyObject* value)
    {
        if (value == Py_None) {
            known = true;
        } else if (value && PyUnicode_CheckExact(value)) {
            Py_ssize_t length = 0;
            char const* const utf8 = PyUnicode_AsUTF8AndSize(value, &length);
            known = utf8;
            letters = known ? std::string_view(utf8, static_cast<std::size_t>(length)) : std::string_view();
            PyErr_Clear();
            // The toolkit drops it, too.
            constexpr std::string_view byteOrderMark("\xef\xbb\xbf");
            if (letters.starts_with(byteOrderMark)) {
                letters.remove_prefix(byteOrderMark.size());
            }
        }
    }

    explicit operator bool() const { return known; }
    /// UTF-8; lives as long as the value does.
    [[nodiscard]] std::string_view text() const { return letters; }
    /// Without the line feeds at its end.
    [[nodiscard]] std::string_view trimmed() const
    {
        std::string_view rest = letters;
        while (rest.ends_with('\n')) {
            rest.remove_suffix(1);
        }
        return rest;
    }

private:
    std::string_view letters;
    bool known = false;
};

} // namespace

bool YumIO::collectReal(QHash<QString, bool> const& repoStates)
{
    Jobs::Means const means(jobs);
    log(Log::Action, 0, tr("Initialization"));
    PyGILStateWrapper const lock(true);
    fileListsCollected = false;
    otherDataCollected = false;
    buildHostRepos.clear();
    startCollectionProgress();

    bool const collected = takeLock() && readRepositories(repoStates) && collectPackageFiles() &&
                           collectPackages() && collectGroupData();
    if (collected) {
        collectIncomplete();
        collectUnfinished();
        collectRepositoryTimes();
        // In the order in which they become rows. What can't be read stays empty.
        readDetails(entryHash.values());
    }
    sharedTexts = {};
    // An expected exception that was reported without being fetched must not meet the next call.
    PyErr_Clear();
    return collected;
}

void YumIO::startCollectionProgress()
{
    jobs.progress->startTotal(tr("Initializing: Total Progress"), collectionSteps);
    jobs.progress->startItem(tr("Preparing"), preparingSteps, 1);
}

bool YumIO::takeLock()
{
    if (locked) {
        return true;
    }
    PyObject* const lockError = pyLookup("yum.Errors.LockError");
    pyExceptStart();
    pyExceptExpect(lockError);
    watching = true;
    PyRef const result = pyMethodCall(yumIO.get(), "lock", "()");
    watching = false;
    if (std::exchange(watched, false)) {
        jobs.progress->reset();
        startCollectionProgress();
    }
    if (pyExceptMatches(result.get(), lockError)) {
        pythonException(tr("Unable to obtain yum lock"));
        return false;
    }
    pyExceptClear();
    // Whatever else went wrong has been reported; without an answer there is no lock to rely on.
    locked = bool(result);
    return locked;
}

bool YumIO::readRepositories(QHash<QString, bool> const& repoStates)
{
    PyRef const reposObject = pyAttribute(yumIO.get(), "repos");
    repos = pyAttribute(reposObject.get(), "repos");
    if (!repos) {
        error("Internal error: yumIO.repos.repos not evaluable");
        return false;
    }
    if (!PyDict_Check(repos.get())) {
        error("Internal error: yumIO.repos.repos not a dictionary");
        return false;
    }
    useRepos(reposObject.get(), repoStates);
    repoNames = collectRepos(repos.get());
    repoContents = tr("contents");
    repoAct = 0;
    if (PyDict_Size(repos.get()) == 0) {
        error(tr(
            "No repositories are configured.\nUnder the Repositories menu, Edit Configuration can be used to "
            "configure repositories."));
        return false;
    }
    if (repoNames.isEmpty()) {
        error(
            tr("No repositories are enabled.\nUnder the Repositories menu, Edit Configuration can be used to "
               "configure repositories."));
        return false;
    }

    if (onDisk && !stayOnDisk()) {
        return false;
    }
    jobs.progress->startItem(tr("Reading repositories"), setupSteps, 1);
    jobs.progress->setupItemActs(repositorySteps, actsPerRepository * static_cast<Steps>(repoNames.size()));
    PyObject* const repoError = pyLookup("yum.Errors.RepoError");
    PyObject* const debuggerQuit = pyLookup("bdb.BdbQuit");
    pyExceptStart();
    pyExceptExpect(repoError);
    pyExceptExpect(debuggerQuit);
    PyRef const result = pyMethodCall(yumIO.get(), "setupRepos", "()");
    jobs.progress->endItemActs();
    if (pyExceptMatches(result.get(), repoError) || pyExceptMatches(result.get(), debuggerQuit)) {
        pythonExceptionV(tr("Unable to initialize"));
        return false;
    }
    pyExceptClear();
    return true;
}

bool YumIO::collectPackages()
{
    PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
    PyObject* const debuggerQuit = pyLookup("bdb.BdbQuit");
    // A guarded call of a method of the script's object: false after the report of an expected exception.
    auto const call = [&](char const* method, QString const& report, PyRef& result) {
        pyExceptStart();
        pyExceptExpect(baseError);
        pyExceptExpect(debuggerQuit);
        result = pyMethodCall(yumIO.get(), method, "()");
        if (pyExceptMatches(result.get(), baseError) || pyExceptMatches(result.get(), debuggerQuit)) {
            pythonExceptionV(report);
            return false;
        }
        pyExceptClear();
        return true;
    };

    PyRef result;
    jobs.progress->startItem(tr("Collecting updatable packages"), updatesSteps, 1);
    if (!call("setupTs", tr("Unable to setup transaction"), result) ||
        !call("collectUpdates", tr("Unable to collect updatable packages"), result)) {
        return false;
    }
    if (!result) {
        error("Internal error: execution of yumIO.collectUpdates failed");
        return false;
    }
    if (!collectSet(entryHash, result.get(), Package::OutOfDate)) {
        return false;
    }

    jobs.progress->startItem(tr("Collecting installed and available packages"), packagesSteps, 1);
    if (!call("collectAll", tr("Unable to collect installed and available packages"), result)) {
        return false;
    }
    if (!result) {
        error("Internal error: execution of yumIO.collectAll failed");
        return false;
    }
    return collectField(entryHash, result.get(), "installed", Package::UpToDate) &&
           collectField(entryHash, result.get(), "available", Package::Available);
}

bool YumIO::collectGroupData()
{
    jobs.progress->startItem(tr("Collecting groups"), groupsSteps, 1);
    PyObject* const groupsError = pyLookup("yum.Errors.GroupsError");
    PyObject* const baseError = pyLookup("yum.Errors.YumBaseError");
    PyObject* const debuggerQuit = pyLookup("bdb.BdbQuit");
    pyExceptStart();
    pyExceptExpect(groupsError);
    pyExceptExpect(baseError);
    pyExceptExpect(debuggerQuit);
    PyRef const setup = pyMethodCall(yumIO.get(), "setupTsGroup", "()");
    if (pyExceptMatches(setup.get(), groupsError) || pyExceptMatches(setup.get(), debuggerQuit)) {
        PyRef const value = pyExceptValuef();
        if (!value || !pyString(value.get()).contains(QLatin1String("No Groups Available"))) {
            error("Internal error: execution of yumIO.setupTsGroup failed");
            return false;
        }
    } else if (pyExceptMatches(setup.get(), baseError)) {
        pythonExceptionV(tr("Unable to collect groups"));
        return false;
    }
    pyExceptClear();

    PyRef const groups = pyMethodCall(yumIO.get(), "collectGroupInfo", "()");
    if (!groups) {
        error("Internal error: execution of yumIO.collectGroupInfo failed");
        return false;
    }
    return collectGroups(entryHash, groups.get());
}

void YumIO::useRepos(PyObject* reposObject, QHash<QString, bool> const& repoStates)
{
    PyObject* const repoError = pyLookup("yum.Errors.RepoError");
    for (auto state = repoStates.constBegin(); state != repoStates.constEnd(); ++state) {
        if (!pyDictGetItem(repos.get(), state.key())) {
            continue;
        }
        pyExceptStart();
        pyExceptExpect(repoError);
        PyRef const result = pyMethodCall(
            reposObject, state.value() ? "enableRepo" : "disableRepo", "(s)",
            state.key().toUtf8().constData());
        if (pyExceptMatches(result.get(), repoError)) {
            PyRef const value = pyExceptValuef();
            warning(tr("unable to setup repository %1:\n%2")
                        .arg(state.key(), value ? pyString(value.get()) : QString()));
        }
        pyExceptClear();
    }
}

QStringList YumIO::collectRepos(PyObject* reposDict)
{
    QStringList names;
    PyObject* id = nullptr;
    PyObject* repo = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(reposDict, &position, &id, &repo)) {
        PyRef const enabled = pyAttribute(repo, "enabled");
        if (enabled && PyLong_Check(enabled.get()) && PyObject_IsTrue(enabled.get()) == 1) {
            names.append(pyString(id));
        }
    }
    return names;
}

bool YumIO::collectField(EntryHash& hash, PyObject* object, char const* field, Package::State state)
{
    PyRef const packages = pyAttribute(object, field);
    if (!packages) {
        error(tr("Internal error: yumIO.collectAll.%1 not found").arg(QString::fromUtf8(field)));
        return false;
    }
    return collectSet(hash, packages.get(), state);
}

bool YumIO::collectSet(EntryHash& hash, PyObject* iterable, Package::State state)
{
    PyRef const pairs = pyQuickCall(iterable, "withPlain");
    PyRef const iterator = PyRef::steal(PyObject_GetIter(pairs ? pairs.get() : iterable));
    if (!iterator) {
        handleException();
        return false;
    }
    Py_ssize_t const expected = PyObject_LengthHint(iterable, 0);
    if (expected < 0) {
        PyErr_Clear();
    } else {
        hash.reserve(hash.size() + expected);
    }
    plainAsked = nullptr;
    while (PyRef const item = PyRef::steal(PyIter_Next(iterator.get()))) {
        PyRef package;
        PyRef plain;
        if (pairs && PyTuple_CheckExact(item.get()) && PyTuple_GET_SIZE(item.get()) == 2) {
            package = PyRef::borrow(PyTuple_GET_ITEM(item.get(), 0));
            PyObject* const values = PyTuple_GET_ITEM(item.get(), 1);
            plain = isPlainForm(values) ? PyRef::borrow(values) : PyRef();
        } else {
            package = PyRef::borrow(item.get());
            plain = plainForm(package.get());
        }
        Package::Text const name = pkgName(package.get(), plain.get());
        Package::Entry*& slot = hash[EntryKey(false, name)];
        if (!slot) {
            collectPkg(slot, state, std::move(package), plain.get(), name);
        } else if (slot->state == Package::OutOfDate && state == Package::UpToDate) {
            Package::Entry* last = slot;
            while (last->installed) {
                last = last->installed;
            }
            collectPkg(last->installed, state, std::move(package), plain.get(), name);
        }
    }
    if (PyErr_Occurred()) {
        handleException();
        PyErr_Clear();
        return false;
    }
    return true;
}

PyRef YumIO::plainForm(PyObject* pkg)
{
    // The class is asked, and not the package: one of an older library may answer to any name.
    if (plainAsked != Py_TYPE(pkg)) {
        plainAsked = Py_TYPE(pkg);
        plainOffered = bool(pyAttribute(reinterpret_cast<PyObject*>(Py_TYPE(pkg)), "plain"));
    }
    PyRef values = plainOffered ? pyAttribute(pkg, "plain") : PyRef();
    return isPlainForm(values.get()) ? std::move(values) : PyRef();
}

Package::Text YumIO::pkgName(PyObject* pkg, PyObject* plain)
{
    PlainText const name(plainValue(plain, NameField));
    return name ? Package::Text::ofUtf8(name.text()) : Package::Text(pyStringDec(pyAttribute(pkg, "name")));
}

Package::Text YumIO::sharedText(std::string_view letters)
{
    auto const found = sharedTexts.find(letters);
    return found != sharedTexts.end() ? *found : *sharedTexts.insert(Package::Text::ofUtf8(letters)).first;
}

Package::Text YumIO::sharedText(QString const& text)
{
    QByteArray const letters = text.toUtf8();
    return sharedText(std::string_view(letters.constData(), static_cast<std::size_t>(letters.size())));
}

void YumIO::collectPkg(
    Package::Entry*& slot, Package::State state, PyRef package, PyObject* plain, Package::Text name)
{
    slot = std::make_unique<Package::Entry>().release();
    Package::Entry& entry = *slot;
    PyObject* const pkg = package.get();
    auto const plainText = [plain](Field field) { return PlainText(plainValue(plain, field)); };
    auto const plainNumber = [plain](Field field, long long& number) {
        PyObject* const value = plainValue(plain, field);
        if (!value || !PyLong_CheckExact(value)) {
            return false;
        }
        int overflow = 0;
        number = PyLong_AsLongLongAndOverflow(value, &overflow);
        return overflow == 0;
    };

    long long number = 0;
    entry.action = Package::None;
    entry.state = state;
    PlainText const group = plainText(GroupField);
    entry.kind = group ? pkgKind(group.trimmed()) : getPkgKind(pkg);
    entry.name = std::move(name);
    if (PlainText const version = plainText(EvrField)) {
        entry.verRel = sharedText(version.text());
    } else {
        PyRef text = pyQuickCall(pkg, "printVer");
        entry.verRel = sharedText(pyStringDec(text ? std::move(text) : pyMethodCall(pkg, "printVer", "()")));
    }
    PlainText const repo = plainText(RepoField);
    entry.repo = repo ? sharedText(repo.trimmed()) : sharedText(simpleString(pkg, "repoid"));
    PlainText const arch = plainText(ArchField);
    entry.arch = arch ? sharedText(arch.text()) : sharedText(pyStringDec(pyAttribute(pkg, "arch")));
    entry.size = plainNumber(SizeField, number) ? static_cast<unsigned long long>(number) : sizeOf(pkg);
    entry.sizeText = sharedText(bytesFormat(entry.size));
    PlainText const summary = plainText(SummaryField);
    entry.summary =
        summary ? Package::Text::ofUtf8(summary.trimmed()) : Package::Text(simpleString(pkg, "summary"));
    entry.buildTime = plainNumber(BuildTimeField, number) ? number : buildTimeOf(pkg);
    entry.buildTimeText = timeFormat(entry.buildTime);
    if (state == Package::OutOfDate) {
        entry.replaces = replacedPkgs(pkg);
    }
    entry.pyObject = std::move(package);
    // What this package lacks has been reported. An exception that is left here would look like one of the
    // iteration over the packages, and fail the collection.
    PyErr_Clear();
}

bool YumIO::collectGroups(EntryHash& hash, PyObject* groupResult)
{
    bool const distribGroups = hasDistribGroups();
    PyRef visible;
    if (!distribGroups) {
        visible = pyAttribute(groupResult, "visible_groups");
        if (!visible) {
            error("Internal error: groupInfo.visible_groups not evaluable");
            return false;
        }
    }
    PyRef const iterator = PyRef::steal(PyObject_GetIter(distribGroups ? groupResult : visible.get()));
    if (!iterator) {
        handleException();
        return false;
    }
    while (PyRef const item = PyRef::steal(PyIter_Next(iterator.get()))) {
        QString name;
        if (distribGroups) {
            PyRef const userVisible = pyAttribute(item.get(), "user_visible");
            if (!userVisible || PyObject_IsTrue(userVisible.get()) != 1) {
                PyErr_Clear();
                continue;
            }
            PyRef const groupName = pyAttribute(item.get(), "name");
            if (!groupName) {
                error("Internal error: group without name");
                return false;
            }
            name = pyString(groupName.get());
        } else {
            name = pyString(item.get());
        }
        EntryKey const key(true, name);
        if (hash.contains(key)) {
            continue;
        }
        Package::Entry* group = nullptr;
        if (!collectGroup(group, distribGroups ? item.get() : groupResult, name)) {
            return false;
        }
        hash.insert(key, group);
    }
    if (PyErr_Occurred()) {
        handleException();
        PyErr_Clear();
        return false;
    }
    return true;
}

bool YumIO::collectGroup(Package::Entry*& slot, PyObject* groupObject, QString const& name)
{
    PyRef installed;
    if (hasDistribGroups()) {
        installed = pyAttribute(groupObject, "installed");
        if (!installed) {
            error("Internal error: cannot find group's installed flag");
            return false;
        }
    } else {
        PyRef const flags = pyAttribute(groupObject, "group_installed");
        installed = PyRef::borrow(pyDictGetItem(flags.get(), name));
        if (!installed) {
            error("Internal error: cannot find groupInfo.group_installed['%s']");
            return false;
        }
    }
    int const isInstalled = PyObject_IsTrue(installed.get());
    if (isInstalled < 0) {
        // The iteration over the groups must not meet it.
        handleException();
        PyErr_Clear();
    }
    slot = std::make_unique<Package::Entry>().release();
    slot->action = Package::None;
    slot->state = isInstalled == 1 ? Package::UpToDate : Package::Available;
    slot->kind = Package::Group;
    slot->name = name;
    slot->pyObject = PyRef::borrow(groupObject);
    if (slot->state == Package::UpToDate && !upToDateGroup(*slot)) {
        slot->state = Package::OutOfDate;
    }
    return true;
}

Package::Kind YumIO::getPkgKind(PyObject* pkg)
{
    return simpleString(pkg, "group") == QLatin1String("Suite") ? Package::Suite : Package::Ordinary;
}

Package::Kind YumIO::pkgKind(std::string_view group)
{
    return group == "Suite" ? Package::Suite : Package::Ordinary;
}
