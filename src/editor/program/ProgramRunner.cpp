// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramRunner.h"

#include "app/messages/Messages.h"
#include "editor/files/TextFile.h"
#include "editor/program/DeprecatedClauses.h"
#include "editor/program/ErrorList.h"
#include "editor/program/PathPreflight.h"
#include "editor/text/Editor.h"
#include "engine/TKelSpcErrorsListenerImpl.h"
#include "engine/execution/ProcessExecuter.h"
#include "engine/execution/RunGuard.h"
#include "projects/TfrmProject.h"

#include <QFileInfo>
#include <QTextCursor>

namespace {

/// What relative paths of a program are taken from.
QString programFolder() {
    const TfrmProject& project = TfrmProject::instance();
    return project.isOpen() ? QFileInfo(project.dictionaryPath()).absolutePath() : QString();
}

} // namespace

ProgramRunner::ProgramRunner(Shell& shell, const QString& language, ErrorList& errors,
                             QObject* parent)
    : QObject(parent), errors_(errors), executer_(new ProcessExecuter(shell, language, this)) {}

void ProgramRunner::start(Work work, Editor& editor) {
    if (RunGuard::isRunning())
        return;
    errors_.clear();
    if (editor.textCursor().hasSelection()) {
        startBlock(work, editor);
        return;
    }
    const QString program = textOf(*editor.document());
    if (program.isEmpty())
        showAbout(work == Work::Compile ? tr("Compile") : tr("Run"),
                  tr("Please <b>open </b>a program file or <b>write</b> a command "));
    else
        process(work, editor, program, std::nullopt);
}

void ProgramRunner::startBlock(Work work, Editor& editor) {
    const QString program = editor.selectedText();
    if (!program.isEmpty() && !RunGuard::isRunning())
        process(work, editor, program, editor.selectionFirstLine());
}

void ProgramRunner::cancel() {
    executer_->on_cancelProcess();
}

void ProgramRunner::process(Work work, Editor& editor, const QString& program,
                            std::optional<int> firstLine) {
    errors_.clear();
    const QString fault = missingFolder(program, programFolder());
    if (!fault.isEmpty()) {
        refuse(fault);
        return;
    }
    editor.clearErrorLine();
    const RewrittenProgram rewritten = rewriteDeprecated(program);
    const auto listener = std::make_shared<TKelSpcErrorsListenerImpl>();
    emit busyChanged(true);
    callEngine(work, rewritten.text, listener, program);
    emit busyChanged(false);
    if (!TfrmProject::instance().isOpen())
        return; // the user has been told in a box
    const bool stopped = errors_.count() > 0;
    listMessages(work, listener, firstLine);
    for (const QString& suggestion : rewritten.suggestions)
        errors_.addNotice(suggestion);
    emit listed(stopped || listener->hasErrors() || listener->hasWarnings());
}

void ProgramRunner::refuse(const QString& fault) {
    errors_.addNotice(tr("Error: ") + fault);
    emit listed(true);
}

void ProgramRunner::callEngine(Work work, const QString& text, const Listener& listener,
                               const QString& shownText) {
    if (work == Work::Compile)
        executer_->compile(text, listener, &errors_);
    else if (runText_)
        runText_(text, listener);
    else
        executer_->runText(text, listener, &errors_, shownText);
    errors_.markAllAsNotices();
}

void ProgramRunner::listMessages(Work work, const Listener& listener,
                                 std::optional<int> firstLine) {
    const bool report = work == Work::Compile && errors_.count() == 0;
    const QStringList rows = firstLine
                                 ? executer_->compileBlockMessages(listener, *firstLine, report)
                                 : executer_->compileMessages(listener, false, report);
    const QStringList located = listener->lines(firstLine.value_or(0));
    for (const QString& row : rows)
        if (located.contains(row))
            errors_.addItem(row);
        else
            errors_.addNotice(row);
}
