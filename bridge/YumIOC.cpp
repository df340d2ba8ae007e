// SPDX-License-Identifier: GPL-2.0-or-later
#include "bridge/PythonApi.h"

#include "bridge/YumIOC.h"

#include "bridge/PyRef.h"
#include "bridge/YumIOHost.h"

#include <exception>

YumIOHost* YumIOC::yumIO = nullptr;
bool YumIOC::moduleRegistered = false;

namespace
{

/// Raises RuntimeError with words in UTF-8; bytes that aren't must not hide the failure behind another one.
void raise(QByteArray const& words)
{
    PyRef const text = PyRef::steal(PyUnicode_DecodeUTF8(words.constData(), words.size(), "replace"));
    if (text) {
        PyErr_SetObject(PyExc_RuntimeError, text.get());
    }
}

using HostFunction = PyObject* (YumIOHost::*)(PyObject* self, PyObject* args);

/// What the interpreter calls for the function of the module that `function` answers.
template <HostFunction function>
PyObject* forward(PyObject* self, PyObject* args) noexcept
{
    PyRef result;
    try {
        if (!YumIOC::yumIO) {
            raise("yumIOC: the program no longer answers");
            return nullptr;
        }
        result = PyRef::steal((YumIOC::yumIO->*function)(self, args));
        if (!result && !PyErr_Occurred()) {
            raise(YumIOC::yumIO->lastReport());
        }
    } catch (std::exception const& exception) {
        PyErr_Clear();
        raise(exception.what());
    } catch (...) {
        PyErr_Clear();
        raise("yumIOC: the program failed");
    }
    if (result) {
        PyErr_Clear();
    }
    return result.release();
}

template <HostFunction function>
constexpr PyMethodDef entry(char const* name, int convention)
{
    return {name, forward<function>, convention, nullptr};
}

PyMethodDef functions[] = {
    entry<&YumIOHost::stdoutWrite>("stdoutWrite", METH_VARARGS),
    entry<&YumIOHost::stderrWrite>("stderrWrite", METH_VARARGS),
    entry<&YumIOHost::log>("log", METH_VARARGS),
    entry<&YumIOHost::warninglog>("warninglog", METH_VARARGS),
    entry<&YumIOHost::errorlog>("errorlog", METH_VARARGS),
    entry<&YumIOHost::collectProgress>("collectProgress", METH_VARARGS),
    entry<&YumIOHost::collectGrabMeterStart>("collectGrabMeterStart", METH_VARARGS),
    entry<&YumIOHost::collectGrabMeterUpdate>("collectGrabMeterUpdate", METH_VARARGS),
    entry<&YumIOHost::collectGrabMeterEnd>("collectGrabMeterEnd", METH_VARARGS),
    entry<&YumIOHost::applyGrabMeterStart>("applyGrabMeterStart", METH_VARARGS),
    entry<&YumIOHost::applyGrabMeterUpdate>("applyGrabMeterUpdate", METH_VARARGS),
    entry<&YumIOHost::applyGrabMeterEnd>("applyGrabMeterEnd", METH_VARARGS),
    entry<&YumIOHost::dsTsCheck>("dsTsCheck", METH_NOARGS),
    entry<&YumIOHost::dsRestartLoop>("dsRestartLoop", METH_NOARGS),
    entry<&YumIOHost::userconfirm>("userconfirm", METH_NOARGS),
    entry<&YumIOHost::confirmKey>("confirmKey", METH_VARARGS),
    entry<&YumIOHost::reportDownloadSize>("reportDownloadSize", METH_VARARGS),
    entry<&YumIOHost::listTransaction>("listTransaction", METH_VARARGS),
    entry<&YumIOHost::transactionDetails>("transactionDetails", METH_VARARGS),
    entry<&YumIOHost::tsInitCallback>("tsInitCallback", METH_VARARGS),
    entry<&YumIOHost::tsCallback>("tsCallback", METH_VARARGS),
    entry<&YumIOHost::tsEvent>("tsEvent", METH_VARARGS),
    entry<&YumIOHost::scriptRuns>("scriptRuns", METH_VARARGS),
    entry<&YumIOHost::postTransactionOutput>("postTransactionOutput", METH_VARARGS),
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "yumIOC", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

} // namespace

void YumIOC::initialize(YumIOHost* host)
{
    yumIO = host;
    if (moduleRegistered) {
        return;
    }
    Q_ASSERT(PyGILState_Check());
    PyRef const module = PyRef::steal(PyModule_Create(&definition));
    if (module && PyDict_SetItemString(PyImport_GetModuleDict(), "yumIOC", module.get()) == 0) {
        moduleRegistered = true;
    } else {
        PyErr_Print();
    }
}
