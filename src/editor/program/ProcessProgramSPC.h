// SPDX-License-Identifier: GPL-3.0-or-later
// The window in which programs are edited, compiled and run: editors as tabs over the list of
// messages and the search page.
#pragma once

#include "editor/program/AssistantText.h"
#include "editor/program/OtherWindows.h"
#include "editor/program/ProgramRunner.h"
#include "editor/text/EditorHost.h"

#include <QMainWindow>

#include <memory>

class Editor;
class ErrorList;
class KelSystem;
class QListWidgetItem;
class Shell;
struct RecoveryCopy;

/// Lives in a sub-window of the work area, which closes when its last tab does. Its window is
/// modified while a tab is. It refuses to close while a program runs.
class ProcessProgramSPC : public QMainWindow, public EditorHost {
    Q_OBJECT

public:
    ProcessProgramSPC(Shell& shell, KelSystem& system, QWidget* parent = nullptr);
    /// Opens that file at once.
    ProcessProgramSPC(Shell& shell, KelSystem& system, const QString& path,
                      QWidget* parent = nullptr);
    ~ProcessProgramSPC() override;

    bool isExecuteWindow() const { return executeWindow_; }
    Editor* currentEditor() const;
    /// Goes to the tab of that file, or opens it in one; false where it could not be read.
    bool openFile(const QString& path);
    bool hasFile(const QString& path) const;
    /// False where the file that it was made for could not be read; the user has been told.
    bool hasRead() const { return read_; }
    /// Asked before a file is opened or written, so that none is open twice.
    void setOtherWindows(OtherWindows others);
    /// Opens a tab with the copy's text, which counts as modified.
    void restore(const RecoveryCopy& copy);

    // EditorHost
    QStringList variablesOf(const QString& entity) const override;
    void newProgram() override;
    void openProgram() override;
    void saveProgram() override;
    void saveProgramAs() override;
    void setToolBarVisible(bool visible) override;
    void setStatusBarVisible(bool visible) override;
    void setErrorListVisible(bool visible) override;
    bool isToolBarVisible() const override;
    bool isStatusBarVisible() const override;
    bool isErrorListVisible() const override;

signals:
    void savedTabToClose(QString path);
    void fileUsed(QString path); ///< a tab has opened or written it
    /// text: of the command that the assistant is to begin with; empty for a new one. What it makes
    /// goes to onSaveAssistant().
    void assistantRequested(Assistant assistant, QString text);

public slots:
    void toggleUndo(bool available);
    void toggleRedo(bool available);
    void toggleCopyAndCut(bool available);
    void updateTabAndWindowTitle();
    /// False where the user keeps it. The window closes with its last tab.
    bool closeTab(Editor* tabToClose);
    bool closeTab(int index);
    void closeTabShortcut();
    void informUser(const QString& title, const QString& message);
    virtual void runByBlock();
    void compileByBlock();
    void copyErrorList();
    void clearErrorList();
    void slotListViewCustomMenuRequested(const QPoint& pos);
    void onCompleterSelection(const QString& s);
    void on_errorListWidget_itemClicked(QListWidgetItem* item);
    void cancelProcess();
    void onDefineAssistantOpen(QString text);
    void onExecuteAssistantOpen(QString text);
    void onTableAssistantOpen(QString text);
    void onRundefAssistantOpen(QString text);
    void on_newCommandSet();
    void on_openCommandSet();
    void on_save();
    void on_saveAs();
    void on_cut();
    void on_copy();
    void on_paste();
    void on_selectAll();
    void on_syntaxClue();
    void on_currentTabChanged(int index);
    void on_actionExit_triggered();
    void on_actionUndo_triggered();
    void on_actionFind_triggered();
    void on_actionGo_To_triggered();
    void on_actionRedo_triggered();
    void on_actionPrint_triggered();
    void on_actionStatus_Bar_triggered();
    void on_actionTime_Date_triggered();
    void on_actionFont_triggered();
    void on_actionAuto_Indent_triggered();
    void on_actionWord_Wrap_triggered();
    void on_actionTool_Bar_triggered();
    void on_actionGoTo_triggered();
    void on_actionCompile_triggered();
    virtual void on_actionRun_triggered();
    void on_showHideSplitter();
    void onSaveAssistant(const QString& text);
    void onFindAllResult(const QString& text);

protected:
    enum class Kind { Programs, ProgramLists };
    ProcessProgramSPC(Shell& shell, KelSystem& system, Kind kind, const QString& path,
                      QWidget* parent);

    ProgramRunner& runner() const;
    ErrorList& errorList() const;

    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    QMenu* createPopupMenu() override;

private:
    struct Parts;

    void build(Shell& shell);
    void connectActions();
    void connectEditCommands();
    void connectViewCommands();
    void connectParts();
    void replaceInProgram();
    void fetchVocabulary();
    void hand(Editor& editor) const; ///< the vocabulary
    void watchKeys(const Editor& editor) const;
    void applyPreferences();
    void applySplit();
    void showList(bool faults);
    void showPassedRow(QListWidgetItem* item);
    void closeFrame();
    void showFindPage();
    void setBusy(bool busy);
    void openAssistant(Assistant assistant, QString text);
    void showLanguage();

    KelSystem& system_;
    bool executeWindow_;
    bool closing_ = false;
    bool read_ = true;
    std::unique_ptr<Parts> parts_;
};
