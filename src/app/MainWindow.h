// SPDX-License-Identifier: GPL-3.0-or-later
// The single top-level window: a shell over the work area, the docks, the ribbon and the status
// bar. Helpers do the work; it wires them to each other.
#pragma once

#include "app/DockAreas.h"
#include "app/MainController.h"
#include "app/RibbonHost.h"
#include "app/StatusLine.h"
#include "app/shell/Shell.h"

#include <QMainWindow>

#include <memory>
#include <optional>
#include <vector>

class ConfigDialog;
class FileOpener;
class InfoProperties;
class KelSystem;
class ProgramWindows;
class QMdiSubWindow;
class ResultsManager;
class StartPage;
class TKelOutput;
class TKelSession;
class TKpEntity;
class TKpVariable;
class WorkArea;

class MainWindow : public QMainWindow, public Shell {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The one window; made with that parent where there is none yet.
    static MainWindow* instance(QWidget* parent = nullptr);

    // Shell
    void showStatus(const QString& text, bool busy) override;
    void addDockLeft(QDockWidget* dock) override;
    void addDockRight(QDockWidget* dock) override;
    QDockWidget* dock(const QString& name) const override;
    bool dockExists(const QString& name) const override;
    void closeDock(const QString& name) override;
    QMdiSubWindow* addWindow(QWidget* content) override;
    bool hasWindows() const override;
    void runProgram(const QString& program) override;
    void showResults(const std::vector<TKelOutput*>& outputs,
                     const std::shared_ptr<TKelSession>& session,
                     const QString& programText) override;
    QStringList writeDirectOutputs(const std::vector<TKelOutput*>& outputs) override;
    void reloadDictionary() override;
    QWidget* window() override { return this; }

    /// Opens a file of any kind; the extension tells which.
    void openFile(const QString& path, const QString& extension);
    /// Reopens the last file where the settings ask for it.
    void loadLastOpened();
    /// Asks about unsaved texts of a program that ended without its user's will, once what is being
    /// opened is open.
    void offerRecovered();
    bool isLoading() const;
    bool isBusy() const; ///< loading, running a program, or asking the user something
    /// The whole ribbon anew, on the page that was shown.
    void rebuildToolbars();

public slots:
    void openRecentProcessFile(const QString& pathFile);
    void openRecentDictionary(int id);
    void openRecentProject(int id);
    void on_openRecentDictionary(const QString& path);
    void on_openRecentProject(const QString& path, bool fromDictionary);
    void readingDictionary(const QString& path, const QString& extension);
    void saveOpenDictionary();
    void saveAsOpenDictionary();
    void locateFiles();
    void on_closeAllDictionary();
    void on_dictIsDirtyReceived(bool dirty);
    void on_dictIsSaved();
    void onClickInPreferences();
    void onShowResults();
    void onHideResults();
    void onQuickViewVariable(TKpVariable* variable);
    void onQuickViewEntity(TKpEntity* entity);
    void onCloseInfoAppProperties();
    void handle_window_title_change(const QString& title);

signals:
    void saveClick();
    void saveAsClick();
    void signalDictIsDirty(bool dirty);
    void signalProjecIsDirty(bool dirty);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    QMenu* createPopupMenu() override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setupWorkArea();
    void setupToolbar();
    void setupInfoProperties();
    RibbonHost::State ribbonState() const;
    void onRecentChanged();
    void connectOpener();
    void settleRecovery();
    void onOpened(const QString& path, bool found);
    void closeAll();
    void showNothingOpen();
    void addResults(const std::vector<TKelOutput*>& outputs,
                    const std::shared_ptr<TKelSession>& session);
    bool canChangeDictionary() const; ///< one is open, and neither loaded nor used by a run
    bool askSaveDictionary();         ///< false where the changes could not be saved
    bool endRun();                    ///< false where the window stays open
    void changeLanguage();
    void connectPreferences(ConfigDialog& preferences);
    InfoProperties& quickView();

    KelSystem& system_;
    std::unique_ptr<DockAreas> docks_;
    std::unique_ptr<StatusLine> status_;
    std::unique_ptr<MainController> mainController_;
    WorkArea* workArea_ = nullptr;
    StartPage* startPage_ = nullptr;
    RibbonHost* ribbon_ = nullptr;
    FileOpener* opener_ = nullptr;
    ProgramWindows* programs_ = nullptr;
    InfoProperties* infoProperties_ = nullptr; ///< hidden rather than deleted
    ResultsManager* resultsManager_ = nullptr; ///< null until the first results
    std::optional<QStringList> directLines_; ///< of files written with the results shown last
    QString language_;
    bool closeAfterLoading_ = false; ///< the user has closed the window meanwhile
    bool recoveryDue_ = false;
    bool engineEnded_ = false;
};
