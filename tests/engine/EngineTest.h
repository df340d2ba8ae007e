// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Boxes.h"
#include "ProgressRecord.h"
#include "engine/YumIO.h"
#include "services/HProgressBar.h"
#include "services/Progress.h"
#include "services/ProgressUser.h"

#include <QPointer>
#include <QTest>
#include <memory>

/// The engine with its insides open to tests.
class TestEngine final : public YumIO
{
    Q_OBJECT

public:
    TestEngine();

    /// Runs statements in the helper script's namespace; answers the traceback of what they raised.
    QString script(QString const& statements);
    /// The value of an expression there, as text.
    QString value(QString const& expression);
    /// The object that an expression means. Only under the interpreter lock.
    PyRef object(QString const& expression);
    /// What the program called of the stand-in since the test began.
    QStringList calls();
    /// Pretends that the library names this version.
    void setVersion(QString const& version);
    /// Back to where a test starts: a fresh world, no entries, nothing remembered.
    void reset();

    /// The lines of the log, of all kinds or of one. A level other than 0 is told as "text (level)".
    QStringList logLines() const;
    QStringList logLines(Log::Kind kind) const;

    ProgressRecord progressRecord; ///< of the jobs since the test began

    using YumIO::allPkgs, YumIO::buildTimeOf, YumIO::findGroup, YumIO::findPackage, YumIO::getPkgKind;
    using YumIO::applyGroups, YumIO::applyGrpConflict, YumIO::findRelation, YumIO::handleException;
    using YumIO::applyReal, YumIO::bytesFormat, YumIO::collectProgress, YumIO::collectReal;
    using YumIO::displayTransactionPkgs, YumIO::displayTransactionPkgsObs;
    using YumIO::displayTransactionPkgsRepo, YumIO::dsTsInfo, YumIO::entries, YumIO::entryHash;
    using YumIO::getGroupItem_22, YumIO::getGroupItem_25, YumIO::getLocalHdr, YumIO::getLocalPkg;
    using YumIO::getPrco, YumIO::getRpmHdrValue, YumIO::getRpmList, YumIO::getRpmTime;
    using YumIO::locked, YumIO::logMark, YumIO::makeLists, YumIO::makeSorted;
    using YumIO::makeSortedUniq, YumIO::namesOf, YumIO::noteTransactionPkgs, YumIO::pkgTree;
    using YumIO::pkgtupFormat, YumIO::pkgtupRepoFormat, YumIO::PyGILStateWrapper;
    using YumIO::pyDictGetItem, YumIO::pyExceptClear, YumIO::pyExceptExpect, YumIO::pyExceptMatches;
    using YumIO::pyExceptStart, YumIO::pyLookup, YumIO::pyMappingString, YumIO::pyMethodCall;
    using YumIO::pyString, YumIO::pyStringDec, YumIO::pyStringX, YumIO::pyStringXDec, YumIO::pythonException;
    using YumIO::pythonExceptionV, YumIO::pyTime, YumIO::pyTimeDec, YumIO::repoAct, YumIO::repoActName;
    using YumIO::repoActTotal, YumIO::repoContents, YumIO::repoNames, YumIO::requiredPkgs, YumIO::run;
    using YumIO::simpleString, YumIO::sizeOf, YumIO::sqliteKnown, YumIO::tellRate, YumIO::prestoKnown,
        YumIO::stderrKind, YumIO::stderrLevel;
    using YumIO::TransactionLists, YumIO::yumIO, YumIO::yumVersionKnown;

private:
    QString versionOfEra;
    QPointer<Progress> followed; ///< whose signals go to the record
};

/// What the engine's tests share: an engine over the stand-in of one release, which VEM_TEST_ERA names, a
/// user who answers dialogs, and the two bars. There is one engine for all functions of a test, since a
/// process starts its interpreter once; each function begins from a reset engine. A dialog that a function
/// didn't take from `boxes` fails it.
class EngineTest : public QObject
{
    Q_OBJECT

protected:
    /// Of the release that this process stands in for.
    static QString era();
    /// Fills the table by the stand-in's collection, then forgets the calls and the log of that.
    bool collected();
    Package::Entry* package(QString const& name) const { return engine->findPackage(name); }
    Package::Entry* group(QString const& name) const { return engine->findGroup(name); }
    /// Gives the engine a Progress on this thread, as a job has one, until the function's end, with `steps`
    /// steps shared by `acts` acts. Its record goes to the engine's.
    void startProgress(Steps steps = 0, Steps acts = 0);
    /// What a Progress of such acts tells when it is driven so.
    QStringList told(std::function<void(Progress&)> const& drive) const;

    std::unique_ptr<HProgressBar> totalBar;
    std::unique_ptr<HProgressBar> itemBar;
    std::unique_ptr<Boxes> boxes;
    std::unique_ptr<TestEngine> engine;

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

private:
    std::unique_ptr<ProgressUser> progressUser;
    Steps actSteps = 0, actCount = 0;
};

/// Statements for the helper script that must not raise.
#define SCRIPT(statements) QCOMPARE(engine->script(QStringLiteral(statements)), QString())
