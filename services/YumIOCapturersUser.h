// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

class CaptureSink;
class YumIOCapturers;

/// Captures the process's output for as long as the guard stands on a job's stack. `capturers` has to
/// outlive the guard.
class YumIOCapturersUser final
{
    Q_DISABLE_COPY_MOVE(YumIOCapturersUser)

public:
    /// Starts a capture for `sink` and stores it in `capturers`.
    YumIOCapturersUser(YumIOCapturers*& capturers, CaptureSink* sink);

    /// Deletes what stands in `capturers` and puts the earlier value back.
    ~YumIOCapturersUser();

private:
    YumIOCapturers*& installed;
    YumIOCapturers* saved;
};
