// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "interrupt.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <exception>
#include <filesystem>
#include <iostream>

namespace {

using namespace kelx::tool;

int run(const Action& action) {
    try {
        return action();
    } catch (const Interrupted& stop) {
        std::cerr << "kelx: " << stop.what() << '\n';
        return 128 + stop.signal();
    } catch (const std::filesystem::filesystem_error& fault) {
        std::cerr << "kelx: error: " << fault.path1().string() << ": " << fault.code().message()
                  << '\n';
    } catch (const std::exception& fault) {
        std::cerr << "kelx: error: " << fault.what() << '\n';
    }
    return failure;
}

/// The word that stands where a command should; empty where one does.
std::string unknownCommand(const CLI::App& app) {
    const std::vector<std::string> words = app.remaining();
    return app.get_subcommands().empty() && !words.empty() && !words.front().starts_with('-')
               ? words.front()
               : std::string();
}

/// A full disk behind standard output may show only now.
int withOutput(int status) {
    std::cout.flush();
    if (std::cout)
        return status;
    std::cerr << "kelx: error: standard output cannot be written to its end\n";
    return status == success ? failure : status;
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN); // a limit on files is told like a full disk
    CLI::App app("Census microdata: make databases, look at them, run programs on them.", "kelx");
    app.set_version_flag("--version", "kelx " KELX_VERSION);
    app.require_subcommand(1);
    Action action;
    for (const auto add :
         {addSample, addInfo, addRun, addCheck, addImport, addConvert, addMessages})
        add(app, action);
    for (CLI::App* command : app.get_subcommands({}))
        command->set_version_flag("--version", "kelx " KELX_VERSION);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& fault) {
        if (const std::string word = unknownCommand(app); !word.empty()) {
            std::cerr << "\"" << word << "\" is no command of kelx.\n"
                      << "Run with --help for more information.\n";
            return misuse;
        }
        return withOutput(app.exit(fault) == 0 ? success : misuse);
    }
    return withOutput(run(action));
}
