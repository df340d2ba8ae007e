// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class CaptureSink;
class YumIOCapturersMinion;

/// For as long as it lives, what the process and its children write to the descriptors 1 and 2 goes to
/// the engine's log instead: scriptlets and the rpm library know nothing of the log window. Made and
/// destroyed by the thread that runs the transaction; the reader lives on the GUI thread. One at a time.
class YumIOCapturers final : public QObject
{
    Q_OBJECT

public:
    /// Starts to capture. `sink` is not owned. On a failure it is told by error() and nothing is captured.
    explicit YumIOCapturers(CaptureSink* sink);

    /// Puts the descriptors back. What was written before that has reached the sink when this returns.
    ~YumIOCapturers() override;

    /// Has what was written until now reach the sink before this returns. Any thread.
    void drain();

private:
    [[nodiscard]] bool openPipes();
    [[nodiscard]] bool redirect();
    [[nodiscard]] bool restore() const;
    void closeSaved();

    YumIOCapturersMinion* minion = nullptr;
    CaptureSink* yumIO;
    int savedStdout = -1;
    int savedStderr = -1;
    int stdoutPipe[2] = {-1, -1};
    int stderrPipe[2] = {-1, -1};
};
