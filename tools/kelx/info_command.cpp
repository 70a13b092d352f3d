// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "json_print.h"
#include "password.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

namespace kelx::tool {

namespace {

using nlohmann::ordered_json;

struct InfoRequest {
    std::filesystem::path database;
    std::string passwordFile;
    bool json = false;
};

/// What the column's own header says; the dictionary's word where the file is not there.
storage::ColumnInfo columnInfo(const catalog::Variable& variable) {
    if (variable.fileFound())
        return variable.column()->info();
    storage::ColumnInfo info;
    info.type = variable.type;
    return info;
}

std::string nameOf(const catalog::Variable* variable) {
    return variable ? variable->name : "";
}

ordered_json describe(const catalog::Variable& variable) {
    const storage::ColumnInfo info = columnInfo(variable);
    ordered_json told{{"name", variable.name},
                      {"label", variable.label},
                      {"type", valueTypeName(info.type)},
                      {"file", variable.fileName},
                      {"found", variable.fileFound()},
                      {"blanks", info.blanks},
                      {"bytes", storage::physicalSize(info.physical)},
                      {"valueLabels", variable.valueLabels.size()}};
    if (variable.missing)
        told["missing"] = *variable.missing;
    if (variable.notapp)
        told["notapp"] = *variable.notapp;
    return told;
}

ordered_json describe(const catalog::Entity& entity) {
    ordered_json told{{"name", entity.name},
                      {"label", entity.label},
                      {"parent", entity.parent ? entity.parent->name : ""},
                      {"level", entity.level()},
                      {"records", entity.records()},
                      {"code", nameOf(entity.codeVar)},
                      {"labelVariable", nameOf(entity.labelVar)},
                      {"weight", nameOf(entity.weightVar)},
                      {"variables", ordered_json::array()}};
    for (const auto& variable : entity.variables)
        told["variables"].push_back(describe(*variable));
    return told;
}

void printAsJson(const catalog::Dictionary& dictionary) {
    ordered_json told{{"name", dictionary.name},
                      {"label", dictionary.label},
                      {"file", dictionary.file.string()},
                      {"protected", dictionary.key != nullptr},
                      {"entities", ordered_json::array()}};
    for (const catalog::Entity* entity : dictionary.entities())
        told["entities"].push_back(describe(*entity));
    printJson(told);
}

void printVariable(const catalog::Variable& variable, const std::string& indent) {
    const catalog::Entity& entity = *variable.entity;
    std::string line = indent + variable.name;
    line.resize(std::max<std::size_t>(line.size() + 1, indent.size() + 16), ' ');
    line += valueTypeName(columnInfo(variable).type);
    line.resize(std::max<std::size_t>(line.size() + 1, indent.size() + 26), ' ');
    line += variable.label;
    if (&variable == entity.codeVar)
        line += " [code]";
    if (&variable == entity.labelVar)
        line += " [label]";
    if (&variable == entity.weightVar)
        line += " [weight]";
    if (!variable.fileFound())
        line += " [not found: " + variable.fileName + "]";
    std::cout << line << '\n';
}

void printText(const catalog::Dictionary& dictionary) {
    std::cout << dictionary.label << (dictionary.key ? " (protected)" : "") << '\n';
    for (const catalog::Entity* entity : dictionary.entities()) {
        const std::string indent(2 * static_cast<std::size_t>(entity->level() - 1), ' ');
        std::cout << indent << entity->name << ": " << counted(entity->records(), "record") << '\n';
        for (const auto& variable : entity->variables)
            printVariable(*variable, indent + "    ");
    }
}

int tell(const InfoRequest& request) {
    const auto dictionary = openDatabase(request.database, request.passwordFile);
    request.json ? printAsJson(*dictionary) : printText(*dictionary);
    return success;
}

} // namespace

void addInfo(CLI::App& app, Action& action) {
    CLI::App* command = app.add_subcommand("info", "Tell what a database holds");
    auto request = std::make_shared<InfoRequest>();
    command->add_option("database", request->database, "The .kxdb or .dicx file")->required();
    command->add_flag("--json", request->json, "Answer as JSON");
    addPasswordFile(*command, request->passwordFile);
    command->callback([&action, request] { action = [request] { return tell(*request); }; });
}

} // namespace kelx::tool
