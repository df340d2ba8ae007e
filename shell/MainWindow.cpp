// SPDX-License-Identifier: GPL-2.0-or-later
// The main window's slots: start-up, rebuilds of the table, filter line, enabling of the controls, help.
#include "shell/MainWindow.h"

#include "base/Share.h"
#include "base/UserSettings.h"
#include "bridge/Python.h"
#include "engine/YumIO.h"
#include "packagetable/PackageTableExpressionEdit.h"
#include "packagetable/PackageTableMarks.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableView.h"
#include "repo/Execute.h"
#include "repo/RepoAuthChecker.h"
#include "repo/RepoEditorDialog.h"
#include "repo/YumConfIO.h"
#include "services/LogWindow.h"
#include "shell/Desktop.h"
#include "shell/StatusLine.h"
#include "shell/WindowMemory.h"
#include "widgets/HMenu.h"
#include "widgets/Sizing.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <utility>

namespace
{

constexpr QLatin1String documentation("/usr/share/doc/vem-1.7.2");

/// The toolkit keeps a box narrow, however large its letters are: it gets wider where it would be higher than
/// the screen.
void fitToScreen(QLabel* words)
{
    constexpr int narrow = 400; // of the toolkit's 500 pixels, with room for a picture
    QSize const limit = Sizing::screenLimit(words) * 2 / 3;
    int width = narrow;
    words->setWordWrap(true);
    while (words->heightForWidth(width) > limit.height() && width < limit.width()) {
        width += narrow / 8;
    }
    if (width > narrow) {
        words->setMinimumWidth(width);
    }
}

} // namespace

MainWindow::~MainWindow()
{
    delete logWindow;
    // The table reads the engine's rows, so it goes first.
    delete tableArea;
    delete yumIO;
}

void MainWindow::setVisible(bool visible)
{
    QMainWindow::setVisible(visible);
    // A window that is shown may be shown once more: as an icon, or as large as the screen.
    if (visible && !std::exchange(begun, true)) {
        QTimer::singleShot(0, this, &MainWindow::initialize);
    }
}

void MainWindow::initialize()
{
    yumConfIO = new YumConfIO(yumRepoEnabledList, reposEnabled);
    yumConfIO->setParent(this);
    connect(yumConfIO, &YumConfIO::changed, this, &MainWindow::yumConfIOChanged);
    model->setYumConfIO(yumConfIO);
    if (logFlag) {
        displayLog();
    }
    if (!yumIO->initialize() || !yumIO->offerLooking()) {
        quit();
        return;
    }
    statusLine->setLooking(yumIO->whyNoChange());
    takeNamedFiles();
    if (repoEditorFlag) {
        model->reset();
        setReady(true);
        editRepositories(true);
        return;
    }
    {
        RepoAuth::Checker const checker(this, yumConfIO);
        if (checker.quitRequested) {
            quit();
            return;
        }
        if (checker.credentialsChanged) {
            yumIO->clear();
        }
    }
    yumIO->collect(reposEnabled);
    model->reset();
    showTable();
    markOpened();
    setReady(true);
}

void MainWindow::showTable()
{
    view->measureColumns();
    tableArea->setVisible(true);
    view->resizeColumnsToContents();
    memory->restoreSizes();
    // The first letters that are typed take the place of what matches everything.
    focusWhenReady = regExpEdit;
    regExpEdit->selectAll();
    if (!UserSettings::putAside().isEmpty()) {
        statusLine->setWarning(tr("What the program remembers was damaged; it has been put aside as %1")
                                   .arg(UserSettings::putAside()));
    }
}

