// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"

#include <cstdarg>
#include <list>
#include <stack>
#include <string>

/// The embedded interpreter: its start and end, lookup of dotted names, calls from printf-like argument
/// formats, and the frames of expected exceptions that decide whether a failed call is a normal outcome or is
/// reported at once. The interpreter is process-wide; an object of this class only wraps it. The engine
/// derives from it and is the owner of the one object.
///
/// Every operation but the constructor, `initialize` and the destructor needs the interpreter lock, which a
/// `PyGILStateWrapper` gives, on the GUI thread too. Any thread may call.
///
/// Failures are reported by `error` and answered by null, false or nothing; nothing is thrown. An exception
/// that is still set when an operation begins, from an earlier failure that no one has looked at, neither
/// disturbs the operation nor counts as its own: it is put aside and set again, unless a new one takes its
/// place.
class Python
{
public:
    /// Holds the interpreter lock for a scope; may be nested. Does nothing when made with false, or while
    /// there is no interpreter.
    class PyGILStateWrapper
    {
    public:
        explicit PyGILStateWrapper(bool useLock)
            : use(useLock)
        {
            ensure();
        }
        ~PyGILStateWrapper() { release(); }
        PyGILStateWrapper(PyGILStateWrapper const&) = delete;
        PyGILStateWrapper& operator=(PyGILStateWrapper const&) = delete;

        /// Takes the lock, again after `release`; nothing when it is held already.
        void ensure();
        /// Gives the lock up before the end of the scope; nothing when it isn't held.
        void release();

    private:
        bool const use;
        bool held = false;
        int state = 0; ///< the `PyGILState_STATE` of the last ensure
    };

    Python() = default;
    Python(Python const&) = delete;
    Python& operator=(Python const&) = delete;
    /// Ends the interpreter if it was started. No `PyRef` may be filled any more. On the thread that called
    /// `initialize`.
    virtual ~Python();

    /// Starts the interpreter once per process and gives its lock up again at the end; true at once at
    /// another call. On false, after a report, nothing else may be called. GUI thread.
    bool initialize();

    /// Runs statements in `__main__`. What they raise only leaves its traceback on `sys.stderr`.
    void py(char const* statements);
    /// The value of an expression evaluated in `__main__`; empty on failure.
    [[nodiscard]] PyRef pyr(char const* expression);
    /// The same, the text being composed as by printf, of any length.
    [[gnu::format(printf, 2, 3)]] void pyf(char const* format, ...);
    [[nodiscard, gnu::format(printf, 2, 3)]] PyRef pyrf(char const* format, ...);

    /// The text of a str in UTF-8, or the bytes of a bytes object as they are; it lives as long as the
    /// object. Lone surrogates (undecodable bytes of a package's header) are shown as "?". Null for None,
    /// silently, and for a null object or one of another type, with a report.
    [[nodiscard]] char const* pyString(PyObject* object);

    /// Calls what a dotted name means (see `pyLookup`). `format` is that of `Py_BuildValue` and has to make a
    /// tuple: "()", "(s)", "(O,O)". The result is empty on failure.
    PyRef pyCall(char const* name, char const* format, ...);
    PyRef pyVCall(char const* name, char const* format, va_list args);
    /// Calls a method of `object`, likewise. A missing method is reported and its AttributeError stays set.
    PyRef pyMethodCall(PyObject* object, char const* name, char const* format, ...);
    PyRef pyVMethodCall(PyObject* object, char const* name, char const* format, va_list args);

    /// What a dotted name means: the first component is looked for in `__main__`, then imported; the others
    /// are members of modules and dictionaries, never attributes of classes or instances. Borrowed; null
    /// after a report.
    [[nodiscard]] PyObject* pyLookup(char const* name);

    /// The exception that is set, as an instance, which is no longer set then. Empty when there was none.
    [[nodiscard]] PyRef pyExceptValue();
    /// The same for display: its attribute "value" if it has one, else its text.
    [[nodiscard]] PyRef pyExceptValuef();

    /// The item `key` of a module or dictionary, borrowed. Null for a missing key, silently, and for an
    /// unknown `name`, with a report.
    [[nodiscard]] PyObject* pyValue(char const* name, char const* key);
    /// Sets the item `key` of a module or dictionary; keeps a reference of its own.
    void pyAssign(char const* name, char const* key, PyObject* object);
    /// Sets a global of `__main__`; a failure is ignored.
    void pyAssignGlobal(char const* name, PyObject* object);
    /// `sys.hexversion` of the interpreter; 0 when it can't be read.
    [[nodiscard]] long pyVersion();

    /// Debugging aid: opens pdb on the terminal, with `object` as the global "dbg".
    void pyDebug(PyObject* object);
    /// Gives SIGINT to the interpreter's own handler, or back to the system's default. Only on the thread
    /// that called `initialize`.
    void setEnablePythonSIGINTHandler(bool enable);

    static bool initialized;    ///< the interpreter has been started and not ended yet
    static PyObject* main_dict; ///< the dictionary of `__main__`, borrowed

protected:
    // A guarded call: start a frame, name the types expected, call, ask for each type whether it came, clear
    // the frame. Only the frame on top counts. A failure path may leave its frame behind.

    /// Opens a frame. An exception left over from an earlier call is forgotten, so that it can't be taken for
    /// that of the guarded one.
    virtual void pyExceptStart();
    /// Adds a type, borrowed, to the frame; null is reported, and matches nothing.
    virtual void pyExceptExpect(PyObject* type);
    /// Closes the frame and forgets the exception.
    virtual void pyExceptClear();
    /// Whether the call that answered `result` failed with an exception of this type.
    virtual bool pyExceptMatches(PyObject* result, PyObject* type);
    /// How this class reports: a line of text that ends in a line feed. May be called on any thread.
    virtual void error(char const* message) = 0;
    virtual void warning(char const* message) = 0;
    /// To be called for an exception that is set: leaves it for the caller when it is expected, else reports
    /// it and forgets it.
    virtual void handleException();
    virtual void exceptionExpected();
    virtual void exceptionError();

private:
    bool start();
    bool bindMain();
    /// Handles the exception that a failed operation left, if it left one.
    void handleFailure();
    /// `error` with a message composed as by printf; an exception that is set stays set.
    [[gnu::format(printf, 2, 3)]] void report(char const* format, ...);
    /// The dictionary behind a dotted name, for `pyValue` and `pyAssign`; null after a report.
    PyObject* dictionaryOf(char const* name);
    PyObject* memberOf(PyObject* container, std::string const& component);
    PyRef call(PyObject* function, char const* format, va_list args);

    std::stack<std::list<PyObject*>> exceptStack; ///< a frame for each guarded call in progress
};
