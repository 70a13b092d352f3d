// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/ProcessExecuter.h"

#include "app/messages/Messages.h"
#include "app/shell/Shell.h"
#include "engine/TKelSpcErrorsListenerImpl.h"
#include "engine/execution/RunGuard.h"
#include "engine/execution/RunProgress.h"
#include "engine/execution/RunSteps.h"
#include "kel.h"
#include "projects/TfrmProject.h"

#include <QDebug>
#include <QListWidget>
#include <QScopedValueRollback>

#include <exception>
#include <utility>

namespace {

/// What a session calls while it works; the session outlives it.
class Hooks {
public:
    Hooks(TKelSession& session, TKelSpcErrorsListener* listener, TKelTimerCallback callback)
        : session_(session) {
        session_.setErrorsListener(listener);
        session_.setTimerCallback(std::move(callback));
    }
    ~Hooks() {
        session_.setErrorsListener(nullptr);
        session_.setTimerCallback({});
    }
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;

private:
    TKelSession& session_;
};

const QString betweenMessages = QStringLiteral("\\n"); ///< as it stands, not a new line

QStringList linesOf(TKelSpcErrorsListenerImpl& listener, std::int64_t firstLine) {
    QStringList lines;
    if (listener.hasErrors())
        qDebug("Errors detected...\n");
    for (const SpcMessage& message : listener.errors())
        lines += formatSpcMessage(message, SpcMessageKind::Error, firstLine);
    if (listener.hasWarnings()) {
        qDebug("Warnings detected...");
        if (!listener.hasErrors())
            lines += ProcessExecuter::tr("compiler syntax error");
    }
    for (const SpcMessage& message : listener.warnings())
        lines += formatSpcMessage(message, SpcMessageKind::Warning, firstLine);
    return lines;
}

} // namespace

struct ProcessExecuter::Run {
    const QString& program;
    const QString& shownText;
    Listener listener;
    QListWidget* errors; ///< null: faults go into a box
};

ProcessExecuter::ProcessExecuter(Shell& shell, QString language, QObject* parent)
    : QObject(parent), shell_(shell), language_(std::move(language)) {}

ProcessExecuter::~ProcessExecuter() = default;

bool ProcessExecuter::compile(const QString& program) {
    if (program.isEmpty()) {
        showAbout(tr("Error"), tr("Program code is empty"));
        return false;
    }
    const auto dictionary = RunSteps(shell_, nullptr).compiling();
    if (!dictionary)
        return false;
    try {
        kel::makeDefaultSession(dictionary);
    } catch (const std::exception& fault) {
        RunSteps::log(fault);
        showError(QString::fromUtf8(fault.what()));
        return false;
    }
    return true;
}

void ProcessExecuter::compile(const QString& program, const Listener& listener,
                              QListWidget* errors) {
    const auto dictionary = RunSteps(shell_, errors).compiling();
    if (!dictionary)
        return;
    try {
        const auto session = kel::makeDefaultSession(dictionary);
        const Hooks hooks(*session, listener.get(), {});
        session->compile(program.toStdString());
    } catch (const std::exception& fault) {
        RunSteps::log(fault);
        errors->addItem(QString::fromUtf8(fault.what()));
    }
}

void ProcessExecuter::execute(const QString& program) {
    const QString line(52, QLatin1Char('-'));
    for (const QString& text : {line, QStringLiteral("ProcessExecuter::execute"), program, line})
        qDebug().noquote() << text;
    if (program.isEmpty()) {
        showError(tr("The executing program is empty"));
        return;
    }
    const auto listener = std::make_shared<TKelSpcErrorsListenerImpl>();
    runText(program, listener);
    const QStringList messages = compileMessages(listener, false, false);
    if (!messages.isEmpty())
        showError(messages.join(betweenMessages));
}

void ProcessExecuter::runText(const QString& program, const Listener& listener) {
    run({program, program, listener, nullptr});
}

void ProcessExecuter::runText(const QString& program, const Listener& listener, QListWidget* errors,
                              const QString& shownText) {
    run({program, shownText.isEmpty() ? program : shownText, listener, errors});
}

void ProcessExecuter::run(const Run& run) {
    const RunSteps steps(shell_, run.errors);
    const auto dictionary = steps.running();
    if (!dictionary)
        return;
    try {
        const auto session = kel::makeDefaultSession(dictionary);
        TfrmProject::instance().setSession(session);
        if (executeText(*session, run))
            showOutputs(session, run);
    } catch (const std::exception& fault) {
        steps.fail(fault);
    }
}

/// False where the user has cancelled.
bool ProcessExecuter::executeText(TKelSession& session, const Run& run) {
    const std::string text = run.program.toStdString();
    const RunGuard guard;
    RunProgress progress(RunProgress::Kind::Program, shell_.window(),
                         [this] { shell_.showStatus(tr("Execution Canceled"), false); });
    const QScopedValueRollback<RunProgress*> current(progress_, &progress);
    const Hooks hooks(session, run.listener.get(),
                      [this](void*, int& expected, int& elapsed, int& percent, void*) {
                          return timerCallback(expected, elapsed, percent);
                      });
    qDebug("Before execute ");
    qDebug().noquote() << "Language to RUN" << language_;
    shell_.showStatus(tr("Processing"), true);
    const double seconds = kel::measureTime([&] { session.executeText(text, nullptr); });
    qDebug("After execute ProcessExecuter");
    if (progress.wasCancelled())
        return false;
    RunSteps::tellTime(seconds);
    return true;
}

bool ProcessExecuter::timerCallback(int expected, int elapsed, int percent) {
    const QString label = tr("Time Expected: ") + QString::number(expected / 1000) +
                          tr(" s - Time Elapsed: ") + QString::number(elapsed / 1000) + tr(" s");
    return progress_->tell(percent, label);
}

void ProcessExecuter::showOutputs(const std::shared_ptr<TKelSession>& session, const Run& run) {
    TfrmProject& project = TfrmProject::instance();
    project.storeOutputs(false);
    const std::vector<TKelOutput*> outputs = project.outputs();
    const bool creating = run.errors == nullptr || !outputs.empty();
    shell_.showStatus(tr("Execution Finished"), false);
    if (creating)
        shell_.showStatus(tr("Creating Table"), true);
    // Without outputs too: what the program has saved shows elsewhere.
    const QStringList faults = shell_.showResults(outputs, session, run.shownText);
    if (creating)
        shell_.showStatus(tr("Table Created"), false);
    if (run.errors != nullptr)
        run.errors->addItems(faults);
    else if (!faults.isEmpty())
        showWarning(faults.join(u'\n'));
}

QStringList ProcessExecuter::compileMessages(const Listener& listener, bool block, bool report) {
    if (block)
        return compileBlockMessages(listener, 0, report);
    QStringList lines = linesOf(*listener, 0);
    if (report && lines.isEmpty()) {
        const QString text = tr("Compilation successful, no errors or warnings found");
        lines += text;
        shell_.showStatus(text, false);
    }
    return lines;
}

QStringList ProcessExecuter::compileBlockMessages(const Listener& listener, std::int64_t firstLine,
                                                  bool report) {
    QStringList lines = linesOf(*listener, firstLine);
    if (report && lines.isEmpty())
        lines += tr("Compilation by block successful, no errors or warnings found");
    return lines;
}

void ProcessExecuter::on_cancelProcess() {
    if (progress_ != nullptr)
        progress_->cancel();
}
