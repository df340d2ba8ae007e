// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/Severity.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// What the repositories' metadata advises about installed packages, as values of any thread. They are made
/// of what the helper script answers; what it doesn't tell is empty.
namespace Advisories
{

enum class Kind
{
    Security,
    BugFix,
    Enhancement,
    NewPackage,
    Other
};

struct Advisory
{
    QString identifier;
    Kind kind = Kind::Other;
    Severity severity = Severity::Unknown;
    QString severityText; ///< as the repository words it
    QString title;
    qint64 issued = 0; ///< seconds since 1970; 0 where nobody knows
    int count = 0;     ///< of the versions of packages that it names
    QStringList cves;
    bool open = false; ///< it names a newer version of what is installed
};

struct Reference
{
    QString id, title, address;
};

struct Package
{
    QString name, arch;
    QString version;   ///< that which the advisory names
    QString installed; ///< the latest one that is; empty for none
    bool open = false;
};

/// An advisory with all that is known of it.
struct Whole
{
    Advisory head;
    QString text;
    QList<Reference> references;
    QList<Package> packages;
};

[[nodiscard]] Advisory advisoryOf(QJsonObject const& told);
[[nodiscard]] Whole wholeOf(QJsonObject const& told);

/// The user's words for them.
class Words
{
    Q_DECLARE_TR_FUNCTIONS(Advisories)

public:
    [[nodiscard]] static QString of(Kind kind);
    /// Those of the repository, where these are none of the usual ones.
    [[nodiscard]] static QString severity(Advisory const& advisory);
};

} // namespace Advisories
