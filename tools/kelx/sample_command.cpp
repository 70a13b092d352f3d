// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "progress_bar.h"
#include "sample/sample.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace kelx::tool {

namespace {

int runSample(tools::SampleRequest request) {
    tools::SampleReport report;
    {
        ProgressBar bar;
        if (bar.isShown())
            request.progress = [&bar](std::uint64_t done, std::uint64_t all) {
                bar.show(done, all);
            };
        report = tools::writeSample(request);
    }
    std::cout << (request.folder / "sample.kxdb").string() << ": " << report.provinces
              << " provinces, " << report.districts << " districts, " << report.households
              << " households, " << report.persons << " persons, " << report.emigrants
              << " emigrants\n";
    return success;
}

} // namespace

void addSample(CLI::App& app, Action& action) {
    CLI::App* command =
        app.add_subcommand("sample", "Write the database of a made-up country, with programs");
    auto request = std::make_shared<tools::SampleRequest>();
    command->add_option("folder", request->folder, "Folder to write into")->required();
    command
        ->add_option("--persons", request->persons,
                     "Number of persons, 1000 to 100000000 (default 100000)")
        ->check(CLI::Range(tools::fewestSamplePersons, tools::mostSamplePersons));
    command->add_option("--seed", request->seed,
                        "The same seed gives the same country (default 1)");
    command->add_flag("--overwrite", request->overwrite, "Replace files that exist");
    command->callback([&action, request] { action = [request] { return runSample(*request); }; });
}

} // namespace kelx::tool
