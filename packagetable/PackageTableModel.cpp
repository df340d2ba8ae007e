// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableModel.h"

#include "base/Share.h"
#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableDescribeDialog.h"
#include "packagetable/PackageTableRowWalk.h"
#include "repo/RepoBrowse.h"
#include "widgets/Colors.h"

#include <algorithm>
#include <array>

namespace PackageTable
{

namespace
{

struct ColumnHeader
{
    char const* title;
    char const* toolTip;
};

constexpr std::array<ColumnHeader, ColumnCount> columnHeaders{{
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Action"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model", "Action to be performed on the package, if any: Update, Install, Remove")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "State"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model", "Indicates whether the package is Installed or not and, if installed, "
                                "whether it is Up-to-date or not")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Kind"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model",
         "Whether the package is an ordinary package, a suite of packages, or a group of packages")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Name"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Name of the package")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Version"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model", "Version and release of the package as version-release;\n"
                                "If the Epoch is non-zero, includes it as epoch:version-release")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Repository"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model", "Repository from which the most recent version of the package is available")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Architecture"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model",
         "Architecture for which the package is applicable, or \"noarch\" for general-purpose packages")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Size"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Size of the package")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Build Time"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Date and time at which the package was created")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Summary"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "What the package is, in one line")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Installed Version"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Version and release that is installed, if any")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Installed Size"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "What the package takes on the disk")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Group"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Kind of software, as the package states it")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Licence"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Terms under which the package may be used and passed on")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Vendor"),
     QT_TRANSLATE_NOOP("PackageTable::Model", "Who has published the package")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Reason"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model",
         "Why the package is installed: asked for by the user, by a group, or as a dependency")},
    {QT_TRANSLATE_NOOP("PackageTable::Model", "Advisory"),
     QT_TRANSLATE_NOOP(
         "PackageTable::Model", "Advisories that the update carries out, and how grave the gravest one is")},
}};

Package::Action nextAction(Package::State state, Package::Action present)
{
    switch (state) {
    case Package::OutOfDate:
        if (present == Package::None) {
            return Package::Update;
        }
        return present == Package::Update ? Package::Remove : Package::None;
    case Package::Available:
        return present == Package::None ? Package::Install : Package::None;
    case Package::UpToDate:
        return present == Package::None ? Package::Remove : Package::None;
    }
    return Package::None;
}

} // namespace

Model::Model(YumIO* engine, QObject* parent)
    : HAbstractTableModel(parent),
      yumIO(engine),
      outOfDateIcon(Share::icon(QStringLiteral("icons/out-of-date.png"))),
      upToDateIcon(Share::icon(QStringLiteral("icons/up-to-date.png"))),
      doubledIcon(Share::icon(QStringLiteral("icons/doubled.png"))),
      noneBoxIcon(Share::icon(QStringLiteral("icons/noneBox.png"))),
      updateBoxIcon(Share::icon(QStringLiteral("icons/updateBox.png"))),
      installBoxIcon(Share::icon(QStringLiteral("icons/installBox.png"))),
      removeBoxIcon(Share::icon(QStringLiteral("icons/removeBox.png"))),
      suiteIcon(Share::icon(QStringLiteral("icons/suite.png"))),
      groupIcon(Share::icon(QStringLiteral("icons/group.png"))),
      packageIcon(Share::icon(QStringLiteral("icons/package.png")))
{
    setPalette(QPalette());
}

void Model::setYumConfIO(YumConfIO* configuration)
{
    yumConfIO = configuration;
}

QModelIndex Model::index(int row, int column, QModelIndex const&) const
{
    bool const exists = row >= 0 && row < yumIO->count() && column >= 0 && column < ColumnCount;
    return exists ? createIndex(row, column) : QModelIndex();
}

int Model::rowCount(QModelIndex const&) const
{
    return yumIO->count();
}

int Model::columnCount(QModelIndex const&) const
{
    return ColumnCount;
}

