// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QEventLoop>

class PasswdEchoEdit;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Repo
{
struct Entry;
}

namespace RepoAuth
{

/// The window that asks for the name and password of one repository after the other, staying up between
/// them. Made by the checker when there is something to ask, and hidden by it. GUI thread.
class Dialog final : public QDialog
{
    Q_OBJECT

public:
    /// What `result()` can be.
    enum Answer
    {
        SkipAll = 0,
        OK = 1,
        ApplyAll = 2,
        ApplyHost = 3,
        Disable = 4,
        Quit = 5
    };

    explicit Dialog(QWidget* parent);

    using QDialog::exec;
    /// Asks about `entry` and comes back with an answer in `result()`. OK, ApplyAll and ApplyHost have put
    /// the name and password into the entry's addresses, unless both are blank; the others leave it alone.
    /// Escape, and closing the window, are SkipAll; the end of the program is Quit.
    void exec(Repo::Entry* entry);

    /// Pairs with the busy cursor of the main window, which stands while this is hidden.
    void setVisible(bool visible) override;
    [[nodiscard]] QSize sizeHint() const override;

public Q_SLOTS:
    /// Ends the question, not the window.
    void done(int code) override;

private Q_SLOTS:
    void handleSkipAll();
    void handleOK();
    void handleApplyAll();
    void handleApplyHost();
    void handleDisable();
    void handleQuit();
    void authChanged(QString const& text);

private:
    QLabel* addValue(QGridLayout* grid, QString const& caption);
    /// Answers the field's caption.
    QLabel* addEdit(QGridLayout* grid, QLineEdit* edit, QString const& toolTip);
    QPushButton* createButton(QString const& text, void (Dialog::*slot)());
    /// The buttons that wait for a question. The two that apply an answer to others keep their state.
    void setAnswersEnabled(bool enabled);
    /// The addresses with the name typed and this password; as they were when both are blank.
    [[nodiscard]] QString filled(QString const& urls, QString const& password) const;
    /// Shows the addresses of the entry as they would become.
    void showUrls();
    /// Puts what the user typed into the addresses of the entry.
    void setUrls();

    QLabel* idLabel = nullptr;
    QLabel* nameLabel = nullptr;
    QLabel* baseurlLabel = nullptr;
    QLabel* mirrorlistLabel = nullptr;
    QLabel* authNameLabel = nullptr;
    QLineEdit* authNameEdit = nullptr;
    QLabel* authPasswordLabel = nullptr;
    PasswdEchoEdit* authPasswordEdit = nullptr;
    QPushButton* quitButton = nullptr;
    QPushButton* disableButton = nullptr;
    QPushButton* skipAllButton = nullptr;
    QPushButton* applyAllButton = nullptr;
    QPushButton* applyHostButton = nullptr;
    QPushButton* okButton = nullptr;
    Repo::Entry* entry = nullptr; ///< the one that is asked about; not owned
    QEventLoop eventLoop;
};

} // namespace RepoAuth
