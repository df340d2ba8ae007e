// SPDX-License-Identifier: GPL-2.0-or-later
// What the fields show and say; they are made in RepoEditorConfigLayout.cpp.
#include "repo/RepoEditorConfig.h"

#include "repo/Buffet.h"
#include "repo/YumConfIO.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"
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
    otherOptionsEdit->setPlainText(entry.otherOptions);
    fileEdit->setText(entry.file);
    filePositionBox->setValue(entry.filePosition);
    blockChanged = false;
    setFieldsEnabled(true, isBuffet);
}

Repo::Entry RepoEditor::Config::toEntry() const
{
    Repo::Entry entry;
    entry.id = idEdit->text();
    entry.name = nameEdit->text();
    entry.baseurl = baseurlEdit->realPlainText();
    entry.mirrorlist = mirrorlistEdit->realText();
    entry.enabled = enabledBox->currentIndex();
    entry.gpgcheck = gpgcheckBox->currentIndex();
    entry.otherOptions = otherOptionsEdit->toPlainText();
    entry.file = fileEdit->text();
    entry.filePosition = filePositionBox->value();
    return entry;
}

bool RepoEditor::Config::setStatus(YumConfIO const* yumConfIO, QLabel* label) const
{
    auto const warn = [label](QString const& text) {
        label->setPalette(Colors::makeWarning(label->palette()));
        label->setText(text);
        return true;
    };
    Repo::Entry const entry = toEntry();
    if (entry.id.isEmpty()) {
        label->setPalette(Colors::makeError(label->palette()));
        label->setText(tr("No Identifier specified"));
        return true;
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
    QString const name = authNameEdit->text();
    QString const password = authPasswordEdit->text();
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