Package::Entry* Model::entryAt(QModelIndex const& index) const
{
    if (!index.isValid() || index.row() >= yumIO->count()) {
        return nullptr;
    }
    return (*yumIO)[index.row()];
}

QVariant Model::data(QModelIndex const& index, int role) const
{
    int const column = index.column();
    Package::Entry* const entry = entryAt(index);
    if (!entry || column >= ColumnCount) {
        return {};
    }

    switch (role) {
    case Qt::DisplayRole:
        return column < NameColumn ? QVariant()
                                   : QVariant(columnText(*yumIO, index.row(), column).toString());
    case Qt::DecorationRole:
        return decoration(index.row(), *entry, column);
    case Qt::ToolTipRole:
        return toolTip(index.row(), *entry, column);
    case Qt::ForegroundRole:
        return column < KindColumn ? QVariant() : foreground(*entry);
    case Qt::UserRole:
        return rawValue(entry, index.row(), column);
    default:
        return {};
    }
}

QVariant Model::decoration(int row, Package::Entry const& entry, int column) const
{
    switch (column) {
    case ActionColumn:
        switch (entry.action) {
        case Package::Update:
            return updateBoxIcon;
        case Package::Install:
            return installBoxIcon;
        case Package::Remove:
            return removeBoxIcon;
        case Package::None:
            return noneBoxIcon;
        }
        break;
    case StateColumn:
        if (!installedVersions(entry).isEmpty()) {
            return doubledIcon;
        }
        switch (entry.state) {
        case Package::OutOfDate:
            return outOfDateIcon;
        case Package::UpToDate:
            return upToDateIcon;
        case Package::Available:
            break;
        }
        break;
    case KindColumn:
        switch (entry.kind) {
        case Package::Suite:
            return suiteIcon;
        case Package::Group:
            return groupIcon;
        case Package::Ordinary:
            return packageIcon;
        }
        break;
    case AdvisoryColumn:
        return severitySign(row);
    default:
        break;
    }
    return {};
}

// 0 is nothing about security, 1 something whose severity nobody knows.
QIcon Model::severitySign(int row) const
{
    constexpr auto most = 1 + static_cast<long long>(Severity::Critical);
    long long const gravity = yumIO->details(Package::Detail::Advisory).number(row);
    return gravity > 0 ? severitySigns.of(static_cast<Severity>(std::min(gravity, most) - 1)) : QIcon();
}

QString Model::installedVersions(Package::Entry const& entry) const
{
    QHash<QString, QString> const& versions = yumIO->unfinished().versions;
    return versions.isEmpty() || entry.kind == Package::Group ? QString() : versions.value(entry.name);
}

QString Model::stateToolTip(Package::Entry const& entry)
{
    switch (entry.state) {
    case Package::OutOfDate:
        if (entry.replacesOthers()) {
            return tr("Package is available to replace %1").arg(entry.replaces);
        }
        return tr("Package is available to update an out-of-date version");
    case Package::Available:
        return tr("Package is available for installation");
    case Package::UpToDate:
        return tr("Package is installed and up-to-date");
    }
    return {};
}

QVariant Model::toolTip(int row, Package::Entry const& entry, int column) const
{
    switch (column) {
    case ActionColumn:
        switch (entry.action) {
        case Package::Update:
            return tr("Update package");
        case Package::Install:
            return tr("Install package");
        case Package::Remove:
            return tr("Remove package");
        case Package::None:
            break;
        }
        break;
    case StateColumn: {
        QString const versions = installedVersions(entry);
        QString const state = stateToolTip(entry);
        return versions.isEmpty() ? state
                                  : state + tr("\nInstalled in more than one version: %1").arg(versions);
    }
    case KindColumn:
        switch (entry.kind) {
        case Package::Suite:
            return tr("Suite of packages");
        case Package::Group:
            return tr("Group of packages");
        case Package::Ordinary:
            return tr("Ordinary package");
        }
        break;
    case VersionColumn:
        if (entry.state == Package::OutOfDate) {
            QString versions;
            for (Package::Entry const* link = &entry; link; link = link->installed) {
                if (link->state == Package::OutOfDate || link->state == Package::Available) {
                    versions += tr("Available: %1\n").arg(link->verRel);
                } else if (link->state == Package::UpToDate) {
                    versions += tr("Installed: %1\n").arg(link->verRel);
                }
            }
            if (entry.replacesOthers()) {
                versions += tr("Replaces: %1\n").arg(entry.replaces);
            }
            return versions;
        }
        break;
    case AdvisoryColumn:
        return yumIO->details(Package::Detail::Advisory).tip(row).toString();
    default:
        break;
    }
    return {};
}

