// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/EditorConnections.h"

#include "editor/program/ProcessProgramSPC.h"
#include "editor/search/FindDialog.h"
#include "editor/search/GotoDialog.h"
#include "editor/text/Editor.h"
#include "editor/text/MetricReporter.h"

#include <QObject>

EditorConnections::EditorConnections(ProcessProgramSPC& window, FindDialog& find, GotoDialog& goTo,
                                     MetricReporter& metrics)
    : window_(window), find_(find), goTo_(goTo), metrics_(metrics) {}

void EditorConnections::end() {
    for (const QMetaObject::Connection& connection : made_)
        QObject::disconnect(connection);
    made_.clear();
}

void EditorConnections::follow(Editor& editor) {
    end();
    connectFinding(editor);
    connectCommands(editor);
    connectState(editor);
}

void EditorConnections::connectFinding(Editor& editor) {
    made_ << QObject::connect(&find_,
                              qOverload<QString, bool, bool, bool>(&FindDialog::startFinding),
                              &editor, qOverload<const QString&, bool, bool, bool>(&Editor::find))
          << QObject::connect(&find_, qOverload<QString, bool, bool>(&FindDialog::startFinding),
                              &editor, qOverload<const QString&, bool, bool>(&Editor::find))
          << QObject::connect(&find_, &FindDialog::startAllFinding, &editor, &Editor::findAll)
          << QObject::connect(&find_, &FindDialog::startReplacing, &editor, &Editor::replace)
          << QObject::connect(&find_, &FindDialog::startReplacingAll, &editor, &Editor::replaceAll)
          << QObject::connect(&goTo_, &GotoDialog::gotoLine, &editor, &Editor::goTo)
          << QObject::connect(&editor, &Editor::findResultReady, &find_,
                              &FindDialog::onFindResultReady)
          << QObject::connect(&editor, &Editor::findAllResult, &window_,
                              &ProcessProgramSPC::onFindAllResult)
          << QObject::connect(&editor, &Editor::findAllResult, &find_,
                              &FindDialog::onFindResultReady)
          << QObject::connect(&editor, &Editor::gotoResultReady, &goTo_,
                              &GotoDialog::onGotoResultReady)
          << QObject::connect(&editor, &Editor::gotoClose, &goTo_, &QWidget::hide);
}

void EditorConnections::connectCommands(Editor& editor) {
    made_ << QObject::connect(&editor, &Editor::executeRun, &window_,
                              &ProcessProgramSPC::runByBlock)
          << QObject::connect(&editor, &Editor::compileRun, &window_,
                              &ProcessProgramSPC::compileByBlock)
          << QObject::connect(&editor, &Editor::defineOpen, &window_,
                              &ProcessProgramSPC::onDefineAssistantOpen)
          << QObject::connect(&editor, &Editor::executeOpen, &window_,
                              &ProcessProgramSPC::onExecuteAssistantOpen)
          << QObject::connect(&editor, &Editor::tableOpen, &window_,
                              &ProcessProgramSPC::onTableAssistantOpen)
          << QObject::connect(&editor, &Editor::rundefOpen, &window_,
                              &ProcessProgramSPC::onRundefAssistantOpen);
}

void EditorConnections::connectState(Editor& editor) {
    made_ << QObject::connect(&editor, &Editor::wordCountChanged, &metrics_,
                              &MetricReporter::updateWordCount)
          << QObject::connect(&editor, &Editor::charCountChanged, &metrics_,
                              &MetricReporter::updateCharCount)
          << QObject::connect(&editor, &Editor::lineCountChanged, &metrics_,
                              &MetricReporter::updateLineCount)
          << QObject::connect(&editor, &Editor::columnCountChanged, &metrics_,
                              &MetricReporter::updateColumnCount)
          << QObject::connect(&editor, &Editor::fileContentsChanged, &window_,
                              &ProcessProgramSPC::updateTabAndWindowTitle)
          << QObject::connect(&editor, &QPlainTextEdit::undoAvailable, &window_,
                              &ProcessProgramSPC::toggleUndo)
          << QObject::connect(&editor, &QPlainTextEdit::redoAvailable, &window_,
                              &ProcessProgramSPC::toggleRedo)
          << QObject::connect(&editor, &QPlainTextEdit::copyAvailable, &window_,
                              &ProcessProgramSPC::toggleCopyAndCut);
}
