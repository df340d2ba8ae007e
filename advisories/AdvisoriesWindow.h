// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "matters/MatterWindow.h"

#include <QStringList>

class ListTable;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QSplitter;
class QTextBrowser;

namespace Advisories
{

class Model;
class PackagesModel;
class Proxy;
class Reader;
struct Advisory;
struct Whole;

/// What the repositories advise about installed packages: a table of which the open ones show at first, below
/// it the chosen one in full, and buttons that mark the updates which carry them out.
class Window final : public MatterWindow
{
    Q_OBJECT

public:
    Window(YumIO* yumIO, QWidget* parent);

    /// Whether the helper script can tell the advisories.
    [[nodiscard]] static bool offered(YumIO const& yumIO);

Q_SIGNALS:
    /// The updates of the packages of these names are to be marked.
    void updatesWanted(QStringList const& names);
    /// An address is to be shown by the outside program.
    void addressWanted(QString const& address);

protected:
    void readAll() override;
    void showChosen() override;
    void enableControls() override;
    void takeLooks() override;

private:
    void build();
    [[nodiscard]] QHBoxLayout* createFilterRow();
    [[nodiscard]] QSplitter* createDetails();
    [[nodiscard]] QHBoxLayout* createButtonRow();
    /// Shows what fits the choices, and has this advisory chosen, if it does, else the first one.
    void findAndChoose(QString const& identifier);
    /// The chosen one; null for none.
    [[nodiscard]] Advisory const* current() const;
    [[nodiscard]] QString currentIdentifier() const;
    void showText(Whole const& whole);
    /// What there is to say where no advisory is chosen.
    [[nodiscard]] QString whyNothing() const;

    Reader* reader;
    Model* model;
    Proxy* proxy;
    PackagesModel* packagesModel;
    QComboBox* showCombo = nullptr;
    QLineEdit* searchEdit = nullptr;
    ListTable* table = nullptr;
    QTextBrowser* text = nullptr;
    ListTable* packagesTable = nullptr;
    QPushButton* markButton = nullptr;
    QStringList openNames; ///< of the packages that the chosen one advises to update
    bool told = false;     ///< the advisories have been read
    bool known = false;    ///< some repository tells of advisories
    QString shown;         ///< identifier of the advisory whose details show
};

} // namespace Advisories
