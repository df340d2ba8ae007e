// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"
#include "engine/Relations.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

class HScrollArea;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;
class TextDialog;
class YumConfIO;
class YumIO;

namespace PackageTable::Describe
{

class Dialog;

namespace Instance
{

class RepoDialog;
class Section;

/// One entry in the description dialog: fills a scroll area of that dialog with a list of labelled fields,
/// and answers the buttons among them. No widget itself; its widgets belong to the dialog's content. Owned by
/// the dialog, GUI thread.
class Area : public QObject
{
    Q_OBJECT

public:
    /// Adds the scroll area to `layout`. With `full` all fields are shown, otherwise those in which installed
    /// versions of one package differ. Owns nothing of what it is given; `entry` has to outlive it.
    Area(
        Dialog* dialog, QVBoxLayout* layout, YumIO* yumIO, Package::Entry const& entry, YumConfIO* yumConfIO,
        bool full);
    ~Area() override;

    /// Adds, below the fields, what `relations` offers of the entry: a section each, closed at first.
    void addSections(Relations& relations);
    [[nodiscard]] QList<Relations::Kind> openSections() const;
    /// Opens these, as a user would.
    void openSections(QList<Relations::Kind> const& kinds);

    /// Where the keyboard scrolls.
    [[nodiscard]] HScrollArea* scroll() const { return scrollArea; }
    /// While the engine works nothing here must start anything.
    void setButtonsEnabled(bool enabled);

public Q_SLOTS:
    /// Shows the entry's repository; nothing happens when it isn't configured.
    void handleRepo();
    // These two may run a job of the engine; the dialog can't be closed until its result has been seen.
    void handleFiles();
    void handleChangeLog();

private:
    /// A button of a row; null where the row isn't there.
    struct Button
    {
        QString text; ///< without a note behind it
        QPushButton* button = nullptr;
        int row = -1; ///< in the grid
    };

    void addGroupRows(int& row);
    void addPackageRows(int& row, bool full);

    // Each puts one row into the grid and raises `row`, except where there is no value to show.
    void addHeader(int& row, QString const& text);
    void addPair(int& row, QString const& label, QString const& value);
    Button addButton(int& row, QString const& label, QString const& buttonText);
    Button addPairButton(int& row, QString const& label, QString const& value, QString const& buttonText);

    void addLabel(int row, QString const& label);
    QLabel* makeText(QString const& text);
    QLabel* makeValue(QString const& text);
    QPushButton* makeButton(QString const& text);

    /// Shows which buttons have to load extra data before.
    void updateButtons();
    void updateButton(Button& button, bool collected);
    /// `title` has places for the name and the version.
    void showText(std::function<QString()> const& text, QString const& title);

    Dialog* dialog;
    YumIO* yumIO;
    Package::Entry const& entry;
    YumConfIO* yumConfIO;
    QWidget* parent; ///< of the dialogs made here: none, they are windows of their own
    QPointer<RepoDialog> repoDialog;
    QPointer<TextDialog> textDialog;
    QWidget* container;
    QGridLayout* grid;
    QVBoxLayout* sectionsLayout;
    HScrollArea* scrollArea;
    Button filesButton, changeLogButton;
    QList<QPushButton*> buttons;
    QList<Section*> sections;
};

} // namespace Instance

} // namespace PackageTable::Describe
