// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoAuthDialog.h"

#include "repo/Buffet.h"
#include "repo/RepoEntry.h"
#include "repo/RepoFields.h"
#include "widgets/Fonts.h"
#include "widgets/HSeparator.h"
#include "widgets/PasswdEchoEdit.h"
#include "widgets/PasswdMask.h"
#include "widgets/Sizing.h"
#include "widgets/WrappingRow.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RepoAuth::Dialog::Dialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("VEM Authentication"));
    setAttribute(Qt::WA_ShowModal);
    auto* const layout = new QVBoxLayout(this);

    auto* const heading = new QLabel(tr("Some configured repositories require authentication"), this);
    heading->setFont(Fonts::makeHeader(heading->font()));
    heading->setAlignment(Qt::AlignHCenter);
    layout->addWidget(heading);
    layout->addWidget(new HSeparator(this));

    auto* const grid = new QGridLayout;
    idLabel = addValue(grid, tr("Identifier"));
    nameLabel = addValue(grid, tr("Name"));
    baseurlLabel = addValue(grid, tr("URLs"));
    mirrorlistLabel = addValue(grid, tr("Mirror list URL"));
    grid->addWidget(new HSeparator(this), grid->rowCount(), 0, 1, 2);
    authNameEdit = new QLineEdit(this);
    authNameLabel = addEdit(
        grid, authNameEdit,
        tr("Authentication name for a repository using the buffet authentication method"));
    authPasswordEdit = new PasswdEchoEdit(this);
    authPasswordLabel = addEdit(
        grid, authPasswordEdit,
        tr("Authentication password for a repository using the buffet authentication method"));
    authNameLabel->setText(tr("Name"));
    authPasswordLabel->setText(tr("Password"));
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    quitButton = createButton(tr("Quit"), &Dialog::handleQuit);
    disableButton = createButton(tr("Disable for Session"), &Dialog::handleDisable);
    skipAllButton = createButton(tr("Skip All"), &Dialog::handleSkipAll);
    applyAllButton = createButton(tr("Apply to All"), &Dialog::handleApplyAll);
    applyHostButton = createButton(tr("Apply to All with this Host"), &Dialog::handleApplyHost);
    okButton = createButton(tr("OK"), &Dialog::handleOK);
    okButton->setDefault(true);
    auto* const row = new WrappingRow;
    row->addStretch();
    for (QPushButton* const button :
         {quitButton, disableButton, skipAllButton, applyAllButton, applyHostButton, okButton}) {
        row->addWidget(button);
    }
    layout->addLayout(row);
}

QLabel* RepoAuth::Dialog::addValue(QGridLayout* grid, QString const& caption)
{
    // An empty grid has a row already.
    int const row = grid->count() == 0 ? 0 : grid->rowCount();
    auto* const value = new QLabel(this);
    // What a configuration says is never markup.
    value->setTextFormat(Qt::PlainText);
    // A long address is cut off rather than making the window wider than the screen.
    value->setMinimumWidth(1);
    value->setAccessibleDescription(caption);
    grid->addWidget(new QLabel(caption, this), row, 0, Qt::AlignTop);
    grid->addWidget(value, row, 1);
    return value;
}

QLabel* RepoAuth::Dialog::addEdit(QGridLayout* grid, QLineEdit* edit, QString const& toolTip)
{
    int const row = grid->rowCount();
    auto* const caption = new QLabel(this);
    caption->setTextFormat(Qt::PlainText);
    edit->setToolTip(toolTip);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    connect(edit, &QLineEdit::textEdited, this, &Dialog::authChanged);
    return caption;
}