QVariant Model::foreground(Package::Entry const& entry) const
{
    StateColors const* colors = &upToDateColors;
    if (entry.state == Package::OutOfDate) {
        colors = &outOfDateColors;
    } else if (entry.state == Package::Available) {
        colors = &availableColors;
    }
    QColor const& color = enabled ? colors->enabled : colors->disabled;
    // The delegate would draw an invalid colour as black, also on a dark or disabled table; with no
    // value at all it takes the palette's text colour.
    return color.isValid() ? QVariant(color) : QVariant();
}

QVariant Model::rawValue(Package::Entry* entry, int row, int column) const
{
    switch (column) {
    case ActionColumn:
    case StateColumn:
    case KindColumn:
        return columnNumber(*entry, column);
    case InstalledSizeColumn:
    case AdvisoryColumn:
        return yumIO->details(*columnDetail(column)).number(row);
    case SizeColumn:
        return entry->size;
    case BuildTimeColumn:
        return entry->buildTime;
    default:
        return QVariant::fromValue(entry);
    }
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    ColumnHeader const& header = columnHeaders[static_cast<size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return tr(header.title);
    case Qt::ToolTipRole:
        return tr(header.toolTip);
    default:
        return {};
    }
}

Package::State Model::getState(int row) const
{
    return row >= 0 && row < yumIO->count() ? (*yumIO)[row]->state : Package::UpToDate;
}

Package::Text const& Model::text(int row, int column) const
{
    static Package::Text const none;
    return row >= 0 && row < yumIO->count() ? columnText(*yumIO, row, column) : none;
}

int Model::picture(int row, int column) const
{
    return row >= 0 && row < yumIO->count() ? columnNumber(*(*yumIO)[row], column) : 0;
}

void Model::setAction(QModelIndex const& index, Package::Action action)
{
    Package::Entry* const entry = entryAt(index);
    if (entry && index.column() < ColumnCount) {
        entry->action = action;
    }
}

void Model::toggleAction(QModelIndex const& index)
{
    if (Package::Entry* const entry = entryAt(index)) {
        mark(index.row(), *entry, nextAction(entry->state, entry->action));
    }
}

void Model::mark(int row, Package::Entry& entry, Package::Action action)
{
    entry.action = action;
    QModelIndex const changed = createIndex(row, ActionColumn);
    Q_EMIT dataChanged(changed, changed);
}

void Model::reset()
{
    forceSortColumnRediscovery();
}

void Model::describe(QModelIndex const& index, QWidget* parent)
{
    Package::Entry const* const entry = entryAt(index);
    if (!entry) {
        return;
    }
    if (!describeDialog) {
        describeDialog = new Describe::Dialog(parent);
    }
    if (!yumIO->buildHostAtHand(*entry)) {
        bool const wasVisible = parent->isVisible();
        Q_EMIT busy(true);
        yumIO->collectBuildHost(*entry);
        Q_EMIT busy(false);
        if (wasVisible && !parent->isVisible()) {
            // Closed meanwhile, and with it the program.
            return;
        }
    }
    describeDialog->config(yumIO, *entry, yumConfIO);
    describeDialog->exec();
}

