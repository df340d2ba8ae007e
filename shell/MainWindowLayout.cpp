// SPDX-License-Identifier: GPL-2.0-or-later
// The main window's widget tree: menus, filter row, table, button row and progress bars.
#include "shell/MainWindow.h"

#include "base/Share.h"
#include "base/UserSettings.h"
#include "engine/YumIO.h"
#include "packagetable/PackageTableExpressionEdit.h"
#include "packagetable/PackageTableHeader.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableSelectionActions.h"
#include "packagetable/PackageTableView.h"
#include "services/HProgressBar.h"
#include "shell/Desktop.h"
#include "shell/EmptyTableNote.h"
#include "shell/StatusLine.h"
#include "shell/StopButton.h"
#include "shell/WindowMemory.h"
#include "widgets/HMenu.h"
#include "widgets/WrappingRow.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <sys/utsname.h>

MainWindow::MainWindow(QWidget* parentWidget)
    : QMainWindow(parentWidget),
      updateIcon(Share::icon(QStringLiteral("icons/update.png"))),
      applyIcon(Share::icon(QStringLiteral("icons/check.png")))
{
    utsname machine{};
    uname(&machine);
    setWindowTitle(tr("VEM - %1").arg(QString::fromLocal8Bit(machine.nodename)));
    createMenuBar();
    createMainArea();
}

QSize MainWindow::sizeHint() const
{
    QSize const frame = frameSize() - size();
    int const screenWidth = screen()->availableGeometry().width() - frame.width();
    QSize const hint = QMainWindow::sizeHint().expandedTo(QSize(768, 0));
    return {std::min(hint.width(), screenWidth), hint.height()};
}

void MainWindow::createMenuBar()
{
    auto* const bar = new QMenuBar(this);
    setMenuBar(bar);
    auto const addMenu = [bar](QString const& title) {
        auto* const menu = new HMenu(title, bar);
        bar->addMenu(menu);
        return menu;
    };
    auto const addEntry = [this](HMenu* menu, QString const& text, auto slot) {
        QAction* const action = menu->addAction(text);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };

    programMenu = addMenu(tr("&Program"));
    createOpenAction();
    quitAction = addEntry(programMenu, tr("&Quit"), &MainWindow::quit);
    quitAction->setShortcut(QKeySequence(tr("Ctrl+Q")));

    HMenu* const windowsMenu = addMenu(tr("&Windows"));
    addEntry(windowsMenu, tr("&Log"), &MainWindow::displayLog)->setShortcut(QKeySequence(tr("Ctrl+L")));
    logWithApplyAction = windowsMenu->addAction(tr("Open Log With Each &Apply"));
    logWithApplyAction->setCheckable(true);
    logWithApplyAction->setChecked(UserSettings::value(logWithApplySetting, false).toBool());
    connect(logWithApplyAction, &QAction::toggled, this, [](bool wanted) {
        UserSettings::setValue(logWithApplySetting, wanted);
    });
    windowsMenu->addSeparator();
    addMatters(*windowsMenu);
    windowsMenu->addSeparator();
    resetAction = addEntry(windowsMenu, tr("&Reset Window"), &MainWindow::reset);

    repositoriesMenu = addMenu(tr("&Repositories"));
    editRepositoriesAction =
        addEntry(repositoriesMenu, tr("&Edit Configuration"), [this] { editRepositories(); });
    editRepositoriesAction->setShortcut(QKeySequence(tr("Ctrl+E")));

    cacheMenu = addMenu(tr("&Cache"));
    cleanHeadersAction = addEntry(cacheMenu, tr("Clean Headers"), &MainWindow::cleanHeaders);
    cleanPackagesAction = addEntry(cacheMenu, tr("Clean Packages"), &MainWindow::cleanPackages);
    cleanXmlMetadataAction = addEntry(cacheMenu, tr("Clean XML Metadata"), &MainWindow::cleanXmlMetadata);
    cleanPickledCacheAction = addEntry(cacheMenu, tr("Clean Pickled Data"), &MainWindow::cleanPickledCache);
    cacheMenu->addSeparator();
    cleanAllAction = addEntry(cacheMenu, tr("Clean All"), &MainWindow::cleanAll);

    selectionMenu = addMenu(tr("S&election"));

    HMenu* const helpMenu = addMenu(tr("&Help"));
    addEntry(helpMenu, tr("Manual (html)"), &MainWindow::manualHtml)->setShortcut(QKeySequence(tr("F1")));
    addEntry(helpMenu, tr("Manual (PDF)"), &MainWindow::manualPdf);
    helpMenu->addSeparator();
    addEntry(helpMenu, tr("&About"), &MainWindow::about);
}

