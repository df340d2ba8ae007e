// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"
#include "engine/Package.h"

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <concepts>
#include <optional>
#include <variant>

class YumIO;

/// Calls the optional functions of the helper script: those that a script for older releases may lack. What
/// goes wrong is reported here, so that a caller only has to go on without an answer. The engine owns the one
/// object. Any thread; what may take long belongs into a job (`Jobs::run`).
class Script final
{
public:
    /// What a function is given: a value, or the script's own object of a package.
    class Argument
    {
    public:
        template <std::convertible_to<QJsonValue> Value>
        Argument(Value const& plain)
            : value(QJsonValue(plain))
        {
        }
        Argument(Package::Entry const& entry)
            : value(entry.pyObject.get())
        {
        }
        /// Borrowed; has to live for as long as the call.
        static Argument object(PyRef const& ref);

    private:
        friend class Script;
        Argument() = default;
        [[nodiscard]] PyRef made() const;

        std::variant<QJsonValue, PyObject*> value;
    };
    using Arguments = QList<Argument>;

    explicit Script(YumIO& engine);

    /// Whether the script's object has this function.
    [[nodiscard]] bool has(char const* function) const;

    /// Calls a function of the script's object that answers plain values: None, bool, int, float, str, and
    /// lists, tuples and dictionaries (by str) of these. Nothing after a report: `failure` heads that of an
    /// exception of the package library, which a script may raise; where it is empty, none is expected.
    /// Undefined, without a report, where the script lacks the function.
    [[nodiscard]] std::optional<QJsonValue> call(
        char const* function, Arguments const& arguments, QString const& failure);
    /// Reports that what the function has answered makes no sense.
    void misunderstood(char const* function);

    /// Calls a function that stands beside the class and answers a text. Null for None, after a report, and
    /// where the script lacks it.
    [[nodiscard]] QString told(char const* function);

    /// For the engine's own: as `call`, with the answer as it is. Empty after a report, and where the script
    /// lacks the function. With the interpreter lock.
    [[nodiscard]] PyRef object(char const* function, Arguments const& arguments, QString const& failure);
    /// What a function has answered as a list of str. Nothing after a report. With the interpreter lock.
    [[nodiscard]] std::optional<QStringList> texts(char const* function, PyRef const& answer);

private:
    [[nodiscard]] std::optional<QJsonValue> plain(PyObject* object, int depth);
    [[nodiscard]] std::optional<QJsonValue> plainNumber(PyObject* object);
    [[nodiscard]] std::optional<QJsonValue> plainList(PyObject* object, int depth);
    [[nodiscard]] std::optional<QJsonValue> plainTable(PyObject* object, int depth);

    YumIO& yumIO;
};
