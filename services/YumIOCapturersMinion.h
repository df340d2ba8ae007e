// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMutex>
#include <QObject>
#include <QStringDecoder>

class CaptureSink;
class QSocketNotifier;

/// The reader of a YumIOCapturers: moves what comes out of the two pipes to the sink. Lives on the GUI
/// thread, whose event loop tells it that there is something to read; deleted there with deleteLater().
class YumIOCapturersMinion final : public QObject
{
    Q_OBJECT

public:
    /// Takes over the read ends, which have to be non-blocking, and closes them at the end.
    YumIOCapturersMinion(CaptureSink* sink, int stdoutReadEnd, int stderrReadEnd);

    /// Reads once more, for what children wrote that outlive the capture. GUI thread.
    ~YumIOCapturersMinion() override;

    /// Has initialize() run on this object's thread as soon as that gets to it. Any thread.
    void activate();

    /// Ends the reading on the GUI thread and reads what is left in the pipes on the calling one.
    void deactivate();

    void moveToThread(QThread* thread);

public Q_SLOTS:
    /// Starts to watch the pipes. This object's thread.
    void initialize();

    /// Read what is in the pipe at this moment and hand it to the sink. Never wait. Any thread.
    void readStdout();
    void readStderr();

private:
    struct Stream
    {
        int fd;
        QStringDecoder& decoder;
        void (CaptureSink::*write)(QString const&);
    };

    void read(Stream const& stream);

    CaptureSink* yumIO;
    int stdoutFd;
    int stderrFd;

    /// Guards all that follows: deactivate() runs beside the slots. It is held from reading a piece to
    /// handing it over, which keeps the pieces in order, and never while an event loop runs.
    QMutex mutex;
    bool active = false;
    bool ended = false;
    QSocketNotifier* stdoutNotifier = nullptr;
    QSocketNotifier* stderrNotifier = nullptr;

    /// A piece may end in the middle of a character; the decoder keeps that beginning for the next piece.
    QStringDecoder stdoutDecoder{QStringDecoder::Utf8};
    QStringDecoder stderrDecoder{QStringDecoder::Utf8};
};
