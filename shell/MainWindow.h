// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/YumRepoEnabled.h"

#include <QHash>
#include <QIcon>
#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QStringList>
#include <functional>
#include <memory>

class Desktop;
class HMenu;
class MatterWindow;
class QAction;
class QCheckBox;
class QComboBox;
class QLayout;
class QPushButton;
class StatusLine;
class WindowMemory;
class YumConfIO;
class YumIO;

namespace Log
{
class Window;
}

namespace PackageTable
{
class ExpressionEdit;
class Marks;
class Model;
class View;
} // namespace PackageTable

namespace RepoEditor
{
class Dialog;
}

/// The program's one top-level window. Its constructor builds the whole widget tree and the engine object;
/// `show` arms the start-up, which runs from the event loop. Its slots are the program's control flow on the
/// GUI thread: short fixed sequences of calls of engine, model and view, between `setReady(false)` and
/// `setReady(true)`. It holds no package logic.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent);
    ~MainWindow() override;

    void setVisible(bool visible) override;
    /// The contents' hint, at least 768 pixels wide.
    [[nodiscard]] QSize sizeHint() const override;

    // Start-up flags, written between construction and `show`; nothing in the constructor reads them.
    bool repoEditorFlag = false;              ///< begin with the repository configuration editor
    bool logFlag = false;                     ///< begin with the log window
    QList<YumRepoEnabled> yumRepoEnabledList; ///< requests of the command line, in its order
    QStringList packageFiles;                 ///< paths and addresses of packages that are to be opened

public Q_SLOTS:
    void resize();
    /// As it is for somebody of whom nothing is remembered.
    void reset();
    void refresh();
    void reposChanged();
    void initialize();
    void yumConfIOChanged();
    void quit();
    void displayLog();
    void editRepositories(bool forceReposChanged = false);
    void cleanHeaders();
    void cleanPackages();
    void cleanXmlMetadata();
    void cleanPickledCache();
    void cleanAll();
    void manualHtml();
    void manualPdf();
    void about();
    void filtersearch();
    /// What has been written so far is filtered by; a search waits until it is asked for.
    void followTyping();
    void matchesCaseChanged(bool matches);
    void showRowCounts();
    /// Answers how many there are.
    qsizetype showMarks();
    void currentChanged(int current, int previous);
    void stateChanged(int row = -1);
    void modeChanged(int mode);
    void collectedExtraData();
    void stateFilterChanged(int index);
    void groupsFilterChanged(int state);
    void setSelected();
    void setUpdateAll();
    /// Marks the updates that mend something about security.
    void setUpdateSecurity();
    void clearActions();
    void apply();
    void choosePackageFiles();
    /// Makes rows of these package files, absolute paths and addresses, and marks them.
    void openPackageFiles(QStringList const& words);
    /// Has the job in progress give up, if it can.
    void stop();
    /// What there is to tell behind a collection.
    void tellCollected();
    /// Sums up what the collection had to do without, whenever that has changed.
    void tellIncomplete();
    void showIncomplete();
    /// Tells what a transaction that was cut off has left, once for each that there is to tell, and offers to
    /// remove the older versions of packages that are there twice.
    void tellUnfinished();