QLayout* MainWindow::createFilterRow()
{
    modeCombo = new QComboBox(tableArea);
    modeCombo->addItem(tr("Filter"), 0);
    modeCombo->addItem(tr("Search"), 1);
    modeCombo->setAccessibleName(tr("Filter or Search"));
    connect(modeCombo, &QComboBox::currentIndexChanged, this, &MainWindow::modeChanged);

    regExpEdit = new PackageTable::ExpressionEdit(QStringLiteral(".*"), tableArea);
    regExpEdit->setAccessibleName(tr("Regular expression"));
    connect(regExpEdit, &QLineEdit::returnPressed, this, &MainWindow::filtersearch);
    connect(regExpEdit, &PackageTable::ExpressionEdit::chosen, this, &MainWindow::filtersearch);
    connect(regExpEdit, &PackageTable::ExpressionEdit::paused, this, &MainWindow::followTyping);
    connect(
        regExpEdit, &PackageTable::ExpressionEdit::matchesCaseChanged, this, &MainWindow::matchesCaseChanged);
    connect(regExpEdit, &PackageTable::ExpressionEdit::faultChanged, this, [this](QString const& fault) {
        statusLine->setWarning(fault);
    });

    filterButton = new QPushButton(tableArea);
    filterButton->setDefault(true);
    connect(filterButton, &QPushButton::clicked, this, &MainWindow::filtersearch);

    stateFilterCombo = new QComboBox(tableArea);
    stateFilterCombo->addItem(tr("View Updatable"), 0);
    stateFilterCombo->addItem(tr("View Installable"), 1);
    stateFilterCombo->addItem(tr("View Removable"), 2);
    stateFilterCombo->addItem(tr("View All"), 3);
    stateFilterCombo->addItem(tr("View Marked"), 4);
    stateFilterCombo->addItem(tr("View Security Updates"), 5);
    stateFilterCombo->setToolTip(tr("Filter for those packages which are eligible for updating,\n"
                                    "for installing, or for removing; or show all packages"));
    stateFilterCombo->setAccessibleName(tr("View"));
    connect(stateFilterCombo, &QComboBox::currentIndexChanged, this, &MainWindow::stateFilterChanged);

    includeGroupsBox = new QCheckBox(tr("Include Groups"), tableArea);
    includeGroupsBox->setToolTip(tr("Whether or not filter should include package groups"));
    connect(includeGroupsBox, &QCheckBox::toggled, this, &MainWindow::groupsFilterChanged);

    auto* const row = new WrappingRow;
    row->addWidget(modeCombo);
    row->addWidget(regExpEdit);
    row->addWidget(filterButton);
    row->addWidget(stateFilterCombo);
    row->addWidget(includeGroupsBox);
    return row;
}

