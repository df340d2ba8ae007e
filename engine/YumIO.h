// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"
#include "bridge/Python.h"
#include "bridge/YumIOHost.h"
#include "engine/ApplyRun.h"
#include "engine/HistoryWish.h"
#include "engine/Jobs.h"
#include "engine/Package.h"
#include "engine/PackageFiles.h"
#include "engine/RowDetails.h"
#include "engine/Script.h"
#include "engine/Stop.h"
#include "services/CaptureSink.h"
#include "services/Log.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <array>
#include <atomic>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>

class HProgressBar;
class QEventLoop;
class QThread;
class QWidget;
class Relations;

/// The engine: the one object that talks to the package library, through the Python object that the helper
/// script defines. The main window owns the only instance and calls it on the GUI thread. Long work runs as
/// a job on a worker thread while the GUI thread spins a local event loop (`execWorkThread`); at most one
/// job runs at a time, which the caller sees to. The `...Real` operations and everything that the script
/// calls back run on the worker, with the interpreter lock held.
///
/// Nothing is thrown. A failure is reported (log and dialog) and answered by false, null or an empty text.
class YumIO : public QObject, protected Python, public YumIOHost, public CaptureSink
{
    Q_OBJECT

public:
    /// The key of an entry: a group and a package of one name are different things.
    struct EntryKey
    {
        EntryKey(bool isGroup, Package::Text keyName);
        bool operator==(EntryKey const& other) const = default;

        bool group;
        Package::Text name;
    };
    using EntryHash = QHash<EntryKey, Package::Entry*>;

    /// The step of loading one repository that a progress report belongs to.
    enum RepoAct
    {
        ActMirrorList,
        ActRepomd,
        ActDownload,
        ActConvert,
        ActRead,
        ActNone
    };

    /// What an apply is about: what the user has marked, or what `unfinished` offers.
    enum class ApplyOf
    {
        Marks,
        Older
    };

    /// What a transaction that was cut off has left in the managed system, as the last collection found it.
    struct Unfinished
    {
        QString text;                     ///< tells it, in lines; empty for nothing
        QHash<QString, QString> versions; ///< those of each package that is there more than once, by its name
        PyRef older;                      ///< list of all but the newest of these, where they may be removed
    };

    /// For its life, no accessor starts a job of its own: what isn't loaded stays empty. For callers that
    /// can't have events served in the middle of their work, such as a table that is testing its rows. It
    /// holds the interpreter lock, so that reading many fields takes it once.
    class JobHold
    {
    public:
        explicit JobHold(YumIO& engine)
            : yumIO(engine),
              lock(initialized)
        {
            ++yumIO.jobHolds;
        }
        ~JobHold() { --yumIO.jobHolds; }
        JobHold(JobHold const&) = delete;
        JobHold& operator=(JobHold const&) = delete;

    private:
        YumIO& yumIO;
        PyGILStateWrapper const lock;
    };

    /// Builds the members; no Python work is done before `initialize`.
    YumIO();
    /// Gives back the lock, releases every Python object and ends the interpreter. GUI thread.
    ~YumIO() override;

    /// Says where dialogs and progress are shown; must come before anything can report. Nothing is owned.
    void setup(QWidget* dialogParent, HProgressBar* total, HProgressBar* item);

    /// Starts Python, runs the helper script and builds its `YumIO` object. True when that object exists
    /// (again true at a second call, which does nothing); false after a report. GUI thread.
    bool initialize();

    /// Where the script knows that nobody can change the packages of the managed system, says why and asks
    /// whether to look at them. False when the user would rather leave; true without a word where they can be
    /// changed. GUI thread, after `initialize`.
    [[nodiscard]] bool offerLooking();
    /// Why this user can't change the packages, as the script knows it; empty where they can be changed. GUI
    /// thread, after `initialize`.
    [[nodiscard]] QString whyNoChange();

    /// The package library that the script works with, and its version; empty before `initialize`, and for
    /// scripts that don't tell.
    [[nodiscard]] QString const& packageLibrary() const { return libraryName; }

    /// Job: drops all entries and replaces the script's object, so that the next collection starts afresh.
    void clear();