void Model::showColumn(int column, bool shown)
{
    if (column == AdvisoryColumn) {
        showsAdvisories = shown;
        want(Package::Detail::Advisory, showsAdvisories || usesAdvisories);
    } else if (std::optional<Package::Detail> const detail = columnDetail(column)) {
        want(*detail, shown);
    }
}

void Model::useAdvisories(bool used)
{
    usesAdvisories = used;
    want(Package::Detail::Advisory, showsAdvisories || usesAdvisories);
}

void Model::want(Package::Detail detail, bool wanted)
{
    Package::RowDetails const& those = yumIO->details(detail);
    bool const takesTime = wanted && (those.hasFailed() || !those.isFor(yumIO->count()));
    if (takesTime) {
        Q_EMIT busy(true);
    }
    yumIO->wantDetails(detail, wanted);
    if (takesTime) {
        Q_EMIT busy(false);
    }
}

void Model::browse(QModelIndex const& index, QWidget* parent)
{
    Package::Entry const* const entry = entryAt(index);
    if (entry && yumConfIO) {
        RepoBrowse::browse(parent, entry->repo, yumIO, yumConfIO);
    }
}

void Model::setEnabled(bool enable)
{
    enabled = enable;
}

void Model::setPalette(QPalette const& palette)
{
    outOfDateColors = {
        Colors::onBase(Colors::error(), palette), Colors::onDisabledBase(Colors::errorDisabled(), palette)};
    availableColors = {
        Colors::onBase(Colors::minor(), palette), Colors::onDisabledBase(Colors::minorDisabled(), palette)};
}

void Model::setSigns(QWidget const* table)
{
    severitySigns.take(table);
}

void Model::setSelected(QList<QModelIndex> const& rows)
{
    markAll(rows, Package::Install);
}

void Model::markAll(QList<QModelIndex> const& rows, Package::Action wanted)
{
    constexpr auto ahead = static_cast<qsizetype>(entriesAhead);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i + ahead < rows.size()) {
            __builtin_prefetch(entryAt(rows[i + ahead]));
        }
        Package::Entry* const entry = entryAt(rows[i]);
        std::optional<Package::Action> const action = entry ? fitting(*entry, wanted) : std::nullopt;
        if (action) {
            mark(rows[i].row(), *entry, *action);
        }
    }
}

bool Model::wouldMark(QModelIndex const& index, Package::Action wanted) const
{
    Package::Entry const* const entry = entryAt(index);
    return entry && fitting(*entry, wanted);
}

std::optional<Package::Action> Model::fitting(Package::Entry const& entry, Package::Action wanted)
{
    switch (wanted) {
    case Package::Install:
    case Package::Update:
        if (entry.state == Package::OutOfDate) {
            return Package::Update;
        }
        if (entry.state == Package::Available) {
            return Package::Install;
        }
        break;
    case Package::Remove:
        if (entry.state != Package::Available) {
            return Package::Remove;
        }
        break;
    case Package::None:
        if (entry.action != Package::None) {
            return Package::None;
        }
        break;
    }
    return std::nullopt;
}

void Model::setUpdateAll()
{
    walkMarks(*yumIO, [this](int row, Package::Entry& entry) {
        if (entry.state == Package::OutOfDate) {
            mark(row, entry, Package::Update);
        }
    });
}

bool Model::setUpdateSecurity()
{
    bool const used = usesAdvisories;
    useAdvisories(true);
    Package::RowDetails const& advisories = yumIO->details(Package::Detail::Advisory);
    walkMarks(*yumIO, [&](int row, Package::Entry& entry) {
        if (entry.state == Package::OutOfDate && advisories.number(row) > 0) {
            mark(row, entry, Package::Update);
        }
    });
    useAdvisories(used);
    return advisories.isKnown();
}

void Model::clearActions()
{
    walkMarks(*yumIO, [this](int row, Package::Entry& entry) {
        if (entry.action != Package::None) {
            mark(row, entry, Package::None);
        }
    });
}

} // namespace PackageTable