QLayout* MainWindow::createButtonRow()
{
    auto* const row = new WrappingRow;
    auto const addButton = [&](QString const& text, QIcon const& icon, QString const& tip, auto slot) {
        auto* const button = new QPushButton(icon, text, tableArea);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    describeButton = addButton(
        tr("&Describe"), QIcon(),
        tr("Pop up a window with a detailed description of the currently selected package"),
        [this] { view->describe(); });
    describeButton->setEnabled(false);
    row->addStretch(1);
    addButton(
        tr("Re&size"), QIcon(), tr("Resize the columns and window to optimal values"), &MainWindow::resize);
    addButton(
        tr("Re&fresh"), QIcon(),
        tr("Refresh the list of installed packages and packages available for update.\n"
           "Use this to check for new updates in repositories, or if any packages were installed manually."),
        &MainWindow::refresh);
    addButton(
        tr("Set &Install/Update of Selected"), QIcon(),
        tr("Sets the Action for all selected packages which are Not Installed to Install, and\n"
           "sets the Action for all selected packages which are Installed but Out-of-date to Update.\n"
           "Does not Apply Actions automatically."),
        &MainWindow::setSelected);
    addButton(
        tr("Set &Update of All Out-of-Date"), updateIcon,
        tr("Sets the Action for all packages which are Installed but Out-of-date to Update.\n"
           "Does not Apply Actions automatically."),
        &MainWindow::setUpdateAll);
    addButton(
        tr("&Clear Actions"), clearIcon, tr("Clears all specified Actions (Updates, Installs, and Removals)"),
        &MainWindow::clearActions);
    applyButton = addButton(
        tr("&Apply Actions"), applyIcon,
        tr("Applies the specified Actions (Updates, Installs, and Removals)"), &MainWindow::apply);
    applyButton->setEnabled(false);
    return row;
}

void MainWindow::fillSelectionMenu()
{
    findAction = selectionMenu->addAction(tr("&Find"));
    findAction->setShortcut(QKeySequence::Find);
    connect(findAction, &QAction::triggered, this, [this] {
        regExpEdit->setFocus(Qt::ShortcutFocusReason);
        regExpEdit->selectAll();
    });
    selectionMenu->addSeparator();
    view->actions()->fill(*selectionMenu);
    selectionMenu->addSeparator();
    securityAction = selectionMenu->addAction(tr("Set Update of &Security Fixes"));
    securityAction->setShortcut(QKeySequence(tr("Ctrl+Shift+U")));
    connect(securityAction, &QAction::triggered, this, &MainWindow::setUpdateSecurity);
    selectionMenu->addSeparator();
    selectionMenu->addMenu(view->header()->columnsMenu());
}

void MainWindow::createMainArea()
{
    auto* const central = new QWidget(this);
    auto* const outer = new QVBoxLayout(central);
    tableArea = new QWidget(central);
    outer->addWidget(tableArea);
    auto* const inner = new QVBoxLayout(tableArea);
    inner->addLayout(createFilterRow());

    yumIO = new YumIO;
    connect(yumIO, &YumIO::collectedExtraData, this, &MainWindow::collectedExtraData);
    model = new PackageTable::Model(yumIO, tableArea);
    connect(model, &PackageTable::Model::busy, this, [this](bool begins) { setReady(!begins); });
    view = new PackageTable::View(model, PackageTable::Updatable, false, yumIO, tableArea);
    connect(
        view, qOverload<int, int>(&PackageTable::View::currentChanged), this, &MainWindow::currentChanged);
    connect(view, &PackageTable::View::stateChanged, this, &MainWindow::stateChanged);
    inner->addWidget(view);
    fillSelectionMenu();
    inner->addLayout(createButtonRow());
    new EmptyTableNote(view, yumIO, {modeCombo, regExpEdit, stateFilterCombo, includeGroupsBox});
    statusLine = new StatusLine(tableArea);
    inner->addWidget(statusLine);
    connect(statusLine, &StatusLine::marksWanted, this, [this] {
        stateFilterCombo->setCurrentIndex(PackageTable::Marked);
    });
    connect(statusLine, &StatusLine::incompleteWanted, this, &MainWindow::showIncomplete);
    connect(view->model(), &QAbstractItemModel::modelReset, this, &MainWindow::showRowCounts);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MainWindow::showRowCounts);

    // Until the first collection is done the bars are all that the user sees.
    tableArea->setVisible(false);
    auto* const itemBar = new HProgressBar(central);
    itemBar->setAccessibleName(tr("Item Progress"));
    auto* const totalBar = new HProgressBar(central);
    totalBar->setAccessibleName(tr("Total Progress"));
    desktop = new Desktop(this);
    connect(totalBar, &QProgressBar::valueChanged, desktop, [this, totalBar](int value) {
        desktop->showProgress(value, totalBar->minimum(), totalBar->maximum());
    });
    auto* const stopButton = new StopButton(yumIO->stop, central);
    connect(stopButton, &QPushButton::clicked, this, &MainWindow::stop);
    auto* const bars = new QVBoxLayout;
    bars->addWidget(itemBar);
    bars->addWidget(totalBar);
    auto* const progressRow = new QHBoxLayout;
    progressRow->addLayout(bars);
    progressRow->addWidget(stopButton);
    outer->addLayout(progressRow);
    yumIO->setup(this, totalBar, itemBar);
    setCentralWidget(central);
    regExpEdit->setMatchesCase(UserSettings::value(matchCaseSetting, true).toBool());
    collectedExtraData();
    memory = new WindowMemory(this, view->header(), modeCombo);
    memory->restore();
    tellMode(modeCombo->currentIndex());
    view->setMode(static_cast<PackageTable::Mode>(modeCombo->currentIndex()));
    setReady(false);
}