    /// Job: fills the list of entries. `repos` maps repository ids to whether this session uses them.
    /// False after a report; the list is then empty. One that is stopped is done once more, of what was
    /// fetched before; that answers false without a report where it is stopped, too.
    bool collect(QHash<QString, bool> const& repos);
    /// Job: loads file lists, or change logs, of the repositories' packages; true at once when that has
    /// been done in this collection.
    bool collectFileLists();
    bool collectOtherData();
    /// Job: asks for the build host of the entry, so that `getBuildHost` has it at hand. A script may have to
    /// read through all that a repository tells of its packages for that, once for each repository.
    bool collectBuildHost(Package::Entry const& entry);
    /// Whether that job has nothing to do: the entry is installed or a group, or a package of its repository
    /// has been asked for its build host in this collection.
    [[nodiscard]] bool buildHostAtHand(Package::Entry const& entry) const;
    /// Job: says whether a detail of all rows is wanted, from now on and behind each collection, and loads
    /// it. False after a report; the texts are empty then, as where a script doesn't tell. No job where it is
    /// at hand, and none before the first collection.
    bool wantDetails(Package::Detail detail, bool wanted);
    /// Whether that, for what is wanted by now, has nothing to do.
    [[nodiscard]] bool detailsAtHand() const;
    [[nodiscard]] Package::RowDetails const& details(Package::Detail detail) const;
    /// What these packages of the table take on the disk once they are installed, in bytes. Nothing where the
    /// script doesn't tell, or for more than can be asked about at once; during a job nothing either.
    [[nodiscard]] std::optional<long long> installedSize(QList<Package::Entry const*> const& those);
    /// Job: applies all marks in one transaction. True when the user confirmed and the script's `apply`
    /// ended without an expected exception; the caller must then rebuild. False: nothing to rebuild, marks
    /// and table stay as they are.
    bool apply();

    /// Whether the script can make rows of `packageFiles`. GUI thread.
    [[nodiscard]] bool opensPackageFiles();
    /// What the configuration asks for and the script had to do without in the last collection that
    /// succeeded: a text, of several lines at times, for each repository or file.
    [[nodiscard]] QStringList const& incomplete() const { return incompleteTexts; }
    [[nodiscard]] Unfinished const& unfinished() const { return left; }
    /// When what the last collection used of each repository was found to be current, in seconds since 1970,
    /// by the repository's name. Empty where the script doesn't tell.
    [[nodiscard]] QMap<QString, qint64> const& repositoryTimes() const { return readTimes; }
    /// Job: removes the older versions that `unfinished` knows, as `apply` does what is marked.
    bool removeOlder();
    /// Job: does what is wished of the history, as `apply` does what is marked. `obstacles` gets what cannot
    /// be done, a sentence for each package or group: nobody was asked then, nothing was done, and the same
    /// wish `without` does the rest.
    bool applyHistory(HistoryWish const& wish, QStringList& obstacles);

    /// Whether the job in progress has come to where it must not be cut off: rpm works. GUI thread.
    [[nodiscard]] bool transactionRuns() const { return transactionBegun; }
    /// Whether a job is in progress. GUI thread.
    [[nodiscard]] bool jobRuns() const { return jobs.running(); }
    /// Ends the process in the middle of a job, within two seconds: gives the lock back, if that can be done
    /// by then, and leaves everything else to the system. What another process does for the job ends with
    /// this one, unless rpm works there. GUI thread.
    [[noreturn]] void leave();

    /// Job: empties a cache of the package library. True when the script reports success. A user who isn't
    /// allowed to is told so.
    bool cleanHeaders();
    bool cleanPackages();
    bool cleanXmlMetadata();
    bool cleanPickledCache();
    bool cleanAll();

    // The rows of the table. The index is not checked.
    QList<Package::Entry*>::const_iterator begin() const;
    QList<Package::Entry*>::const_iterator end() const;
    // Sorting asks a million times, so these two stand here.
    int count() const { return static_cast<int>(entries.size()); }
    Package::Entry* operator[](int row) const { return entries[row]; }
    /// Tells one list of rows from any other that this process has had; 0 while there are no rows.
    quint64 listSerial() const { return entries.isEmpty() ? 0 : entries.first()->serial; }

