// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// The only place that includes the interpreter's own header. A file that needs it includes this one before
/// any other, since that header sets feature macros of the C library. The headers of the house never include
/// it: a forward declaration of `PyObject` (see bridge/PyRef.h) is enough for them.
///
/// Its inline functions and macros are C and don't meet this house's warnings.
#define PY_SSIZE_T_CLEAN
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wshadow"
#include <Python.h> // IWYU pragma: export
#pragma GCC diagnostic pop
