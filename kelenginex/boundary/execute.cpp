// SPDX-License-Identifier: Apache-2.0
#include "TKelExecute.h"

#include "boundary/execute_data.h"
#include "boundary/memory.h"
#include "boundary/program_run.h"
#include "language/message_table.h"
#include "output/saved_variables.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

using kelx::language::BoundProgram;
using kelx::language::ExecuteCall;
using kelx::language::Message;
using kelx::language::Messages;

/// In the text that calls the program there is but one line to point to.
void addAtCall(const Messages& found, const ExecuteCall& call, Messages& messages) {
    for (Message message : found.all()) {
        message.text =
            call.fileName + ":" + std::to_string(message.position.line) + ": " + message.text;
        message.position = call.position;
        messages.add(std::move(message));
    }
}

void addFault(const std::string& text, const ExecuteCall& call, Messages& messages) {
    Message message =
        kelx::language::makeMessage(kelx::language::Error::ProgramFile, call.position);
    message.text = text;
    messages.add(std::move(message));
}

} // namespace

void TKelExecute::Data::execute(const std::string& text) {
    outputs.clear();
    const auto& model = *KelBoundaryAccess::state(*dictionary).dictionary;
    if (model.root == nullptr) {
        throw std::runtime_error("There is no open dictionary.");
    }
    Messages messages;
    const Calls calls =
        kelx::language::readExecuteCalls(text, kelx::boundary::compileOptions(model), messages);
    if (!messages.hasErrors()) {
        checkAll(calls, messages);
    }
    if (messages.hasErrors()) {
        requireFree(messages);
    }
    kelx::boundary::report(messages, listener);
    for (std::size_t current = 0; current < calls.size(); ++current) {
        if (!run(calls, current)) {
            outputs.clear();
            return;
        }
    }
}

/// Faults are told before anything is run. Only behind a program that saves variables they may be
/// none: the others are checked again when their turn comes.
void TKelExecute::Data::checkAll(const Calls& calls, Messages& messages) {
    for (const ExecuteCall& call : calls) {
        Messages found;
        const BoundProgram program = compile(call, found);
        if (found.hasErrors()) {
            for (const Message& message : found.all()) {
                messages.add(message);
            }
        } else if (kelx::output::savesVariables(program)) {
            return;
        }
    }
}

BoundProgram TKelExecute::Data::compile(const ExecuteCall& call, Messages& messages) {
    auto& model = *KelBoundaryAccess::state(*dictionary).dictionary;
    auto options = kelx::boundary::compileOptions(model);
    options.baseFolder = call.file.parent_path();
    options.programFile = call.file;
    options.tableStyle = call.tableStyle;
    Messages found;
    BoundProgram program;
    try {
        program = kelx::language::compile(kelx::language::programOf(call), model, options, found);
    } catch (const std::runtime_error& fault) {
        addFault(fault.what(), call, messages);
    }
    addAtCall(found, call, messages);
    return program;
}

bool TKelExecute::Data::run(const Calls& calls, std::size_t current) {
    const ExecuteCall& call = calls[current];
    Messages messages;
    const BoundProgram program = compile(call, messages);
    requireFree(messages);
    kelx::execution::ProgressCallback progress;
    if (callback) {
        TKelExecuteCallbackInfo info;
        info.programName = call.file.filename().string();
        info.current = static_cast<std::int64_t>(current);
        info.total = static_cast<std::int64_t>(calls.size());
        progress = [this, info](int, int, int percent) mutable {
            info.percent = percent;
            return callback(nullptr, info, nullptr);
        };
    }
    Messages found;
    kelx::boundary::ProgramRun made;
    try {
        made = kelx::boundary::runProgram(program, KelBoundaryAccess::state(*dictionary),
                                          std::move(progress), found);
    } catch (...) {
        addAtCall(found, call, messages);
        kelx::boundary::report(messages, listener);
        throw;
    }
    addAtCall(found, call, messages);
    kelx::boundary::report(messages, listener);
    if (messages.hasErrors()) {
        kelx::boundary::throwUnlessFree(messages);
    }
    std::move(made.outputs.begin(), made.outputs.end(), std::back_inserter(outputs));
    return !made.cancelled;
}

void TKelExecute::Data::requireFree(const Messages& messages) {
    try {
        kelx::boundary::throwUnlessFree(messages);
    } catch (const std::runtime_error&) {
        kelx::boundary::report(messages, listener);
        throw;
    }
}

TKelExecute::TKelExecute() : d(std::make_unique<Data>()) {}

TKelExecute::~TKelExecute() = default;

void TKelExecute::execute(const std::string& text) {
    if (d->dictionary == nullptr) {
        throw std::runtime_error("There is no open dictionary.");
    }
    try {
        kelx::boundary::withinMemory([&] { d->execute(text); });
    } catch (...) {
        d->outputs.clear();
        throw;
    }
}

void TKelExecute::setErrorsListener(TKelSpcErrorsListener* listener) {
    d->listener = listener;
}

void TKelExecute::setCallback(TKelExecuteCallback callback) {
    d->callback = std::move(callback);
}

std::vector<TKelOutput*> TKelExecute::outputs() {
    std::vector<TKelOutput*> result;
    for (const auto& output : d->outputs) {
        result.push_back(output.get());
    }
    return result;
}