    // What can be told of an entry. These read its fields and are free of Python.
    QString getName(Package::Entry const& entry) const;
    QString getVerRel(Package::Entry const& entry) const;
    QString getRepo(Package::Entry const& entry) const;
    QString getArch(Package::Entry const& entry) const;
    QString getSize(Package::Entry const& entry) const;
    QString getSummary(Package::Entry const& entry) const;
    QString getBuildTime(Package::Entry const& entry) const;
    QString getState(Package::Entry const& entry) const;
    QString getKind(Package::Entry const& entry) const;

    // These ask Python anew at each call, on the calling thread; what can't be read is empty.
    QString getDescription(Package::Entry const& entry);
    QString getGroup(Package::Entry const& entry);
    QString getVendor(Package::Entry const& entry);
    QString getBuildHost(Package::Entry const& entry);
    QString getBinaryRpm(Package::Entry const& entry);
    QString getSourceRpm(Package::Entry const& entry);
    QString getLicense(Package::Entry const& entry);
    QString getPackager(Package::Entry const& entry);
    QString getUrl(Package::Entry const& entry);
    QString getInstallTime(Package::Entry const& entry);
    QString getRelocations(Package::Entry const& entry);
    QString getProvides(Package::Entry const& entry);
    QString getRequires(Package::Entry const& entry);
    QString getConflicts(Package::Entry const& entry);
    QString getObsoletes(Package::Entry const& entry);
    /// These two may run a job of their own, for a package that isn't installed.
    QString getFiles(Package::Entry const& entry);
    QString getChangeLog(Package::Entry const& entry);

    // What a group holds: names, sorted, one a line.
    QString getRequiredGroups(Package::Entry const& group);
    QString getDefaultMetaPkgs(Package::Entry const& group);
    QString getOptionalMetaPkgs(Package::Entry const& group);
    QString getMandatoryPkgs(Package::Entry const& group);
    QString getDefaultPkgs(Package::Entry const& group);
    QString getOptionalPkgs(Package::Entry const& group);
    QString getConditionalPkgs(Package::Entry const& group);

    /// The package library's version as it names itself; empty when it doesn't. Needs the interpreter lock
    /// at the first call.
    QString yumVersionStr();
    /// major * 10000 + minor * 100 + patch; 0 without a version.
    long yumVersion();
    bool hasDistribGroups(); ///< each group is an object of its own: 2.5.0 and later
    bool hasTransTest();     ///< a separate test transaction reports progress: before 3.2.3
    bool hasPickledCache();  ///< there are pickled caches to clean: before 2.9.2
    bool usesSqlite();
    bool usesPresto();
    /// The value of a variable of the configuration, such as "basearch"; empty after a report when there is
    /// none. Under the interpreter lock only.
    QString getYumVar(QString const& name);

    /// A size in bytes for people: "5.0b", "1.0Kb".
    static QString bytesFormat(unsigned long long bytes);
    /// Seconds since 1970 as "Thu Jan 01 1970".
    static QString dateFormat(long long time);
    /// Seconds since 1970 in the 24 characters of ctime(3), local time.
    static QString timeFormat(long long time);

    /// Files `text` in the log, a record a line. Any thread.
    void log(Log::Kind kind, unsigned int level, QString const& text);
    void writeStdout(QString const& text) override;
    void writeStderr(QString const& text) override;

    /// Log the text and show it in a box; the calling thread waits for the user.
    void error(QString const& text) override;
    void warning(QString const& text);
    void error(char const* message) override;
    void warning(char const* message) override;

    Stop stop;                       ///< of the job in progress
    Jobs jobs{*this, stop};          ///< its own, and those of others
    Script script{*this};            ///< its optional functions
    PackageFiles packageFiles;       ///< opened by the user; the next collection makes rows of them
    Log::EntryList logEntries;       ///< everything that was said since the program's start
    bool fileListsCollected = false; ///< the file lists of the repositories are loaded
    bool otherDataCollected = false; ///< the same for change logs

Q_SIGNALS:
    /// A job has loaded file lists or change logs. Emitted on the worker.
    void collectedExtraData();

protected:
    /// The seven lists of a transaction and the two objects that hold them.
    struct TransactionLists
    {
        PyRef tsInfo, lists;
        PyRef updated, installed, removed, obsoleted, depupdated, depinstalled, depremoved;
    };

