// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EngineTest.h"

#include <QTemporaryDir>

/// What tests of the engine's start, jobs and end share. A process starts its interpreter once, so each of
/// their functions has an engine that was never started, in a process of its own; `main` is `runAlone`.
class LifecycleTest : public QObject
{
    Q_OBJECT

public:
    /// With arguments, runs the functions of `test` that they name. Without, starts the program anew for each
    /// of its functions; answers the number of those that failed.
    static int runAlone(QObject& test, int argc, char* argv[]);

protected:
    /// Writes a helper script that behaves like a current release, tells its calls, and then does `more`.
    void writeScript(QString const& more = QString());
    void writeText(QString const& text);
    /// What was called of the script, also after the interpreter's end.
    QStringList calls() const;

    QTemporaryDir directory; ///< the share directory
    HProgressBar totalBar;
    HProgressBar itemBar;
    std::unique_ptr<Boxes> boxes;
    std::unique_ptr<TestEngine> engine;

private Q_SLOTS:
    void initTestCase();
    void cleanup();
};
