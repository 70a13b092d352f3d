// SPDX-License-Identifier: Apache-2.0
#include "boundary/program_run.h"

#include "boundary/engine.h"
#include "boundary/output_data.h"
#include "execution/progress.h"
#include "output/files.h"
#include "output/run.h"
#include "output/saved_dictionary.h"
#include "output/saved_variables.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kelx::boundary {

using language::Messages;
using language::Severity;

namespace {

[[noreturn]] void throwFound(std::size_t number, const std::string& what) {
    throw std::runtime_error(std::to_string(number) + " " + what + (number == 1 ? "" : "s") +
                             " found");
}

} // namespace

language::CompileOptions compileOptions(const catalog::Dictionary& dictionary) {
    const auto config = configuration();
    language::CompileOptions options;
    options.baseFolder = dictionary.file.parent_path();
    options.hasResultsFolder = true;
    if (config != nullptr) {
        options.autoWeight = config->autoWeight();
        options.showIntermediate = config->tab_show_intermediate();
    }
    return options;
}

void report(const Messages& messages, TKelSpcErrorsListener* listener) {
    if (listener == nullptr) {
        return;
    }
    for (const auto& message : messages.forDisplay()) {
        const std::string text = toLocal8Bit(message.text);
        if (message.severity == Severity::Error) {
            listener->error(static_cast<eSpcErrors>(message.code), text, message.position.line,
                            message.position.column);
        } else {
            listener->warning(static_cast<eSpcWarnings>(message.code), text, message.position.line,
                              message.position.column);
        }
    }
}

void throwUnlessFree(const Messages& messages) {
    if (messages.hasErrors()) {
        throwFound(messages.errorCount(), "error");
    }
    const auto config = configuration();
    const auto warnings =
        std::count_if(messages.all().begin(), messages.all().end(),
                      [](const auto& message) { return message.severity == Severity::Warning; });
    if (warnings > 0 && config != nullptr && config->stopAtWarnings()) {
        throwFound(static_cast<std::size_t>(warnings), "warning");
    }
}

ProgramRun runProgram(const language::BoundProgram& program, DictionaryState& state,
                      execution::ProgressCallback progress, Messages& messages) {
    execution::RunOptions options;
    const auto tuning = runTuning();
    options.threads = tuning.threads;
    options.blockRecords = tuning.blockRecords;
    const auto config = configuration();
    if (config == nullptr || config->showProgress()) {
        options.progress = std::move(progress);
    }
    ProgramRun run;
    // A column that is written anew and what the file says of it must not part, whatever the user
    // answers when the dictionary is to be saved.
    output::SavedDictionary saved;
    const auto writeFiles = [&](const std::vector<output::Table>& tables,
                                storage::StagedFiles& files, execution::Progress& more) {
        const storage::Pulse pulse = [&] { more.checkNow(); };
        output::stageFiles(output::jsonFiles(tables, program), files, pulse);
        saved.stage(program, *state.dictionary, output::Joined::Replaced, files, pulse);
    };
    auto made = output::runTables(program, *state.dictionary, options, messages, writeFiles);
    run.cancelled = made.cancelled;
    if (made.cancelled || messages.hasErrors()) {
        return run;
    }
    output::joinSavedVariables(program, *state.dictionary);
    if (saved.staged() != nullptr) {
        state.takeFromFile(*saved.staged());
        state.noteFile(*saved.staged());
    }
    state.refresh();
    for (output::Table& table : made.tables) {
        const auto& command = program.tables[table.command];
        run.outputs.push_back(makeOutput(std::move(table), command, state));
    }
    return run;
}

std::shared_ptr<TKelRunDefinition> definitionOf(const language::BoundProgram& program) {
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

} // namespace kelx::boundary
