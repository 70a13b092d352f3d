// SPDX-License-Identifier: GPL-3.0-or-later
// The slots of the program window: what its commands do.
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "editor/program/BottomPanel.h"
#include "editor/program/ErrorList.h"
#include "editor/program/ErrorNavigation.h"
#include "editor/program/PrintProgram.h"
#include "editor/program/ProgramFiles.h"
#include "editor/program/ProgramParts.h"
#include "editor/program/SyntaxClue.h"
#include "editor/search/FindDialog.h"
#include "editor/search/GotoDialog.h"

#include <QAction>
#include <QDateTime>
#include <QMdiSubWindow>
#include <QPrinter>
#include <QStatusBar>
#include <QToolBar>

void ProcessProgramSPC::connectActions() {
    using Slot = void (ProcessProgramSPC::*)();
    const std::pair<Command, Slot> slotsOfCommands[] = {
        {Command::New, &ProcessProgramSPC::on_newCommandSet},
        {Command::Open, &ProcessProgramSPC::on_openCommandSet},
        {Command::Save, &ProcessProgramSPC::on_save},
        {Command::SaveAs, &ProcessProgramSPC::on_saveAs},
        {Command::Print, &ProcessProgramSPC::on_actionPrint_triggered},
        {Command::Exit, &ProcessProgramSPC::on_actionExit_triggered},
        {Command::Undo, &ProcessProgramSPC::on_actionUndo_triggered},
        {Command::Redo, &ProcessProgramSPC::on_actionRedo_triggered},
        {Command::Cut, &ProcessProgramSPC::on_cut},
        {Command::Copy, &ProcessProgramSPC::on_copy},
        {Command::Paste, &ProcessProgramSPC::on_paste},
        {Command::Find, &ProcessProgramSPC::on_actionFind_triggered},
        {Command::Replace, &ProcessProgramSPC::replaceInProgram},
        {Command::GoToDialog, &ProcessProgramSPC::on_actionGo_To_triggered},
        {Command::SelectAll, &ProcessProgramSPC::on_selectAll},
        {Command::TimeDate, &ProcessProgramSPC::on_actionTime_Date_triggered},
        {Command::Font, &ProcessProgramSPC::on_actionFont_triggered},
        {Command::AutoIndent, &ProcessProgramSPC::on_actionAuto_Indent_triggered},
        {Command::WordWrap, &ProcessProgramSPC::on_actionWord_Wrap_triggered},
        {Command::StatusBar, &ProcessProgramSPC::on_actionStatus_Bar_triggered},
        {Command::ToolBar, &ProcessProgramSPC::on_actionTool_Bar_triggered},
        {Command::SyntaxClue, &ProcessProgramSPC::on_syntaxClue},
        {Command::GoTo, &ProcessProgramSPC::on_actionGoTo_triggered},
        {Command::Compile, &ProcessProgramSPC::on_actionCompile_triggered},
        {Command::Run, &ProcessProgramSPC::on_actionRun_triggered},
        {Command::Splitter, &ProcessProgramSPC::on_showHideSplitter},
        {Command::CloseTab, &ProcessProgramSPC::closeTabShortcut},
    };
    for (const auto& [command, slot] : slotsOfCommands)
        connect(parts_->actions->action(command), &QAction::triggered, this, slot);
}

// Documents

void ProcessProgramSPC::newProgram() {
    parts_->files->newProgram();
}

void ProcessProgramSPC::openProgram() {
    parts_->files->open();
}

void ProcessProgramSPC::saveProgram() {
    parts_->files->save(*currentEditor(), ProgramFiles::Target::Own);
}

void ProcessProgramSPC::saveProgramAs() {
    parts_->files->save(*currentEditor(), ProgramFiles::Target::Asked);
}

void ProcessProgramSPC::on_newCommandSet() {
    newProgram();
}

void ProcessProgramSPC::on_openCommandSet() {
    openProgram();
}

void ProcessProgramSPC::on_save() {
    saveProgram();
}

