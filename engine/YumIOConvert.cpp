// SPDX-License-Identifier: GPL-2.0-or-later
// Conversions: what the package library hands over changed its type from one release to the next, and the
// differences end here. Also the program's only formats of sizes and times, and the version tests.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <utility>

namespace
{

bool isText(PyObject* object)
{
    return PyUnicode_Check(object) || PyBytes_Check(object);
}

/// The digits at the start of `text` as strtoull reads them, with errno as it leaves it.
unsigned long long parseNumber(QString const& text)
{
    QByteArray const digits = text.toLatin1();
    errno = 0;
    return std::strtoull(digits.constData(), nullptr, 10);
}

/// An int as 64 bits. One out of range is cut to the nearest end, and leaves no exception behind.
long long integerOf(PyObject* object)
{
    int overflow = 0;
    long long const value = PyLong_AsLongLongAndOverflow(object, &overflow);
    if (overflow) {
        return overflow > 0 ? std::numeric_limits<long long>::max() : std::numeric_limits<long long>::min();
    }
    return value;
}

} // namespace

QString YumIO::pyString(PyObject* object)
{
    if (!object) {
        error("Internal error: pyString passed NULL python object\n");
        return QString();
    }
    if (PyUnicode_Check(object)) {
        Py_ssize_t length = 0;
        if (char const* const text = PyUnicode_AsUTF8AndSize(object, &length)) {
            return QString::fromUtf8(text, length);
        }
        // Lone surrogates stand for bytes that were no UTF-8; they become replacement characters.
        PyErr_Clear();
        PyRef const bytes = PyRef::steal(PyUnicode_AsEncodedString(object, "utf-8", "surrogateescape"));
        if (bytes) {
            return QString::fromUtf8(PyBytes_AS_STRING(bytes.get()), PyBytes_GET_SIZE(bytes.get()));
        }
        PyErr_Clear();
        PyRef const replaced = PyRef::steal(PyUnicode_AsEncodedString(object, "utf-8", "replace"));
        if (replaced) {
            return QString::fromUtf8(PyBytes_AS_STRING(replaced.get()), PyBytes_GET_SIZE(replaced.get()));
        }
        handleException();
        return QString();
    }
    if (PyBytes_Check(object)) {
        return QString::fromUtf8(PyBytes_AS_STRING(object), PyBytes_GET_SIZE(object));
    }
    if (object != Py_None) {
        warning("Internal error: YumIO::pyString did not understand type");
    }
    return QString();
}

QString YumIO::pyStringDec(PyRef object)
{
    return pyString(object.get());
}

QString YumIO::pyStringX(PyObject* object)
{
    if (object && isText(object)) {
        return pyString(object);
    }
    if (object && PyList_Check(object)) {
        if (PyList_GET_SIZE(object) != 0) {
            warning("Internal error: YumIO::pyStringX did not understand non-empty list");
        }
        return QString();
    }
    warning("Internal error: YumIO::pyStringX did not understand type");
    return QString();
}

QString YumIO::pyStringXDec(PyRef object)
{
    return pyStringX(object.get());
}

QString YumIO::pyMappingString(PyObject* map, char const* key)
{
    PyRef item = PyRef::steal(PyMapping_GetItemString(map, key));
    if (!item) {
        handleException();
        return QString();
    }
    return pyStringDec(std::move(item));
}

long long YumIO::pyTime(PyObject* object)
{
    if (object && PyLong_Check(object)) {
        return integerOf(object);
    }
    if (object && isText(object)) {
        QString const text = pyString(object);
        unsigned long long const time = parseNumber(text);
        if (errno) {
            warning(tr("Internal error: time not understood: %1").arg(text));
        }
        return static_cast<long long>(time);
    }
    warning("Internal error: time not understood");
    return 0;
}

long long YumIO::pyTimeDec(PyRef object)
{
    return pyTime(object.get());
}

PyObject* YumIO::pyDictGetItem(PyObject* dict, QString const& key)
{
    if (!dict || !PyDict_Check(dict)) {
        return nullptr;
    }
    return PyDict_GetItemString(dict, key.toUtf8().constData());
}

