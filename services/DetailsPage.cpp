// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/DetailsPage.h"

#include "services/DetailsModel.h"
#include "services/WrappedText.h"
#include "widgets/Fonts.h"
#include "widgets/ListTable.h"
#include "widgets/SignLabel.h"
#include "widgets/Sizing.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace
{

constexpr qsizetype namesInWarning = 8;
constexpr int fewestRows = 4;
constexpr int mostRows = 9;
constexpr int widestColumn = 44;  ///< characters; the tool tip has all of a longer text
constexpr int linesOfChanges = 5; ///< at least

} // namespace

DetailsPage::DetailsPage(TransactionDetails const& transaction, QWidget* parent)
    : QWidget(parent),
      model(new DetailsModel(transaction.rows, font(), this)),
      proxy(new DetailsProxy(model, this))
{
    auto* const layout = new QVBoxLayout(this);
    if (QString const text = warningsOf(transaction.rows); !text.isEmpty()) {
        layout->addLayout(warningLine(text));
    }
    auto* const sums = new QLabel(this);
    sums->setTextFormat(Qt::PlainText);
    sums->setWordWrap(true);
    sums->setTextInteractionFlags(Qt::TextSelectableByMouse);
    sums->setText(totals(transaction));
    sums->setAccessibleDescription(tr("Totals"));
    layout->addWidget(sums);

    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    buildTable();
    parts->addWidget(table);
    bool const updates =
        std::any_of(transaction.rows.begin(), transaction.rows.end(), [](TransactionDetails::Row const& row) {
            return row.action == TransactionDetails::Action::Update;
        });
    if (transaction.changes && updates) {
        buildChanges();
        auto* const below = new QWidget(parts);
        auto* const rows = new QVBoxLayout(below);
        rows->setContentsMargins(0, 0, 0, 0);
        auto* const line = new QHBoxLayout;
        line->addWidget(load);
        line->addStretch();
        rows->addLayout(line);
        rows->addWidget(changesEdit);
        parts->addWidget(below);
        parts->setStretchFactor(0, 3);
        parts->setStretchFactor(1, 1);
    }
    layout->addWidget(parts, 1);
}