    friend class CollectThread;
    friend class CollectFileListsThread;
    friend class CollectOtherDataThread;
    friend class ApplyThread;
    friend class Relations;
    friend class Script;

    // Jobs.
    void execWorkThread(QEventLoop& loop, QThread& thread);
    /// Job: runs the file "python/preload.py" of the share directory, if there is one, which imports what the
    /// helper script needs; the window is drawn meanwhile. What goes wrong is left to the script to tell.
    void preload();
    /// Tells a script that knows of it where the user's wish to stop is to be found.
    void offerStop();
    bool runCollection(QHash<QString, bool> const& repoStates);
    /// Has the collection in progress fetch nothing; false where the script doesn't know how.
    bool stayOnDisk();
    bool preloadReal();
    bool clearReal();
    bool collectReal(QHash<QString, bool> const& repoStates);
    bool collectFileListsReal();
    bool collectOtherDataReal();
    bool collectBuildHostReal(Package::Entry const& entry);
    bool applyReal(ApplyOf what);
    bool applyHistoryReal(HistoryWish const& wish, QStringList& obstacles);
    /// Applies by this function of the script, called with a tuple that is made under the interpreter lock;
    /// nothing is called without one. `obstacles` gets the texts that the function answers.
    bool applyCalling(
        char const* function, std::function<PyRef()> const& makeArguments, QStringList* obstacles = nullptr);
    /// The three lists as a tuple; empty after a report.
    PyRef applyLists(ApplyOf what);

    // Collection.
    void startCollectionProgress();
    /// A script that finds a transaction of another process at work may show it meanwhile, as its own.
    bool takeLock();
    bool readRepositories(QHash<QString, bool> const& repoStates);
    /// Tells of files that cannot be used, and goes on without them; false where the script gives up.
    bool collectPackageFiles();
    void closeInstalledFiles();
    bool collectPackages();
    bool collectGroupData();
    /// Ask a script that knows: for what the collection had to do without, and for what a transaction has
    /// left. Nothing of it fails the collection.
    void collectIncomplete();
    void collectUnfinished();
    void collectRepositoryTimes();
    void useRepos(PyObject* reposObject, QHash<QString, bool> const& repoStates);
    QStringList collectRepos(PyObject* reposDict);
    bool collectField(EntryHash& hash, PyObject* object, char const* field, Package::State state);
    /// Of packages; by "withPlain", where there is such a method, of pairs of a package and its `plainForm`.
    bool collectSet(EntryHash& hash, PyObject* iterable, Package::State state);
    void collectPkg(
        Package::Entry*& slot, Package::State state, PyRef package, PyObject* plain, Package::Text name);
    /// The values that the table reads of a package, in a tuple, where the package's class promises them by
    /// an attribute "plain" (see share/python/vemyum/packages.py); else empty.
    PyRef plainForm(PyObject* pkg);
    /// The name of a package; `plain` as `plainForm` gave it.
    Package::Text pkgName(PyObject* pkg, PyObject* plain);
    /// One text for all entries that show the same: there are few architectures, repositories and sizes.
    Package::Text sharedText(std::string_view letters);
    Package::Text sharedText(QString const& text);
    bool collectGroups(EntryHash& hash, PyObject* groupResult);
    bool collectGroup(Package::Entry*& slot, PyObject* groupObject, QString const& name);
    void dropEntries();
    /// Takes the entries from the table; `dropEntries` frees them.
    void detachEntries();
    /// Makes the collected entries the rows of the table.
    void takeEntries();
    /// The entry of the package of this name; null when the table has none.
    Package::Entry* findPackage(QString const& name) const;
    Package::Entry* findGroup(QString const& name) const;