void MainWindow::setReady(bool ready)
{
    Python::PyGILStateWrapper const lock(ready);
    programMenu->setEnabled(ready);
    enableOpening(ready);
    quitAction->setEnabled(ready);
    repositoriesMenu->setEnabled(ready);
    editRepositoriesAction->setEnabled(ready);
    cacheMenu->setEnabled(ready);
    cleanHeadersAction->setEnabled(ready);
    cleanPackagesAction->setEnabled(ready);
    cleanXmlMetadataAction->setEnabled(ready);
    cleanPickledCacheAction->setEnabled(ready && yumIO->hasPickledCache());
    cleanAllAction->setEnabled(ready);
    resetAction->setEnabled(ready);
    selectionMenu->setEnabled(ready);
    findAction->setEnabled(ready);
    allowMatters(ready);
    if (!ready) {
        focusWhenReady = focusWidget();
    }
    tableArea->setEnabled(ready);
    if (ready) {
        desktop->clearProgress();
        QApplication::restoreOverrideCursor();
        // What is disabled loses the keyboard, and doesn't get it back by itself.
        if (focusWhenReady && !focusWidget()) {
            focusWhenReady->setFocus();
        }
    } else {
        QApplication::setOverrideCursor(Qt::BusyCursor);
    }
    QEventLoop().processEvents(QEventLoop::ExcludeUserInputEvents);
    if (ready) {
        // Behind whatever has been going on.
        QMetaObject::invokeMethod(this, &MainWindow::tellCollected, Qt::QueuedConnection);
    }
}

template <typename Step>
void MainWindow::whileBusy(Step const& step)
{
    setReady(false);
    step();
    setReady(true);
}

template <typename Step>
void MainWindow::whileSearching(bool searches, Step const& step)
{
    searches ? whileBusy(step) : step();
    tellIfCutOff();
}

void MainWindow::rebuild()
{
    yumIO->clear();
    // A search in force tests the new rows, and needs their data before.
    bool const canSearch = prepareFilterSearch(yumIO->collect(reposEnabled) && view->hasExpression());
    model->reset();
    if (!canSearch) {
        modeCombo->setCurrentIndex(PackageTable::Filter);
    }
    showMarks();
    markOpened();
}

void MainWindow::resize()
{
    view->resizeColumnsToContents();
}

void MainWindow::reset()
{
    memory->forget();
    regExpEdit->setMatchesCase(true);
    logWithApplyAction->setChecked(false);
    modeCombo->setCurrentIndex(0);
    view->sortByColumn(PackageTable::KindColumn, Qt::AscendingOrder);
    QMainWindow::resize(sizeHint());
    resize();
}

void MainWindow::refresh()
{
    whileBusy([this] {
        PackageTable::Marks const marks(*yumIO);
        rebuild();
        restore(marks);
    });
    reloadMatters();
}

void MainWindow::restore(PackageTable::Marks const& marks)
{
    qsizetype const lost = marks.restore(*yumIO, *model);
    view->marksChanged();
    showMarks();
    statusLine->setWarning(
        lost > 0 ? tr("Actions that are gone with their rows: %1").arg(lost) : regExpEdit->fault());
    if (lost == 0) {
        tellIfCutOff();
    }
}

void MainWindow::reposChanged()
{
    setReady(false);
    if (RepoAuth::Checker(this, yumConfIO).quitRequested) {
        quit();
        return;
    }
    rebuild();
    if (tableArea->isHidden()) {
        showTable();
    }
    setReady(true);
}

void MainWindow::yumConfIOChanged()
{
    QString const directory = yumConfIO->cachedir;
    cleanHeadersAction->setToolTip(tr("Clean RPM package headers cached locally in %1").arg(directory));
    cleanPackagesAction->setToolTip(
        tr("Clean RPM packages cached locally in %1\n(useful for recovering disk space)").arg(directory));
    cleanXmlMetadataAction->setToolTip(tr("Clean XML metadata cached locally in %1\n(useful along with Clean "
                                          "Pickled Data for\n forcing download "
                                          "of new available package lists)")
                                           .arg(directory));
    cleanPickledCacheAction->setToolTip(tr("Clean pickled data cached locally in %1\n(useful along with "
                                           "Clean XML Metadata for\n forcing download "
                                           "of new available package lists)")
                                            .arg(directory));
    cleanAllAction->setToolTip(tr("Clean all data cached locally in %1").arg(directory));
}

void MainWindow::quit()
{
    // The application ends with its last window, which the log is when this one has been closed already.
    if (logWindow) {
        logWindow->close();
    }
    closeMatters();
    close();
    // The table reads the engine's rows, so it goes first.
    delete tableArea;
    delete std::exchange(yumIO, nullptr);
}

