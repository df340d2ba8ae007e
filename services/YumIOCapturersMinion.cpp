// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIOCapturersMinion.h"

#include "services/CaptureSink.h"
#include "services/Log.h"

#include <QMutexLocker>
#include <QSocketNotifier>
#include <QTimer>
#include <cerrno>
#include <sys/ioctl.h>
#include <unistd.h>

YumIOCapturersMinion::YumIOCapturersMinion(CaptureSink* sink, int stdoutReadEnd, int stderrReadEnd)
    : yumIO(sink),
      stdoutFd(stdoutReadEnd),
      stderrFd(stderrReadEnd)
{
}

YumIOCapturersMinion::~YumIOCapturersMinion()
{
    readStdout();
    readStderr();
    QMutexLocker const locker(&mutex);
    delete stdoutNotifier;
    delete stderrNotifier;
    ::close(stdoutFd);
    ::close(stderrFd);
}

void YumIOCapturersMinion::activate()
{
    QTimer::singleShot(0, this, &YumIOCapturersMinion::initialize);
}

void YumIOCapturersMinion::deactivate()
{
    {
        QMutexLocker const locker(&mutex);
        ended = true;
        if (active) {
            active = false;
            disconnect(stdoutNotifier, nullptr, this, nullptr);
            disconnect(stderrNotifier, nullptr, this, nullptr);
        }
    }
    readStdout();
    readStderr();
}

void YumIOCapturersMinion::moveToThread(QThread* thread)
{
    QObject::moveToThread(thread);
}

void YumIOCapturersMinion::initialize()
{
    QMutexLocker const locker(&mutex);
    // The capture may be over before the GUI thread got here. Pipes whose writers are gone would call
    // for a reader without end.
    if (ended) {
        return;
    }
    stdoutNotifier = new QSocketNotifier(stdoutFd, QSocketNotifier::Read);
    stderrNotifier = new QSocketNotifier(stderrFd, QSocketNotifier::Read);
    connect(stdoutNotifier, &QSocketNotifier::activated, this, &YumIOCapturersMinion::readStdout);
    connect(stderrNotifier, &QSocketNotifier::activated, this, &YumIOCapturersMinion::readStderr);
    active = true;
}

void YumIOCapturersMinion::readStdout()
{
    read({stdoutFd, stdoutDecoder, &CaptureSink::writeStdout});
}

void YumIOCapturersMinion::readStderr()
{
    read({stderrFd, stderrDecoder, &CaptureSink::writeStderr});
}

void YumIOCapturersMinion::read(Stream const& stream)
{
    // The hold ends after the lock: who listens to the log may run an event loop, and the thread that
    // ends the capture, which may hold what that loop's events need, must not wait for it.
    Log::AppendedHold const hold;
    QMutexLocker const locker(&mutex);

    // As much as there is now, and no more: a child that never stops writing must not keep this here.
    int available = 0;
    if (::ioctl(stream.fd, FIONREAD, &available) != 0 || available <= 0) {
        return;
    }
    QByteArray bytes(available, Qt::Uninitialized);
    ssize_t count = 0;
    do {
        count = ::read(stream.fd, bytes.data(), static_cast<size_t>(bytes.size()));
    } while (count < 0 && errno == EINTR);
    if (count <= 0) {
        return;
    }
    QString const text = stream.decoder.decode(QByteArrayView(bytes.constData(), count));
    (yumIO->*stream.write)(text);
}
