// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Script.h"

#include <QJsonValue>
#include <QObject>
#include <QString>
#include <functional>
#include <initializer_list>

class YumIO;

/// Reads what optional functions of the helper script answer, by short jobs of the engine. Owned by its
/// QObject parent, GUI thread.
class ScriptReader : public QObject
{
    Q_OBJECT

public:
    /// The engine isn't owned, and outlives this.
    ScriptReader(YumIO* yumIO, QObject* parent);

    /// Whether the script has this function. Not during a job: the interpreter may be held for long then.
    [[nodiscard]] bool has(char const* function) const;

Q_SIGNALS:
    /// A reading takes long enough to be noticed, and is over.
    void busy(bool begins);

protected:
    using Take = std::function<void(QJsonValue const&)>;
    using Types = std::initializer_list<QJsonValue::Type>;

    /// Calls the function; `take` gets what it has answered, of one of these types, on the worker. False
    /// after a report, which `failure` heads, and where another job is in progress.
    [[nodiscard]] bool read(
        char const* function, Script::Arguments const& arguments, QString const& failure, Types types,
        Take const& take);

private:
    YumIO* yumIO;
};