void MainWindow::editRepositories(bool forceReposChanged)
{
    if (!repoEditorDialog) {
        repoEditorDialog = new RepoEditor::Dialog(yumIO, yumConfIO, this);
        connect(repoEditorDialog, &RepoEditor::Dialog::reposChanged, this, &MainWindow::reposChanged);
    }
    repoEditorDialog->forceReposChanged = forceReposChanged;
    repoEditorDialog->exec();
}

template <typename Clean>
void MainWindow::cleaning(Clean const& clean)
{
    whileBusy([&] {
        // What is stopped leaves the table as it is.
        if (clean() || !yumIO->stop.stopped()) {
            rebuild();
        }
    });
}

void MainWindow::cleanHeaders()
{
    cleaning([this] { return yumIO->cleanHeaders(); });
}

void MainWindow::cleanPackages()
{
    whileBusy([this] { yumIO->cleanPackages(); });
}

void MainWindow::cleanXmlMetadata()
{
    cleaning([this] { return yumIO->cleanXmlMetadata(); });
}

void MainWindow::cleanPickledCache()
{
    cleaning([this] { return yumIO->cleanPickledCache(); });
}

void MainWindow::cleanAll()
{
    cleaning([this] { return yumIO->cleanAll(); });
}

void MainWindow::manualHtml()
{
    runShareCommand({QStringLiteral("webbrowser"), QStringLiteral("%1/html/index.html").arg(documentation)});
}

void MainWindow::manualPdf()
{
    runShareCommand(
        {QStringLiteral("mimeviewer"), QStringLiteral("application/pdf"),
         QStringLiteral("%1/manual.pdf").arg(documentation)});
}

void MainWindow::runShareCommand(QStringList const& words)
{
    QList<QByteArray> bytes;
    for (QString const& word : words) {
        bytes.append(QFile::encodeName(bytes.isEmpty() ? Share::absolute(word) : word));
    }
    QList<char*> arguments;
    for (QByteArray& word : bytes) {
        arguments.append(word.data());
    }
    arguments.append(nullptr);
    Execute::execute(this, arguments.constData());
}

void MainWindow::about()
{
    QString const text =
        tr("<h3>VEM %1</h3><hr><p>VEM, Verified Estate Manager, is a graphical user interface which allows a "
           "user "
           "to make modifications to the installed rpm packages on a "
           "system.</p><p>Capabilities:<p><ul><li>Install "
           "new packages or update existing packages by downloading them from a yum package "
           "repository</li><li>Remove existing packages.</li><li>Configure sets of repositories from which "
           "to "
           "obtain new and updated packages.</li><li>Examine installed packages or packages available for "
           "installation or update</li><li>Install, update, or remove groups of packages</li><li>Install or "
           "update "
           "suites of packages</li></ul>")
            .arg(QStringLiteral("1.7.2"));
    // The entry is there while the program starts, and scripts may not tell.
    QString const library = yumIO ? yumIO->packageLibrary() : QString();
    QString const works =
        library.isEmpty() ? QString() : tr("<p>Package library: %1</p>").arg(library.toHtmlEscaped());
    QString const page =
        tr("<p>Web page: <a href=\"https://vem.example.org/\">https://vem.example.org/</a></p>");
    QMessageBox box(QMessageBox::NoIcon, tr("About"), text + works + page, QMessageBox::Ok, this);
    box.setDefaultButton(QMessageBox::Ok);
    constexpr int iconSize = 64;
    box.setIconPixmap(box.windowIcon().pixmap(iconSize));
    box.setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    if (auto* const words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        fitToScreen(words);
    }
    box.exec();
}

bool MainWindow::isSearching() const
{
    return modeCombo->currentIndex() == 1;
}

void MainWindow::filtersearch()
{
    auto const step = [this] {
        if (prepareFilterSearch(lineHoldsExpression())) {
            view->filtersearch(regExpEdit->text());
        }
    };
    regExpEdit->taken();
    whileSearching(isSearching(), step);
}

void MainWindow::followTyping()
{
    if (!isSearching()) {
        view->filtersearch(regExpEdit->text());
    }
}

