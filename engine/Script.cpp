// SPDX-License-Identifier: GPL-2.0-or-later
#include "bridge/PythonApi.h"

#include "engine/Script.h"

#include "engine/YumIO.h"

#include <QJsonArray>
#include <QJsonObject>

namespace
{

/// Deeper answers are taken for one that holds itself.
constexpr int deepest = 32;

PyRef textObject(QString const& text)
{
    QByteArray const bytes = text.toUtf8();
    return PyRef::steal(PyUnicode_FromStringAndSize(bytes.constData(), bytes.size()));
}

PyRef objectOf(QJsonValue const& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return PyRef::borrow(value.toBool() ? Py_True : Py_False);
    case QJsonValue::Double:
        return PyRef::steal(
            value.toVariant().userType() == QMetaType::LongLong ? PyLong_FromLongLong(value.toInteger())
                                                                : PyFloat_FromDouble(value.toDouble()));
    case QJsonValue::String:
        return textObject(value.toString());
    case QJsonValue::Array: {
        PyRef list = PyRef::steal(PyList_New(0));
        QJsonArray const items = value.toArray();
        for (QJsonValue const item : items) {
            PyRef const made = objectOf(item);
            if (!made || PyList_Append(list.get(), made.get()) != 0) {
                return PyRef();
            }
        }
        return list;
    }
    case QJsonValue::Object: {
        PyRef table = PyRef::steal(PyDict_New());
        QJsonObject const fields = value.toObject();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            PyRef const key = textObject(field.key());
            PyRef const made = objectOf(field.value());
            if (!key || !made || PyDict_SetItem(table.get(), key.get(), made.get()) != 0) {
                return PyRef();
            }
        }
        return table;
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return PyRef::borrow(Py_None);
}

} // namespace

Script::Argument Script::Argument::object(PyRef const& ref)
{
    Argument argument;
    argument.value = ref.get();
    return argument;
}

PyRef Script::Argument::made() const
{
    PyObject* const* const object = std::get_if<PyObject*>(&value);
    return object ? PyRef::borrow(*object ? *object : Py_None) : objectOf(std::get<QJsonValue>(value));
}

Script::Script(YumIO& engine)
    : yumIO(engine)
{
}

bool Script::has(char const* function) const
{
    Python::PyGILStateWrapper const lock(Python::initialized);
    return Python::initialized && yumIO.yumIO && PyObject_HasAttrString(yumIO.yumIO.get(), function) != 0;
}

std::optional<QJsonValue> Script::call(
    char const* function, Arguments const& arguments, QString const& failure)
{
    if (!has(function)) {
        return QJsonValue(QJsonValue::Undefined);
    }
    Python::PyGILStateWrapper const lock(true);
    PyRef const answer = object(function, arguments, failure);
    if (!answer) {
        return std::nullopt;
    }
    std::optional<QJsonValue> value = plain(answer.get(), 0);
    if (!value) {
        misunderstood(function);
    }
    return value;
}

void Script::misunderstood(char const* function)
{
    yumIO.error(YumIO::tr("Internal error: execution of yumIO.%1 failed").arg(QLatin1String(function)));
}

QString Script::told(char const* function)
{
    Python::PyGILStateWrapper const lock(Python::initialized);
    if (!Python::initialized || !PyDict_GetItemString(Python::main_dict, function)) {
        return {};
    }
    yumIO.pyExceptStart();
    PyRef const answer = yumIO.pyCall(function, "()");
    yumIO.pyExceptClear();
    return answer ? yumIO.pyString(answer.get()) : QString();
}

PyRef Script::object(char const* function, Arguments const& arguments, QString const& failure)
{
    if (!has(function)) {
        return PyRef();
    }
    PyRef const given = PyRef::steal(PyTuple_New(arguments.size()));
    for (qsizetype at = 0; given && at < arguments.size(); ++at) {
        PyRef argument = arguments.at(at).made();
        if (!argument || PyTuple_SetItem(given.get(), at, argument.release()) != 0) {
            PyErr_Clear();
            misunderstood(function);
            return PyRef();
        }
    }
    PyObject* const baseError = failure.isEmpty() ? nullptr : yumIO.pyLookup("yum.Errors.YumBaseError");
    yumIO.pyExceptStart();
    if (baseError) {
        yumIO.pyExceptExpect(baseError);
    }
    PyRef answer = yumIO.pyMethodCall(yumIO.yumIO.get(), function, "O", given.get());
    if (baseError && yumIO.pyExceptMatches(answer.get(), baseError)) {
        yumIO.pythonExceptionV(failure);
    }
    yumIO.pyExceptClear();
    return answer;
}

std::optional<QStringList> Script::texts(char const* function, PyRef const& answer)
{
    bool const isList = answer && PyList_Check(answer.get());
    QStringList found;
    for (Py_ssize_t at = 0; isList && at < PyList_GET_SIZE(answer.get()); ++at) {
        PyObject* const text = PyList_GET_ITEM(answer.get(), at);
        if (!PyUnicode_Check(text)) {
            break;
        }
        found.append(yumIO.pyString(text));
    }
    if (!isList || found.size() != PyList_GET_SIZE(answer.get())) {
        misunderstood(function);
        return std::nullopt;
    }
    return found;
}

std::optional<QJsonValue> Script::plain(PyObject* object, int depth)
{
    if (object == Py_None) {
        return QJsonValue();
    }
    if (PyUnicode_Check(object)) {
        return QJsonValue(yumIO.pyString(object));
    }
    if (depth == deepest) {
        return std::nullopt;
    }
    if (PyList_Check(object) || PyTuple_Check(object)) {
        return plainList(object, depth + 1);
    }
    return PyDict_Check(object) ? plainTable(object, depth + 1) : plainNumber(object);
}

std::optional<QJsonValue> Script::plainNumber(PyObject* object)
{
    if (PyBool_Check(object)) {
        return QJsonValue(object == Py_True);
    }
    if (PyFloat_Check(object)) {
        return QJsonValue(PyFloat_AS_DOUBLE(object));
    }
    int overflow = 0;
    if (PyLong_Check(object)) {
        long long const number = PyLong_AsLongLongAndOverflow(object, &overflow);
        if (overflow == 0) {
            return QJsonValue(static_cast<qint64>(number));
        }
    }
    return std::nullopt;
}

std::optional<QJsonValue> Script::plainList(PyObject* object, int depth)
{
    QJsonArray items;
    for (Py_ssize_t at = 0; at < PySequence_Fast_GET_SIZE(object); ++at) {
        std::optional<QJsonValue> const item = plain(PySequence_Fast_GET_ITEM(object, at), depth);
        if (!item) {
            return std::nullopt;
        }
        items.append(*item);
    }
    return items;
}

std::optional<QJsonValue> Script::plainTable(PyObject* object, int depth)
{
    QJsonObject fields;
    PyObject* name = nullptr;
    PyObject* field = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(object, &position, &name, &field) != 0) {
        std::optional<QJsonValue> const value = PyUnicode_Check(name) ? plain(field, depth) : std::nullopt;
        if (!value) {
            return std::nullopt;
        }
        fields.insert(yumIO.pyString(name), *value);
    }
    return fields;
}
