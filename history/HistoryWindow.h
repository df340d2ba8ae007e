// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/HistoryWish.h"
#include "widgets/HDialog.h"

#include <QString>
#include <QTimer>
#include <functional>

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
/// Whoever may only look sees it, too. It is read when the window is shown, and by `reload`. Owned by its
/// parent widget, GUI thread.
class Window final : public HDialog
{
    Q_OBJECT

public:
    /// An apply, or several; answers whether something was applied.
    using Job = std::function<bool()>;

    /// The engine isn't owned; it outlives this window, or the time for which that is shown.
    Window(YumIO* yumIO, QWidget* parent);

    /// Whether the helper script can tell the history.
    [[nodiscard]] static bool offered(YumIO const& yumIO);

    /// Takes part in what the main window allows: nothing while a job is in progress.
    void setReady(bool ready);

public Q_SLOTS:
    /// Reads the history again; the same transaction stays chosen.
    void reload();

Q_SIGNALS:
    /// A reading takes long enough to be noticed, and is over.
    void busy(bool begins);
    /// The user wants something done. Whoever has this done sees to what stands around an apply.
    void applies(Job const& job);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Asks the script what it can do. Not while a job runs: the interpreter may be held for long then.
    void learn();
    void build();
    [[nodiscard]] QHBoxLayout* createSearchRow();
    [[nodiscard]] QWidget* createDetails();
    [[nodiscard]] QHBoxLayout* createButtonRow();
    void takeLooks();
    void search();
    /// Shows what fits the search, and has this transaction chosen, if it does, else the first one.
    void findAndChoose(int number);
    /// The chosen one; null for none.
    [[nodiscard]] Transaction const* current() const;
    /// Its number; 0 for none.
    [[nodiscard]] int currentNumber() const;
    void showCurrent();
    void showHead(Whole const& whole);
    void showOutput(Whole const& whole);
    void enableButtons();
    void wish(HistoryWish::Kind kind);
    [[nodiscard]] bool goesOnWithout(QStringList const& obstacles);
    void exportTransaction(int number);

    YumIO* yumIO;
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
    QTimer choice;  ///< runs from the choice of a row until that is read, since arrows run through many
    QTimer typing;  ///< the same for the search
    QString whyNot; ///< why nobody may change the packages; empty where the user may
    bool searches = false; ///< the script can, as below
    bool exports = false;
    bool turnsBack = false;
    bool isReady = true;
    int shown = 0; ///< number of the transaction whose details show
};

} // namespace History
