// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"
#include "engine/Relations.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <memory>

class QHBoxLayout;
class QPushButton;
class YumConfIO;
class YumIO;

namespace PackageTable::Describe
{

namespace Instance
{
class Area;
}

/// Shows everything that is known of one row of the package table: the entry in full and, below it, each
/// installed version in brief. Where it tells of other packages it leads on to them, and back. Made once by
/// the model and used again; what it shows is built by `config` and thrown away when the dialog is hidden.
/// Owned by its parent widget, GUI thread.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent);
    ~Dialog() override;

    /// Builds the content for `entry`, which has to stay until the dialog is hidden; to be followed by
    /// `exec`. Reads the entry's details, and may show reports of what can't be read. Nothing is owned.
    void config(YumIO* yumIO, Package::Entry const& entry, YumConfIO* yumConfIO);

    /// While not ready, as during a job of the engine, the dialog can't be closed and its buttons are
    /// disabled, since no second job may begin.
    void setReady(bool ready);

    void setVisible(bool visible) override;

public Q_SLOTS:
    void done(int result) override;
    /// Shows the description of another package in the place of this one. The entry has to stay until the
    /// dialog is hidden. Nothing of the content is gone when this returns.
    void follow(Package::Entry const* entry);
    /// Shows the description before that again.
    void goBack();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// A description that was left by a link.
    struct Left
    {
        Package::Entry const* entry;
        QList<Relations::Kind> open;
    };

    void dropContent();
    void dropAreas();
    void buildContent(Package::Entry const& entry);
    void leaveFor(Package::Entry const& entry);
    void showOther(Package::Entry const& entry);

    QHBoxLayout* contentLayout;
    QWidget* content = nullptr; ///< null while hidden
    QList<Instance::Area*> areas;
    bool ready = true;
    YumIO* yumIO = nullptr;
    YumConfIO* yumConfIO = nullptr;
    std::unique_ptr<Relations> relations;      ///< null while hidden
    Package::Entry const* described = nullptr; ///< not owned, as all entries here
    QList<Left> trail;                         ///< from the first description to the one before this
    QPushButton* closeButton;
    QPushButton* backButton;
    QPointer<QWidget> focusWhenReady; ///< disabling it takes the focus away from a button
};

} // namespace PackageTable::Describe
