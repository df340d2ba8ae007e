// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/OutputFile.h"

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

bool OutputFile::open(QByteArray const& name, bool isPrivate)
{
    descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, isPrivate ? 0600 : 0666);
    if (descriptor < 0)
        return false;
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return false;
    isRegular = S_ISREG(status.st_mode);
    oldSize = isRegular ? status.st_size : 0;
    // Whoever shut a file off from the others has chosen its permissions; any other holds no secret yet.
    bool const isOpenToAll = (status.st_mode & S_IRWXO) != 0;
    return !(isPrivate && isRegular && isOpenToAll) || fchmod(descriptor, S_IRUSR | S_IWUSR) == 0;
}

bool OutputFile::write(QByteArray const& content)
{
    if (!reserve(content.size()) || !writeAll(content))
        return false;
    return !isRegular || ftruncate(descriptor, content.size()) == 0;
}

/// Gets the room for what `size` exceeds the present size by, before anything is overwritten.
bool OutputFile::reserve(qint64 size)
{
    if (!isRegular || size <= oldSize)
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
    // Special files have nothing to bring to a disk and say so.
    bool const isStored = fsync(descriptor) == 0 || errno == EINVAL || errno == EROFS;
    int const cause = errno;
    bool const isClosed = ::close(std::exchange(descriptor, -1)) == 0;
    if (!isStored)
        errno = cause;
    return isStored && isClosed;
}
