// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"
#include "engine/PackageText.h"

#include <QList>
#include <QMetaType>
#include <QString>

/// The records behind the package table. There are tens of thousands: the enumerations are small for that.
namespace Package
{

/// What the user wants done with an entry. The values travel as ints (sorting, tests).
enum Action : quint8
{
    Update = 0,
    Install = 1,
    Remove = 2,
    None = 3
};

/// How an entry stands on the managed system.
enum State : quint8
{
    OutOfDate = 0,
    Available = 1,
    UpToDate = 2
};

enum Kind : quint8
{
    Suite = 0,
    Group = 1,
    Ordinary = 2
};

/// One row of the package table: an ordinary package, a suite of packages or a group. The engine owns
/// the entries and their Python objects; the fields that the table shows are copied in at collection and
/// can be read on the GUI thread without the interpreter lock. A group fills only `action`, `state`,
/// `kind`, `name` and `pyObject`. Destroy an entry only under the interpreter lock.
struct Entry
{
    Entry() = default;
    ~Entry();
    Entry(Entry const&) = delete;
    Entry& operator=(Entry const&) = delete;

    Action action = None; ///< what the user wants done; written on the GUI thread only
    State state = UpToDate;
    Kind kind = Ordinary;
    Action applyAction = None; ///< the action that the entry really gets in the present apply
    Text name;
    Text verRel; ///< version and release as shown
    Text repo;
    Text arch;
    unsigned long long size = 0; ///< bytes
    Text sizeText;
    Text summary;
    long long buildTime = 0; ///< seconds since 1970
    Text buildTimeText;
    PyRef pyObject; ///< the package library's object; for a group its group data
    /// The next link in the chain of installed versions of this package, owned; null at the chain's end.
    Entry* installed = nullptr;
    /// What an update takes the place of where nothing of its own name is installed, as text. Empty for every
    /// other entry, and where the helper script doesn't tell.
    Text replaces;
    /// Who set `applyAction`: the entry itself, or null once the user has settled a conflict. Not owned.
    Entry* applyCause = nullptr;
    /// Distinct for every entry that this process ever makes, unlike the address, which is used again.
    quint64 const serial = nextSerial();

    /// Whether the update is to go in as a new package, in the place of installed ones of other names.
    [[nodiscard]] bool replacesOthers() const { return !installed && !replaces.isEmpty(); }

private:
    static quint64 nextSerial(); ///< any thread
};

/// The rows of the table, which own their entries. Only heads of chains stand in the list.
class EntryList : public QList<Entry*>
{
public:
    EntryList() = default;
    ~EntryList();
    EntryList(EntryList const&) = delete;
    EntryList& operator=(EntryList const&) = delete;
};

} // namespace Package

Q_DECLARE_METATYPE(Package::Entry*)
