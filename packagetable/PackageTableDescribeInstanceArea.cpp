// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableDescribeInstanceArea.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableDescribeDialog.h"
#include "packagetable/PackageTableDescribeInstanceRepoDialog.h"
#include "packagetable/PackageTableDescribeSection.h"
#include "packagetable/PackageTableDescribeValue.h"
#include "repo/RepoBrowse.h"
#include "repo/YumConfIO.h"
#include "widgets/Fonts.h"
#include "widgets/HScrollArea.h"
#include "widgets/TextDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <array>

namespace PackageTable::Describe::Instance
{

namespace
{

using Reader = QString (*)(YumIO&, Package::Entry const&);

template <auto Accessor>
QString value(YumIO& yumIO, Package::Entry const& entry)
{
    return (yumIO.*Accessor)(entry);
}

struct Field
{
    char const* label = nullptr;
    Reader value = nullptr;
    bool inBrief = false; ///< also shown of an installed version below another entry
};

constexpr std::array<Field, 7> groupFields{{
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Required Groups"),
     value<&YumIO::getRequiredGroups>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Default MetaPkgs"),
     value<&YumIO::getDefaultMetaPkgs>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Optional MetaPkgs"),
     value<&YumIO::getOptionalMetaPkgs>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Mandatory Packages"),
     value<&YumIO::getMandatoryPkgs>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Default Packages"),
     value<&YumIO::getDefaultPkgs>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Optional Packages"),
     value<&YumIO::getOptionalPkgs>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Conditional Packages"),
     value<&YumIO::getConditionalPkgs>},
}};

// Version and repository come before these.
constexpr std::array<Field, 19> packageFields{{
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Architecture"), value<&YumIO::getArch>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Size"), value<&YumIO::getSize>, true},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Summary"), value<&YumIO::getSummary>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Description"),
     value<&YumIO::getDescription>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Group"), value<&YumIO::getGroup>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Vendor"), value<&YumIO::getVendor>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Build Time"), value<&YumIO::getBuildTime>,
     true},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Build Host"), value<&YumIO::getBuildHost>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Install Time"),
     value<&YumIO::getInstallTime>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Binary RPM"), value<&YumIO::getBinaryRpm>},
    // The same text as above: the name of the source package serves the search only.
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Source RPM"), value<&YumIO::getBinaryRpm>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "License"), value<&YumIO::getLicense>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Packager"), value<&YumIO::getPackager>,
     true},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "URL"), value<&YumIO::getUrl>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Relocations"),
     value<&YumIO::getRelocations>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Provides"), value<&YumIO::getProvides>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Requires"), value<&YumIO::getRequires>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Conflicts"), value<&YumIO::getConflicts>},
    {QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Area", "Obsoletes"), value<&YumIO::getObsoletes>},
}};

constexpr int labelColumn = 0;
constexpr int valueColumn = 1;

} // namespace

Area::Area(
    Dialog* dialogOfArea, QVBoxLayout* layout, YumIO* engine, Package::Entry const& entryToShow,
    YumConfIO* configuration, bool full)
    : dialog(dialogOfArea),
      yumIO(engine),
      entry(entryToShow),
      yumConfIO(configuration),
      parent(layout->parentWidget()),
      container(new QWidget),
      grid(new QGridLayout),
      sectionsLayout(new QVBoxLayout),
      scrollArea(new HScrollArea(80, 24, parent))
{
    scrollArea->setFrameStyle(QFrame::NoFrame | QFrame::Plain);
    scrollArea->setAccessibleName(yumIO->getState(entry));
    int row = 0;
    addHeader(row, yumIO->getState(entry));
    if (full || entry.kind == Package::Group) {
        addPair(row, tr("Kind"), yumIO->getKind(entry));
    }
    if (entry.kind == Package::Group) {
        addGroupRows(row);
    } else {
        addPackageRows(row, full);
    }
    updateButtons();

    grid->setColumnStretch(valueColumn, 1);
    auto* const rows = new QVBoxLayout;
    rows->addLayout(grid);
    rows->addLayout(sectionsLayout);
    rows->addStretch(1);
    container->setLayout(rows);
    // As wide as the dialog, so that long lines wrap there.
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(container);
    layout->addWidget(scrollArea);
}

Area::~Area()
{
    delete repoDialog;
    delete textDialog;
}

void Area::addSections(Relations& relations)
{
    for (Relations::Kind const kind : Section::kinds) {
        if (!relations.offers(kind, entry)) {
            continue;
        }
        auto* const section = new Section(kind, relations, entry, container);
        connect(section, &Section::reading, this, [this](bool begins) { dialog->setReady(!begins); });
        connect(section, &Section::followed, dialog, &Dialog::follow);
        connect(section, &Section::allWanted, this, [this, section] {
            showText([section] { return section->all(); }, QStringLiteral("%1 %2 ") + section->title());
        });
        sectionsLayout->addWidget(section);
        sections.append(section);
    }
    // It has been asked for its size, and wouldn't look again before its next event.
    container->layout()->invalidate();
}

QList<Relations::Kind> Area::openSections() const
{
    QList<Relations::Kind> open;
    for (Section const* const section : sections) {
        if (section->isOpen()) {
            open.append(section->kind());
        }
    }
    return open;
}

void Area::openSections(QList<Relations::Kind> const& kinds)
{
    for (Section* const section : std::as_const(sections)) {
        if (kinds.contains(section->kind())) {
            section->open();
        }
    }
}

