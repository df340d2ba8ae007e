// SPDX-License-Identifier: GPL-2.0-or-later
#include "matters/ScriptReader.h"

#include "engine/YumIO.h"

#include <algorithm>

ScriptReader::ScriptReader(YumIO* engine, QObject* parent)
    : QObject(parent),
      yumIO(engine)
{
}

bool ScriptReader::has(char const* function) const
{
    return yumIO->script.has(function);
}

bool ScriptReader::read(
    char const* function, Script::Arguments const& arguments, QString const& failure, Types types,
    Take const& take)
{
    bool lasted = false;
    auto const work = [&] {
        auto const answer = yumIO->script.call(function, arguments, failure);
        if (answer && std::find(types.begin(), types.end(), answer->type()) == types.end()) {
            yumIO->script.misunderstood(function);
            return false;
        }
        if (answer) {
            take(*answer);
        }
        return answer.has_value();
    };
    auto const lasts = [&] {
        lasted = true;
        Q_EMIT busy(true);
    };
    bool const done = yumIO->jobs.runBriefly(work, lasts);
    if (lasted) {
        Q_EMIT busy(false);
    }
    return done;
}