    // Loading of repositories.
    void collectProgress(QString const& name, bool newAct, RepoAct act, long long value, long long total);

    // Extra data and details.
    bool collectExtraDataReal(
        bool YumIO::*collected, QString const& heading, QString const& contents, QString const& total,
        char const* method, QString const& failure);
    bool collectDetails();
    bool collectDetailsReal();
    /// Reads all that are wanted, on the worker; `takeDetails` makes them those of the table's rows.
    bool readDetails(QList<Package::Entry*> const& rows);
    void takeDetails();
    void askPackages(Package::Detail detail, QList<Package::Entry*> const& rows, Package::RowDetails& those);
    bool askScript(char const* name, QList<Package::Entry*> const& rows, Package::RowDetails& those);
    PyRef scriptDetails(char const* name, QList<Package::Entry*> const& rows);
    QString getPrco(PyObject* pkg, char const* hdrPrefix, char const* prcoKey);
    QString headerCapabilities(PyObject* pkg, QByteArray const& prefix);
    QString capabilityLine(PyObject* item);
    QString getRpmTime(PyObject* pkg, char const* tag);
    QString getRpmList(PyObject* pkg, char const* tag);
    PyRef getRpmHdrValue(PyObject* pkg, char const* tag);
    static QString makeSorted(QStringList& list);
    static QString makeSortedUniq(QStringList& list);

    // Groups. The lists answer sequences of names, null after a report.
    QString getGroupGrps(Package::Entry const& group, char const* key);
    QString getGroupPkgs(Package::Entry const& group, char const* oldKey, char const* newKey);
    PyRef getGroupItem_22(Package::Entry const& group, char const* key);
    PyRef getGroupItem_25(Package::Entry const& group, char const* key);
    /// The items of a sequence, or the keys of a dictionary, as texts.
    QStringList namesOf(PyObject* container);
    bool upToDateGroup(Package::Entry const& group);
    bool upToDateGroupGrps(Package::Entry const& group, char const* key);
    bool upToDateGroupPkgs(Package::Entry const& group, char const* oldKey, char const* newKey);
    PyRef joinPackageKeys(
        Package::Entry const& group, QList<char const*> const& attributes, char const* lacking,
        char const* improper);
    PyRef requiredPkgs(Package::Entry const* group);
    PyRef pkgTree(Package::Entry const* group);
    PyRef allPkgs(Package::Entry const* group);

    // Logs the heading and calls the methods; a refusal by the script is reported and ends it.
    bool cleanCaches(QString const& heading, QList<char const*> const& methods);
    bool cleanCachesReal(QString const& heading, QList<char const*> const& methods);

    // Marks on groups become marks on packages; false stops the apply.
    bool applyGroups();
    static QString actionName(Package::Action action);
    bool applyGrpUpdate(Package::Entry const* group);
    bool applyGrpInstall(Package::Entry const* group);
    bool applyGrpRemove(Package::Entry const* group);
    /// Marks what of `names` isn't up to date; new packages only where the group insists on them.
    bool applyGrpPutIn(
        Package::Entry const* group, QStringList const& names,
        std::function<bool(QString const&)> const& insistsOn);
    bool applyGrpConflict(Package::Entry const* group, Package::Entry* entry);
    void applyGrpLog(Package::Entry const* group, Package::Entry const* entry);
    void applyGrpLogWas(Package::Entry const* group, Package::Entry const* entry);
    void applyGrpLogNot(
        Package::Entry const* group, Package::Entry const* entry, Package::Action action,
        QString const& reason);

