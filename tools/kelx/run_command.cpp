// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "language/compile.h"
#include "output/run.h"
#include "password.h"
#include "progress_bar.h"
#include "storage/atomic_file.h"
#include "storage/error.h"

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <memory>
#include <new>
#include <set>
#include <stdexcept>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;

struct RunRequest {
    fs::path database, program, folder;
    std::string text, passwordFile;
    std::string format = "text";
    bool time = false;
    unsigned threads = 0;
};

std::string readFile(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream || fs::is_directory(file))
        throw storage::FileError(file, "cannot be opened");
    std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    if (text.starts_with("\xef\xbb\xbf"))
        text.erase(0, 3);
    return text;
}

void print(const language::Messages& messages, const std::string& name) {
    for (const language::Message& message : messages.forDisplay()) {
        const bool isError = message.severity == language::Severity::Error;
        std::cerr << name << ':' << message.position.line << ':' << message.position.column << ": "
                  << (isError ? "error: " : "warning: ") << message.text << '\n';
    }
}

std::string secondsText(double seconds) {
    std::array<char, 64> buffer{};
    const auto [end, fault] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), seconds,
                                            std::chars_format::fixed, 3);
    return fault == std::errc() ? std::string(buffer.data(), end) : std::string();
}

void show(const output::Table& table, const RunRequest& request, const output::TextSink& sink) {
    if (request.format == "json")
        return output::writeJson(table, sink);
    if (request.format == "csv")
        return output::writeCsv(table, sink);
    output::writeText(table, sink);
    if (request.time)
        sink("Time: " + secondsText(table.seconds) + " s\n");
}

void printAll(const std::vector<output::Table>& tables, const RunRequest& request) {
    const bool json = request.format == "json";
    const char* separator = json ? "[\n" : "";
    for (const output::Table& table : tables) {
        std::cout << separator;
        show(table, request, [](std::string_view part) { std::cout << part; });
        separator = json ? ",\n" : "\n";
    }
    if (json)
        std::cout << (tables.empty() ? "[\n]\n" : "\n]\n");
}

/// The table's name as a file name, numbered where another table has it.
std::string fileNameOf(const output::Table& table, std::set<std::string>& taken) {
    std::string stem;
    for (const char c : table.name)
        stem += std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos &&
                        static_cast<unsigned char>(c) >= 0x20
                    ? c
                    : '_';
    if (stem.empty() || stem.starts_with('.'))
        stem.insert(0, "_");
    std::string name = stem;
    for (int n = 2; !taken.insert(name).second; ++n)
        name = stem + "_" + std::to_string(n);
    return name;
}

void writeAll(const std::vector<output::Table>& tables, const RunRequest& request) {
    fs::create_directories(request.folder);
    std::set<std::string> taken;
    const std::string extension = request.format == "text" ? ".txt" : "." + request.format;
    for (const output::Table& table : tables) {
        const fs::path file = request.folder / (fileNameOf(table, taken) + extension);
        storage::AtomicFile out(file);
        show(table, request, [&](std::string_view part) { out.write(part); });
        if (request.format == "json")
            out.write("\n");
        out.commit();
        std::cout << file.string() << '\n';
    }
}

int run(const RunRequest& request) {
    const std::string name = request.program.empty() ? "-e" : request.program.string();
    const std::string text = request.program.empty() ? request.text : readFile(request.program);
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    language::CompileOptions compileOptions;
    compileOptions.baseFolder = fs::absolute(request.database).parent_path();
    language::Messages messages;
    const auto program = language::compile(text, *dictionary, compileOptions, messages);
    if (messages.hasErrors()) {
        print(messages, name);
        return failure;
    }
    execution::RunOptions options;
    options.threads = request.threads;
    output::TablesOfRun made;
    {
        ProgressBar bar;
        if (bar.isShown())
            options.progress = [&bar](int, int elapsed, int percent) {
                if (elapsed > 500)
                    bar.show(static_cast<std::uint64_t>(percent), 100);
                return false;
            };
        made = output::runTables(program, *dictionary, options, messages);
    }
    print(messages, name);
    request.folder.empty() ? printAll(made.tables, request) : writeAll(made.tables, request);
    return messages.hasErrors() ? failure : success;
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
    CLI::Option* text = command->add_option("-e", request->text, "The program's text itself");
    text->type_name("TEXT")->excludes(program);
    command->add_option("--format", request->format, "text, json or csv (default text)")
        ->check(CLI::IsMember({"text", "json", "csv"}));
    command->add_option("--out", request->folder, "Write a file for each table into this folder")
        ->type_name("FOLDER");
    command->add_flag("--time", request->time, "Tell the seconds that each command took");
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
