// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/RepoEntry.h"

#include <QObject>
#include <QString>

class HTextEdit;
class PasswdEchoEdit;
class PasswdLineEdit;
class PasswdTextEdit;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;
class YumConfIO;

namespace RepoEditor
{

/// The fields that show and edit one repository, and what there is to tell about them. Not a widget: it fills
/// a layout that it is given, whose owner owns the fields. Owned by the window of that layout, which outlives
/// the fields' use; GUI thread.
class Config final : public QObject
{
    Q_OBJECT

public:
    /// Builds the fields into `layout`, as children of the layout's parent widget if it has one yet.
    explicit Config(QGridLayout* layout);

    /// What the items Default stand for.
    void setDefaults(bool enabled, bool gpgcheck);

    /// Empties and disables the form.
    void disable();

    /// Shows a repository and enables the form. Emits nothing.
    void setEntry(Repo::Entry const& entry);

    /// What the fields say, with the real passwords. A text that the user hasn't changed is the one that was
    /// given, byte for byte.
    [[nodiscard]] Repo::Entry toEntry() const;

    /// Why the fields can't be taken as they are; empty when they can.
    [[nodiscard]] QString refusal() const;

    /// Tells the first problem in `label`, by text and colour; false, and nothing told, when there is none.
    bool setStatus(YumConfIO const* yumConfIO, QLabel* label) const;

    /// Puts the keyboard to the first field.
    void setFocus();

Q_SIGNALS:
    /// The user has changed a field.
    void changed();

private Q_SLOTS:
    void authChanged(QString const& text);
    void urlChanged();
    void urlChanged(QString const& text);
    void valueChanged();
    void valueChanged(QString const& text);
    void valueChanged(int index);

private:
    QWidget* createAuth(QWidget* parent);
    QWidget* createOptions(QWidget* parent);
    QWidget* createSimpleOptions(QWidget* parent);
    QWidget* createFileInfo(QWidget* parent);
    /// A box with the three values of a Repo::Switch.
    QComboBox* createSwitch(QWidget* parent, QString const& toolTip);

    /// What stands in the fields, be it changed or not.
    [[nodiscard]] Repo::Entry fields() const;
    /// Shows the credentials of the entry's addresses; true when it has any.
    bool showAuth(Repo::Entry const& entry);
    void setCaptions(QString const& keyName, QString const& keyPassword);
    void setFieldsEnabled(bool enabled, bool authEnabled);

    bool blockChanged = false; ///< while true, changes of fields are not the user's
    Repo::Entry loaded;        ///< what was given
    Repo::Entry shown;         ///< what the fields made of that
    QLineEdit* idEdit = nullptr;
    QLineEdit* nameEdit = nullptr;
    PasswdTextEdit* baseurlEdit = nullptr;
    PasswdLineEdit* mirrorlistEdit = nullptr;
    QLabel* authNameLabel = nullptr;
    QLineEdit* authNameEdit = nullptr;
    QLabel* authPasswordLabel = nullptr;
    PasswdEchoEdit* authPasswordEdit = nullptr;
    QComboBox* enabledBox = nullptr;
    QComboBox* gpgcheckBox = nullptr;
    HTextEdit* otherOptionsEdit = nullptr;
    QLineEdit* fileEdit = nullptr;
    QDoubleSpinBox* filePositionBox = nullptr;
};

} // namespace RepoEditor