    // Apply.
    bool collectMarks(PyObject* installs, PyObject* updates, PyObject* removes);
    bool splitMarks(PyObject* installs, PyObject* updates, PyObject* removes);
    /// Behind a transaction during which the user wanted the program to end: tells on the terminal what went
    /// wrong, gives the lock back and ends the process.
    [[noreturn]] void leaveAfterInterrupt(bool succeeded);
    bool addUpdatePair(Package::Entry const& entry, PyObject* updates);
    /// Shows the dialog, with details where the script has told them.
    [[nodiscard]] bool askUser();
    bool takeTransactionDetails(PyObject* rows);
    /// What has changed between the versions, a text for each row of the details, with the changelogs loaded
    /// if need be; empty after a report. While the user is asked, on the thread of the apply.
    QStringList newerChanges();
    void prepareTransactionProgress();
    void dsTsInfo(QString const& line);
    void dsTsNewPkg(QString const& name, unsigned int weight, bool withHeader);
    void updateSolverActs();
    bool makeLists(PyObject* holder, TransactionLists& result);
    bool displayTransactionPkgs(QString const& label, PyObject* members);
    bool displayTransactionPkgsRepo(QString const& label, PyObject* members);
    bool displayTransactionPkgsObs(QString const& label, PyObject* members);
    /// What the transaction enables of modules, where the helper script tells that.
    bool displayEnabledStreams(PyObject* tsInfo);
    PyRef findRelation(PyObject* relatedto, char const* relation);
    void noteTransactionPkgs(Package::Action action, PyObject* members);
    QString pkgtupFormat(PyObject* pkgtup);
    QString pkgtupRepoFormat(PyObject* pkgtup, QString const& repo);
    /// The installed packages that an update replaces, as text, where the package's class promises to tell
    /// them by an attribute "replaces" (see share/python/vemyum/packages.py); else empty.
    QString replacedPkgs(PyObject* pkg);
    /// Tells how fast the download is and how long it takes, twice a second at most; `now` as DownloadRate
    /// wants it.
    void tellRate(qint64 now);
    void startPuttingIn(QString const& name, bool update, long long total);
    void startTakingOut(QString const& name, bool update, long long total);
    QString getLocalPkg(PyObject* pkg);
    QString getLocalHdr(PyObject* pkg);
    Package::Kind getPkgKind(PyObject* pkg);
    static Package::Kind pkgKind(std::string_view group);

    // Conversions of Python values. Those ending in Dec take over the reference.
    QString pyString(PyObject* object);
    QString pyStringDec(PyRef object);
    QString pyStringX(PyObject* object);
    QString pyStringXDec(PyRef object);
    QString pyMappingString(PyObject* map, char const* key);
    long long pyTime(PyObject* object);
    long long pyTimeDec(PyRef object);
    PyObject* pyDictGetItem(PyObject* dict, QString const& key);
    /// Null, and no exception set, where there is no such attribute.
    PyRef pyAttribute(PyObject* object, char const* name);
    /// Calls a method without argument or with one text, as cheaply as the interpreter allows: collection
    /// asks half a million times. Empty, and nothing is reported, when anything goes wrong; the caller then
    /// asks again by `pyMethodCall`, which reports. `method` and `argument` must be literals.
    PyRef pyQuickCall(PyObject* object, char const* method, char const* argument = nullptr);
    /// The text as an interned object, borrowed. Kept until the engine's end.
    PyObject* internedName(char const* name);
    /// A text that a callback got: str, bytes and (where `none` allows it) None; else the report, and empty.
    QString pyProgressText(PyObject* object, bool noneIsEmpty, char const* report);
    QString simpleString(PyObject* pkg, char const* key);
    static QString trimmedField(QString text); ///< without the line feeds at its end
    unsigned long long sizeOf(PyObject* pkg);
    long long buildTimeOf(PyObject* pkg);

    // Reports of expected Python exceptions, with the error lines logged since the call began.
    void pythonException(QString const& text);
    void pythonExceptionV(QString const& text);
    void reportException(QString const& value, QString const& text);
    void pyExceptExpect(PyObject* type) override;
    void pyExceptClear() override;
    void exceptionExpected() override;
    QByteArray lastReport() const override;

    PyObject* logAs(
        Log::Kind kind, PyObject* args); ///< files what a host function got as a line of this kind