PyObject* YumIO::internedName(char const* name)
{
    PyRef& known = internedNames[name];
    if (!known) {
        known = PyRef::steal(PyUnicode_InternFromString(name));
    }
    return known.get();
}

PyRef YumIO::pyAttribute(PyObject* object, char const* name)
{
    PyRef value = PyRef::steal(object ? PyObject_GetAttr(object, internedName(name)) : nullptr);
    if (!value) {
        PyErr_Clear();
    }
    return value;
}

PyRef YumIO::pyQuickCall(PyObject* object, char const* method, char const* argument)
{
    if (!object || PyErr_Occurred()) {
        return {};
    }
    PyRef answer = PyRef::steal(
        argument ? PyObject_CallMethodOneArg(object, internedName(method), internedName(argument))
                 : PyObject_CallMethodNoArgs(object, internedName(method)));
    if (!answer) {
        PyErr_Clear();
    }
    return answer;
}

QString YumIO::simpleString(PyObject* pkg, char const* key)
{
    PyGILStateWrapper const lock(true);
    PyRef value = pyQuickCall(pkg, "returnSimple", key);
    if (!value) {
        pyExceptStart();
        pyExceptExpect(PyExc_KeyError);
        value = pyMethodCall(pkg, "returnSimple", "(s)", key);
        pyExceptClear();
    }
    if (!value || value.get() == Py_None) {
        return QString();
    }
    return trimmedField(pyStringXDec(std::move(value)));
}

QString YumIO::trimmedField(QString text)
{
    while (text.endsWith(QLatin1Char('\n'))) {
        text.chop(1);
    }
    return text;
}

unsigned long long YumIO::sizeOf(PyObject* pkg)
{
    auto const number = [this](PyObject* object, unsigned long long& size) {
        if (PyLong_Check(object)) {
            size = static_cast<unsigned long long>(integerOf(object));
            return true;
        }
        if (isText(object)) {
            QString const text = pyString(object);
            size = parseNumber(text);
            if (errno) {
                warning(tr("Internal error: package size not understood: %1").arg(text));
            }
            return true;
        }
        return false;
    };

    unsigned long long size = 0;
    PyRef const attribute = pyAttribute(pkg, "size");
    if (attribute && number(attribute.get(), size)) {
        return size;
    }
    if (attribute && PyCallable_Check(attribute.get())) {
        PyRef const result = pyMethodCall(pkg, "size", "()");
        if (!result || !number(result.get(), size)) {
            warning("Internal error: package size result not understood");
        }
        return size;
    }
    warning("Internal error: package size not understood");
    return 0;
}

long long YumIO::buildTimeOf(PyObject* pkg)
{
    PyRef time = pyQuickCall(pkg, "returnSimple", "buildtime");
    return pyTimeDec(time ? std::move(time) : pyMethodCall(pkg, "returnSimple", "(s)", "buildtime"));
}

QString YumIO::bytesFormat(unsigned long long bytes)
{
    struct Unit
    {
        unsigned int power; ///< the divisor is 2 to this power; the unit begins at 1000 of the one below
        char const* name;
    };
    static constexpr std::array<Unit, 6> units{
        {{60, QT_TR_NOOP("Eb")},
         {50, QT_TR_NOOP("Pb")},
         {40, QT_TR_NOOP("Tb")},
         {30, QT_TR_NOOP("Gb")},
         {20, QT_TR_NOOP("Mb")},
         {10, QT_TR_NOOP("Kb")}}};

    double value = static_cast<double>(bytes);
    char const* name = QT_TR_NOOP("b");
    for (Unit const& unit : units) {
        if (bytes >= 1000ULL << (unit.power - 10)) {
            value /= static_cast<double>(1ULL << unit.power);
            name = unit.name;
            break;
        }
    }
    bool const oneDecimal = value > 0.0 && value < 9.95;
    // As printf rounds in the C locale, halves to the even digit; QString rounds them up.
    std::array<char, 32> digits{};
    char const* const end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, oneDecimal ? 1 : 0).ptr;
    return QString::fromLatin1(digits.data(), end - digits.data()) + tr(name);
}