QString DetailsPage::warningsOf(QList<TransactionDetails::Row> const& rows)
{
    // The gravest first.
    constexpr TransactionDetails::Warning order[] = {
        TransactionDetails::Protected, TransactionDetails::Running, TransactionDetails::Unmarked,
        TransactionDetails::Older, TransactionDetails::Unchecked};
    QStringList lines;
    for (TransactionDetails::Warning const warning : order) {
        QStringList names;
        for (TransactionDetails::Row const& row : rows) {
            if (row.warnings & warning) {
                names.append(row.name);
            }
        }
        names.removeDuplicates();
        if (!names.isEmpty()) {
            auto const more = static_cast<int>(std::max<qsizetype>(0, names.size() - namesInWarning));
            lines.append(DetailsModel::sentence(warning).arg(
                DetailsModel::listed(names.mid(0, namesInWarning), more)));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QLayout* DetailsPage::warningLine(QString const& text)
{
    auto* const line = new QHBoxLayout;
    auto* const sign = new SignLabel(QStyle::SP_MessageBoxWarning, QStyle::PM_SmallIconSize, this);
    line->addWidget(sign, 0, Qt::AlignTop);
    auto* const warnings = new WrappedText(text, this);
    warnings->setFont(Fonts::makeBold(font()));
    warnings->setAccessibleName(tr("Warnings"));
    warnings->setAccessibleDescription(tr("What you may not expect of this transaction"));
    line->addWidget(warnings, 1);
    return line;
}

QString DetailsPage::totals(TransactionDetails const& transaction) const
{
    std::map<TransactionDetails::Action, int> counts;
    for (TransactionDetails::Row const& row : transaction.rows) {
        ++counts[row.action];
    }
    QStringList parts;
    for (auto const& [action, count] : counts) {
        parts.append(tr("%1: %2").arg(DetailsModel::words(action)).arg(count));
    }
    parts.append(tr("To download: %1").arg(transaction.download));
    parts.append(
        transaction.growthSign == 0  ? tr("On the disk: no change")
        : transaction.growthSign > 0 ? tr("On the disk: %1 more").arg(transaction.growth)
                                     : tr("On the disk: %1 less").arg(transaction.growth));
    return parts.join(QLatin1String("    "));
}

void DetailsPage::buildTable()
{
    table = new ListTable(fewestRows, mostRows, this);
    table->setAccessibleName(tr("Details"));
    table->setAccessibleDescription(tr("The packages of the transaction, and why each is part of it"));
    // At first in the order of the transaction, with what wants attention on top.
    table->display(proxy);
    QHeaderView const* const header = table->horizontalHeader();
    int const widest = Sizing::columns(this, widestColumn);
    for (int column = 0; column < DetailsModel::ColumnCount; ++column) {
        int const wanted = std::max(table->sizeHintForColumn(column), header->sectionSizeHint(column));
        table->setColumnWidth(column, std::min(wanted, widest));
    }
}

void DetailsPage::buildChanges()
{
    load = new QPushButton(tr("Load &Changes"), this);
    load->setAutoDefault(false);
    load->setToolTip(tr("Reads the changelogs of the repositories, which may have to be downloaded"));
    load->setAccessibleDescription(load->toolTip());
    changesEdit = new QPlainTextEdit(this);
    changesEdit->setReadOnly(true);
    changesEdit->setTabChangesFocus(true);
    changesEdit->setAccessibleName(tr("Changes"));
    changesEdit->setAccessibleDescription(tr("What has changed since the installed versions"));
    changesEdit->setPlaceholderText(changesEdit->accessibleDescription());
    changesEdit->setMinimumHeight((linesOfChanges + 1) * fontMetrics().lineSpacing());
    connect(load, &QPushButton::clicked, this, &DetailsPage::wantChanges);
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        showChangesOfCurrent();
    });
}

void DetailsPage::wantChanges()
{
    changesEdit->setFocus();
    load->setEnabled(false);
    changesEdit->setPlainText(tr("The changelogs are being read\u2026"));
    Q_EMIT changesWanted();
}

void DetailsPage::showChanges(QStringList const& texts)
{
    changes = texts;
    bool const failed = texts.isEmpty();
    // The toolkit would hand the focus of a button that goes on to one that answers.
    if (isVisible()) {
        changesEdit->setFocus();
    }
    load->setEnabled(failed);
    load->setVisible(failed);
    if (failed) {
        changesEdit->clear();
    } else {
        showChangesOfCurrent();
    }
}

void DetailsPage::showChangesOfCurrent()
{
    if (changes.isEmpty()) {
        return;
    }
    QModelIndex const current = table->currentIndex();
    if (current.isValid()) {
        int const row = proxy->mapToSource(current).row();
        QString const text = changesOf(row);
        changesEdit->setPlainText(
            text.isEmpty() ? tr("The changelogs tell nothing new of %1.").arg(model->row(row).name) : text);
        return;
    }
    QStringList all;
    for (int row = 0; row < model->rowCount(); ++row) {
        QString const text = changesOf(row);
        if (!text.isEmpty()) {
            all.append(text);
        }
    }
    changesEdit->setPlainText(
        all.isEmpty() ? tr("The changelogs tell nothing new.") : all.join(QLatin1String("\n\n\n")));
}

QString DetailsPage::changesOf(int row) const
{
    QString const text = changes.value(row);
    TransactionDetails::Row const& package = model->row(row);
    return text.isEmpty() ? QString()
                          : package.name + QLatin1Char(' ') +
                                TransactionDetails::versions(package.oldVersion, package.newVersion) +
                                QLatin1String("\n\n") + text;
}

void DetailsPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        model->setFont(font());
    }
}
