// SPDX-License-Identifier: GPL-3.0-or-later
// What the context menu of the editor sets off.
#include "app/messages/Messages.h"
#include "editor/text/Editor.h"
#include "editor/text/EditorContextMenu.h"
#include "editor/text/EditorHost.h"

namespace {

constexpr int menuDrop = 30; // pixels between the click and the menu

} // namespace

void Editor::slotCustomMenuRequested(const QPoint& pos) {
    auto* menu =
        new EditorContextMenu(selectedText(), host_ != nullptr && host_->isToolBarVisible(),
                              host_ != nullptr && host_->isStatusBarVisible(),
                              host_ != nullptr && host_->isErrorListVisible(), executeMode_, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connectEdits(*menu);
    connectCommands(*menu);
    connectAssistants(*menu);
    menu->popup(viewport()->mapToGlobal(pos) + QPoint(0, menuDrop));
}

void Editor::connectEdits(const EditorContextMenu& menu) {
    using Menu = EditorContextMenu;
    connect(&menu, &Menu::cut, this, &QPlainTextEdit::cut);
    connect(&menu, &Menu::copy, this, &QPlainTextEdit::copy);
    connect(&menu, &Menu::paste, this, &QPlainTextEdit::paste);
    connect(&menu, &Menu::erase, this, &Editor::on_delete);
    connect(&menu, &Menu::selectAll, this, &QPlainTextEdit::selectAll);
    connect(&menu, &Menu::toggleComment, this, &Editor::on_toggleComment);
    // The menu must be done with the click: a run processes events, and with them the menu goes.
    connect(&menu, &Menu::runBlock, this, &Editor::runByBlock, Qt::QueuedConnection);
    connect(&menu, &Menu::compileBlock, this, &Editor::compileByBlock, Qt::QueuedConnection);
}

void Editor::connectCommands(const EditorContextMenu& menu) {
    using Menu = EditorContextMenu;
    if (host_ != nullptr) {
        connect(&menu, &Menu::newProgram, this, [this] { host_->newProgram(); });
        connect(&menu, &Menu::openProgram, this, [this] { host_->openProgram(); });
        connect(&menu, &Menu::saveProgram, this, [this] { host_->saveProgram(); });
        connect(&menu, &Menu::saveAsProgram, this, [this] { host_->saveProgramAs(); });
    }
    connect(&menu, &Menu::toolBar, this, &Editor::on_toolBar);
    connect(&menu, &Menu::statusBar, this, &Editor::on_statusBar);
    connect(&menu, &Menu::errorList, this, &Editor::on_errorList);
}

void Editor::connectAssistants(const EditorContextMenu& menu) {
    using Menu = EditorContextMenu;
    connect(&menu, &Menu::rundefAssistant, this, &Editor::onRundefAssistantClick);
    connect(&menu, &Menu::defineAssistant, this, &Editor::onDefineAssistantClick);
    connect(&menu, &Menu::tableAssistant, this, &Editor::onTableAssistantClick);
    connect(&menu, &Menu::executeAssistant, this, &Editor::onExecuteAssistantClick);
    connect(&menu, &Menu::wizardDefine, this, &Editor::on_wizardDefine);
    connect(&menu, &Menu::wizardTable, this, &Editor::on_wizardTable);
    connect(&menu, &Menu::executeBlowUp, this, &Editor::on_executeBlowUp);
    connect(&menu, &Menu::defineFrequency, this, &Editor::on_defineFrequency);
    connect(&menu, &Menu::syntaxClue, this, &Editor::on_syntaxClue);
    connect(&menu, &Menu::editTable, this, &Editor::on_editTable);
    connect(&menu, &Menu::editGraph, this, &Editor::on_editGraph);
}

void Editor::on_delete() {
    textCursor().removeSelectedText();
    ensureCursorVisible();
}

void Editor::runByBlock() {
    emit executeRun();
}

void Editor::compileByBlock() {
    emit compileRun();
}

void Editor::onRundefAssistantClick() {
    emit rundefOpen(selectedText());
}

void Editor::onDefineAssistantClick() {
    emit defineOpen(selectedText());
}

void Editor::onTableAssistantClick() {
    emit tableOpen(selectedText());
}

void Editor::onExecuteAssistantClick() {
    emit executeOpen(selectedText());
}

void Editor::on_toolBar() {
    if (host_ != nullptr)
        host_->setToolBarVisible(!host_->isToolBarVisible());
}

void Editor::on_statusBar() {
    if (host_ != nullptr)
        host_->setStatusBarVisible(!host_->isStatusBarVisible());
}

void Editor::on_errorList() {
    if (host_ != nullptr)
        host_->setErrorListVisible(!host_->isErrorListVisible());
}

void Editor::showUnderConstruction(const QString& quotedName) {
    showInformation(tr("Funcionalidad %1 en Construcción").arg(quotedName));
}

void Editor::on_toggleComment() {
    showUnderConstruction(tr("\"Toggle Comment\""));
}

void Editor::on_wizardDefine() {
    showUnderConstruction(tr("\"Wizard Define\""));
}

void Editor::on_wizardTable() {
    showUnderConstruction(tr("\"Wizard Table\""));
}

void Editor::on_executeBlowUp() {
    showUnderConstruction(tr("\"Execute Blow Up\""));
}

void Editor::on_defineFrequency() {
    showUnderConstruction(tr("\"Define Frequency\""));
}

void Editor::on_syntaxClue() {
    showUnderConstruction(tr("\"Syntax Clue\""));
}

void Editor::on_editTable() {
    showUnderConstruction(tr("\"Edit Table\""));
}

void Editor::on_editGraph() {
    showUnderConstruction(tr("\"Edit Graph\""));
}
