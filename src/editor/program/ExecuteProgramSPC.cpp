// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ExecuteProgramSPC.h"

#include "editor/program/ErrorList.h"
#include "engine/execution/ProgramListRun.h"

ExecuteProgramSPC::ExecuteProgramSPC(Shell& shell, KelSystem& system, QWidget* parent)
    : ExecuteProgramSPC(shell, system, QString(), parent) {}

ExecuteProgramSPC::ExecuteProgramSPC(Shell& shell, KelSystem& system, const QString& path,
                                     QWidget* parent)
    : ProcessProgramSPC(shell, system, Kind::ProgramLists, path, parent),
      list_(new ProgramListRun(shell, this)) {
    runner().runWith([this](const QString& program, const ProgramRunner::Listener& listener) {
        runExecuteText(program, listener);
    });
}

void ExecuteProgramSPC::runExecuteText(const QString& program,
                                       const std::shared_ptr<TKelSpcErrorsListenerImpl>& listener) {
    list_->runExecuteText(program, listener, &errorList());
}

void ExecuteProgramSPC::cancelExecuteProcess() {
    list_->cancelExecuteProcess();
}

void ExecuteProgramSPC::on_actionRun_triggered() {
    runner().start(ProgramRunner::Work::Run, *currentEditor());
}

void ExecuteProgramSPC::runExecuteByBlock() {
    runner().startBlock(ProgramRunner::Work::Run, *currentEditor());
}

void ExecuteProgramSPC::runByBlock() {
    runExecuteByBlock();
}
