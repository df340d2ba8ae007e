// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/HistoryTransaction.h"

#include <QJsonArray>
#include <numeric>

namespace History
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
constexpr Word<Result> resultWords[] = {
    {QLatin1String("done"), Result::Done},
    {QLatin1String("failed"), Result::Failed},
    {QLatin1String("running"), Result::Running},
    {QLatin1String("cut off"), Result::CutOff}};
constexpr Word<Action> actionWords[] = {
    {QLatin1String("install"), Action::Install},     {QLatin1String("upgrade"), Action::Upgrade},
    {QLatin1String("downgrade"), Action::Downgrade}, {QLatin1String("reinstall"), Action::Reinstall},
    {QLatin1String("remove"), Action::Remove},       {QLatin1String("obsoleted"), Action::Obsoleted},
    {QLatin1String("reason"), Action::Reason},       {QLatin1String("replaced"), Action::Replaced}};
constexpr Word<Reason> reasonWords[] = {
    {QLatin1String("user"), Reason::User},
    {QLatin1String("group"), Reason::Group},
    {QLatin1String("dependency"), Reason::Dependency},
    {QLatin1String("weak"), Reason::Weak},
    {QLatin1String("clean"), Reason::Unneeded},
    {QLatin1String("external"), Reason::External}};

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

Action actionOf(QJsonObject const& told)
{
    return valueOf(actionWords, textAt(told, "action"), Action::Other);
}

QStringList linesOf(QJsonValue const& told)
{
    QStringList lines;
    for (QJsonValue const line : told.toArray()) {
        lines.append(line.toString());
    }
    return lines;
}

Package packageOf(QJsonObject const& told)
{
    Package package;
    package.name = textAt(told, "name");
    package.arch = textAt(told, "arch");
    package.oldVersion = textAt(told, "old");
    package.newVersion = textAt(told, "new");
    package.action = actionOf(told);
    package.reason = valueOf(reasonWords, textAt(told, "reason"), Reason::Unknown);
    package.repository = textAt(told, "repository");
    package.failed = textAt(told, "state") == QLatin1String("failed");
    return package;
}

} // namespace

int Transaction::count() const
{
    return std::accumulate(counts.begin(), counts.end(), groups, [](int sum, auto const& counted) {
        return sum + counted.second;
    });
}

Transaction transactionOf(QJsonObject const& told)
{
    Transaction transaction;
    transaction.number = told.value(QLatin1String("number")).toInt();
    transaction.begun = told.value(QLatin1String("begun")).toInteger();
    transaction.ended = told.value(QLatin1String("ended")).toInteger();
    transaction.user = textAt(told, "userName");
    transaction.command = textAt(told, "command");
    transaction.comment = textAt(told, "comment");
    transaction.result = valueOf(resultWords, textAt(told, "result"), Result::CutOff);
    QJsonObject const counts = told.value(QLatin1String("counts")).toObject();
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        if (count.key() == QLatin1String("groups")) {
            transaction.groups = count.value().toInt();
        } else {
            transaction.counts[valueOf(actionWords, count.key(), Action::Other)] += count.value().toInt();
        }
    }
    return transaction;
}

Whole wholeOf(QJsonObject const& told)
{
    Whole whole;
    whole.head = transactionOf(told);
    for (QJsonValue const package : told.value(QLatin1String("packages")).toArray()) {
        whole.packages.append(packageOf(package.toObject()));
    }
    for (QJsonValue const group : told.value(QLatin1String("groups")).toArray()) {
        QJsonObject const of = group.toObject();
        whole.groups.append({textAt(of, "id"), textAt(of, "name"), actionOf(of)});
    }
    QJsonValue const output = told.value(QLatin1String("output"));
    whole.keepsOutput = output.isArray();
    whole.output = linesOf(output);
    whole.errors = linesOf(told.value(QLatin1String("errors")));
    return whole;
}

QString Words::of(Result result)
{
    switch (result) {
    case Result::Done:
        return tr("Done");
    case Result::Failed:
        return tr("Failed");
    case Result::Running:
        return tr("Running");
    case Result::CutOff:
        return tr("Cut off");
    }
    return {};
}

QString Words::of(Action action)
{
    switch (action) {
    case Action::Install:
        return tr("Installed");
    case Action::Upgrade:
        return tr("Updated");
    case Action::Downgrade:
        return tr("Downgraded");
    case Action::Reinstall:
        return tr("Reinstalled");
    case Action::Remove:
        return tr("Removed");
    case Action::Obsoleted:
        return tr("Obsoleted");
    case Action::Reason:
        return tr("Reason changed");
    case Action::Replaced:
        return tr("Replaced");
    case Action::Other:
        return tr("Changed");
    }
    return {};
}

QString Words::of(Reason reason)
{
    switch (reason) {
    case Reason::User:
        return tr("user");
    case Reason::Group:
        return tr("group");
    case Reason::Dependency:
        return tr("dependency");
    case Reason::Weak:
        return tr("weak dependency");
    case Reason::Unneeded:
        return tr("no longer needed");
    case Reason::External:
        return tr("another program");
    case Reason::Unknown:
        return {};
    }
    return {};
}

QString Words::counts(Transaction const& transaction)
{
    QStringList parts;
    for (auto const& [action, count] : transaction.counts) {
        parts.append(QStringLiteral("%1: %2").arg(of(action)).arg(count));
    }
    if (transaction.groups > 0) {
        parts.append(tr("Groups: %1").arg(transaction.groups));
    }
    return parts.join(QLatin1String(", "));
}

} // namespace History
