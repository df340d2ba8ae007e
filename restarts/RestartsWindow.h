// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "matters/MatterWindow.h"
#include "restarts/RestartsAdvice.h"

#include <QString>

class ListTable;
class QHBoxLayout;
class QPlainTextEdit;
class QPushButton;

namespace Restarts
{

class FilesModel;
class Model;
class Reader;

/// What still works with what has been replaced: whether the system is to be started anew, below that a table
/// of the processes and the files of the chosen one, and a button that restarts their services.
class Window final : public MatterWindow
{
    Q_OBJECT

public:
    Window(YumIO* yumIO, QWidget* parent);

    /// Whether the helper script can tell what is to be restarted.
    [[nodiscard]] static bool offered(YumIO const& yumIO);

protected:
    void readAll() override;
    void showChosen() override;
    void enableControls() override;
    void takeLooks() override;

private:
    void build();
    [[nodiscard]] QHBoxLayout* createButtonRow();
    /// The chosen one; null for none.
    [[nodiscard]] Process const* current() const;
    void showHead();
    void restartServices();

    Reader* reader;
    Model* model;
    FilesModel* filesModel;
    QPlainTextEdit* headEdit = nullptr;
    ListTable* table = nullptr;
    ListTable* filesTable = nullptr;
    QPushButton* restartButton = nullptr;
    Advice advice;
    QString whyNot;        ///< why nobody may restart services; empty where the user may
    bool restarts = false; ///< the script can
    bool told = false;     ///< the advice has been read
};

} // namespace Restarts
