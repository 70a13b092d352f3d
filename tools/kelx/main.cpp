// SPDX-License-Identifier: Apache-2.0
#include "commands.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    using namespace kelx::tool;
    CLI::App app("Census microdata: make databases, look at them, run programs on them.", "kelx");
    app.set_version_flag("--version", "kelx " KELX_VERSION);
    app.require_subcommand(1);
    Action action;
    for (const auto add : {addSample, addInfo, addRun, addImport, addConvert})
        add(app, action);
    for (CLI::App* command : app.get_subcommands({}))
        command->set_version_flag("--version", "kelx " KELX_VERSION);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& fault) {
        return app.exit(fault) == 0 ? success : misuse;
    }
    try {
        return action();
    } catch (const std::exception& fault) {
        std::cerr << "kelx: error: " << fault.what() << '\n';
        return failure;
    }
}
