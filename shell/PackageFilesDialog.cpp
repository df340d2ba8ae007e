// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/PackageFilesDialog.h"

#include "shell/PackageWords.h"
#include "widgets/Sizing.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int columnsOfFault = 50; ///< characters of what isn't understood

} // namespace

PackageFilesDialog::PackageFilesDialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Open Package Files"));
    auto* const column = new QVBoxLayout(this);
    auto* const label = new QLabel(tr("&Files (.rpm) and addresses (https), one a line:"), this);
    edit = new QPlainTextEdit(this);
    edit->setAccessibleName(tr("Package files"));
    edit->setAccessibleDescription(tr("Paths of .rpm files and https addresses, one a line"));
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setTabChangesFocus(true);
    // Files that are dropped here are for the window below.
    edit->setAcceptDrops(false);
    label->setBuddy(edit);
    fault = new QLabel(this);
    fault->setTextFormat(Qt::PlainText);
    fault->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(this);
    // The toolkit has its own word for this in few languages.
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    QPushButton* const browseButton = buttons->addButton(tr("&Browse..."), QDialogButtonBox::ActionRole);
    browseButton->setAccessibleDescription(tr("Choose .rpm files of this machine"));
    openButton = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    openButton->setAccessibleDescription(tr("Show the packages in the table, marked for installation"));
    openButton->setDefault(true);
    column->addWidget(label);
    column->addWidget(edit);
    column->addWidget(fault);
    column->addWidget(buttons);
    connect(browseButton, &QPushButton::clicked, this, &PackageFilesDialog::browse);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(edit, &QPlainTextEdit::textChanged, this, &PackageFilesDialog::read);
    read();
    resize(fontMetrics().averageCharWidth() * 72, sizeHint().height());
}

void PackageFilesDialog::browse()
{
    QStringList const files = QFileDialog::getOpenFileNames(
        this, tr("Open Package Files"), QString(), tr("Package files (*.rpm);;All files (*)"));
    for (QString const& file : files) {
        edit->appendPlainText(file);
    }
}

void PackageFilesDialog::read()
{
    named.clear();
    QString strange;
    QStringList const lines = edit->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString const& line : lines) {
        QString const text = line.trimmed();
        QString const word = PackageWords::understood(text);
        if (!word.isEmpty()) {
            named.append(word);
        } else if (strange.isEmpty()) {
            strange = text;
        }
    }
    // A long path has no place where it could be wrapped, and the dialog keeps its width.
    QString const shown =
        fontMetrics().elidedText(strange, Qt::ElideMiddle, Sizing::columns(this, columnsOfFault));
    fault->setText(
        strange.isEmpty() ? QString()
                          : tr("This is no readable .rpm file and no https address: %1").arg(shown));
    fault->setToolTip(strange);
    openButton->setEnabled(!named.isEmpty() && strange.isEmpty());
}
