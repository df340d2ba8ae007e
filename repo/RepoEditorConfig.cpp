// SPDX-License-Identifier: GPL-2.0-or-later
// What the fields show and say; they are made in RepoEditorConfigLayout.cpp.
#include "repo/RepoEditorConfig.h"

#include "repo/Buffet.h"
#include "repo/RepoFields.h"
#include "repo/YumConfIO.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"
#include "widgets/PasswdEchoEdit.h"
#include "widgets/PasswdLineEdit.h"
#include "widgets/PasswdTextEdit.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

void RepoEditor::Config::setDefaults(bool enabled, bool gpgcheck)
{
    auto const show = [](QComboBox* box, bool value) {
        box->setItemText(Repo::Default, tr("%1 %2").arg(tr("Default"), value ? tr("(Yes)") : tr("(No)")));
    };
    show(enabledBox, enabled);
    show(gpgcheckBox, gpgcheck);
}

void RepoEditor::Config::disable()
{
    setEntry(Repo::Entry());
    setFieldsEnabled(false, false);
}

void RepoEditor::Config::setEntry(Repo::Entry const& entry)
{
    blockChanged = true;
    idEdit->setText(entry.id);
    nameEdit->setText(entry.name);
    baseurlEdit->setRealPlainText(entry.baseurl);
    mirrorlistEdit->setRealText(entry.mirrorlist);
    bool const isBuffet = showAuth(entry);
    enabledBox->setCurrentIndex(entry.enabled);
    gpgcheckBox->setCurrentIndex(entry.gpgcheck);
    otherOptionsEdit->setVerbatim(entry.otherOptions);
    fileEdit->setText(entry.file);
    filePositionBox->setValue(entry.filePosition);
    loaded = entry;
    shown = fields();
    blockChanged = false;
    setFieldsEnabled(true, isBuffet);
}

Repo::Entry RepoEditor::Config::toEntry() const
{
    Repo::Entry entry = fields();
    auto const take = [&](QString Repo::Entry::*text, QString (*clean)(QString)) {
        // What the user has left alone stays as the file has it.
        entry.*text = entry.*text == shown.*text ? loaded.*text : clean(entry.*text);
    };
    take(&Repo::Entry::id, RepoFields::oneLine);
    take(&Repo::Entry::name, RepoFields::oneLine);
    take(&Repo::Entry::mirrorlist, RepoFields::oneLine);
    take(&Repo::Entry::file, RepoFields::oneLine);
    take(&Repo::Entry::otherOptions, RepoFields::optionLines);
    return entry;
}

Repo::Entry RepoEditor::Config::fields() const
{
    Repo::Entry entry;
    entry.id = idEdit->text();
    entry.name = nameEdit->text();
    entry.baseurl = baseurlEdit->realPlainText();
    entry.mirrorlist = mirrorlistEdit->realText();
    entry.enabled = enabledBox->currentIndex();
    entry.gpgcheck = gpgcheckBox->currentIndex();
    entry.otherOptions = otherOptionsEdit->verbatim();
    entry.file = fileEdit->text();
    entry.filePosition = filePositionBox->value();
    return entry;
}

QString RepoEditor::Config::refusal() const
{
    QString const text = otherOptionsEdit->verbatim();
    if (text == shown.otherOptions) {
        return {};
    }
    std::optional<RepoFields::Misread> const misread = RepoFields::findMisread(text, loaded.otherOptions);
    if (!misread) {
        return {};
    }
    switch (misread->kind) {
    case RepoFields::Misread::SectionHead:
        return tr("Line %1 of Other Options would begin another section").arg(misread->line);
    case RepoFields::Misread::NoOption:
        return tr("Line %1 of Other Options is no option: it lacks \"=\"").arg(misread->line);
    case RepoFields::Misread::Continuation:
        break;
    }
    return tr("Line %1 of Other Options is indented but continues no option").arg(misread->line);
}

