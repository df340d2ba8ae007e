// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "base/Descriptor.h"
#include "engine/Package.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <functional>
#include <vector>

class PosixRegex;
class YumIO;

namespace PackageTable
{

/// Calls `judge` with each text that mode Search looks at in an entry, the dearest last, until one is
/// accepted. Whether one was. GUI thread, with the interpreter lock.
bool anySearchedField(
    YumIO& yumIO, Package::Entry const& entry, std::function<bool(QString const&)> const& judge);

/// What mode Search looks at, of the rows of one collection, so that the interpreter is asked for it once and
/// not with every search. The texts lie in UTF-8, row behind row, in a file without a name: there are
/// hundreds of megabytes of them in a large repository, and the system keeps in memory what it has room for.
/// Where no file can be had, or little room is left beside it, nothing is kept. Owned by the proxy.
class SearchTexts final
{
public:
    /// Starts afresh where the rows are others than those that are kept. GUI thread, as all but `Reader`.
    void setRows(quint64 listSerial, int rows);
    /// Gives back the file, if it is about other rows.
    void forgetUnless(quint64 listSerial);

    /// Whether texts can be kept at all.
    [[nodiscard]] bool canKeep() const { return bool(file); }
    [[nodiscard]] bool knows(int row) const;
    /// Where the texts of a row lie that is known: rows are best read in this order.
    [[nodiscard]] qint64 place(int row) const { return records[static_cast<std::size_t>(row)].begin; }
    /// Reads the row's texts, and says whether one matches; null matches nothing. Once the file can't be
    /// written, nothing is known any more. With the interpreter lock.
    bool keep(YumIO& yumIO, Package::Entry const& entry, int row, PosixRegex const* expression);
    /// To be called between `keep` and the readers.
    void flush();

    /// Reads what is known; one thread at a time, several beside each other.
    class Reader
    {
    public:
        enum class Answer
        {
            No,
            Yes,
            Unreadable
        };
        explicit Reader(SearchTexts const& texts)
            : from(texts)
        {
        }
        /// Whether one of the row's texts matches.
        Answer matches(int row, PosixRegex const& expression);

    private:
        bool fetch(qint64 begin, qint64 size);

        SearchTexts const& from;
        QByteArray part;
        qint64 partBegin = 0;
        qint64 partSize = 0;
    };

private:
    struct Record
    {
        qint64 begin = -1; ///< byte of the file; -1 for what isn't known
        qint64 size = 0;
    };

    void close();

    quint64 list = 0;
    std::vector<Record> records; ///< by row
    Descriptor file;
    QByteArray pending; ///< behind `written`, not in the file yet
    qint64 written = 0;
};

} // namespace PackageTable
