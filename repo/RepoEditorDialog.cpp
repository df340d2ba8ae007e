// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoEditorDialog.h"

#include "repo/RepoBrowse.h"
#include "repo/RepoEditorConfigDialog.h"
#include "repo/RepoEditorContextMenu.h"
#include "repo/RepoEditorModel.h"
#include "repo/RepoEditorView.h"
#include "repo/YumConfIO.h"
#include "widgets/Colors.h"
#include "widgets/HSeparator.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>
#include <algorithm>

namespace RepoEditor
{

Dialog::Dialog(YumIO* engine, YumConfIO* configuration, QWidget* parentWindow)
    : HDialog(parentWindow),
      parent(parentWindow),
      model(new Model(engine, configuration, this)),
      view(new View(model, this)),
      configDialog(new ConfigDialog(configuration, this)),
      yumIO(engine),
      yumConfIO(configuration)
{
    setWindowTitle(tr("VEM Repository Configuration Editor"));
    setAttribute(Qt::WA_ShowModal);
    model->setViewFont(view->font());

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(view);
    layout->addLayout(createEntryButtons());
    layout->addWidget(new HSeparator(this));
    layout->addLayout(createDialogButtons());
    initialPalette = statusLabel->palette();
    statusLabel->installEventFilter(this);

    connect(model, &Model::useChanged, this, &Dialog::useChanged);
    connect(model, &Model::configChanged, this, &Dialog::configChanged);
    connect(view, qOverload<int, int>(&View::currentChanged), this, &Dialog::currentChanged);
    connect(view, &View::activated, this, qOverload<QModelIndex const&>(&Dialog::edit));
    connect(
        view->getContextMenu(), qOverload<QModelIndex>(&ContextMenu::edit), this,
        qOverload<QModelIndex const&>(&Dialog::edit));
}

QHBoxLayout* Dialog::createEntryButtons()
{
    browseButton = createButton(
        tr("Browse Repository"),
        tr("Browse the first URL specified for the selected repository using an external web browser"));
    editButton = createButton(tr("Edit"), tr("Edit the selected repository configuration"));
    QPushButton* const addButton =
        createButton(tr("Add"), tr("Create a new repository configuration from scratch"));
    copyButton = createButton(
        tr("Copy"), tr("Create a new repository configuration based on the selected repository"));
    removeButton = createButton(tr("Remove"), tr("Remove the selected repository configuration"));
    for (QPushButton* const button : {browseButton, editButton, copyButton, removeButton}) {
        button->setEnabled(false);
    }
    addButton->setDefault(false);

    connect(browseButton, &QPushButton::clicked, this, &Dialog::browse);
    connect(editButton, &QPushButton::clicked, this, qOverload<>(&Dialog::edit));
    connect(addButton, &QPushButton::clicked, this, &Dialog::add);
    connect(copyButton, &QPushButton::clicked, this, &Dialog::copy);
    connect(removeButton, &QPushButton::clicked, this, &Dialog::remove);

    auto* const row = new QHBoxLayout;
    row->addWidget(browseButton);
    row->addStretch();
    for (QPushButton* const button : {editButton, addButton, copyButton, removeButton}) {
        row->addWidget(button);
    }
    return row;
}

QHBoxLayout* Dialog::createDialogButtons()
{
    statusLabel = new QLabel(this);
    // An identifier is never markup.
    statusLabel->setTextFormat(Qt::PlainText);
    resetAllButton = createButton(
        tr("Reset All"),
        tr("Undo changes to all repository configurations since the last Apply or opening of the dialog"));
    QPushButton* const cancelButton = createButton(
        tr("Cancel"),
        tr("Undo changes to all repository configurations since the last Apply or opening of the dialog, "
           "and close the window"));
    applyButton = createButton(
        tr("Apply"), tr("Apply changes to all repository configurations, but do not close the window"));
    QPushButton* const okButton =
        createButton(tr("OK"), tr("Apply changes to all repository configurations, and close the window"));
    applyButton->setDefault(true);

    connect(resetAllButton, &QPushButton::clicked, this, &Dialog::resetAll);
    connect(cancelButton, &QPushButton::clicked, this, &Dialog::cancel);
    connect(applyButton, &QPushButton::clicked, this, &Dialog::apply);
    connect(okButton, &QPushButton::clicked, this, &Dialog::ok);

    auto* const row = new QHBoxLayout;
    row->addWidget(statusLabel);
    row->addStretch();
    for (QPushButton* const button : {resetAllButton, cancelButton, applyButton, okButton}) {
        row->addWidget(button);
    }
    return row;
}

QPushButton* Dialog::createButton(QString const& text, QString const& toolTip)
{
    auto* const button = new QPushButton(text, this);
    button->setToolTip(toolTip);
    return button;
}

int Dialog::exec()
{
    // The base would wait for the end of a window that a failed reading has left hidden.
    show();
    if (!isVisible()) {
        if (forceReposChanged) {
            Q_EMIT reposChanged();
        }
        return Rejected;
    }
    return HDialog::exec();
}

void Dialog::setVisible(bool visible)
{
    if (visible == isVisible()) {
        // Some releases of the toolkit would show a window anew that is shown: its exec shows it a second
        // time.
        return;
    }
    if (visible) {
        savedReposEnabled = yumConfIO->reposEnabled;
        bool const isRead = yumConfIO->read(parent);
        resetModel();
        if (!isRead) {
            return;
        }
        // Elsewhere than on the column to sort by, so that its order is the ascending one.
        view->horizontalHeader()->setSortIndicator(NameColumn, Qt::DescendingOrder);
        view->sortByColumn(IdentifierColumn);
        view->resizeColumnsToContents();
        useChangedFlag = false;
        appliedFlag = false;
        setConfigHasChanged(false);
        setEntryHasChanged(false);
    }
    HDialog::setVisible(visible);
    if (!visible && (appliedFlag || useChangedFlag || forceReposChanged)) {
        Q_EMIT reposChanged();
    }
}

void Dialog::useChanged()
{
    useChangedFlag = true;
}

void Dialog::configChanged()
{
    setConfigHasChanged(true);
}

void Dialog::currentChanged(int current, int)
{
    for (QPushButton* const button : {browseButton, editButton, copyButton, removeButton}) {
        button->setEnabled(current != -1);
    }
    updateStatusLabel();
}

void Dialog::browse()
{
    if (Repo::Entry const* const entry = currentEntry()) {
        RepoBrowse::browse(this, *entry, yumIO);
    }
}

void Dialog::edit()
{
    editRow(view->currentRow());
}

void Dialog::edit(QModelIndex const& index)
{
    editRow(index.row());
}

void Dialog::editRow(int row)
{
    if (row < 0 || row >= yumConfIO->repos.size()) {
        return;
    }
    if (execForm(yumConfIO->repos[row])) {
        model->dataChanged(row);
        setConfigHasChanged(true);
    }
}

bool Dialog::execForm(Repo::Entry& entry)
{
    configDialog->setEntry(&entry);
    return configDialog->exec() == Accepted;
}

void Dialog::add()
{
    addAccepted({});
}

void Dialog::copy()
{
    if (Repo::Entry const* const entry = currentEntry()) {
        addAccepted(*entry);
    }
}

void Dialog::addAccepted(Repo::Entry entry)
{
    if (!execForm(entry)) {
        return;
    }
    view->setCurrentRow(-1);
    int const row = model->addRow(entry);
    view->setCurrentRow(row);
    model->dataChanged(row);
    setConfigHasChanged(true);
}

void Dialog::remove()
{
    // A row is told once for each of its cells that are selected apart.
    QList<int> rows;
    for (QModelIndex const& index : view->selectedRows()) {
        if (!rows.contains(index.row())) {
            rows.append(index.row());
        }
    }
    view->setCurrentRow(-1);
    for (int const row : rows) {
        model->removeRow(row, {});
    }
    setConfigHasChanged(true);
}

void Dialog::reset() {}

void Dialog::resetAll()
{
    Repo::Entry const* const entry = currentEntry();
    bool const hasCurrent = entry;
    QString const id = hasCurrent ? entry->id : QString();

    yumConfIO->reposEnabled = savedReposEnabled;
    // A failure has been told; the table then shows what was read.
    yumConfIO->read(this);
    resetModel();
    if (hasCurrent) {
        setEntryToOldId(id);
    }
    useChangedFlag = false;
    setConfigHasChanged(false);
    setEntryHasChanged(false);
}

void Dialog::cancel()
{
    resetAll();
    reject();
}

bool Dialog::apply()
{
    bool const hasCurrent = view->currentRow() != -1;
    qsizetype const count = yumConfIO->repos.size();
    if (!yumConfIO->write(this)) {
        if (yumConfIO->repos.size() != count) {
            // The user has let repositories go before the writing failed.
            resetModel();
        }
        return false;
    }
    resetModel();
    if (hasCurrent) {
        // Nothing stays current but a repository that has no identifier yet.
        setEntryToOldId({});
    }
    appliedFlag = true;
    setConfigHasChanged(false);
    setEntryHasChanged(false);
    return true;
}

void Dialog::ok()
{
    if (!(entryHasChanged || configHasChanged) || apply()) {
        accept();
    }
}

Repo::Entry* Dialog::currentEntry() const
{
    int const row = view->currentRow();
    return row >= 0 && row < yumConfIO->repos.size() ? &yumConfIO->repos[row] : nullptr;
}

// A reset of the table takes the current row away without a word.
void Dialog::resetModel()
{
    model->reset();
    currentChanged(view->currentRow(), -1);
}

bool Dialog::hasEmptyId() const
{
    return std::any_of(yumConfIO->repos.cbegin(), yumConfIO->repos.cend(), [](Repo::Entry const& entry) {
        return entry.id.isEmpty();
    });
}

QString Dialog::getDuplicateId() const
{
    // Backwards, so that the last one found is the first in the list.
    QSet<QString> later;
    QString duplicate;
    for (auto entry = yumConfIO->repos.crbegin(); entry != yumConfIO->repos.crend(); ++entry) {
        if (later.contains(entry->id)) {
            duplicate = entry->id;
        }
        later.insert(entry->id);
    }
    return duplicate;
}

// The colours of the status line are those for the ground that it stands on.
bool Dialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == statusLabel && event->type() == QEvent::PaletteChange) {
        updateStatusLabel();
    }
    return HDialog::eventFilter(watched, event);
}