protected:
    bool event(QEvent* event) override;
    /// While rpm works it waits for the end of that, with a word; ends the process while another job is in
    /// progress.
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createMenuBar();
    void createMainArea();
    void fillSelectionMenu();
    /// Says on the controls what they do in that mode.
    void tellMode(int mode);
    QLayout* createFilterRow();
    QLayout* createButtonRow();
    /// Switches between busy and idle. Calls must pair, since each busy one pushes a cursor.
    void setReady(bool ready);
    /// Whether the line holds more than what matches everything.
    [[nodiscard]] bool lineHoldsExpression() const;
    /// Loads the extra data that a search needs, if there is an expression to search for. False where the
    /// user has stopped that: no search is to be done then.
    bool prepareFilterSearch(bool hasExpression);
    bool loadExtraData();
    /// Runs a job that empties a cache, and reads everything anew.
    template <typename Clean>
    void cleaning(Clean const& clean);
    void rebuild();
    void createOpenAction();
    void enableOpening(bool ready);
    /// Hands the engine what the command line names.
    void takeNamedFiles();
    /// Marks what was opened for the table on show, and shows it.
    void markOpened();
    /// Behind a rebuild; tells of those that have lost their rows.
    void restore(PackageTable::Marks const& marks);
    void showTable();
    /// Starts a command of the share directory, the first word, with the others as its arguments.
    void runShareCommand(QStringList const& words);
    /// Search is slow enough to want the busy state; Filter isn't.
    [[nodiscard]] bool isSearching() const;
    template <typename Step>
    void whileBusy(Step const& step);
    /// The same for a step that may search, and says whether it came to its end.
    template <typename Step>
    void whileSearching(bool searches, Step const& step);
    void tellIfCutOff();
    void makeLog();
    /// Opens the log without giving it the keyboard, where the user wants it to open with each apply.
    void showLogBeside();
    /// Runs a job that applies something, and fills the table anew behind it.
    void applying(std::function<bool()> const& job);
    /// The windows of the matters that stand beside the table: their entries, what is allowed in them, and
    /// that the system may be another one than they show.
    struct Matter;
    void addMatters(HMenu& menu);
    [[nodiscard]] MatterWindow* makeAdvisories();
    void showMatter(Matter& matter);
    void allowMatters(bool ready);
    void reloadMatters();
    void closeMatters();
    void allowSecurity(bool ready);
    /// Marks the updates of the packages of these names, and shows all that is marked.
    void markUpdates(QStringList const& names);

    /// What is remembered, by its key in the user's settings.
    static constexpr QLatin1String matchCaseSetting{"table/matchCase"};
    static constexpr QLatin1String logWithApplySetting{"log/openWithApply"};

    QIcon updateIcon;
    QIcon clearIcon;
    QIcon applyIcon;
    QHash<QString, bool> reposEnabled; ///< repository id to whether this session uses it
    YumIO* yumIO = nullptr;
    YumConfIO* yumConfIO = nullptr; ///< child of this window; null until initialize()
    HMenu* programMenu = nullptr;
    QAction* openFilesAction = nullptr;
    QAction* quitAction = nullptr;
    HMenu* repositoriesMenu = nullptr;
    QAction* editRepositoriesAction = nullptr;
    HMenu* cacheMenu = nullptr;
    QAction* cleanHeadersAction = nullptr;
    QAction* cleanPackagesAction = nullptr;
    QAction* cleanXmlMetadataAction = nullptr;
    QAction* cleanPickledCacheAction = nullptr;
    QAction* cleanAllAction = nullptr;
    QAction* logWithApplyAction = nullptr;
    QAction* resetAction = nullptr;
    HMenu* selectionMenu = nullptr;
    QAction* findAction = nullptr;
    QAction* securityAction = nullptr;
    QStringList incompleteTold;       ///< what `tellIncomplete` has told last
    QString unfinishedTold;           ///< what `tellUnfinished` has told last
    bool begun = false;               ///< the start-up is under way, or done
    bool applies = false;             ///< an apply is in progress
    bool endsBehind = false;          ///< the program ends once rpm has done its work
    QPointer<QWidget> tableArea;      ///< hidden until the first collection is done
    QPointer<QWidget> focusWhenReady; ///< had the keyboard when the window became busy
    QComboBox* modeCombo = nullptr;
    PackageTable::ExpressionEdit* regExpEdit = nullptr;
    QPushButton* filterButton = nullptr;
    QComboBox* stateFilterCombo = nullptr;
    QCheckBox* includeGroupsBox = nullptr;
    PackageTable::Model* model = nullptr;
    PackageTable::View* view = nullptr;
    QPushButton* describeButton = nullptr;
    QPushButton* applyButton = nullptr;
    StatusLine* statusLine = nullptr;
    Desktop* desktop = nullptr;
    WindowMemory* memory = nullptr;
    RepoEditor::Dialog* repoEditorDialog = nullptr; ///< null until first used
    QList<std::shared_ptr<Matter>> matters;
    Log::Window* logWindow = nullptr; ///< null until first used; top-level, deleted with this window
};