void ProcessProgramSPC::on_saveAs() {
    saveProgramAs();
}

bool ProcessProgramSPC::closeTab(Editor* tabToClose) {
    if (tabToClose == nullptr || !parts_->files->close(*tabToClose))
        return false;
    if (parts_->tabs->count() == 0 && !closing_)
        closeFrame();
    return true;
}

bool ProcessProgramSPC::closeTab(int index) {
    return closeTab(parts_->tabs->editor(index));
}

void ProcessProgramSPC::closeTabShortcut() {
    closeTab(currentEditor());
}

void ProcessProgramSPC::closeFrame() {
    if (auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget()))
        frame->close();
    else
        close();
}

void ProcessProgramSPC::on_actionExit_triggered() {
    closeFrame();
}

void ProcessProgramSPC::on_actionPrint_triggered() {
    QPrinter printer(QPrinter::HighResolution);
    if (!askPrinter(printer, this))
        return;
    statusBar()->showMessage(tr("Printing"), 2000);
    printProgram(*currentEditor(), currentEditor()->displayName(), printer);
}

// Editing

void ProcessProgramSPC::toggleUndo(bool available) {
    parts_->actions->action(Command::Undo)->setEnabled(available);
}

void ProcessProgramSPC::toggleRedo(bool available) {
    parts_->actions->action(Command::Redo)->setEnabled(available);
}

void ProcessProgramSPC::toggleCopyAndCut(bool available) {
    parts_->actions->action(Command::Copy)->setEnabled(available);
    parts_->actions->action(Command::Cut)->setEnabled(available);
}

void ProcessProgramSPC::on_actionUndo_triggered() {
    currentEditor()->undo();
}

void ProcessProgramSPC::on_actionRedo_triggered() {
    currentEditor()->redo();
}

void ProcessProgramSPC::on_cut() {
    currentEditor()->cut();
}

void ProcessProgramSPC::on_copy() {
    currentEditor()->copy();
}

void ProcessProgramSPC::on_paste() {
    currentEditor()->paste();
}

void ProcessProgramSPC::on_selectAll() {
    currentEditor()->selectAll();
}

void ProcessProgramSPC::on_actionTime_Date_triggered() {
    currentEditor()->insertPlainText(QDateTime::currentDateTime().toString());
}

void ProcessProgramSPC::on_actionFont_triggered() {
    parts_->format->font();
}

void ProcessProgramSPC::on_actionAuto_Indent_triggered() {
    parts_->format->autoIndent();
}

void ProcessProgramSPC::on_actionWord_Wrap_triggered() {
    parts_->format->wordWrap();
}

void ProcessProgramSPC::on_syntaxClue() {
    currentEditor()->setFocus();
    parts_->clue->offer(*currentEditor());
}

void ProcessProgramSPC::onCompleterSelection(const QString& s) {
    expandClue(*currentEditor(), s);
}

// Finding

void ProcessProgramSPC::showFindPage() {
    setErrorListVisible(true);
    parts_->bottom->showFind();
}

void ProcessProgramSPC::on_actionFind_triggered() {
    if (parts_->bottom->isFinding()) {
        parts_->bottom->showErrors();
        currentEditor()->setFocus();
        return;
    }
    showFindPage();
    parts_->bottom->find().begin(currentEditor()->selectedText());
}

void ProcessProgramSPC::replaceInProgram() {
    showFindPage();
    parts_->bottom->find().beginReplacing(currentEditor()->selectedText());
}

void ProcessProgramSPC::on_actionGo_To_triggered() {
    parts_->goTo->show();
    parts_->goTo->raise();
    parts_->goTo->activateWindow();
}

void ProcessProgramSPC::on_actionGoTo_triggered() {
    on_actionGo_To_triggered();
}

void ProcessProgramSPC::onFindAllResult(const QString& text) {
    statusBar()->showMessage(text, 3000);
}

void ProcessProgramSPC::informUser(const QString& title, const QString& message) {
    showAbout(title, message.toHtmlEscaped());
}

// Bars

