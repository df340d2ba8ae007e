// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/TransactionDetails.h"

#include <QStringList>
#include <QWidget>

class DetailsModel;
class DetailsProxy;
class ListTable;
class QLayout;
class QPlainTextEdit;
class QPushButton;

/// What is told of a transaction beyond the list: warnings, totals, a table of its packages, and what has
/// changed between the versions once that is asked for. Owned by its parent widget, GUI thread.
class DetailsPage final : public QWidget
{
    Q_OBJECT

public:
    DetailsPage(TransactionDetails const& transaction, QWidget* parent);

public Q_SLOTS:
    /// A text for each row of the transaction, in their order; empty where nothing is known. No text at all
    /// if they could not be read, which has been told.
    void showChanges(QStringList const& texts);

Q_SIGNALS:
    /// The user wants to see what has changed.
    void changesWanted();

protected:
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] static QString warningsOf(QList<TransactionDetails::Row> const& rows);
    [[nodiscard]] QLayout* warningLine(QString const& text);
    [[nodiscard]] QString totals(TransactionDetails const& transaction) const;
    void buildTable();
    void buildChanges();
    void wantChanges();
    void showChangesOfCurrent();
    [[nodiscard]] QString changesOf(int row) const;

    DetailsModel* model;
    DetailsProxy* proxy;
    ListTable* table = nullptr;
    QPushButton* load = nullptr; ///< null where there are no changes to load
    QPlainTextEdit* changesEdit = nullptr;
    QStringList changes;
};
