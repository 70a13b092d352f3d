// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "import/csv_importer.h"
#include "interrupt.h"
#include "json_print.h"
#include "password.h"
#include "progress_bar.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>

namespace kelx::tool {

namespace {

struct ImportOptions {
    tools::ImportRequest request;
    std::vector<std::string> levels, under;
    bool password = false;
    bool json = false;
    std::string passwordFile;
};

/// NAME=VALUE in its two halves.
std::pair<std::string, std::string> halves(const std::string& option, const std::string& text) {
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign == 0 || sign + 1 == text.size())
        throw CLI::ValidationError(option, "\"" + text + "\" is not of the form NAME=VALUE");
    return {text.substr(0, sign), text.substr(sign + 1)};
}

std::string newPassword(const ImportOptions& options) {
    if (!options.passwordFile.empty())
        return passwordFromFile(options.passwordFile);
    std::string password = passwordFromTerminal("New password: ");
    if (password.empty())
        throw std::runtime_error("The password is empty.");
    if (passwordFromTerminal("Again: ") != password)
        throw std::runtime_error("The two passwords differ.");
    return password;
}

void print(const tools::ImportReport& report) {
    for (const auto& level : report.levels) {
        std::cout << level.name << ": " << level.records << " records"
                  << (level.sorted ? ", put into the order of the level above" : "") << '\n';
        for (const auto& variable : level.variables) {
            if (variable.blanks == 0 && variable.outside == 0)
                continue;
            std::cout << "    " << variable.name << ": " << variable.blanks << " blank";
            if (variable.coded)
                std::cout << ", " << variable.outside << " without a label";
            std::cout << '\n';
        }
    }
}

void printAsJson(const tools::ImportReport& report, const std::string& database) {
    nlohmann::ordered_json told{{"database", database},
                                {"levels", nlohmann::ordered_json::array()}};
    for (const auto& level : report.levels) {
        nlohmann::ordered_json variables = nlohmann::ordered_json::array();
        for (const auto& variable : level.variables) {
            variables.push_back({{"name", variable.name},
                                 {"type", valueTypeName(variable.type)},
                                 {"blanks", variable.blanks},
                                 {"coded", variable.coded},
                                 {"withoutLabel", variable.outside}});
        }
        told["levels"].push_back({{"name", level.name},
                                  {"records", level.records},
                                  {"sorted", level.sorted},
                                  {"variables", std::move(variables)}});
    }
    printJson(told);
}

tools::ImportReport importWatched(tools::ImportRequest& request) {
    const InterruptWatch watch;
    ProgressBar bar;
    request.progress = bar.until(watch);
    return tools::importCsv(request);
}

int import(ImportOptions& options) {
    tools::ImportRequest& request = options.request;
    if (options.password || !options.passwordFile.empty())
        request.key = storage::Secret::derive(newPassword(options), storage::Secret::newRecipe());
    try {
        const tools::ImportReport report = importWatched(request);
        options.json ? printAsJson(report, request.database.string()) : print(report);
    } catch (const tools::LocatedError& fault) {
        std::cerr << fault.what() << '\n';
        return failure;
    }
    return success;
}

} // namespace

void addImport(CLI::App& app, Action& action) {
    CLI::App* command =
        app.add_subcommand("import", "Make a database from CSV files and a codebook");
    auto options = std::make_shared<ImportOptions>();
    tools::ImportRequest& request = options->request;
    command->add_option("database", request.database, "The database to write (.kxdb)")->required();
    command
        ->add_option("--level", options->levels,
                     "A level and its file, from the top down; each lies under the one before")
        ->required()
        ->type_name("LEVEL=FILE")
        ->take_all();
    command->add_option("--under", options->under, "A level that lies under another one")
        ->type_name("LEVEL=PARENT")
        ->take_all();
    command->add_option("--codebook", request.codebook, "What the columns mean")
        ->required()
        ->type_name("FILE");
    command->add_option("--root", request.root, "Name of the entity above all (default DATABASE)")
        ->type_name("NAME");
    CLI::Option* password =
        command->add_flag("--password", options->password, "Protect it; asks for a password");
    command
        ->add_option("--password-file", options->passwordFile,
                     "Protect it with the password in the file's first line")
        ->type_name("FILE")
        ->excludes(password);
    command->add_flag("--overwrite", request.overwrite, "Replace files that exist");
    command->add_flag("--json", options->json, "Report as JSON");
    command->callback([&action, options] {
        requireExtension("database", options->request.database, {".kxdb"});
        for (const std::string& level : options->levels)
            options->request.levels.emplace_back(halves("--level", level));
        for (const std::string& pair : options->under)
            options->request.under.emplace_back(halves("--under", pair));
        action = [options] { return import(*options); };
    });
}

} // namespace kelx::tool
