// SPDX-License-Identifier: GPL-2.0-or-later
#include "advisories/Advisory.h"

#include <QJsonArray>

namespace Advisories
{

namespace
{

template <typename Value>
struct Word
{
    QLatin1String text;
    Value value;
};

// The script's words.
constexpr Word<Kind> kindWords[] = {
    {QLatin1String("security"), Kind::Security},
    {QLatin1String("bugfix"), Kind::BugFix},
    {QLatin1String("enhancement"), Kind::Enhancement},
    {QLatin1String("newpackage"), Kind::NewPackage}};
// Those of the repositories, in small letters.
constexpr Word<Severity> severityWords[] = {
    {QLatin1String("critical"), Severity::Critical},
    {QLatin1String("important"), Severity::Important},
    {QLatin1String("moderate"), Severity::Moderate},
    {QLatin1String("low"), Severity::Low}};

template <typename Value, std::size_t size>
Value valueOf(Word<Value> const (&words)[size], QString const& text, Value unknown)
{
    for (Word<Value> const& word : words) {
        if (text == word.text) {
            return word.value;
        }
    }
    return unknown;
}

QString textAt(QJsonObject const& told, char const* key)
{
    return told.value(QLatin1String(key)).toString();
}

} // namespace

Advisory advisoryOf(QJsonObject const& told)
{
    Advisory advisory;
    advisory.identifier = textAt(told, "identifier");
    advisory.kind = valueOf(kindWords, textAt(told, "type"), Kind::Other);
    advisory.severityText = textAt(told, "severity");
    advisory.severity = valueOf(severityWords, advisory.severityText.toLower(), Severity::Unknown);
    advisory.title = textAt(told, "title");
    advisory.issued = told.value(QLatin1String("issued")).toInteger();
    advisory.count = told.value(QLatin1String("count")).toInt();
    for (QJsonValue const cve : told.value(QLatin1String("cves")).toArray()) {
        advisory.cves.append(cve.toString());
    }
    advisory.open = told.value(QLatin1String("open")).toBool();
    return advisory;
}

Whole wholeOf(QJsonObject const& told)
{
    Whole whole;
    whole.head = advisoryOf(told);
    whole.text = textAt(told, "text");
    for (QJsonValue const value : told.value(QLatin1String("references")).toArray()) {
        QJsonObject const reference = value.toObject();
        whole.references.append(
            {textAt(reference, "id"), textAt(reference, "title"), textAt(reference, "address")});
    }
    for (QJsonValue const value : told.value(QLatin1String("packages")).toArray()) {
        QJsonObject const package = value.toObject();
        whole.packages.append(
            {textAt(package, "name"), textAt(package, "arch"), textAt(package, "version"),
             textAt(package, "installed"), package.value(QLatin1String("open")).toBool()});
    }
    return whole;
}

QString Words::of(Kind kind)
{
    switch (kind) {
    case Kind::Security:
        return tr("Security");
    case Kind::BugFix:
        return tr("Bug fix");
    case Kind::Enhancement:
        return tr("Enhancement");
    case Kind::NewPackage:
        return tr("New package");
    case Kind::Other:
        return tr("Other");
    }
    return {};
}

QString Words::severity(Advisory const& advisory)
{
    switch (advisory.severity) {
    case Severity::Critical:
        return tr("Critical");
    case Severity::Important:
        return tr("Important");
    case Severity::Moderate:
        return tr("Moderate");
    case Severity::Low:
        return tr("Low");
    case Severity::Unknown:
        return advisory.severityText;
    }
    return {};
}

} // namespace Advisories
