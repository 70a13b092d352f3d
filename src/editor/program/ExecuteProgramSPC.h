// SPDX-License-Identifier: GPL-3.0-or-later
// The program window for EXECUTE commands: it runs lists of programs, and shows which one runs.
#pragma once

#include "editor/program/ProcessProgramSPC.h"

class ProgramListRun;

class ExecuteProgramSPC : public ProcessProgramSPC {
    Q_OBJECT

public:
    ExecuteProgramSPC(Shell& shell, KelSystem& system, QWidget* parent = nullptr);
    /// Opens that file at once.
    ExecuteProgramSPC(Shell& shell, KelSystem& system, const QString& path,
                      QWidget* parent = nullptr);

    /// The programs that run, and the fault that ends them, are added to the error list.
    void runExecuteText(const QString& program,
                        const std::shared_ptr<TKelSpcErrorsListenerImpl>& listener);

public slots:
    void runExecuteByBlock();
    void cancelExecuteProcess();
    void on_actionRun_triggered() override;
    void runByBlock() override;

private:
    ProgramListRun* list_;
};
