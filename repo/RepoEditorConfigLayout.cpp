// SPDX-License-Identifier: GPL-2.0-or-later
// How the form of a repository is built.
#include "repo/Buffet.h"
#include "repo/RepoEditorConfig.h"
#include "widgets/Colors.h"
#include "widgets/Fonts.h"
#include "widgets/HTextEdit.h"
#include "widgets/PasswdEchoEdit.h"
#include "widgets/PasswdLineEdit.h"
#include "widgets/PasswdTextEdit.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{

/// The text's colour follows the background, which is light whatever the theme is.
QPalette requiredPalette(QPalette const& palette)
{
    QPalette required = Colors::makeRequired(palette);
    for (QPalette::ColorGroup const group : {QPalette::Active, QPalette::Inactive}) {
        required.setColor(group, QPalette::Text, Qt::black);
    }
    return required;
}

QLabel* labelOf(QWidget* field, QString const& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setBuddy(field);
    field->setAccessibleName(text);
    return label;
}

void addRow(QGridLayout* layout, QString const& text, QWidget* field, QString const& toolTip)
{
    // An empty grid has a row already.
    int const row = layout->count() == 0 ? 0 : layout->rowCount();
    field->setToolTip(toolTip);
    layout->addWidget(labelOf(field, text, field->parentWidget()), row, 0);
    layout->addWidget(field, row, 1);
}

} // namespace

RepoEditor::Config::Config(QGridLayout* layout)
{
    QWidget* const parent = layout->parentWidget();

    idEdit = new QLineEdit(parent);
    idEdit->setPalette(requiredPalette(idEdit->palette()));
    addRow(layout, tr("Identifier"), idEdit, tr("Unique identifier for the repository"));
    connect(idEdit, &QLineEdit::textChanged, this, qOverload<QString const&>(&Config::valueChanged));

    nameEdit = new QLineEdit(parent);
    addRow(layout, tr("Name"), nameEdit, tr("Description of the repository"));
    connect(nameEdit, &QLineEdit::textChanged, this, qOverload<QString const&>(&Config::valueChanged));

    baseurlEdit = new PasswdTextEdit(Repo::Buffet::urlsRegExp(), parent);
    addRow(
        layout, tr("URLs"), baseurlEdit,
        tr("List of URLs to the repository.\nIf more than one is specified, they all should be identical "
           "mirrors,\nand will provide redundancy if some URLs are unreachable."));
    connect(baseurlEdit, &PasswdTextEdit::realTextChanged, this, qOverload<>(&Config::urlChanged));

    mirrorlistEdit = new PasswdLineEdit(Repo::Buffet::oneUrlRegExp(), parent);
    addRow(
        layout, tr("Mirror list URL"), mirrorlistEdit,
        tr("URL to a file containing a list of URLs to the repository."));
    connect(
        mirrorlistEdit, &PasswdLineEdit::realTextChanged, this,
        qOverload<QString const&>(&Config::urlChanged));

    for (QWidget* const group : {createAuth(parent), createOptions(parent), createFileInfo(parent)}) {
        layout->addWidget(group, layout->rowCount(), 0, 1, 2);
    }
    setCaptions(QString(), QString());
}

QWidget* RepoEditor::Config::createAuth(QWidget* parent)
{
    auto* const group = new QGroupBox(tr("Buffet Authentication"), parent);
    auto* const layout = new QGridLayout(group);

    authNameLabel = new QLabel(group);
    authPasswordLabel = new QLabel(group);
    authNameEdit = new QLineEdit(group);
    authNameEdit->setToolTip(
        tr("Authentication name for a repository using the buffet authentication method"));
    authPasswordEdit = new PasswdEchoEdit(group);
    authPasswordEdit->setToolTip(
        tr("Authentication password for a repository using the buffet authentication method"));
    layout->addWidget(authNameLabel, 0, 0);
    layout->addWidget(authNameEdit, 0, 1);
    layout->addWidget(authPasswordLabel, 1, 0);
    layout->addWidget(authPasswordEdit, 1, 1);
    for (QLabel* const label : {authNameLabel, authPasswordLabel}) {
        // The keys of an address, whatever they are.
        label->setTextFormat(Qt::PlainText);
    }
    for (QLineEdit const* const edit : {authNameEdit, static_cast<QLineEdit*>(authPasswordEdit)}) {
        connect(edit, &QLineEdit::textEdited, this, &Config::authChanged);
    }
    return group;
}

