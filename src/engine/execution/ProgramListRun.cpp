// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/ProgramListRun.h"

#include "app/shell/Shell.h"
#include "engine/TKelSpcErrorsListenerImpl.h"
#include "engine/execution/RunGuard.h"
#include "engine/execution/RunProgress.h"
#include "engine/execution/RunSteps.h"
#include "kel.h"
#include "projects/TfrmProject.h"

#include <QDebug>
#include <QListWidget>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

namespace {

/// What the execute object calls while it works; the object outlives it.
class Hooks {
public:
    Hooks(TKelExecute& list, TKelSpcErrorsListener* listener, TKelExecuteCallback callback)
        : list_(list) {
        list_.setErrorsListener(listener);
        list_.setCallback(std::move(callback));
    }
    ~Hooks() {
        list_.setErrorsListener(nullptr);
        list_.setCallback({});
    }
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;

private:
    TKelExecute& list_;
};

/// Tells the program that runs, in the progress window and once in the list.
class ProgramNames {
public:
    ProgramNames(RunProgress& progress, QListWidget* list) : progress_(progress), list_(list) {}

    bool operator()(void*, const TKelExecuteCallbackInfo& info, void*) {
        const QString name = QString::fromStdString(info.programName) + QLatin1String(" - ") +
                             QString::number(info.current + 1) + QLatin1Char('/') +
                             QString::number(info.total);
        const QString line = ProgramListRun::tr("Current Program: ") + name;
        if (list_ && std::exchange(last_, line) != line)
            list_->addItem(line);
        return progress_.tell(info.percent, ProgramListRun::tr("Current Program :") + name);
    }

private:
    RunProgress& progress_;
    QPointer<QListWidget> list_;
    QString last_;
};

} // namespace

ProgramListRun::ProgramListRun(Shell& shell, QObject* parent) : QObject(parent), shell_(shell) {}

void ProgramListRun::runExecuteText(const QString& program,
                                    const std::shared_ptr<TKelSpcErrorsListenerImpl>& listener,
                                    QListWidget* errors) {
    const RunSteps steps(shell_, errors);
    const auto dictionary = steps.running();
    if (!dictionary)
        return;
    try {
        const auto list = kel::makeExecute(dictionary);
        TfrmProject::instance().setExecute(list);
        if (execute(*list, program, listener.get(), errors))
            writeOutputs(*list, errors);
    } catch (const std::exception& fault) {
        steps.fail(fault);
    }
    // The programs before the one that failed or was cancelled may have saved variables.
    if (dictionary->isDirty())
        shell_.reloadDictionary();
}

/// False where the user has cancelled.
bool ProgramListRun::execute(TKelExecute& list, const QString& program,
                             TKelSpcErrorsListenerImpl* listener, QListWidget* errors) {
    const std::string text = program.toStdString();
    const RunGuard guard;
    RunProgress progress(RunProgress::Kind::ProgramList, shell_.window(),
                         [this] { shell_.showStatus(tr("Execution Canceled"), false); });
    const QScopedValueRollback<RunProgress*> current(progress_, &progress);
    const Hooks hooks(list, listener, ProgramNames(progress, errors));
    shell_.showStatus(tr("Processing"), true);
    const double seconds = kel::measureTime([&] { list.execute(text); });
    qDebug("After execute executeprogramspc");
    if (progress.wasCancelled())
        return false;
    RunSteps::tellTime(seconds);
    return true;
}

void ProgramListRun::writeOutputs(TKelExecute& list, QListWidget* errors) {
    const std::vector<TKelOutput*> outputs = list.outputs();
    std::vector<TKelOutput*> direct;
    std::copy_if(outputs.begin(), outputs.end(), std::back_inserter(direct),
                 [](TKelOutput* output) { return output->options().direct; });
    shell_.showStatus(tr("Execution Finished"), false);
    shell_.showStatus(tr("Creating Table"), true);
    const QStringList faults = shell_.writeDirectOutputs(direct);
    if (errors != nullptr)
        errors->addItems(faults);
    shell_.showStatus(tr("Table Created"), false);
}

void ProgramListRun::cancelExecuteProcess() {
    if (progress_ != nullptr)
        progress_->cancel();
}
