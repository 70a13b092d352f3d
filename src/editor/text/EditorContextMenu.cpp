// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorContextMenu.h"

#include <QRegularExpression>

OfferedAssistants offeredAssistants(const QString& selectedText, bool executeMode) {
    static const QRegularExpression defineCommand(QStringLiteral("(^|\\s)DEFINE "),
                                                  QRegularExpression::CaseInsensitiveOption);
    OfferedAssistants offered;
    if (executeMode) {
        offered.execute = true;
        return offered;
    }
    const auto holds = [&selectedText](const char* command) {
        return selectedText.contains(QLatin1String(command), Qt::CaseInsensitive);
    };
    offered.define = defineCommand.match(selectedText).hasMatch();
    if (holds("RUNDEF "))
        offered.rundef = true;
    else if (holds("TABLE "))
        offered.table = true;
    else if (holds("EXECUTE "))
        offered.execute = true;
    if (!offered.define && !offered.rundef && !offered.table)
        offered.define = offered.rundef = offered.table = true;
    return offered;
}

EditorContextMenu::EditorContextMenu(const QString& selectedText, bool toolBar, bool statusBar,
                                     bool errorList, bool executeMode, QWidget* parent)
    : QMenu(parent) {
    setObjectName(QStringLiteral("editorContextMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    addFiles();
    addSeparator();
    addEditing(!selectedText.isEmpty());
    addSeparator();
    addEntry(*this, "contextToggleComment", tr("Toggle Comment"), &EditorContextMenu::toggleComment,
             Qt::CTRL | Qt::Key_T);
    addSeparator();
    addBlock(!selectedText.isEmpty());
    addSeparator();
    addExecute(offeredAssistants(selectedText, executeMode));
    addSeparator();
    addWizards();
    addSeparator();
    addEntry(*this, "contextSyntaxClue", tr("Syntax clue"), &EditorContextMenu::syntaxClue,
             Qt::Key_F8);
    addSeparator();
    addStyles();
    addSeparator();
    addBar("contextToolBar", tr("Tool bar"), &EditorContextMenu::toolBar, toolBar);
    addBar("contextStatusBar", tr("Status bar"), &EditorContextMenu::statusBar, statusBar);
    addBar("contextErrorList", tr("Output"), &EditorContextMenu::errorList, errorList);
}

/// The key is shown only: the editor and its window have it, and it must not get ambiguous.
QAction* EditorContextMenu::addEntry(QMenu& menu, const char* name, const QString& text,
                                     Signal chosen, const QKeySequence& key) {
    QAction* action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, chosen);
    return action;
}

QMenu* EditorContextMenu::addSubMenu(QMenu& menu, const char* name, const QString& text) {
    QMenu* subMenu = menu.addMenu(text);
    subMenu->setObjectName(QLatin1String(name));
    return subMenu;
}

void EditorContextMenu::addFiles() {
    addEntry(*this, "contextNew", tr("New"), &EditorContextMenu::newProgram);
    addEntry(*this, "contextOpen", tr("Open"), &EditorContextMenu::openProgram);
    addEntry(*this, "contextSave", tr("Save"), &EditorContextMenu::saveProgram);
    addEntry(*this, "contextSaveAs", tr("Save as"), &EditorContextMenu::saveAsProgram);
}

void EditorContextMenu::addEditing(bool hasSelection) {
    addEntry(*this, "contextCut", tr("Cut"), &EditorContextMenu::cut)->setEnabled(hasSelection);
    addEntry(*this, "contextCopy", tr("Copy"), &EditorContextMenu::copy)->setEnabled(hasSelection);
    addEntry(*this, "contextPaste", tr("Paste"), &EditorContextMenu::paste);
    addEntry(*this, "contextDelete", tr("Delete"), &EditorContextMenu::erase)
        ->setEnabled(hasSelection);
    addEntry(*this, "contextSelectAll", tr("Select all"), &EditorContextMenu::selectAll);
}

/// Without a selection there is no block.
void EditorContextMenu::addBlock(bool hasSelection) {
    QMenu* menu = addSubMenu(*this, "contextBlock", tr("Block"));
    addEntry(*menu, "contextCompile", tr("Compile"), &EditorContextMenu::compileBlock, Qt::Key_F5)
        ->setEnabled(hasSelection);
    addEntry(*menu, "contextRun", tr("Run"), &EditorContextMenu::runBlock, Qt::Key_F9)
        ->setEnabled(hasSelection);
}

void EditorContextMenu::addExecute(const OfferedAssistants& offered) {
    QMenu* menu = addSubMenu(*this, "contextExecute", tr("Execute"));
    QMenu* assist = addSubMenu(*menu, "contextAssist", tr("Assist"));
    addEntry(*assist, "contextAssistRundef", tr("RUNDEF "), &EditorContextMenu::rundefAssistant)
        ->setEnabled(offered.rundef);
    addEntry(*assist, "contextAssistDefine", tr("DEFINE "), &EditorContextMenu::defineAssistant)
        ->setEnabled(offered.define);
    addEntry(*assist, "contextAssistTable", tr("TABLE "), &EditorContextMenu::tableAssistant)
        ->setEnabled(offered.table);
    addEntry(*assist, "contextAssistExecute", tr("EXECUTE "), &EditorContextMenu::executeAssistant)
        ->setEnabled(offered.execute);
    addEntry(*menu, "contextBlowUp", tr("BlowUp"), &EditorContextMenu::executeBlowUp);
}

void EditorContextMenu::addWizards() {
    QMenu* wizards = addSubMenu(*this, "contextWizards", tr("Wizards"));
    addEntry(*wizards, "contextWizardDefine", tr("DEFINE "), &EditorContextMenu::wizardDefine);
    addEntry(*wizards, "contextWizardTable", tr("TABLE "), &EditorContextMenu::wizardTable);
    QAction* heading = addAction(tr("DEFINEs ")); // of the entry below; it does nothing itself
    heading->setObjectName(QStringLiteral("contextDefines"));
    heading->setEnabled(false);
    addEntry(*this, "contextFrequency", tr("Frequency"), &EditorContextMenu::defineFrequency,
             Qt::Key_F6);
}

void EditorContextMenu::addStyles() {
    QMenu* menu = addSubMenu(*this, "contextEditStyle", tr("Edit Style"));
    addEntry(*menu, "contextEditTable", tr("Table"), &EditorContextMenu::editTable);
    addEntry(*menu, "contextEditGraph", tr("Graph"), &EditorContextMenu::editGraph);
}

void EditorContextMenu::addBar(const char* name, const QString& text, Signal chosen, bool shown) {
    QAction* action = addEntry(*this, name, text, chosen);
    action->setCheckable(true);
    action->setChecked(shown);
}
