// SPDX-License-Identifier: GPL-2.0-or-later
// The interpreter's life, lookup and calls. The exception protocol is in PythonExceptions.cpp.
#include "bridge/PythonApi.h"

#include "bridge/Python.h"

#include "bridge/PendingException.h"

#include <QtGlobal>

#include <cstdio>
#include <set>
#include <string_view>

bool Python::initialized = false;
PyObject* Python::main_dict = nullptr;

namespace
{

std::string composed(char const* format, va_list args)
{
    va_list copy;
    va_copy(copy, args);
    // The analyser loses sight of va_copy when the list is a parameter.
    int const length =
        std::vsnprintf(nullptr, 0, format, copy); // NOLINT(clang-analyzer-valist.Uninitialized)
    va_end(copy);
    std::string text(length > 0 ? static_cast<size_t>(length) : 0, '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, args);
    return text;
}

/// Texts that `pyString` had to repair, each once. They have to live as long as the objects they were made
/// of, which nothing tells. Under the interpreter lock.
std::set<std::string>& repairedTexts()
{
    static std::set<std::string> texts;
    return texts;
}

} // namespace

void Python::PyGILStateWrapper::ensure()
{
    if (use && !held && Py_IsInitialized()) {
        state = PyGILState_Ensure();
        held = true;
    }
}

void Python::PyGILStateWrapper::release()
{
    if (held && Py_IsInitialized()) {
        PyGILState_Release(static_cast<PyGILState_STATE>(state));
    }
    held = false;
}

Python::~Python()
{
    if (!initialized) {
        return;
    }
    PyGILState_Ensure();
    // What runs at the interpreter's end must not meet an exception that no one has looked at.
    PyErr_Clear();
    Py_FinalizeEx();
    initialized = false;
    main_dict = nullptr;
    repairedTexts().clear();
}

bool Python::initialize()
{
    if (initialized) {
        return true;
    }
    initialized = true;
    if (!start()) {
        initialized = false;
        return false;
    }
    bool bound = false;
    {
        PyGILStateWrapper const lock(true);
        py("import signal\ndefaultSigIntSigaction = signal.getsignal(signal.SIGINT)");
        bound = bindMain();
    }
    PyEval_SaveThread();
    return bound;
}

bool Python::start()
{
    PyConfig config;
    PyConfig_InitPythonConfig(&config);
    config.parse_argv = 0;
    // Without these the interpreter would look for itself, and so for its library, on PATH.
    PyStatus status = PyConfig_SetBytesString(&config, &config.program_name, VEM_PYTHON_EXECUTABLE);
    if (!PyStatus_Exception(status)) {
        status = PyConfig_SetBytesString(&config, &config.executable, VEM_PYTHON_EXECUTABLE);
    }
    if (!PyStatus_Exception(status)) {
        status = Py_InitializeFromConfig(&config);
    }
    PyConfig_Clear(&config);
    if (PyStatus_Exception(status)) {
        error((std::string("Internal error: cannot start python: ") +
               (status.err_msg ? status.err_msg : "unknown reason") + "\n")
                  .c_str());
        return false;
    }
    return true;
}

bool Python::bindMain()
{
    PyRef const main = PyRef::steal(PyImport_ImportModule("__main__"));
    if (!main) {
        PyErr_Clear();
        error("Internal error: cannot find python __main__ module\n");
        return false;
    }
    main_dict = PyModule_GetDict(main.get());
    if (!main_dict) {
        error("Internal error: cannot find python __main__ dict\n");
        return false;
    }
    return true;
}

void Python::py(char const* statements)
{
    Q_ASSERT(PyGILState_Check());
    PendingException const pending;
    if (PyRun_SimpleStringFlags(statements, nullptr) == -1) {
        handleFailure();
    }
}

PyRef Python::pyr(char const* expression)
{
    Q_ASSERT(PyGILState_Check());
    PendingException const pending;
    PyRef result = PyRef::steal(PyRun_StringFlags(expression, Py_eval_input, main_dict, main_dict, nullptr));
    if (!result) {
        handleFailure();
    }
    return result;
}

void Python::pyf(char const* format, ...)
{
    va_list args;
    va_start(args, format);
    std::string const statements = composed(format, args);
    va_end(args);
    py(statements.c_str());
}

PyRef Python::pyrf(char const* format, ...)
{
    va_list args;
    va_start(args, format);
    std::string const expression = composed(format, args);
    va_end(args);
    return pyr(expression.c_str());
}

char const* Python::pyString(PyObject* object)
{
    if (!object) {
        report("Internal error: pyString passed NULL python object\n");
        return nullptr;
    }
    Q_ASSERT(PyGILState_Check());
    if (object == Py_None) {
        return nullptr;
    }
    PendingException const pending;
    char const* text = nullptr;
    if (PyUnicode_Check(object)) {
        text = PyUnicode_AsUTF8(object);
        if (!text && PyErr_ExceptionMatches(PyExc_UnicodeEncodeError)) {
            PyErr_Clear();
            PyRef const repaired = PyRef::steal(PyUnicode_AsEncodedString(object, "utf-8", "replace"));
            if (repaired) {
                text = repairedTexts().emplace(PyBytes_AsString(repaired.get())).first->c_str();
            }
        }
    } else {
        text = PyBytes_AsString(object);
    }
    if (!text) {
        handleFailure();
    }
    return text;
}

PyObject* Python::memberOf(PyObject* container, std::string const& component)
{
    if (PyModule_Check(container)) {
        container = PyModule_GetDict(container);
        if (!container) {
            report("Internal error: module %s lacks dictionary\n", component.c_str());
            return nullptr;
        }
    }
    PyObject* const member =
        PyDict_Check(container) ? PyDict_GetItemString(container, component.c_str()) : nullptr;
    if (!member) {
        report("Internal error: %s not found\n", component.c_str());
    }
    return member;
}

PyObject* Python::pyLookup(char const* name)
{
    Q_ASSERT(PyGILState_Check());
    PendingException const pending;
    std::string_view const path(name);
    size_t end = path.find('.');
    std::string const first(path.substr(0, end));
    PyObject* current = PyDict_GetItemString(main_dict, first.c_str());
    if (!current) {
        // sys.modules holds what was imported, so the reference need not be kept.
        PyRef const imported = PyRef::steal(PyImport_ImportModule(first.c_str()));
        current = imported.get();
    }
    if (!current) {
        PyErr_Clear();
        report("Internal error: %s not found\n", first.c_str());
        return nullptr;
    }
    while (current && end != std::string_view::npos) {
        size_t const begin = end + 1;
        end = path.find('.', begin);
        current = memberOf(current, std::string(path.substr(begin, end - begin)));
    }
    return current;
}

PyRef Python::call(PyObject* function, char const* format, va_list args)
{
    PyRef const tuple = PyRef::steal(Py_VaBuildValue(format, args));
    PyRef result;
    if (tuple) {
        result = PyRef::steal(PyObject_CallObject(function, tuple.get()));
    }
    if (!result) {
        handleFailure();
    }
    return result;
}

PyRef Python::pyCall(char const* name, char const* format, ...)
{
    va_list args;
    va_start(args, format);
    PyRef result = pyVCall(name, format, args);
    va_end(args);
    return result;
}

PyRef Python::pyVCall(char const* name, char const* format, va_list args)
{
    // The call may rebind the name.
    PyRef const function = PyRef::borrow(pyLookup(name));
    PendingException const pending;
    if (!function) {
        report("Internal error: %s not found\n", name);
        return {};
    }
    if (!PyCallable_Check(function.get())) {
        report("Internal error: %s not callable\n", name);
        return {};
    }
    return call(function.get(), format, args);
}

PyRef Python::pyMethodCall(PyObject* object, char const* name, char const* format, ...)
{
    va_list args;
    va_start(args, format);
    PyRef result = pyVMethodCall(object, name, format, args);
    va_end(args);
    return result;
}

PyRef Python::pyVMethodCall(PyObject* object, char const* name, char const* format, va_list args)
{
    if (!object) {
        report("Internal error: method %s call attemped with NULL self\n", name);
        return {};
    }
    Q_ASSERT(PyGILState_Check());
    PendingException const pending;
    PyRef const method = PyRef::steal(PyObject_GetAttrString(object, name));
    if (!method) {
        report("Internal error: method %s not found\n", name);
        return {};
    }
    if (!PyCallable_Check(method.get())) {
        report("Internal error: method %s not callable\n", name);
        return {};
    }
    return call(method.get(), format, args);
}

PyObject* Python::dictionaryOf(char const* name)
{
    PyObject* const found = pyLookup(name);
    if (!found) {
        report("Internal error: %s not found\n", name);
        return nullptr;
    }
    if (!PyModule_Check(found)) {
        return found;
    }
    PyObject* const dictionary = PyModule_GetDict(found);
    if (!dictionary) {
        report("Internal error: module %s lacks dictionary\n", name);
    }
    return dictionary;
}

PyObject* Python::pyValue(char const* name, char const* key)
{
    PyObject* const dictionary = dictionaryOf(name);
    if (!dictionary || !PyDict_Check(dictionary)) {
        return nullptr;
    }
    PendingException const pending;
    PyObject* const value = PyDict_GetItemString(dictionary, key);
    if (!value) {
        handleFailure();
    }
    return value;
}

void Python::pyAssign(char const* name, char const* key, PyObject* object)
{
    PyObject* const dictionary = dictionaryOf(name);
    if (!dictionary) {
        return;
    }
    PendingException const pending;
    if (object && PyDict_SetItemString(dictionary, key, object) == 0) {
        return;
    }
    if (PyErr_Occurred()) {
        handleException();
    } else {
        report("Internal error: cannot assign %s.%s\n", name, key);
    }
}

void Python::pyAssignGlobal(char const* name, PyObject* object)
{
    Q_ASSERT(PyGILState_Check());
    PendingException const pending;
    if (object && PyDict_SetItemString(main_dict, name, object) != 0) {
        PyErr_Clear();
    }
}

long Python::pyVersion()
{
    PyObject* const version = pyValue("sys", "hexversion");
    PendingException const pending;
    long const number = version ? PyLong_AsLong(version) : 0;
    if (PyErr_Occurred()) {
        handleException();
        return 0;
    }
    return number;
}

void Python::pyDebug(PyObject* object)
{
    PyErr_Clear();
    pyAssignGlobal("dbg", object);
    py("import sys\nsys.stdout = sys.__stdout__\nsys.stderr = sys.__stderr__\nimport pdb\npdb.set_trace()");
    PyErr_Clear();
}

void Python::setEnablePythonSIGINTHandler(bool enable)
{
    py(enable ? "signal.signal(signal.SIGINT, defaultSigIntSigaction)"
              : "signal.signal(signal.SIGINT, signal.SIG_DFL)");
}

void Python::report(char const* format, ...)
{
    va_list args;
    va_start(args, format);
    std::string const message = composed(format, args);
    va_end(args);
    PendingException const pending;
    error(message.c_str());
}
