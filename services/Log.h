// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>

/// The log: everything that the package library, the engine and captured programs say.
namespace Log
{

/// How a record is to be shown. Any other value is shown as an Error.
enum Kind : int
{
    Info,    ///< the package library's own lines and the engine's notes
    Output,  ///< what went to standard output
    Warning, ///< warnings that the engine reports
    Error,   ///< errors, and what went to standard error
    Action,  ///< headings for what the engine starts to do
};

/// One record: one line.
struct Entry
{
    Kind kind = Info;
    unsigned level = 0; ///< the detail level from which the line shows; 0 always shows
    QString text;       ///< without line feed
};

/// The store of all records, from the program's start to its end; records are never removed. The engine
/// owns it, any thread writes to it. Whoever reads or changes the list itself holds its mutex meanwhile
/// (`lock()` and `unlock()`, or a QMutexLocker); add() and addStream() take it themselves.
class EntryList final : public QObject, public QList<Entry>, public QMutex
{
    Q_OBJECT

public:
    EntryList() = default;

    /// Files each line of `text` as a record, also the empty one behind a trailing line feed. An error
    /// number that follows a colon (": [Errno 2] ...") starts a line of its own. Tells the listeners.
    void add(Kind kind, unsigned level, QString const& text);

    /// Takes the next piece of a stream: files each line that its line feed has ended, and keeps what
    /// stands behind the last line feed in `buffer` for the next piece. Tells the listeners if a line was
    /// filed. `buffer` belongs to the caller and is only touched under this list's mutex, so that two
    /// threads may feed one stream.
    void addStream(QString const& text, Kind kind, unsigned level, QString& buffer);

    /// Emits appended(), at once or, inside an AppendedHold of this thread, when that ends. Not to be
    /// called with the mutex held: a listener on this thread takes it.
    void emitAppended();

Q_SIGNALS:
    /// There are new records. Emitted on the writer's thread, without the mutex.
    void appended();

private:
    friend class AppendedHold;
};

/// While one stands on a thread's stack, that thread's emissions of EntryList::appended() are held back;
/// its end makes up for them, once per list. For code that writes to a log while it holds a lock of its
/// own: a listener may run an event loop, which must not happen under that lock. Make it before the lock
/// is taken. Holds nest; the outermost counts.
class AppendedHold final
{
    Q_DISABLE_COPY_MOVE(AppendedHold)

public:
    AppendedHold();
    ~AppendedHold();

private:
    friend class EntryList;

    AppendedHold* outer;
    QList<EntryList*> held;
};

} // namespace Log

Q_DECLARE_TYPEINFO(Log::Entry, Q_RELOCATABLE_TYPE);