void Area::addGroupRows(int& row)
{
    addPair(row, tr("Description"), yumIO->getDescription(entry));
    for (Field const& field : groupFields) {
        addPair(row, tr(field.label), field.value(*yumIO, entry));
    }
}

void Area::addPackageRows(int& row, bool full)
{
    addPair(row, tr("Version"), yumIO->getVerRel(entry));
    QString const repo = yumIO->getRepo(entry);
    if (full && repo != QLatin1String("installed")) {
        Button const details = addPairButton(row, tr("Repository"), repo, tr("Details"));
        if (details.button) {
            connect(details.button, &QPushButton::clicked, this, &Area::handleRepo);
        }
    }
    for (Field const& field : packageFields) {
        if (full || field.inBrief) {
            addPair(row, tr(field.label), field.value(*yumIO, entry));
        }
    }
    filesButton = addButton(row, tr("Files"), tr("Show"));
    connect(filesButton.button, &QPushButton::clicked, this, &Area::handleFiles);
    changeLogButton = addButton(row, tr("Change Log"), tr("Show"));
    connect(changeLogButton.button, &QPushButton::clicked, this, &Area::handleChangeLog);
}

void Area::addHeader(int& row, QString const& text)
{
    QLabel* const header = makeText(text);
    header->setFont(Fonts::makeHeader(header->font()));
    grid->addWidget(header, row, labelColumn, 1, 2);
    ++row;
}

void Area::addPair(int& row, QString const& label, QString const& text)
{
    if (text.isEmpty()) {
        return;
    }
    addLabel(row, label);
    grid->addWidget(makeValue(text), row, valueColumn, Qt::AlignTop);
    ++row;
}

Area::Button Area::addButton(int& row, QString const& label, QString const& buttonText)
{
    addLabel(row, label);
    Button result{buttonText, makeButton(buttonText), row};
    grid->addWidget(result.button, row, valueColumn, Qt::AlignLeft | Qt::AlignTop);
    ++row;
    return result;
}

Area::Button Area::addPairButton(
    int& row, QString const& label, QString const& text, QString const& buttonText)
{
    if (text.isEmpty()) {
        return {};
    }
    addLabel(row, label);
    // Made in the order in which they stand, which is the order in which they are read out.
    QLabel* const value = makeValue(text);
    Button result{buttonText, makeButton(buttonText), row};
    auto* const cell = new QHBoxLayout;
    cell->addWidget(value, 0, Qt::AlignTop);
    cell->addWidget(result.button, 0, Qt::AlignTop);
    grid->addLayout(cell, row, valueColumn, Qt::AlignLeft | Qt::AlignTop);
    ++row;
    return result;
}

void Area::addLabel(int row, QString const& label)
{
    grid->addWidget(makeText(tr("%1:").arg(label)), row, labelColumn, Qt::AlignRight | Qt::AlignTop);
}

QLabel* Area::makeText(QString const& text)
{
    auto* const label = new QLabel(container);
    // What a package says of itself is no markup.
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* Area::makeValue(QString const& text)
{
    auto* const value = new Value(text, container);
    connect(value, &QLabel::linkActivated, this, [this](QString const& address) {
        RepoBrowse::open(dialog, address);
    });
    return value;
}

QPushButton* Area::makeButton(QString const& text)
{
    auto* const button = new QPushButton(text, container);
    buttons.append(button);
    return button;
}

void Area::setButtonsEnabled(bool enabled)
{
    for (QPushButton* const button : std::as_const(buttons)) {
        button->setEnabled(enabled);
    }
    for (Section* const section : std::as_const(sections)) {
        section->setEnabled(enabled);
    }
}

void Area::updateButtons()
{
    if (entry.kind != Package::Group) {
        updateButton(filesButton, yumIO->fileListsCollected);
        updateButton(changeLogButton, yumIO->otherDataCollected);
    }
}

void Area::updateButton(Button& button, bool collected)
{
    if (button.button) {
        // The details of an installed package come from the rpm database.
        bool const mustLoad = entry.state != Package::UpToDate && !collected;
        button.button->setText(mustLoad ? tr("%1 (must load extra data)").arg(button.text) : button.text);
    }
}

void Area::handleRepo()
{
    if (!yumConfIO) {
        return;
    }
    QList<Repo::Entry> const& repos = yumConfIO->repos;
    QString const id = yumIO->getRepo(entry);
    auto const found =
        std::find_if(repos.cbegin(), repos.cend(), [&id](Repo::Entry const& repo) { return repo.id == id; });
    if (found == repos.cend()) {
        return;
    }
    if (!repoDialog) {
        repoDialog = new RepoDialog(yumIO, parent);
    }
    repoDialog->config(*found);
    repoDialog->exec();
}

void Area::handleFiles()
{
    showText([this] { return yumIO->getFiles(entry); }, tr("%1 %2 File List"));
}

void Area::handleChangeLog()
{
    showText([this] { return yumIO->getChangeLog(entry); }, tr("%1 %2 Change Log"));
}

void Area::showText(std::function<QString()> const& text, QString const& title)
{
    dialog->setReady(false);
    QString const shown = text();
    updateButtons();
    if (!textDialog) {
        textDialog = new TextDialog(parent);
    }
    textDialog->setWindowTitle(title.arg(yumIO->getName(entry), yumIO->getVerRel(entry)));
    textDialog->setText(shown);
    textDialog->exec();
    dialog->setReady(true);
}

} // namespace PackageTable::Describe::Instance
