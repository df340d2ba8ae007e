// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <utility>

struct _object; // NOLINT(bugprone-reserved-identifier): the interpreter's own name
using PyObject = _object;

/// The owner of one reference to a Python object, or of none. Every reference count of this program that
/// goes down does so here.
///
/// Making one by `borrow`, giving one a new value, resetting it and destroying it change a count, so a filled
/// one needs the interpreter lock for that; moving and `steal` don't. A filled one must not outlive the
/// interpreter. Both are asserted in debug builds; in others a reference that comes too late is left alone.
class PyRef
{
public:
    PyRef() = default;
    PyRef(PyRef&& other) noexcept
        : object(other.release())
    {
    }
    PyRef& operator=(PyRef&& other) noexcept
    {
        PyRef old(std::exchange(object, other.release()));
        return *this;
    }
    PyRef(PyRef const&) = delete;
    PyRef& operator=(PyRef const&) = delete;
    ~PyRef() { reset(); }

    /// Takes over a new reference, as most of the interpreter's functions answer it. Null gives an empty one.
    [[nodiscard]] static PyRef steal(PyObject* newReference) noexcept { return PyRef(newReference); }
    /// Adds a reference of its own to an object that someone else owns. Null gives an empty one.
    [[nodiscard]] static PyRef borrow(PyObject* object) noexcept;

    /// The object, still owned here; null when empty.
    [[nodiscard]] PyObject* get() const noexcept { return object; }
    /// Hands the reference to the caller, who has to see to it; this one is empty afterwards.
    [[nodiscard]] PyObject* release() noexcept { return std::exchange(object, nullptr); }
    /// Gives the reference up. Can run any Python code, by a destructor of the object.
    void reset() noexcept
    {
        if (object) {
            drop(release());
        }
    }
    [[nodiscard]] explicit operator bool() const noexcept { return object != nullptr; }

private:
    explicit PyRef(PyObject* newReference) noexcept
        : object(newReference)
    {
    }
    static void drop(PyObject* reference) noexcept;

    PyObject* object = nullptr;
};
