// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/OutputFile.h"

#include "base/ManagedRoot.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

OutputFile::~OutputFile()
{
    if (descriptor < 0)
        return;
    int const cause = errno;
    ::close(descriptor);
    errno = cause;
}

bool OutputFile::open(QByteArray const& path, bool isPrivate)
{
    // A pipe would wait for its reader.
    int const flags = O_CREAT | O_NONBLOCK;
    mode_t const mode = isPrivate ? 0600 : 0666;
    descriptor = ManagedRoot::open(path, flags | O_RDWR, mode);
    // Some may only write.
    if (descriptor < 0 && errno == EACCES)
        descriptor = ManagedRoot::open(path, flags | O_WRONLY, mode);
    if (descriptor < 0)
        return false;
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return false;
    }
    oldSize = status.st_size;
    return true;
}

QByteArray OutputFile::content() const
{
    QByteArray bytes(oldSize, '\0');
    qsizetype size = 0;
    while (size < bytes.size()) {
        ssize_t const count =
            pread(descriptor, bytes.data() + size, static_cast<size_t>(bytes.size() - size), size);
        if (count == 0 || (count < 0 && errno != EINTR))
            break;
        if (count > 0)
            size += count;
    }
    bytes.truncate(size);
    return bytes;
}

bool OutputFile::makePrivate()
{
    return fchmod(descriptor, S_IRUSR | S_IWUSR) == 0;
}

bool OutputFile::write(QByteArray const& content)
{
    return reserve(content.size()) && writeAll(content) && ftruncate(descriptor, content.size()) == 0;
}

/// Gets the room for what `size` exceeds the present size by, before anything is overwritten.
bool OutputFile::reserve(qint64 size)
{
    if (size <= oldSize)
        return true;
    int outcome;
    do {
        outcome = fallocate(descriptor, 0, oldSize, size - oldSize);
    } while (outcome != 0 && errno == EINTR);
    // Some file systems can't reserve; there the writing itself is what fails.
    if (outcome == 0 || errno == EOPNOTSUPP || errno == ENOSYS)
        return true;
    int const cause = errno;
    // A part may have been granted.
    if (ftruncate(descriptor, oldSize) == 0)
        errno = cause;
    return false;
}

bool OutputFile::writeAll(QByteArray const& content)
{
    for (qsizetype done = 0; done < content.size();) {
        ssize_t const count =
            ::write(descriptor, content.constData() + done, static_cast<size_t>(content.size() - done));
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            done += count;
    }
    return true;
}

bool OutputFile::close()
{
    bool const isStored = fsync(descriptor) == 0;
    int const cause = errno;
    bool const isClosed = ::close(std::exchange(descriptor, -1)) == 0;
    if (!isStored)
        errno = cause;
    return isStored && isClosed;
}
