// SPDX-License-Identifier: Apache-2.0
#include "boundary/session_data.h"

#include "boundary/memory.h"
#include "boundary/program_run.h"

#include <stdexcept>
#include <utility>

using kelx::language::Messages;

void TKelSession::Data::forget() {
    outputs.clear();
    program = {};
    definition = std::make_shared<TKelRunDefinition>(nullptr, std::nullopt);
}

void TKelSession::Data::compile(const std::string& text, Messages& messages) {
    forget();
    auto& state = KelBoundaryAccess::state(*dictionary);
    if (state.dictionary->root == nullptr) {
        throw std::runtime_error("The session has no open dictionary.");
    }
    program = kelx::language::compile(text, *state.dictionary,
                                      kelx::boundary::compileOptions(*state.dictionary), messages);
    try {
        kelx::boundary::throwUnlessFree(messages);
    } catch (const std::runtime_error&) {
        kelx::boundary::report(messages, listener);
        throw;
    }
}

void TKelSession::Data::run(Messages& messages) {
    kelx::execution::ProgressCallback progress;
    if (timer) {
        progress = [this](int expected, int elapsed, int percent) {
            return timer(nullptr, expected, elapsed, percent, nullptr);
        };
    }
    auto made = kelx::boundary::runProgram(program, KelBoundaryAccess::state(*dictionary),
                                           std::move(progress), messages);
    if (!made.cancelled) {
        outputs = std::move(made.outputs);
        definition = kelx::boundary::definitionOf(program);
    }
}

void TKelSession::Data::execute(const std::string& text) {
    Messages messages;
    compile(text, messages);
    try {
        run(messages);
    } catch (...) {
        kelx::boundary::report(messages, listener);
        throw;
    }
    kelx::boundary::report(messages, listener);
    if (messages.hasErrors()) {
        kelx::boundary::throwUnlessFree(messages);
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
        kelx::boundary::report(messages, d->listener);
        d->definition = kelx::boundary::definitionOf(d->program);
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
