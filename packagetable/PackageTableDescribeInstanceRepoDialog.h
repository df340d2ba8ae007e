// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QString>

class QGridLayout;
class QHBoxLayout;
class YumIO;

namespace Repo
{
struct Entry;
}

namespace PackageTable::Describe::Instance
{

/// Tells how one repository is configured, and leads on to it in the user's browser. What it shows is built
/// by `config` and thrown away when the dialog is hidden. GUI thread; owned by whoever made it.
class RepoDialog : public QDialog
{
    Q_OBJECT

public:
    RepoDialog(YumIO* yumIO, QWidget* parent);

    /// Builds the content for `repo`, which has to stay until the dialog is hidden; to be followed by `exec`.
    void config(Repo::Entry const& repo);

    void setVisible(bool visible) override;

public Q_SLOTS:
    void browse();

private:
    /// Adds nothing when there is no value; raises `row` otherwise.
    void addPair(int& row, QString const& label, QString const& value);
    void dropContent();

    YumIO* yumIO;
    Repo::Entry const* repo = nullptr; ///< the repository shown; not owned
    QHBoxLayout* contentLayout;
    QWidget* content = nullptr; ///< null while hidden
    QGridLayout* grid = nullptr;
};

} // namespace PackageTable::Describe::Instance