bool RepoEditor::Config::setStatus(YumConfIO const* yumConfIO, QLabel* label) const
{
    auto const refuse = [label](QString const& text) {
        label->setPalette(Colors::makeError(label->palette()));
        label->setText(text);
        return true;
    };
    auto const warn = [label](QString const& text) {
        label->setPalette(Colors::makeWarning(label->palette()));
        label->setText(text);
        return true;
    };
    if (QString const words = refusal(); !words.isEmpty()) {
        return refuse(words);
    }
    Repo::Entry const entry = toEntry();
    if (entry.id.isEmpty()) {
        return refuse(tr("No Identifier specified"));
    }
    if (entry.baseurl.isEmpty() && entry.mirrorlist.isEmpty()) {
        return warn(tr("No URLs or Mirror list URL specified"));
    }
    if (!entry.file.isEmpty() && entry.file != QLatin1String(YumConfIO::fileName())) {
        auto const holds = [&entry](QString const& directory) {
            return entry.file.startsWith(directory + QLatin1Char('/'));
        };
        if (std::none_of(yumConfIO->reposdirs.begin(), yumConfIO->reposdirs.end(), holds)) {
            return warn(tr("File is not in any reposdir directory"));
        }
        if (!entry.file.endsWith(QLatin1String(".repo"))) {
            return warn(tr("File lacks .repo suffix"));
        }
    }
    QString keyName, name, keyPassword, password;
    if (Repo::Buffet::getAuth(entry, keyName, name, keyPassword, password)) {
        if (name.isEmpty()) {
            return warn(tr("No Buffet Authentication Name specified"));
        }
        if (password.isEmpty()) {
            return warn(tr("No Buffet Authentication Password specified"));
        }
    }
    return false;
}

void RepoEditor::Config::setFocus()
{
    idEdit->setFocus();
}

// From the credentials to the addresses.
void RepoEditor::Config::authChanged(QString const&)
{
    blockChanged = true;
    QString const name = RepoFields::oneLine(authNameEdit->text());
    QString const password = RepoFields::oneLine(authPasswordEdit->text());
    baseurlEdit->setRealPlainText(Repo::Buffet::replaceAuth(baseurlEdit->realPlainText(), name, password));
    mirrorlistEdit->setRealText(Repo::Buffet::replaceAuth(mirrorlistEdit->realText(), name, password));
    blockChanged = false;
    Q_EMIT changed();
}

// From the addresses to the credentials.
void RepoEditor::Config::urlChanged()
{
    if (blockChanged) {
        return;
    }
    bool const isBuffet = showAuth(toEntry());
    authNameEdit->setEnabled(isBuffet);
    authPasswordEdit->setEnabled(isBuffet);
    Q_EMIT changed();
}

void RepoEditor::Config::urlChanged(QString const&)
{
    urlChanged();
}

void RepoEditor::Config::valueChanged()
{
    if (!blockChanged) {
        Q_EMIT changed();
    }
}

void RepoEditor::Config::valueChanged(QString const&)
{
    valueChanged();
}

void RepoEditor::Config::valueChanged(int)
{
    valueChanged();
}

bool RepoEditor::Config::showAuth(Repo::Entry const& entry)
{
    QString keyName, name, keyPassword, password;
    bool const isBuffet = Repo::Buffet::getAuth(entry, keyName, name, keyPassword, password);
    setCaptions(keyName, keyPassword);
    authNameEdit->setText(name);
    authPasswordEdit->setText(password);
    return isBuffet;
}

void RepoEditor::Config::setCaptions(QString const& keyName, QString const& keyPassword)
{
    authNameLabel->setText(keyName.isEmpty() ? tr("Name") : keyName);
    authPasswordLabel->setText(keyPassword.isEmpty() ? tr("Password") : keyPassword);
    // Not by a buddy, which would take an ampersand of a key for a shortcut.
    authNameEdit->setAccessibleName(authNameLabel->text());
    authPasswordEdit->setAccessibleName(authPasswordLabel->text());
}

void RepoEditor::Config::setFieldsEnabled(bool enabled, bool authEnabled)
{
    idEdit->setEnabled(enabled);
    nameEdit->setEnabled(enabled);
    baseurlEdit->setEnabled(enabled);
    mirrorlistEdit->setEnabled(enabled);
    authNameEdit->setEnabled(authEnabled);
    authPasswordEdit->setEnabled(authEnabled);
    enabledBox->setEnabled(enabled);
    gpgcheckBox->setEnabled(enabled);
    otherOptionsEdit->setEnabled(enabled);
    fileEdit->setEnabled(enabled);
    filePositionBox->setEnabled(enabled);
}
