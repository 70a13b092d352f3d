// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of an editor. It only tells what was chosen.
#pragma once

#include <QMenu>

/// Which assistants a selection is offered.
struct OfferedAssistants {
    bool rundef = false;
    bool define = false;
    bool table = false;
    bool execute = false;
};
OfferedAssistants offeredAssistants(const QString& selectedText, bool executeMode);

/// Made for one use: deletes itself when it closes, so open it with popup().
class EditorContextMenu : public QMenu {
    Q_OBJECT

public:
    /// toolBar, statusBar, errorList: shown now.
    EditorContextMenu(const QString& selectedText, bool toolBar, bool statusBar, bool errorList,
                      bool executeMode, QWidget* parent = nullptr);

signals:
    void newProgram();
    void openProgram();
    void saveProgram();
    void saveAsProgram();
    void cut();
    void copy();
    void paste();
    void erase();
    void selectAll();
    void toggleComment();
    void runBlock();
    void compileBlock();
    void rundefAssistant();
    void defineAssistant();
    void tableAssistant();
    void executeAssistant();
    void wizardDefine();
    void wizardTable();
    void executeBlowUp();
    void defineFrequency();
    void syntaxClue();
    void editTable();
    void editGraph();
    void toolBar();
    void statusBar();
    void errorList();

private:
    using Signal = void (EditorContextMenu::*)();
    QAction* addEntry(QMenu& menu, const char* name, const QString& text, Signal chosen,
                      const QKeySequence& key = {});
    QMenu* addSubMenu(QMenu& menu, const char* name, const QString& text);
    void addFiles();
    void addEditing(bool hasSelection);
    void addBlock(bool hasSelection);
    void addExecute(const OfferedAssistants& offered);
    void addWizards();
    void addStyles();
    void addBar(const char* name, const QString& text, Signal chosen, bool shown);
};
