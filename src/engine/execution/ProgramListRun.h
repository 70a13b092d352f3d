// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a text of EXECUTE commands through the engine's execute object, program by program.
#pragma once

#include <QObject>

#include <memory>

class QListWidget;
class RunProgress;
class Shell;
class TKelExecute;
class TKelSpcErrorsListenerImpl;

/// GUI thread only; the same rules as ProcessExecuter, with a progress window of its own.
class ProgramListRun : public QObject {
    Q_OBJECT

public:
    explicit ProgramListRun(Shell& shell, QObject* parent = nullptr);

    /// Adds "Current Program: name - 1/3" to the list as each begins, once. The fault that ends it
    /// is inserted into the list.
    void runExecuteText(const QString& program,
                        const std::shared_ptr<TKelSpcErrorsListenerImpl>& listener,
                        QListWidget* errors);

public slots:
    void cancelExecuteProcess(); ///< ends the run, if one goes on

private:
    bool execute(TKelExecute& list, const QString& program, TKelSpcErrorsListenerImpl* listener,
                 QListWidget* errors);
    void writeOutputs(TKelExecute& list, QListWidget* errors);

    Shell& shell_;
    RunProgress* progress_ = nullptr; ///< of the run that goes on
};
