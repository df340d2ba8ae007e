// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <QDialog>
#include <QList>
#include <QPointer>

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
/// installed version in brief. Made once by the model and used again; what it shows is built by `config` and
/// thrown away when the dialog is hidden. Owned by its parent widget, GUI thread.
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

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void dropContent();

    QHBoxLayout* contentLayout;
    QWidget* content = nullptr; ///< null while hidden
    QList<Instance::Area*> areas;
    bool ready = true;
    QPushButton* closeButton;
    QPointer<QWidget> focusWhenReady; ///< disabling it takes the focus away from a button
};

} // namespace PackageTable::Describe
