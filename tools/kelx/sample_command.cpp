// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "interrupt.h"
#include "json_print.h"
#include "progress_bar.h"
#include "sample/sample.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

namespace kelx::tool {

namespace {

struct SampleOptions {
    tools::SampleRequest request;
    bool json = false;
};

void print(const tools::SampleReport& report, const std::string& database) {
    std::cout << database << ": " << report.provinces << " provinces, " << report.districts
              << " districts, " << report.households << " households, " << report.persons
              << " persons, " << report.emigrants << " emigrants\n";
}

void printAsJson(const tools::SampleReport& report, const std::string& database) {
    printJson({{"database", database},
               {"provinces", report.provinces},
               {"districts", report.districts},
               {"households", report.households},
               {"persons", report.persons},
               {"emigrants", report.emigrants}});
}

int runSample(SampleOptions& options) {
    tools::SampleReport report;
    {
        const InterruptWatch watch;
        ProgressBar bar;
        options.request.progress = bar.until(watch);
        report = tools::writeSample(options.request);
    }
    const std::string database = (options.request.folder / "sample.kxdb").string();
    options.json ? printAsJson(report, database) : print(report, database);
    return success;
}

} // namespace

void addSample(CLI::App& app, Action& action) {
    CLI::App* command =
        app.add_subcommand("sample", "Write the database of a made-up country, with programs");
    auto options = std::make_shared<SampleOptions>();
    tools::SampleRequest* request = &options->request;
    command->add_option("folder", request->folder, "Folder to write into")->required();
    command
        ->add_option("--persons", request->persons,
                     "Number of persons, 1000 to 100000000 (default 100000)")
        ->check(CLI::Range(tools::fewestSamplePersons, tools::mostSamplePersons));
    command->add_option("--seed", request->seed,
                        "The same seed gives the same country (default 1)");
    command->add_flag("--overwrite", request->overwrite, "Replace files that exist");
    command->add_flag("--json", options->json, "Answer as JSON");
    command->callback([&action, options] { action = [options] { return runSample(*options); }; });
}

} // namespace kelx::tool