QWidget* RepoEditor::Config::createOptions(QWidget* parent)
{
    auto* const group = new QGroupBox(tr("Repository Options"), parent);
    auto* const layout = new QVBoxLayout(group);

    auto* const row = new QHBoxLayout;
    row->addWidget(createSimpleOptions(group));
    row->addStretch();
    layout->addLayout(row);

    otherOptionsEdit = new HTextEdit(80, 3, group);
    otherOptionsEdit->setFont(Fonts::makeBold(Fonts::makeFixed(otherOptionsEdit->font())));
    otherOptionsEdit->setToolTip(tr("Any other yum options for this repository.  See yum.conf(5)"));
    otherOptionsEdit->setAcceptRichText(false);
    // The keyboard has to get out again.
    otherOptionsEdit->setTabChangesFocus(true);
    QLabel* const label = labelOf(otherOptionsEdit, tr("Other Options:"), group);
    layout->addWidget(label);
    layout->addWidget(otherOptionsEdit);
    connect(otherOptionsEdit, &QTextEdit::textChanged, this, qOverload<>(&Config::valueChanged));
    return group;
}

QWidget* RepoEditor::Config::createSimpleOptions(QWidget* parent)
{
    auto* const options = new QWidget(parent);
    auto* const layout = new QGridLayout(options);
    layout->setContentsMargins(0, 0, 0, 0);

    enabledBox = createSwitch(options, tr("Whether or not the repository is enabled for use"));
    gpgcheckBox = createSwitch(
        options, tr("Whether or not GPG key signatures of packages from the repository are checked to ensure "
                    "authenticity"));
    addRow(layout, tr("Enabled"), enabledBox, enabledBox->toolTip());
    addRow(layout, tr("Check GPG Keys"), gpgcheckBox, gpgcheckBox->toolTip());
    return options;
}

QComboBox* RepoEditor::Config::createSwitch(QWidget* parent, QString const& toolTip)
{
    auto* const box = new QComboBox(parent);
    box->addItem(tr("No"), Repo::No);
    box->addItem(tr("Default"), Repo::Default);
    box->addItem(tr("Yes"), Repo::Yes);
    // The items Default grow when they tell what they stand for.
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setToolTip(toolTip);
    connect(box, &QComboBox::currentIndexChanged, this, qOverload<int>(&Config::valueChanged));
    return box;
}

QWidget* RepoEditor::Config::createFileInfo(QWidget* parent)
{
    auto* const group = new QGroupBox(tr("Configuration File (expert)"), parent);
    auto* const layout = new QHBoxLayout(group);

    fileEdit = new QLineEdit(group);
    fileEdit->setToolTip(
        tr("Name of the yum configuration file into which to place this repository configuration.\nIf left "
           "blank, defaults to the repository's identifier"));
    layout->addWidget(labelOf(fileEdit, tr("File"), group));
    layout->addWidget(fileEdit);
    connect(fileEdit, &QLineEdit::textChanged, this, qOverload<QString const&>(&Config::valueChanged));

    filePositionBox = new QDoubleSpinBox(group);
    filePositionBox->setDecimals(1);
    filePositionBox->setSingleStep(1.0);
    filePositionBox->setMinimum(0.0);
    filePositionBox->setValue(0.0);
    filePositionBox->setToolTip(
        tr("A numeric sort key which determines the order of this repository configuration\nin a "
           "configuration file which contains multiple configurations"));
    layout->addWidget(labelOf(filePositionBox, tr("Sort Position"), group));
    layout->addWidget(filePositionBox);
    connect(
        filePositionBox, &QDoubleSpinBox::textChanged, this,
        qOverload<QString const&>(&Config::valueChanged));
    return group;
}