QPushButton* RepoAuth::Dialog::createButton(QString const& text, void (Dialog::*slot)())
{
    auto* const button = new QPushButton(text, this);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void RepoAuth::Dialog::exec(Repo::Entry* asked)
{
    entry = asked;
    idLabel->setText(entry->id);
    nameLabel->setText(entry->name);

    QString keyName, name, keyPassword, password;
    Repo::Buffet::getAuth(*entry, keyName, name, keyPassword, password);
    authNameLabel->setText(keyName);
    authPasswordLabel->setText(keyPassword);
    authNameEdit->setAccessibleName(keyName.isEmpty() ? tr("Name") : keyName);
    authPasswordEdit->setAccessibleName(keyPassword.isEmpty() ? tr("Password") : keyPassword);
    authNameEdit->setText(name);
    authPasswordEdit->setText(password);
    showUrls();

    setAnswersEnabled(true);
    authNameEdit->setFocus();
    if (!testAttribute(Qt::WA_Resized)) {
        // The toolkit would make it narrower for a small screen without making it higher.
        int const width = sizeHint().boundedTo(Sizing::screenLimit(this)).width();
        resize(width, layout()->totalHeightForWidth(width));
    }
    show();
    // Stays when the program's end leaves the loop without an answer.
    setResult(Quit);
    eventLoop.exec();
    entry = nullptr;
}

void RepoAuth::Dialog::setVisible(bool visible)
{
    if (visible != isVisible()) {
        if (visible) {
            QApplication::restoreOverrideCursor();
        } else {
            QApplication::setOverrideCursor(Qt::BusyCursor);
        }
    }
    QDialog::setVisible(visible);
}

QSize RepoAuth::Dialog::sizeHint() const
{
    return QDialog::sizeHint() + QSize(Sizing::columns(this, 40), 0);
}

void RepoAuth::Dialog::done(int code)
{
    setAnswersEnabled(false);
    setResult(code);
    eventLoop.exit();
    Q_EMIT finished(code);
    if (code == OK) {
        Q_EMIT accepted();
    } else if (code == SkipAll) {
        Q_EMIT rejected();
    }
}

void RepoAuth::Dialog::handleSkipAll()
{
    entry = nullptr;
    done(SkipAll);
}

void RepoAuth::Dialog::handleOK()
{
    setUrls();
    entry = nullptr;
    done(OK);
}

void RepoAuth::Dialog::handleApplyAll()
{
    setUrls();
    entry = nullptr;
    done(ApplyAll);
}

void RepoAuth::Dialog::handleApplyHost()
{
    setUrls();
    entry = nullptr;
    done(ApplyHost);
}

void RepoAuth::Dialog::handleDisable()
{
    entry = nullptr;
    done(Disable);
}

void RepoAuth::Dialog::handleQuit()
{
    entry = nullptr;
    done(Quit);
}

void RepoAuth::Dialog::authChanged(QString const&)
{
    showUrls();
}

void RepoAuth::Dialog::setAnswersEnabled(bool enabled)
{
    for (QPushButton* const button : {skipAllButton, quitButton, disableButton, okButton}) {
        button->setEnabled(enabled);
    }
}

QString RepoAuth::Dialog::filled(QString const& urls, QString const& password) const
{
    QString const name = RepoFields::oneLine(authNameEdit->text());
    if (name.isEmpty() && password.isEmpty()) {
        // Other addresses of the repository may have theirs.
        return urls;
    }
    return Repo::Buffet::replaceAuth(urls, authNameLabel->text(), name, authPasswordLabel->text(), password);
}

// The addresses follow the typing, the password as its mask, and those that they hold are never shown.
void RepoAuth::Dialog::showUrls()
{
    if (!entry) {
        return;
    }
    QString const password(RepoFields::oneLine(authPasswordEdit->text()).size(), PasswdMask::character(this));
    baseurlLabel->setText(filled(Repo::Buffet::maskPasswords(entry->baseurl), password));
    mirrorlistLabel->setText(filled(Repo::Buffet::maskPasswords(entry->mirrorlist), password));
}

void RepoAuth::Dialog::setUrls()
{
    if (!entry) {
        return;
    }
    QString const password = RepoFields::oneLine(authPasswordEdit->text());
    entry->baseurl = filled(entry->baseurl, password);
    entry->mirrorlist = filled(entry->mirrorlist, password);
}
