// SPDX-License-Identifier: GPL-2.0-or-later
#include "advisories/AdvisoriesReader.h"

#include "engine/YumIO.h"

#include <QJsonArray>

namespace Advisories
{

namespace
{

constexpr char const* listFunction = "advisoryList";
constexpr char const* wholeFunction = "advisoryOf";

} // namespace

bool Reader::offered(YumIO const& yumIO)
{
    return yumIO.script.has(listFunction) && yumIO.script.has(wholeFunction);
}

QString Reader::failure()
{
    return tr("Unable to read the advisories");
}

std::optional<Reader::List> Reader::all()
{
    List found;
    Types const types = {QJsonValue::Array, QJsonValue::Null};
    bool const told = read(listFunction, {}, failure(), types, [&](QJsonValue const& answer) {
        found.known = answer.isArray();
        for (QJsonValue const advisory : answer.toArray()) {
            found.advisories.append(advisoryOf(advisory.toObject()));
        }
    });
    return told ? std::optional(found) : std::nullopt;
}

std::optional<Whole> Reader::whole(QString const& identifier)
{
    Whole found;
    bool const told =
        read(wholeFunction, {identifier}, failure(), {QJsonValue::Object}, [&](QJsonValue const& answer) {
            found = wholeOf(answer.toObject());
        });
    return told ? std::optional(found) : std::nullopt;
}

} // namespace Advisories
