// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Where captured output goes: implemented by the engine, which files complete lines in its log and
/// keeps the unfinished rest of each stream. Has to outlive every capture that was given it.
class CaptureSink
{
public:
    virtual ~CaptureSink() = default;

    /// A piece of the stream, of any length, in order. Called on the GUI thread, and at the end of a
    /// capture on the thread that ends it, but never by two threads at once. Must not wait for another
    /// thread.
    virtual void writeStdout(QString const& text) = 0;
    virtual void writeStderr(QString const& text) = 0;

    /// Capturing could not be set up or undone. Called on the thread of the capture; may show a dialog
    /// and wait for its answer.
    virtual void error(QString const& text) = 0;

protected:
    CaptureSink() = default;
    CaptureSink(CaptureSink const&) = default;
    CaptureSink& operator=(CaptureSink const&) = default;
};