void MainWindow::matchesCaseChanged(bool matches)
{
    UserSettings::setValue(matchCaseSetting, matches);
    auto const step = [this, matches] {
        view->setCaseSensitivity(matches ? Qt::CaseSensitive : Qt::CaseInsensitive);
    };
    whileSearching(isSearching(), step);
}

qsizetype MainWindow::showMarks()
{
    PackageTable::MarkCounts const counts(*yumIO);
    statusLine->setMarks(counts);
    return counts.all();
}

void MainWindow::showRowCounts()
{
    statusLine->setRows(view->model()->rowCount(), yumIO->count());
    qsizetype selected = 0;
    for (QItemSelectionRange const& range : view->selectionModel()->selection()) {
        selected += range.height();
    }
    statusLine->setSelected(selected);
}

bool MainWindow::lineHoldsExpression() const
{
    QString const text = regExpEdit->text();
    return !text.isEmpty() && text != QLatin1String(".*");
}

bool MainWindow::prepareFilterSearch(bool hasExpression)
{
    return !hasExpression || !isSearching() || loadExtraData();
}

bool MainWindow::loadExtraData()
{
    if (yumIO->fileListsCollected && yumIO->otherDataCollected) {
        return true;
    }
    // No row is tested while the engine works.
    view->setFilter(false);
    bool stopped = !yumIO->collectFileLists() && yumIO->stop.stopped();
    stopped = stopped || (!yumIO->collectOtherData() && yumIO->stop.stopped());
    view->setFilter(true);
    return !stopped;
}

void MainWindow::currentChanged(int current, int)
{
    describeButton->setEnabled(current != -1);
}

void MainWindow::stateChanged(int row)
{
    if (row == -1) {
        view->marksChanged();
    }
    applyButton->setEnabled(showMarks() > 0);
}

void MainWindow::tellMode(int mode)
{
    bool const search = mode == 1;
    filterButton->setText(search ? tr("Search") : tr("Filter"));
    regExpEdit->setToolTip(
        search ? tr("Regular expression to compare to all fields of a package")
               : tr("Regular expression filter matching textual fields visible in the table"));
    filterButton->setToolTip(
        search ? tr("Perform the search for the regular expression specified to the left")
               : tr("Apply the filter specified to the left"));
}

void MainWindow::modeChanged(int mode)
{
    tellMode(mode);
    auto const step = [this, mode] {
        // The expression in force is tried in the new way, whatever the line holds.
        if (!prepareFilterSearch(lineHoldsExpression() || view->hasExpression())) {
            modeCombo->setCurrentIndex(PackageTable::Filter);
            return;
        }
        view->setMode(static_cast<PackageTable::Mode>(mode));
    };
    whileSearching(mode == 1, step);
}

void MainWindow::collectedExtraData()
{
    QString text = tr("Specify the method for using a regular expression to select packages in the "
                      "table:\n\tFilter uses the "
                      "textual fields visible in the table, as if they were separated by spaces.\n\tSearch "
                      "uses all fields in "
                      "packages, including list of Files, Change Log, Requires, etc.,\n\tindependently.  It "
                      "is considerably "
                      "slower.");
    if (!yumIO->fileListsCollected || !yumIO->otherDataCollected) {
        text = tr("%1 (Must load extra data.)").arg(text);
    }
    modeCombo->setToolTip(text);
}

void MainWindow::stateFilterChanged(int index)
{
    auto const step = [this, index] {
        view->stateFilterChanged(static_cast<PackageTable::StateFilter>(index));
    };
    model->useAdvisories(index == PackageTable::SecurityUpdates);
    whileSearching(isSearching(), step);
}

void MainWindow::groupsFilterChanged(int state)
{
    auto const step = [this, state] { view->groupsFilterChanged(state != 0); };
    whileSearching(isSearching(), step);
}

void MainWindow::setSelected()
{
    model->setSelected(view->selectedRows());
    stateChanged(-1);
}

void MainWindow::setUpdateAll()
{
    model->setUpdateAll();
    stateChanged(-1);
}

void MainWindow::clearActions()
{
    model->clearActions();
    stateChanged(-1);
}