void Dialog::updateStatusLabel()
{
    if (hasEmptyId()) {
        setStatus(Colors::makeError(statusLabel->palette()), tr("A repository has no Identifier"));
        return;
    }
    QString const duplicate = getDuplicateId();
    if (!duplicate.isEmpty()) {
        setStatus(
            Colors::makeError(statusLabel->palette()),
            tr("Two or more repositories have the Identifier, %1").arg(duplicate));
    } else if (entryHasChanged || configHasChanged) {
        setStatus(Colors::makeOK(statusLabel->palette()), tr("Unapplied Configuration Changes"));
    } else {
        setStatus(initialPalette, {});
    }
}

void Dialog::setStatus(QPalette const& palette, QString const& text)
{
    statusLabel->setPalette(palette);
    statusLabel->setText(text);
}

void Dialog::setEntryToOldId(QString const& id)
{
    for (int row = 0; row < yumConfIO->repos.size(); ++row) {
        if (yumConfIO->repos[row].id == id) {
            view->setCurrentRow(row);
        }
    }
}

void Dialog::setEntryHasChanged(bool changed)
{
    entryHasChanged = changed;
    updateChangeButtons();
}

void Dialog::setConfigHasChanged(bool changed)
{
    configHasChanged = changed;
    updateChangeButtons();
}

void Dialog::updateChangeButtons()
{
    resetAllButton->setEnabled(entryHasChanged || configHasChanged);
    applyButton->setEnabled(entryHasChanged || configHasChanged);
    updateStatusLabel();
}

} // namespace RepoEditor
