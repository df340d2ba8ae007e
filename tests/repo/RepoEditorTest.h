// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ConfRoot.h"

#include "repo/RepoEditorDialog.h"
#include "repo/RepoEditorView.h"
#include "tests/packagetable/TestEngine.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QTest>
#include <QWidget>
#include <memory>

/// What the tests of the editor's window share: a managed system of four repositories in three files, the
/// window over it, and hands and eyes that find things by the words on them.
class RepoEditorTest : public QObject
{
    Q_OBJECT

protected:
    /// Not shown yet. The table is going to show fen, marsh, moor, weald.
    void makeDialog()
    {
        root = std::make_unique<ConfRoot>();
        root->write("/etc/yum.conf", "[main]\nreposdir=/etc/yum.repos.d\n");
        root->write("/etc/yum.repos.d/a.repo", "[weald]\nname=d\nenabled=1\n[fen]\nname=c\n");
        root->write("/etc/yum.repos.d/b.repo", "[moor]\nname=b\nenabled=0\n");
        root->write("/etc/yum.repos.d/c.repo", "[marsh]\nname=a\n");
        QVERIFY(root->conf.read(nullptr));
        engine = std::make_unique<TestEngine>();
        owner = std::make_unique<QWidget>();
        dialog = new RepoEditor::Dialog(engine.get(), &root->conf, owner.get());
    }

    void dropDialog()
    {
        owner.reset();
        engine.reset();
        root.reset();
    }

    RepoEditor::View* table() const { return dialog->findChild<RepoEditor::View*>(); }

    QPushButton* button(QString const& text) const
    {
        for (QPushButton* const candidate :
             dialog->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    void click(QString const& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }

    /// The words on the buttons that can be pressed.
    QStringList pressable() const
    {
        QStringList texts;
        for (QPushButton const* const candidate :
             dialog->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (candidate->isEnabled()) {
                texts.append(candidate->text());
            }
        }
        return texts;
    }

    QLabel* status() const { return dialog->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly); }
    QColor statusColor() const { return status()->palette().color(QPalette::WindowText); }

    /// The identifiers in the table, from top to bottom.
    QStringList shown() const
    {
        QStringList ids;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            ids.append(table()->model()->index(row, 2).data().toString());
        }
        return ids;
    }

    QModelIndex cell(QString const& id, int column) const
    {
        return table()->model()->index(static_cast<int>(shown().indexOf(id)), column);
    }

    void clickCell(QString const& id, int column, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(
            table()->viewport(), Qt::LeftButton, modifiers, table()->visualRect(cell(id, column)).center());
    }

    /// The identifier in the current row.
    QString currentId() const { return table()->currentIndex().siblingAtColumn(2).data().toString(); }

    Repo::Entry& entry(QString const& id) const
    {
        for (Repo::Entry& candidate : root->conf.repos) {
            if (candidate.id == id) {
                return candidate;
            }
        }
        static Repo::Entry none;
        return none = Repo::Entry();
    }

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<QWidget> owner;
    RepoEditor::Dialog* dialog = nullptr; ///< child of the owner
};
