// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "import/csv_exporter.h"
#include "interrupt.h"
#include "password.h"
#include "progress_bar.h"
#include "storage/folder_lock.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;

struct ConvertRequest {
    fs::path database, target;
    std::string passwordFile;
    bool csv = false;
    bool overwrite = false;
};

void toCsv(const catalog::Dictionary& dictionary, const ConvertRequest& request) {
    tools::ExportReport report;
    {
        const InterruptWatch watch;
        ProgressBar bar;
        report = tools::exportCsv(dictionary, request.target, request.overwrite, bar.until(watch));
    }
    for (const auto& [file, records] : report)
        std::cout << (request.target / file).string() << ": " << counted(records, "record") << '\n';
}

void toDictionary(catalog::Dictionary& dictionary, const ConvertRequest& request) {
    if (!request.overwrite && fs::exists(request.target))
        throw std::runtime_error(request.target.string() +
                                 ": exists already; --overwrite replaces it");
    if (dictionary.key && hasExtension(request.target, ".dicx"))
        throw std::runtime_error(request.target.string() +
                                 ": a protected database cannot have a .dicx dictionary");
    const storage::FolderLock lock(request.target, {});
    catalog::saveDictionary(dictionary, fs::absolute(request.target));
}

int convert(const ConvertRequest& request) {
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    request.csv ? toCsv(*dictionary, request) : toDictionary(*dictionary, request);
    return success;
}

} // namespace

void addConvert(CLI::App& app, Action& action) {
    CLI::App* command =
        app.add_subcommand("convert", "Write a database as CSV files, or its dictionary anew");
    auto request = std::make_shared<ConvertRequest>();
    command->add_option("database", request->database, "The .kxdb or .dicx file")->required();
    command->add_option("target", request->target, "A folder (with --csv), a .kxdb or .dicx file")
        ->required();
    command->add_flag("--csv", request->csv, "One CSV file for each level, and a codebook");
    command->add_flag("--overwrite", request->overwrite, "Replace files that exist");
    addPasswordFile(*command, request->passwordFile);
    command->callback([&action, request] {
        if (!request->csv)
            requireExtension("target (without --csv)", request->target, {".kxdb", ".dicx"});
        action = [request] { return convert(*request); };
    });
}

} // namespace kelx::tool
