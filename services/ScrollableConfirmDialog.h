// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

class DetailsPage;
class QLabel;
struct TransactionDetails;

/// A modal question of any length, with the buttons OK and Cancel. GUI thread.
class ScrollableConfirmDialog final : public QDialog
{
    Q_OBJECT

public:
    ScrollableConfirmDialog(QString const& text, QWidget* parent);
    /// The text is the first page, the details of the transaction are the second one.
    ScrollableConfirmDialog(QString const& text, TransactionDetails const& details, QWidget* parent);
    ~ScrollableConfirmDialog() override;

public Q_SLOTS:
    /// See DetailsPage.
    void showChanges(QStringList const& texts);

Q_SIGNALS:
    void changesWanted();

private:
    ScrollableConfirmDialog(QString const& text, TransactionDetails const* details, QWidget* parent);

    QLabel* textLabel;
    DetailsPage* page = nullptr; ///< null without details
};