    // Functions of the host module, called by the helper script.
    PyObject* stdoutWrite(PyObject* self, PyObject* args) override;
    PyObject* stderrWrite(PyObject* self, PyObject* args) override;
    PyObject* log(PyObject* self, PyObject* args) override;
    PyObject* warninglog(PyObject* self, PyObject* args) override;
    PyObject* errorlog(PyObject* self, PyObject* args) override;
    PyObject* collectProgress(PyObject* self, PyObject* args) override;
    PyObject* collectGrabMeterStart(PyObject* self, PyObject* args) override;
    PyObject* collectGrabMeterUpdate(PyObject* self, PyObject* args) override;
    PyObject* collectGrabMeterEnd(PyObject* self, PyObject* args) override;
    PyObject* applyGrabMeterStart(PyObject* self, PyObject* args) override;
    PyObject* applyGrabMeterUpdate(PyObject* self, PyObject* args) override;
    PyObject* applyGrabMeterEnd(PyObject* self, PyObject* args) override;
    PyObject* dsTsCheck(PyObject* self, PyObject* args) override;
    PyObject* dsRestartLoop(PyObject* self, PyObject* args) override;
    PyObject* userconfirm(PyObject* self, PyObject* args) override;
    PyObject* confirmKey(PyObject* self, PyObject* args) override;
    PyObject* reportDownloadSize(PyObject* self, PyObject* args) override;
    PyObject* listTransaction(PyObject* self, PyObject* args) override;
    PyObject* transactionDetails(PyObject* self, PyObject* args) override;
    PyObject* tsInitCallback(PyObject* self, PyObject* args) override;
    PyObject* tsCallback(PyObject* self, PyObject* args) override;
    PyObject* tsEvent(PyObject* self, PyObject* args) override;
    PyObject* scriptRuns(PyObject* self, PyObject* args) override;
    PyObject* postTransactionOutput(PyObject* self, PyObject* args) override;

    Package::EntryList entries;
    QList<Package::Entry*> detached; ///< the rows of the last collection, still to be freed
    std::array<Package::RowDetails, Package::detailCount> rowDetails, arrivingDetails;
    std::array<bool, Package::detailCount> detailsWanted{};
    QHash<quint64, long long> installedSizes; ///< by the serials of entries, of those that were asked for
    QMap<QString, qint64> readTimes;
    QStringList incompleteTexts;
    Unfinished left;
    EntryHash entryHash;         ///< the same entries by key; while collecting, the only holder
    qsizetype logMark = -1;      ///< first log line of the guarded call in progress; -1: none
    PyObject* rpmDict = nullptr; ///< dictionary of the module rpm, borrowed
    PyRef pyYumIOClass;          ///< the helper script's class
    PyRef yumIO;                 ///< its one instance; set means "initialized"
    PyRef repos;                 ///< the dictionary yumIO.repos.repos
    std::unordered_map<std::string_view, PyRef> internedNames;
    void const* plainAsked = nullptr; ///< the class that `plainForm` was asked for last
    bool plainOffered = false;        ///< its answer
    Package::TextSet sharedTexts;     ///< of the collection in progress
    int jobHolds = 0;                 ///< JobHold objects alive
    bool locked = false;              ///< this process holds the package library's lock
    bool watching = false;            ///< the transaction on show is another process's
    bool watched = false;             ///< there was one
    bool onDisk = false;              ///< the collection in progress fetches nothing
    std::atomic<bool> transactionBegun{false};
    bool yumVersionKnown = false;
    QString yumVersionText;
    bool sqliteKnown = false, sqlite = false;
    bool prestoKnown = false, presto = false;
    QString stdoutBuffer, stderrBuffer; ///< the unfinished last line of each stream
    Log::Kind stderrKind = Log::Error;
    unsigned int stderrLevel = 0;
    QStringList repoNames;            ///< ids of the enabled repositories
    QSet<QString> buildHostRepos;     ///< repositories whose build hosts are at hand
    QString repoContents;             ///< what is being loaded from the repositories, in words
    int repoAct = 0;                  ///< position among the acts of loading
    long long repoActTotal = 0;       ///< total of the act last started
    QString repoActName;              ///< name of the act last started
    QSet<QString> groupsBeingChecked; ///< groups on the way down to the one whose state is asked
    ApplyRun run;

private:
    QString libraryName;    ///< what the script said at the start
    QString lastReportText; ///< words of the last report, for the exception of a host function
};

size_t qHash(YumIO::EntryKey const& key, size_t seed = 0) noexcept;
