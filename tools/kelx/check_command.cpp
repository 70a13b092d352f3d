// SPDX-License-Identifier: Apache-2.0
#include "catalog/consistency.h"
#include "commands.h"
#include "interrupt.h"
#include "json_print.h"
#include "language/compile.h"
#include "language/message_table.h"
#include "password.h"
#include "program_text.h"
#include "progress_bar.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;
using catalog::Finding;
using catalog::FindingSeverity;

struct CheckRequest {
    fs::path database, program;
    std::string passwordFile;
    bool json = false;
};

const char* severityName(FindingSeverity severity) {
    return severity == FindingSeverity::Error ? "error" : "warning";
}

void printAsJson(const catalog::ConsistencyReport& report, const fs::path& database) {
    nlohmann::ordered_json told{{"database", database.string()},
                                {"entities", report.entities},
                                {"variables", report.variables},
                                {"records", report.records},
                                {"errors", report.count(FindingSeverity::Error)},
                                {"warnings", report.count(FindingSeverity::Warning)},
                                {"findings", nlohmann::ordered_json::array()}};
    for (const Finding& finding : report.findings)
        told["findings"].push_back({{"severity", severityName(finding.severity)},
                                    {"entity", finding.entity},
                                    {"variable", finding.variable},
                                    {"file", finding.file},
                                    {"check", finding.check},
                                    {"found", finding.found}});
    told["blanks"] = nlohmann::ordered_json::array();
    for (const catalog::Blanks& variable : report.blanks)
        told["blanks"].push_back({{"entity", variable.entity},
                                  {"variable", variable.variable},
                                  {"file", variable.file},
                                  {"blanks", variable.blanks},
                                  {"records", variable.records}});
    printJson(told);
}

void printText(const catalog::ConsistencyReport& report, const fs::path& database) {
    for (const Finding& finding : report.findings) {
        std::cout << (finding.file.empty() ? database.string() : finding.file) << ": "
                  << severityName(finding.severity) << ": ";
        if (!finding.entity.empty())
            std::cout << finding.entity << (finding.variable.empty() ? "" : ".") << finding.variable
                      << ": ";
        std::cout << finding.found << '\n';
    }
    for (const catalog::Blanks& variable : report.blanks)
        std::cout << variable.file << ": note: " << variable.entity << '.' << variable.variable
                  << ": " << variable.blanks << " of " << variable.records << " values are blank\n";
    std::cout << database.string() << ": " << report.entities << " entities, " << report.variables
              << " variables, " << report.records
              << " records: " << counted(report.count(FindingSeverity::Error), "error") << ", "
              << counted(report.count(FindingSeverity::Warning), "warning") << '\n';
}

int checkDatabase(const CheckRequest& request) {
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    catalog::ConsistencyReport report;
    {
        const InterruptWatch watch;
        ProgressBar bar;
        report = catalog::checkConsistency(*dictionary, bar.until(watch));
    }
    request.json ? printAsJson(report, request.database) : printText(report, request.database);
    return report.count(FindingSeverity::Error) > 0 ? failure : success;
}

void printAsJson(const language::Messages& messages, const fs::path& program) {
    nlohmann::ordered_json told{{"program", program.string()},
                                {"errors", messages.errorCount()},
                                {"messages", nlohmann::ordered_json::array()}};
    for (const language::Message& message : messages.forDisplay())
        told["messages"].push_back(
            {{"severity", message.severity == language::Severity::Error ? "error" : "warning"},
             {"name", language::codeName(message.severity, message.code)},
             {"line", message.position.line},
             {"column", message.position.column},
             {"text", message.text}});
    printJson(told);
}

int checkProgram(const CheckRequest& request) {
    const std::string text = readProgram(request.program);
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    language::CompileOptions options;
    options.baseFolder = fs::absolute(request.database).parent_path();
    language::Messages messages;
    language::compile(text, *dictionary, options, messages);
    if (request.json)
        printAsJson(messages, request.program);
    else
        printMessages(messages, request.program.string());
    return messages.hasErrors() ? failure : success;
}

} // namespace

void addCheck(CLI::App& app, Action& action) {
    CLI::App* command = app.add_subcommand(
        "check", "Check a database's files, or a program against a database without running it");
    auto request = std::make_shared<CheckRequest>();
    command->add_option("database", request->database, "The .kxdb or .dicx file")->required();
    command->add_option("program", request->program, "A program to compile instead");
    command->add_flag("--json", request->json, "Answer as JSON");
    addPasswordFile(*command, request->passwordFile);
    command->callback([&action, request] {
        action = [request] {
            return request->program.empty() ? checkDatabase(*request) : checkProgram(*request);
        };
    });
}

} // namespace kelx::tool