void ProcessProgramSPC::setToolBarVisible(bool visible) {
    parts_->actions->toolBar()->setVisible(visible);
    parts_->actions->action(Command::ToolBar)->setChecked(visible);
}

void ProcessProgramSPC::setStatusBarVisible(bool visible) {
    statusBar()->setVisible(visible);
    parts_->actions->action(Command::StatusBar)->setChecked(visible);
}

void ProcessProgramSPC::setErrorListVisible(bool visible) {
    const bool hadKeys = parts_->bottom->isAncestorOf(focusWidget());
    parts_->bottom->setVisible(visible);
    parts_->actions->action(Command::Splitter)->setChecked(visible);
    applySplit();
    if (!visible && hadKeys)
        currentEditor()->setFocus();
}

bool ProcessProgramSPC::isToolBarVisible() const {
    return !parts_->actions->toolBar()->isHidden();
}

bool ProcessProgramSPC::isStatusBarVisible() const {
    return !statusBar()->isHidden();
}

bool ProcessProgramSPC::isErrorListVisible() const {
    return !parts_->bottom->isHidden();
}

void ProcessProgramSPC::on_actionStatus_Bar_triggered() {
    setStatusBarVisible(parts_->actions->action(Command::StatusBar)->isChecked());
}

void ProcessProgramSPC::on_actionTool_Bar_triggered() {
    setToolBarVisible(parts_->actions->action(Command::ToolBar)->isChecked());
}

void ProcessProgramSPC::on_showHideSplitter() {
    setErrorListVisible(!isErrorListVisible());
}

// Runs

void ProcessProgramSPC::on_actionCompile_triggered() {
    parts_->runner->start(ProgramRunner::Work::Compile, *currentEditor());
}

void ProcessProgramSPC::on_actionRun_triggered() {
    parts_->runner->start(ProgramRunner::Work::Run, *currentEditor());
}

void ProcessProgramSPC::compileByBlock() {
    parts_->runner->startBlock(ProgramRunner::Work::Compile, *currentEditor());
}

void ProcessProgramSPC::runByBlock() {
    parts_->runner->startBlock(ProgramRunner::Work::Run, *currentEditor());
}

void ProcessProgramSPC::cancelProcess() {
    parts_->runner->cancel();
}

void ProcessProgramSPC::copyErrorList() {
    errorList().copyAll();
}

void ProcessProgramSPC::clearErrorList() {
    errorList().clear();
}

void ProcessProgramSPC::slotListViewCustomMenuRequested(const QPoint& pos) {
    errorList().showMenu(pos);
}

void ProcessProgramSPC::on_errorListWidget_itemClicked(QListWidgetItem* item) {
    goToErrorOf(*item, *currentEditor());
    currentEditor()->setFocus();
}

void ProcessProgramSPC::showPassedRow(QListWidgetItem* item) {
    showErrorOf(*item, *currentEditor());
}

// Assistants

void ProcessProgramSPC::openAssistant(Assistant assistant, QString text) {
    if (qobject_cast<QMdiSubWindow*>(parentWidget()) == nullptr)
        return;
    if (simplifyForAssistant(assistant, text))
        emit assistantRequested(assistant, text);
    else
        showError(incompleteCodeMessage(assistant));
}

void ProcessProgramSPC::onDefineAssistantOpen(QString text) {
    openAssistant(Assistant::Define, std::move(text));
}

void ProcessProgramSPC::onExecuteAssistantOpen(QString text) {
    openAssistant(Assistant::Execute, std::move(text));
}

void ProcessProgramSPC::onTableAssistantOpen(QString text) {
    openAssistant(Assistant::Table, std::move(text));
}

void ProcessProgramSPC::onRundefAssistantOpen(QString text) {
    openAssistant(Assistant::Rundef, std::move(text));
}

void ProcessProgramSPC::onSaveAssistant(const QString& text) {
    QTextCursor cursor = currentEditor()->textCursor();
    cursor.insertText(text);
    currentEditor()->setTextCursor(cursor);
    currentEditor()->setFocus();
}