QString YumIO::timeFormat(long long time)
{
    // As ctime(3) writes it, in the digits of the C locale; its own way through printf takes three times as
    // long, and a collection asks tens of thousands of times.
    static constexpr std::array<char const*, 7> days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static constexpr std::array<char const*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::time_t const seconds = static_cast<std::time_t>(time);
    std::tm parts{};
    if (!localtime_r(&seconds, &parts)) {
        return QString();
    }
    long const year = parts.tm_year + 1900L;
    if (year < 1000 || year > 9999) {
        // ctime_r needs 26 bytes for years of four digits; longer years take more.
        std::array<char, 128> buffer{};
        if (!ctime_r(&seconds, buffer.data())) {
            return QString();
        }
        QString text = QString::fromLatin1(buffer.data());
        text.chop(1);
        return text;
    }

    // "Thu Jan  1 00:00:00 1970"
    std::array<char, 24> text{};
    text.fill(' ');
    auto const put = [&text](std::size_t at, std::size_t digits, long number) {
        for (std::size_t place = at + digits; place-- > at; number /= 10) {
            text.at(place) = static_cast<char>('0' + number % 10);
        }
    };
    std::copy_n(days.at(std::size_t(parts.tm_wday)), 3, text.begin());
    std::copy_n(months.at(std::size_t(parts.tm_mon)), 3, text.begin() + 4);
    put(8, 2, parts.tm_mday);
    if (parts.tm_mday < 10) {
        text.at(8) = ' ';
    }
    put(11, 2, parts.tm_hour);
    put(14, 2, parts.tm_min);
    put(17, 2, parts.tm_sec);
    text.at(13) = text.at(16) = ':';
    put(20, 4, year);
    return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

QString YumIO::dateFormat(long long time)
{
    // "Thu Jan  1 00:00:00 1970" without the nine characters of the time.
    return timeFormat(time).remove(11, 9);
}

QString YumIO::yumVersionStr()
{
    if (!yumVersionKnown) {
        PyGILStateWrapper const lock(true);
        yumVersionKnown = true;
        PyObject* version = pyValue("yum", "__version__");
        if (!version) {
            version = pyValue("cli", "__version__");
        }
        if (version) {
            yumVersionText = pyString(version);
        }
    }
    return yumVersionText;
}

long YumIO::yumVersion()
{
    QString const version = yumVersionStr();
    QStringList const parts = version.split(QLatin1Char('.'));
    static constexpr std::array<unsigned long, 3> multipliers{10000, 100, 1};
    // Unsigned, so that an absurd part does no harm.
    unsigned long number = 0;
    bool understood = true;
    for (qsizetype at = 0; at < parts.size() && at < qsizetype(multipliers.size()); ++at) {
        number += static_cast<unsigned long>(parseNumber(parts.at(at))) * multipliers.at(std::size_t(at));
        understood = understood && !errno;
    }
    if (!understood) {
        warning(tr("Internal error: yum version not understood: %1").arg(version));
    }
    return static_cast<long>(number);
}

bool YumIO::hasDistribGroups()
{
    return yumVersion() >= 20500;
}

bool YumIO::hasTransTest()
{
    return yumVersion() < 30203;
}

bool YumIO::hasPickledCache()
{
    return yumVersion() < 20902;
}

bool YumIO::usesSqlite()
{
    if (!sqliteKnown) {
        // May be asked in the middle of a guarded call, whose report is to keep its log lines.
        qsizetype const mark = logMark;
        pyExceptStart();
        PyRef const answer = pyCall("usesSqlite", "()");
        pyExceptClear();
        logMark = mark;
        sqlite = answer.get() == Py_True;
        sqliteKnown = true;
    }
    return sqlite;
}

bool YumIO::usesPresto()
{
    if (!prestoKnown) {
        qsizetype const mark = logMark;
        pyExceptStart();
        PyRef const answer = pyMethodCall(yumIO.get(), "usesPresto", "()");
        pyExceptClear();
        logMark = mark;
        presto = answer.get() == Py_True;
        prestoKnown = true;
    }
    return presto;
}
