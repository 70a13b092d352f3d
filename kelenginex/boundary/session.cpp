// SPDX-License-Identifier: Apache-2.0
#include "boundary/session_data.h"

#include "boundary/engine.h"
#include "boundary/memory.h"
#include "boundary/output_data.h"
#include "language/compile.h"
#include "output/files.h"
#include "output/run.h"
#include "output/saved_variables.h"

#include <stdexcept>

namespace {

using kelx::language::Messages;
using kelx::language::Severity;

std::size_t count(const Messages& messages, Severity severity) {
    std::size_t result = 0;
    for (const auto& message : messages.all()) {
        result += message.severity == severity ? 1 : 0;
    }
    return result;
}

[[noreturn]] void throwFound(std::size_t number, const std::string& what) {
    throw std::runtime_error(std::to_string(number) + " " + what + (number == 1 ? "" : "s") +
                             " found");
}

kelx::language::CompileOptions compileOptions(const kelx::catalog::Dictionary& dictionary) {
    const auto config = kelx::boundary::configuration();
    kelx::language::CompileOptions options;
    options.autoWeight = config == nullptr || config->autoWeight();
    options.baseFolder = dictionary.file.parent_path();
    return options;
}

std::shared_ptr<TKelRunDefinition> definitionOf(const kelx::language::BoundProgram& program) {
    std::string label;
    std::optional<std::string> filter;
    if (const auto& settings = program.lastSettings) {
        label = settings->selection ? settings->selection->label : std::string();
        if (settings->filter != nullptr) {
            filter = settings->filterLabel.value_or(settings->filter->text);
        }
    }
    return std::make_shared<TKelRunDefinition>(std::make_shared<TKelRunSelection>(label), filter);
}

} // namespace

void TKelSession::Data::forget() {
    outputs.clear();
    program = {};
    definition = std::make_shared<TKelRunDefinition>(nullptr, std::nullopt);
}

void TKelSession::Data::report(const Messages& messages) const {
    if (listener == nullptr) {
        return;
    }
    for (const auto& message : messages.forDisplay()) {
        const std::string text = kelx::boundary::toLocal8Bit(message.text);
        if (message.severity == Severity::Error) {
            listener->error(static_cast<eSpcErrors>(message.code), text, message.position.line,
                            message.position.column);
        } else {
            listener->warning(static_cast<eSpcWarnings>(message.code), text, message.position.line,
                              message.position.column);
        }
    }
}

void TKelSession::Data::compile(const std::string& text, Messages& messages) {
    forget();
    auto& state = KelBoundaryAccess::state(*dictionary);
    if (state.dictionary->root == nullptr) {
        throw std::runtime_error("The session has no open dictionary.");
    }
    program = kelx::language::compile(text, *state.dictionary, compileOptions(*state.dictionary),
                                      messages);
    if (messages.hasErrors()) {
        report(messages);
        throwFound(messages.errorCount(), "error");
    }
    const auto config = kelx::boundary::configuration();
    const std::size_t warnings = count(messages, Severity::Warning);
    if (warnings > 0 && config != nullptr && config->stopAtWarnings()) {
        report(messages);
        throwFound(warnings, "warning");
    }
}

void TKelSession::Data::run(Messages& messages) {
    kelx::execution::RunOptions options;
    const auto tuning = kelx::boundary::runTuning();
    options.threads = tuning.threads;
    options.blockRecords = tuning.blockRecords;
    const auto config = kelx::boundary::configuration();
    if (timer && (config == nullptr || config->showProgress())) {
        options.progress = [this](int expected, int elapsed, int percent) {
            return timer(nullptr, expected, elapsed, percent, nullptr);
        };
    }
    auto& state = KelBoundaryAccess::state(*dictionary);
    auto made = kelx::output::runTables(program, *state.dictionary, options, messages);
    if (made.cancelled) {
        return;
    }
    if (!messages.hasErrors()) {
        kelx::output::joinSavedVariables(program, *state.dictionary);
        state.refresh();
        kelx::output::writeFiles(kelx::output::jsonFiles(made.tables, program));
    }
    for (kelx::output::Table& table : made.tables) {
        const auto& command = program.tables[table.command];
        outputs.push_back(kelx::boundary::makeOutput(std::move(table), command, state));
    }
    definition = definitionOf(program);
}

void TKelSession::Data::execute(const std::string& text) {
    Messages messages;
    compile(text, messages);
    try {
        run(messages);
    } catch (...) {
        report(messages);
        throw;
    }
    report(messages);
    if (messages.hasErrors()) {
        throwFound(messages.errorCount(), "error");
    }
}

TKelSession::TKelSession() : d(std::make_unique<Data>()) {
    d->forget();
}

TKelSession::~TKelSession() = default;

void TKelSession::executeText(const std::string& program, void* /*context*/) {
    if (d->dictionary == nullptr) {
        throw std::runtime_error("The session has no open dictionary.");
    }
    try {
        kelx::boundary::withinMemory([&] { d->execute(program); });
    } catch (...) {
        d->forget();
        throw;
    }
}

void TKelSession::setErrorsListener(TKelSpcErrorsListener* listener) {
    d->listener = listener;
}

void TKelSession::setTimerCallback(TKelTimerCallback callback) {
    d->timer = std::move(callback);
}

void TKelSession::compile(const std::string& program) {
    if (d->dictionary == nullptr) {
        throw std::runtime_error("The session has no open dictionary.");
    }
    kelx::boundary::withinMemory([&] {
        Messages messages;
        d->compile(program, messages);
        d->report(messages);
        d->definition = definitionOf(d->program);
    });
}

std::vector<TKelOutput*> TKelSession::outputs() {
    std::vector<TKelOutput*> result;
    for (const auto& output : d->outputs) {
        result.push_back(output.get());
    }
    return result;
}

std::shared_ptr<TKelRunDefinition> TKelSession::runDefinition() {
    return d->definition;
}

TKelDictionary* TKelSession::dictionary() {
    return d->dictionary.get();
}
