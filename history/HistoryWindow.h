// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/HistoryWish.h"
#include "matters/MatterWindow.h"

#include <QString>
#include <QTimer>

class ListTable;
class QHBoxLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QWidget;
class YumIO;

namespace History
{

class Model;
class PackagesModel;
class Proxy;
class Records;
struct Transaction;
struct Whole;

/// All transactions of the package library's history: a table that is searched by package, below it the
/// chosen one in full, and buttons to undo it, to do it again, to go back to it, and to write it into a file.
/// Whoever may only look sees it, too.
class Window final : public MatterWindow
{
    Q_OBJECT

public:
    Window(YumIO* yumIO, QWidget* parent);

    /// Whether the helper script can tell the history.
    [[nodiscard]] static bool offered(YumIO const& yumIO);

protected:
    void hideEvent(QHideEvent* event) override;
    void readAll() override;
    void showChosen() override;
    void enableControls() override;
    void takeLooks() override;

private:
    /// Asks the script what it can do. Not while a job runs: the interpreter may be held for long then.
    void learn();
    void build();
    [[nodiscard]] QHBoxLayout* createSearchRow();
    [[nodiscard]] QWidget* createDetails();
    [[nodiscard]] QHBoxLayout* createButtonRow();
    void search();
    /// Shows what fits the search, and has this transaction chosen, if it does, else the first one.
    void findAndChoose(int number);
    /// The chosen one; null for none.
    [[nodiscard]] Transaction const* current() const;
    /// Its number; 0 for none.
    [[nodiscard]] int currentNumber() const;
    void showHead(Whole const& whole);
    void showOutput(Whole const& whole);
    void wish(HistoryWish::Kind kind);
    [[nodiscard]] bool goesOnWithout(QStringList const& obstacles);
    void exportTransaction(int number);

    Records* records;
    Model* model;
    Proxy* proxy;
    PackagesModel* packagesModel;
    QLineEdit* searchEdit = nullptr;
    ListTable* table = nullptr;
    QPlainTextEdit* headEdit = nullptr;
    QTabWidget* pages = nullptr;
    ListTable* packagesTable = nullptr;
    QPlainTextEdit* outputEdit = nullptr;
    QPushButton* undoButton = nullptr;
    QPushButton* redoButton = nullptr;
    QPushButton* rollBackButton = nullptr;
    QPushButton* exportButton = nullptr;
    QTimer typing;         ///< runs from a letter in the search until that is done
    QString whyNot;        ///< why nobody may change the packages; empty where the user may
    bool searches = false; ///< the script can, as below
    bool exports = false;
    bool turnsBack = false;
    int shown = 0; ///< number of the transaction whose details show
};

} // namespace History
