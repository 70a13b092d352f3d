// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "import/csv_importer.h"
#include "import/flat_importer.h"
#include "import_report.h"
#include "interrupt.h"
#include "password.h"
#include "progress_bar.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;

struct ImportOptions {
    tools::ImportTarget target;
    tools::ImportRequest files; ///< a file for each level
    tools::FlatRequest flat;    ///< one file for all
    std::vector<std::string> levels, under, places;
    bool password = false;
    bool json = false;
    std::string passwordFile, separator;
};

/// NAME=VALUE in its two halves.
std::pair<std::string, std::string> halves(const std::string& option, const std::string& text) {
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign == 0 || sign + 1 == text.size())
        throw CLI::ValidationError(option, "\"" + text + "\" is not of the form NAME=VALUE");
    return {text.substr(0, sign), text.substr(sign + 1)};
}

std::string notEmpty(const std::string& text) {
    return text.empty() ? "must not be empty" : "";
}

std::optional<char> separator(const std::string& text) {
    if (text.empty() || text == "tab" || text == "\t")
        return text.empty() ? std::nullopt : std::optional('\t');
    if (text.size() == 1 &&
        std::string_view(",;|:!#$%&*/<=>?@^~ ").find(text[0]) != std::string_view::npos)
        return text[0];
    throw CLI::ValidationError("--separator", "\"" + text + "\" cannot separate fields");
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

/// The program that reads files of statistics packages lies beside this one.
fs::path statisticsHelper() {
    std::error_code fault;
    const fs::path self = fs::read_symlink("/proc/self/exe", fault);
    return fault ? fs::path() : self.parent_path() / "kelx-statistics";
}

tools::ImportReport importWatched(ImportOptions& options) {
    const InterruptWatch watch;
    ProgressBar bar;
    options.target.progress = bar.until(watch);
    if (options.flat.data.empty()) {
        static_cast<tools::ImportTarget&>(options.files) = options.target;
        return tools::importCsv(options.files);
    }
    static_cast<tools::ImportTarget&>(options.flat) = options.target;
    options.flat.codebook = options.files.codebook;
    options.flat.helper = statisticsHelper();
    return tools::importFlat(options.flat);
}

int import(ImportOptions& options) {
    tools::ImportTarget& target = options.target;
    if (options.password || !options.passwordFile.empty())
        target.key = storage::Secret::derive(newPassword(options), storage::Secret::newRecipe());
    target.questions.password = [&](const std::string& name) {
        return options.passwordFile.empty()
                   ? passwordFromTerminal("Password of the " + name + " to be replaced: ")
                   : passwordFromFile(options.passwordFile);
    };
    try {
        const tools::ImportReport report = importWatched(options);
        printReport(report, target.database, options.json);
    } catch (const tools::LocatedError& fault) {
        std::cerr << fault.what() << '\n';
        return failure;
    }
    return success;
}

void addSourceOptions(CLI::App& command, ImportOptions& options) {
    CLI::Option* levels =
        command
            .add_option("--level", options.levels,
                        "A level and its CSV file, from the top down; each lies under the one "
                        "before")
            ->type_name("LEVEL=FILE")
            ->take_all();
    command.add_option("--under", options.under, "A level that lies under another one")
        ->type_name("LEVEL=PARENT")
        ->needs(levels)
        ->take_all();
    command.add_option("--codebook", options.files.codebook, "What the columns of CSV files mean")
        ->type_name("FILE")
        ->check(notEmpty, "");
    command
        .add_option("--separator", options.separator,
                    "What stands between the fields of CSV files: one sign, or \"tab\" (default "
                    "\",\")")
        ->type_name("SIGN");
    CLI::Option* flat =
        command
            .add_option("--flat", options.flat.data,
                        "One file with the records of all levels: CSV, .sav, .zsav, .dta, "
                        ".sas7bdat, or any text with --layout")
            ->type_name("FILE")
            ->excludes(levels);
    const auto addFlat = [&](const std::string& name, auto& value, const char* help,
                             const char* type) {
        return command.add_option(name, value, help)
            ->type_name(type)
            ->needs(flat)
            ->check(notEmpty, "");
    };
    addFlat("--levels", options.flat.levels,
            "Its levels from the top down, each with the field that is its key and that of its "
            "label: \"PROVINCE:CODE:NAME,HOUSEHOLD:NUMBER,PERSON\"",
            "LEVELS");
    addFlat("--place", options.places, "The level of a field (else found from its values)",
            "FIELD=LEVEL")
        ->take_all();
    addFlat("--weight", options.flat.weight, "The field with the weights of its level", "FIELD");
    addFlat("--layout", options.flat.layout, "A .dicx that tells where the fields of a text stand",
            "FILE");
    addFlat("--record-type", options.flat.recordTypeColumn,
            "Column where lines of a text say of which type they are (default 1)", "COLUMN")
        ->check(CLI::Range(1, 1000000));
    addFlat("--encoding", options.flat.encoding,
            "Encoding of the texts of a .sav, .dta or .sas7bdat, where it does not say it itself",
            "NAME");
    addFlat("--formats", options.flat.formats, "The labels of a .sas7bdat (.sas7bcat)", "FILE");
}

void addTargetOptions(CLI::App& command, ImportOptions& options) {
    tools::ImportTarget& target = options.target;
    command.add_option("database", target.database, "The database to write (.kxdb)")->required();
    command.add_option("--root", target.root, "Name of the entity above all (default DATABASE)")
        ->type_name("NAME");
    command.add_flag("--tolerant", target.tolerant,
                     "Count faults of values and records and go on, instead of refusing the file");
    CLI::Option* password =
        command.add_flag("--password", options.password, "Protect it; asks for a password");
    command
        .add_option("--password-file", options.passwordFile,
                    "Protect it with the password in the file's first line")
        ->type_name("FILE")
        ->excludes(password);
    command.add_flag("--overwrite", target.overwrite,
                     "Replace a database that exists, with its files");
    command.add_flag("--json", options.json, "Report as JSON");
}

void check(ImportOptions& options) {
    requireExtension("database", options.target.database, {".kxdb"});
    options.target.separator = separator(options.separator);
    for (const std::string& level : options.levels)
        options.files.levels.emplace_back(halves("--level", level));
    for (const std::string& pair : options.under)
        options.files.under.emplace_back(halves("--under", pair));
    for (const std::string& pair : options.places)
        options.flat.places.emplace_back(halves("--place", pair));
    if (options.flat.data.empty() && options.levels.empty())
        throw CLI::RequiredError("--flat FILE or --level LEVEL=FILE");
    if (options.flat.data.empty() && options.files.codebook.empty())
        throw CLI::RequiredError("--codebook FILE");
}

} // namespace

void addImport(CLI::App& app, Action& action) {
    CLI::App* command = app.add_subcommand(
        "import", "Make a database from CSV files, a text, or a file of a statistics package");
    auto options = std::make_shared<ImportOptions>();
    addTargetOptions(*command, *options);
    addSourceOptions(*command, *options);
    command->callback([&action, options] {
        check(*options);
        action = [options] { return import(*options); };
    });
}

} // namespace kelx::tool
