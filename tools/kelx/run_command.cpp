// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "execution/progress.h"
#include "interrupt.h"
#include "language/compile.h"
#include "output/files.h"
#include "output/run.h"
#include "output/saved_dictionary.h"
#include "password.h"
#include "program_text.h"
#include "progress_bar.h"
#include "table_printer.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <new>
#include <stdexcept>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;

struct RunRequest {
    fs::path database, program;
    std::string text, passwordFile;
    TablePrinting printing;
    unsigned threads = 0;
};

/// The program's own files, those that the user asks for, and the dictionary with the variables
/// that the program saves: all are to appear together.
class FilesOfRun {
public:
    FilesOfRun(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
               const TablePrinting& printing)
        : program_(program), dictionary_(dictionary), printing_(printing) {}

    void stage(const std::vector<output::Table>& tables, storage::StagedFiles& files,
               const storage::Pulse& pulse) {
        output::stageFiles(output::csvFiles(tables, program_), files, pulse);
        output::stageFiles(output::jsonFiles(tables, program_), files, pulse);
        stageFiles(tables, printing_, files, pulse);
        saved_.stage(program_, dictionary_, output::Joined::All, files, pulse);
    }

private:
    const language::BoundProgram& program_;
    const catalog::Dictionary& dictionary_;
    const TablePrinting& printing_;
    output::SavedDictionary saved_;
};

output::TablesOfRun makeTables(const language::BoundProgram& program,
                               const catalog::Dictionary& dictionary, const RunRequest& request,
                               language::Messages& messages) {
    const InterruptWatch watch; // to the end of all writing
    ProgressBar bar;
    execution::RunOptions options;
    options.threads = request.threads;
    options.progress = [&](int, int elapsed, int percent) {
        if (elapsed > 500)
            bar.show(static_cast<std::uint64_t>(percent), 100);
        return watch.asked();
    };
    FilesOfRun outcome(program, dictionary, request.printing);
    output::TablesOfRun made =
        output::runTables(program, dictionary, options, messages,
                          [&](const std::vector<output::Table>& tables, storage::StagedFiles& files,
                              execution::Progress& progress) {
                              outcome.stage(tables, files, [&] { progress.checkNow(); });
                          });
    if (made.cancelled)
        watch.check();
    return made;
}

/// Files are there when standard output turns out to be full.
void tellWrittenWhereOutputIsLost(const language::BoundProgram& program) {
    std::cout.flush();
    if (std::cout)
        return;
    for (const language::Definition& definition : program.definitions) {
        if (definition.save)
            std::cerr << "kelx: " << definition.variable->fullName() << " was saved all the same\n";
    }
    for (const language::TableCommand& command : program.tables) {
        if (!command.isOutput)
            continue;
        if (command.outfile)
            std::cerr << "kelx: " << command.outfile->path << " was written all the same\n";
        for (const std::string& file : command.jsonFiles)
            std::cerr << "kelx: " << file << " was written all the same\n";
    }
}

int run(const RunRequest& request) {
    const std::string name = request.program.empty() ? "-e" : request.program.string();
    const std::string text = request.program.empty() ? request.text : readProgram(request.program);
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    language::CompileOptions compileOptions;
    compileOptions.baseFolder = fs::absolute(request.database).parent_path();
    compileOptions.programFile = request.program;
    language::Messages messages;
    const auto program = language::compile(text, *dictionary, compileOptions, messages);
    if (!messages.hasErrors())
        output::requireCsv(program, messages);
    if (messages.hasErrors()) {
        printMessages(messages, name);
        return failure;
    }
    const output::TablesOfRun made = makeTables(program, *dictionary, request, messages);
    printMessages(messages, name);
    if (messages.hasErrors())
        return failure;
    print(made.tables, request.printing);
    tellWrittenWhereOutputIsLost(program);
    return success;
}

int runWithinMemory(const RunRequest& request) {
    try {
        return run(request);
    } catch (const std::bad_alloc&) {
        throw std::runtime_error("there is not enough memory for this; take fewer tables or "
                                 "variables at once");
    }
}

} // namespace

void addRun(CLI::App& app, Action& action) {
    CLI::App* command = app.add_subcommand("run", "Run a program on a database");
    auto request = std::make_shared<RunRequest>();
    command->add_option("database", request->database, "The .kxdb or .dicx file")->required();
    CLI::Option* program = command->add_option("program", request->program, "The program file");
    const CLI::Validator hasName(
        [](const std::string& name) { return std::string(name.empty() ? "has no name" : ""); }, "");
    program->check(hasName);
    CLI::Option* text = command->add_option("-e", request->text, "The program's text itself");
    text->type_name("TEXT")->excludes(program);
    TablePrinting& printing = request->printing;
    command
        ->add_option("--format", printing.format,
                     "text, json (an array with an object for each table) or csv; default text. "
                     "Several tables as csv on standard output: each after a line with its name, "
                     "an empty line between them")
        ->check(CLI::IsMember({"text", "json", "csv"}));
    command->add_flag_callback(
        "--json", [request] { request->printing.format = "json"; }, "The same as --format json");
    command->add_option("--out", printing.folder, "Write a file for each table into this folder")
        ->type_name("FOLDER")
        ->check(hasName);
    command->add_flag(
        "--time", printing.time,
        "Tell the seconds that each command took; for csv and json on standard error");
    command
        ->add_option("--threads", request->threads,
                     "Number of threads (default: one for each core)")
        ->check(CLI::Range(0, 1024));
    addPasswordFile(*command, request->passwordFile);
    command->callback([&action, request, program, text] {
        if (program->empty() && text->empty())
            throw CLI::RequiredError("A program file or -e TEXT");
        action = [request] { return runWithinMemory(*request); };
    });
}

} // namespace kelx::tool
