// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoEditorConfigDialog.h"

#include "repo/YumConfIO.h"
#include "widgets/Sizing.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace
{

/// Around the form: scrolls on a screen that is too low for all of it, so that the buttons below stay in
/// sight.
class Page final : public QScrollArea
{
public:
    explicit Page(QWidget* parent)
        : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
    }

    [[nodiscard]] QSize sizeHint() const override { return fitted(widget()->sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const override { return fitted(widget()->minimumSizeHint()); }

private:
    [[nodiscard]] QSize fitted(QSize wanted) const
    {
        constexpr int linesBelow = 5;
        QSize const limit = Sizing::screenLimit(this) - QSize(0, linesBelow * fontMetrics().height());
        if (widget()->minimumSizeHint().height() > limit.height()) {
            wanted.rwidth() += verticalScrollBar()->sizeHint().width();
        }
        return wanted.boundedTo(limit);
    }
};

} // namespace

RepoEditor::ConfigDialog::ConfigDialog(YumConfIO* conf, QWidget* parent)
    : HDialog(parent),
      yumConfIO(conf)
{
    setWindowTitle(tr("VEM Repository Configuration"));
    setAttribute(Qt::WA_ShowModal);

    auto* const layout = new QVBoxLayout(this);
    auto* const page = new Page(this);
    auto* const form = new QWidget(page);
    auto* const grid = new QGridLayout(form);
    grid->setContentsMargins(0, 0, 0, 0);
    config = std::make_unique<Config>(grid);
    page->setWidget(form);
    layout->addWidget(page);

    statusLabel = new QLabel(this);
    initialPalette = statusLabel->palette();
    statusLabel->installEventFilter(this);
    resetButton = createButton(tr("Reset"), tr("Undo changes to this repository configuration"));
    QPushButton* const cancelButton =
        createButton(tr("Cancel"), tr("Undo changes to this repository configuration and close the window"));
    QPushButton* const okButton =
        createButton(tr("OK"), tr("Apply changes to all repository configurations, and close the window"));
    okButton->setDefault(true);

    auto* const row = new QHBoxLayout;
    row->addWidget(statusLabel);
    row->addStretch();
    row->addWidget(resetButton);
    row->addWidget(cancelButton);
    row->addWidget(okButton);
    layout->addLayout(row);

    connect(resetButton, &QPushButton::clicked, this, &ConfigDialog::reset);
    connect(cancelButton, &QPushButton::clicked, this, &ConfigDialog::cancel);
    connect(okButton, &QPushButton::clicked, this, &ConfigDialog::ok);
    connect(config.get(), &Config::changed, this, &ConfigDialog::changed);
    config->disable();
}

RepoEditor::ConfigDialog::~ConfigDialog() = default;

void RepoEditor::ConfigDialog::setEntry(Repo::Entry* edited)
{
    entry = edited;
    config->setEntry(*entry);
    updateStatusLabel();
}

void RepoEditor::ConfigDialog::setVisible(bool visible)
{
    if (visible) {
        config->setDefaults(yumConfIO->mainEnabled, yumConfIO->mainGpgcheck);
        setHasChanged(false);
        config->setFocus();
    }
    HDialog::setVisible(visible);
}

void RepoEditor::ConfigDialog::changed()
{
    setHasChanged(true);
}

void RepoEditor::ConfigDialog::reset()
{
    config->setEntry(*entry);
    setHasChanged(false);
}

void RepoEditor::ConfigDialog::cancel()
{
    reject();
}

void RepoEditor::ConfigDialog::ok()
{
    if (!hasChanged) {
        reject();
        return;
    }
    if (!config->refusal().isEmpty()) {
        // The status line has it.
        return;
    }
    Repo::Entry const edited = config->toEntry();
    yumConfIO->reposEnabled[edited.id] =
        edited.enabled == Repo::Yes || (edited.enabled == Repo::Default && yumConfIO->mainEnabled);
    *entry = edited;
    accept();
}

QPushButton* RepoEditor::ConfigDialog::createButton(QString const& text, QString const& toolTip)
{
    auto* const button = new QPushButton(text, this);
    button->setToolTip(toolTip);
    return button;
}

// The colours of the status line are those for the ground that it stands on.
bool RepoEditor::ConfigDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == statusLabel && event->type() == QEvent::PaletteChange) {
        updateStatusLabel();
    }
    return HDialog::eventFilter(watched, event);
}

void RepoEditor::ConfigDialog::updateStatusLabel()
{
    if (!config->setStatus(yumConfIO, statusLabel)) {
        statusLabel->setPalette(initialPalette);
        statusLabel->clear();
    }
}

void RepoEditor::ConfigDialog::setHasChanged(bool value)
{
    hasChanged = value;
    resetButton->setEnabled(value);
    updateStatusLabel();
}
