// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableSearchTexts.h"

#include "engine/YumIO.h"
#include "packagetable/PosixRegex.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace PackageTable
{

namespace
{

using Field = QString (*)(YumIO&, Package::Entry const&);

template <auto Accessor>
QString field(YumIO& yumIO, Package::Entry const& entry)
{
    return (yumIO.*Accessor)(entry);
}

// Most fields come through the interpreter, the last two of a package need extra data.
constexpr std::array<Field, 8> groupFields{
    field<&YumIO::getName>,
    field<&YumIO::getRequiredGroups>,
    field<&YumIO::getDefaultMetaPkgs>,
    field<&YumIO::getOptionalMetaPkgs>,
    field<&YumIO::getMandatoryPkgs>,
    field<&YumIO::getDefaultPkgs>,
    field<&YumIO::getOptionalPkgs>,
    field<&YumIO::getConditionalPkgs>,
};

constexpr std::array<Field, 23> packageFields{
    field<&YumIO::getName>,        field<&YumIO::getVerRel>,      field<&YumIO::getRepo>,
    field<&YumIO::getArch>,        field<&YumIO::getSize>,        field<&YumIO::getSummary>,
    field<&YumIO::getDescription>, field<&YumIO::getGroup>,       field<&YumIO::getVendor>,
    field<&YumIO::getBuildTime>,   field<&YumIO::getInstallTime>, field<&YumIO::getBinaryRpm>,
    field<&YumIO::getSourceRpm>,   field<&YumIO::getLicense>,     field<&YumIO::getPackager>,
    field<&YumIO::getUrl>,         field<&YumIO::getRelocations>, field<&YumIO::getProvides>,
    field<&YumIO::getRequires>,    field<&YumIO::getConflicts>,   field<&YumIO::getObsoletes>,
    field<&YumIO::getFiles>,       field<&YumIO::getChangeLog>,
};

/// What is written at a time.
constexpr qsizetype pendingBytes = 1 << 20;
/// What is read at a time: fits in the processor's own memory, where it is looked at several times.
constexpr qint64 partBytes = 1 << 18;
/// What the texts leave free on the disk.
constexpr quint64 bytesLeft = 512ULL << 20;

/// A file for this process alone, on a disk: what lies in /tmp takes memory on many systems.
Descriptor namelessFile()
{
    Descriptor file(::open("/var/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file) {
        // Not every file system makes files without a name.
        std::array<char, 24> name{"/var/tmp/vem-XXXXXX"};
        file = Descriptor(::mkostemp(name.data(), O_CLOEXEC));
        if (file) {
            ::unlink(name.data());
        }
    }
    return file;
}

bool hasRoom(Descriptor const& file)
{
    struct statvfs disk = {};
    return ::fstatvfs(file.get(), &disk) == 0 && quint64(disk.f_bavail) * disk.f_frsize > bytesLeft;
}

} // namespace

bool anySearchedField(
    YumIO& yumIO, Package::Entry const& entry, std::function<bool(QString const&)> const& judge)
{
    auto const accepts = [&](Field field) { return judge(field(yumIO, entry)); };
    return entry.kind == Package::Group ? std::ranges::any_of(groupFields, accepts)
                                        : std::ranges::any_of(packageFields, accepts);
}

void SearchTexts::setRows(quint64 listSerial, int rows)
{
    if (list == listSerial && records.size() == static_cast<std::size_t>(rows)) {
        return;
    }
    close();
    list = listSerial;
    records.assign(static_cast<std::size_t>(rows), Record());
    file = namelessFile();
}

void SearchTexts::forgetUnless(quint64 listSerial)
{
    if (list != listSerial) {
        close();
        list = 0;
        records = {};
    }
}

void SearchTexts::close()
{
    file = Descriptor();
    pending = QByteArray();
    written = 0;
    std::ranges::fill(records, Record());
}

bool SearchTexts::knows(int row) const
{
    auto const at = static_cast<std::size_t>(row);
    return at < records.size() && records[at].begin >= 0;
}

bool SearchTexts::keep(YumIO& yumIO, Package::Entry const& entry, int row, PosixRegex const* expression)
{
    bool matches = false;
    Record record;
    record.begin = written + pending.size();
    anySearchedField(yumIO, entry, [&](QString const& text) {
        QByteArray const letters = text.toUtf8();
        matches = matches || (expression && expression->matches(letters));
        // Up to the first NUL, as regexec(3) sees it.
        pending += letters.constData();
        pending += '\0';
        return false;
    });
    record.size = written + pending.size() - record.begin;
    records[static_cast<std::size_t>(row)] = record;
    if (pending.size() >= pendingBytes) {
        flush();
    }
    return matches;
}

void SearchTexts::flush()
{
    if (!file || pending.isEmpty()) {
        return;
    }
    if (!hasRoom(file)) {
        close();
        return;
    }
    char const* from = pending.constData();
    char const* const end = from + pending.size();
    while (from < end) {
        ssize_t const done = ::pwrite(file.get(), from, static_cast<std::size_t>(end - from), written);
        if (done <= 0 && errno != EINTR) {
            close();
            return;
        }
        from += std::max<ssize_t>(done, 0);
        written += std::max<ssize_t>(done, 0);
    }
    pending.truncate(0);
}

bool SearchTexts::Reader::fetch(qint64 begin, qint64 size)
{
    if (begin >= partBegin && begin + size <= partBegin + partSize) {
        return true;
    }
    part.resize(std::max(size, partBytes));
    partBegin = begin;
    partSize = 0;
    while (partSize < size) {
        ssize_t const got = ::pread(
            from.file.get(), part.data() + partSize, static_cast<std::size_t>(part.size() - partSize),
            begin + partSize);
        if (got == 0 || (got < 0 && errno != EINTR)) {
            return false;
        }
        partSize += std::max<ssize_t>(got, 0);
    }
    return true;
}

SearchTexts::Reader::Answer SearchTexts::Reader::matches(int row, PosixRegex const& expression)
{
    Record const& record = from.records[static_cast<std::size_t>(row)];
    if (!fetch(record.begin, record.size)) {
        return Answer::Unreadable;
    }
    char const* text = part.constData() + (record.begin - partBegin);
    char const* const end = text + record.size;
    while (text < end) {
        auto const length = static_cast<qsizetype>(std::strlen(text));
        if (expression.matches(QByteArray::fromRawData(text, length))) {
            return Answer::Yes;
        }
        text += length + 1;
    }
    return Answer::No;
}

} // namespace PackageTable
