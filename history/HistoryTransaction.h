// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>

/// What the package library's history of transactions tells, as values of any thread. They are made of what
/// the helper script answers; what it doesn't tell is empty.
namespace History
{

enum class Result
{
    Done,
    Failed, ///< at least in part
    Running,
    CutOff ///< it has no end, and nobody works on it
};

enum class Action
{
    Install,
    Upgrade,
    Downgrade,
    Reinstall,
    Remove,
    Obsoleted,
    Reason,   ///< only why it is installed has changed
    Replaced, ///< gave way to a version that stands in another line
    Other
};

/// Why a package is installed.
enum class Reason
{
    User,
    Group,
    Dependency,
    Weak,
    Unneeded,
    External, ///< by another program
    Unknown
};

struct Transaction
{
    int number = 0;
    qint64 begun = 0; ///< seconds since 1970; 0 where nobody knows
    qint64 ended = 0; ///< likewise
    QString user, command, comment;
    Result result = Result::Done;
    std::map<Action, int> counts; ///< of packages
    int groups = 0;

    /// Of all packages and groups.
    [[nodiscard]] int count() const;
};

struct Package
{
    QString name, arch;
    QString oldVersion, newVersion; ///< empty where there is none
    Action action = Action::Other;
    Reason reason = Reason::Unknown;
    QString repository;
    bool failed = false;
};

struct Group
{
    QString id, name;
    Action action = Action::Other;
};

/// A transaction with all that is known of it.
struct Whole
{
    Transaction head;
    QList<Package> packages;
    QList<Group> groups;
    bool keepsOutput = false; ///< the library keeps what scriptlets write
    QStringList output, errors;
};

[[nodiscard]] Transaction transactionOf(QJsonObject const& told);
[[nodiscard]] Whole wholeOf(QJsonObject const& told);

/// The user's words for them.
class Words
{
    Q_DECLARE_TR_FUNCTIONS(History)

public:
    [[nodiscard]] static QString of(Result result);
    [[nodiscard]] static QString of(Action action);
    [[nodiscard]] static QString of(Reason reason);
    /// Such as "2 Installed, 1 Removed".
    [[nodiscard]] static QString counts(Transaction const& transaction);
};

} // namespace History
