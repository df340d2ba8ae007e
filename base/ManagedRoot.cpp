// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/ManagedRoot.h"

#include "base/Descriptor.h"

#include <array>
#include <cerrno>
#include <climits>
#include <memory>
#include <optional>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>

namespace ManagedRoot
{

namespace
{

/// As many links as the kernel follows in one path.
constexpr int mostLinks = 40;

QByteArray root()
{
    return qgetenv("VEMROOT");
}

Descriptor openRoot(QByteArray const& name)
{
    return Descriptor(::open(name.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

/// Where the link leads; nothing for anything else.
std::optional<QByteArray> linkTarget(Descriptor const& found)
{
    struct stat status = {};
    if (fstat(found.get(), &status) != 0 || !S_ISLNK(status.st_mode))
        return std::nullopt;
    std::array<char, PATH_MAX> target{};
    ssize_t const length = readlinkat(found.get(), "", target.data(), target.size());
    return length < 0 ? QByteArray() : QByteArray(target.data(), length);
}

/// The way to a file, one name at a time from a top directory that nothing leads out of. The directories on
/// it stay open, so that ".." needs no look at what stands above one by now.
class Walk
{
public:
    explicit Walk(Descriptor top) { folders.push_back(std::move(top)); }

    /// Follows all links. False if a name on the way, the last one apart, is missing or no directory.
    bool go(QByteArray const& path);
    /// Opens what the way led to; the last name may be one to be made.
    [[nodiscard]] int open(int flags, mode_t mode) const;
    [[nodiscard]] QByteArray path() const { return '/' + names.join('/'); }

private:
    static bool isStay(QByteArray const& name) { return name.isEmpty() || name == "."; }
    void up();
    void endAt(QByteArray const& missing, QByteArrayList const& ahead);

    std::vector<Descriptor> folders; ///< the top, then what stands for each name, if it is there
    QByteArrayList names;            ///< below the top
};

bool Walk::go(QByteArray const& path)
{
    QByteArrayList ahead = path.split('/');
    int links = 0;
    while (!ahead.isEmpty()) {
        QByteArray const name = ahead.takeFirst();
        if (isStay(name))
            continue;
        if (name == "..") {
            up();
            continue;
        }
        Descriptor found(openat(folders.back().get(), name.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
        if (!found) {
            bool const isLast = errno == ENOENT && ahead.isEmpty();
            endAt(name, ahead);
            return isLast;
        }
        std::optional<QByteArray> const target = linkTarget(found);
        if (!target) {
            folders.push_back(std::move(found));
            names += name;
            continue;
        }
        if (target->isEmpty() || ++links > mostLinks) {
            errno = ELOOP;
            endAt(name, ahead);
            return false;
        }
        if (target->startsWith('/')) {
            folders.erase(folders.begin() + 1, folders.end());
            names.clear();
        }
        ahead = target->split('/') + ahead;
    }
    return true;
}

void Walk::up()
{
    // Nothing stands above the top but itself.
    if (names.isEmpty())
        return;
    names.removeLast();
    folders.pop_back();
}

/// Takes over the rest of the path as it is written.
void Walk::endAt(QByteArray const& missing, QByteArrayList const& ahead)
{
    names += missing;
    for (QByteArray const& name : ahead) {
        if (name != ".." && !isStay(name))
            names += name;
        else if (name == ".." && !names.isEmpty())
            names.removeLast();
    }
}

int Walk::open(int flags, mode_t mode) const
{
    if (names.isEmpty())
        return openat(folders.front().get(), ".", flags, mode);
    // No link: one that has taken the place meanwhile is not followed.
    int const parent = folders[static_cast<size_t>(names.size()) - 1].get();
    return openat(parent, names.last().constData(), flags | O_NOFOLLOW, mode);
}

/// By the kernel, which lets nobody exchange a part of the path meanwhile, or by hand where the kernel lacks
/// the call or a sandbox forbids it.
int openBelow(Descriptor top, QByteArray const& path, int flags, mode_t mode)
{
    open_how how = {};
    how.flags = static_cast<unsigned int>(flags);
    how.mode = (flags & O_CREAT) != 0 ? mode : 0;
    how.resolve = RESOLVE_IN_ROOT | RESOLVE_NO_MAGICLINKS;
    long const opened = syscall(SYS_openat2, top.get(), path.constData(), &how, sizeof how);
    if (opened >= 0 || (errno != ENOSYS && errno != EPERM && errno != EAGAIN))
        return static_cast<int>(opened);

    Walk walk(std::move(top));
    return walk.go(path) ? walk.open(flags, mode) : -1;
}

/// System calls would end the path at a NUL byte, and so mean another file.
bool isPath(QByteArray const& path)
{
    if (!path.contains('\0'))
        return true;
    errno = EINVAL;
    return false;
}

QByteArray absolute(QByteArray const& path)
{
    if (path.startsWith('/'))
        return path;
    std::array<char, PATH_MAX> directory{};
    return getcwd(directory.data(), directory.size()) ? directory.data() + ('/' + path) : path;
}

} // namespace

int open(QByteArray const& path, int flags, mode_t mode)
{
    if (!isPath(path))
        return -1;
    QByteArray const directory = root();
    if (directory.isEmpty())
        return ::open(path.constData(), flags | O_CLOEXEC, mode);
    Descriptor top = openRoot(directory);
    return top ? openBelow(std::move(top), path, flags | O_CLOEXEC, mode) : -1;
}

bool inspect(QByteArray const& path, struct stat& status)
{
    if (!isPath(path))
        return false;
    if (root().isEmpty())
        return ::stat(path.constData(), &status) == 0;
    Descriptor const file(open(path, O_PATH));
    return file && fstat(file.get(), &status) == 0;
}

std::optional<QByteArrayList> names(QByteArray const& directory)
{
    Descriptor folder(open(directory, O_RDONLY | O_DIRECTORY));
    std::unique_ptr<DIR, int (*)(DIR*)> const stream(folder ? fdopendir(folder.get()) : nullptr, &closedir);
    if (!stream)
        return std::nullopt;
    (void)folder.release();
    QByteArrayList found;
    errno = 0;
    while (dirent const* const item = readdir(stream.get())) {
        QByteArray const name = item->d_name;
        if (name != "." && name != "..")
            found += name;
        errno = 0;
    }
    if (errno != 0)
        return std::nullopt;
    return found;
}

bool unlink(QByteArray const& path)
{
    if (!isPath(path))
        return false;
    if (root().isEmpty())
        return ::unlink(path.constData()) == 0;
    qsizetype const end = path.lastIndexOf('/');
    Descriptor const directory(open('/' + path.left(end), O_PATH | O_DIRECTORY));
    return directory && unlinkat(directory.get(), path.mid(end + 1).constData(), 0) == 0;
}

QByteArray resolved(QByteArray const& path)
{
    QByteArray const directory = root();
    Descriptor top = openRoot(directory.isEmpty() ? QByteArray("/") : directory);
    if (!top || !isPath(path))
        return path;
    Walk walk(std::move(top));
    // What is missing is part of it.
    (void)walk.go(directory.isEmpty() ? absolute(path) : path);
    return walk.path();
}

QByteArray identity(QByteArray const& path)
{
    struct stat status = {};
    if (!inspect(path, status))
        return resolved(path);
    return QByteArray::number(static_cast<quint64>(status.st_dev)) + ':' +
           QByteArray::number(static_cast<quint64>(status.st_ino));
}

} // namespace ManagedRoot
