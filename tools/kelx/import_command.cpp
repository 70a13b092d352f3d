// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "import/csv_importer.h"
#include "password.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>

namespace kelx::tool {

namespace {

struct ImportOptions {
    tools::ImportRequest request;
    std::vector<std::string> levels, under;
    bool password = false;
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
    const std::string password = passwordFromTerminal("New password: ");
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
            if (variable.blanks == 0 && variable.outsideLabels == 0)
                continue;
            std::cout << "    " << variable.name << ": " << variable.blanks << " blank";
            if (variable.coded)
                std::cout << ", " << variable.outsideLabels << " without a label";
            std::cout << '\n';
        }
    }
}

int import(ImportOptions& options) {
    if (options.password || !options.passwordFile.empty())
        options.request.key =
            storage::Secret::derive(newPassword(options), storage::Secret::newRecipe());
    try {
        print(tools::importCsv(options.request));
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
    command->add_option("database", request.database, "The dictionary to write (.kxdb or .dicx)")
        ->required();
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
    command->callback([&action, options] {
        for (const std::string& level : options->levels)
            options->request.levels.emplace_back(halves("--level", level));
        for (const std::string& pair : options->under)
            options->request.under.emplace_back(halves("--under", pair));
        action = [options] { return import(*options); };
    });
}

} // namespace kelx::tool
