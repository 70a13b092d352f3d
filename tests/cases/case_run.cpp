// SPDX-License-Identifier: GPL-3.0-or-later
#include "case_run.h"

#include "boundary/engine.h"
#include "support/temporary_folder.h"

#include "kel.h"

#include <nlohmann/json.hpp>

namespace kelx::test {

namespace {

class Config : public TKelConfig {
public:
    explicit Config(const Case& given) : given_(given) {}
    std::string engineCode() override { return "CASES"; }
    bool stopAtWarnings() override { return false; }
    std::string pluginFolder() override { return {}; }
    bool autoWeight() override { return given_.autoWeight; }
    int defaultQuantiles() override { return 4; }
    bool showProgress() override { return false; }
    std::string workFolder() override { return {}; }
    int memoryLimit() override { return 100; }
    bool sensitiveByDefault() override { return false; }
    bool tab_show_intermediate() override { return given_.intermediate; }
    bool strictTypes() override { return false; }
    std::shared_ptr<TKelUIProvider> uiProvider() override { return nullptr; }

private:
    const Case& given_;
};

class Listener : public TKelSpcErrorsListener {
public:
    void error(eSpcErrors code, const std::string& text, std::int64_t line,
               std::int64_t column) override {
        add(kel::errorCodeName(code), text, line, column);
    }
    void warning(eSpcWarnings code, const std::string& text, std::int64_t line,
                 std::int64_t column) override {
        add(kel::warningCodeName(code), text, line, column);
    }
    bool hasErrors() override { return false; }
    bool hasWarnings() override { return false; }
    void clear() override { messages.clear(); }
    std::vector<std::string> messages;

private:
    void add(const std::string& name, const std::string& text, std::int64_t line,
             std::int64_t column) {
        messages.push_back(name + " " + std::to_string(line) + ":" + std::to_string(column) + " " +
                           text);
    }
};

class Engine {
public:
    explicit Engine(const Case& given) { kel::init(std::make_shared<Config>(given)); }
    ~Engine() {
        boundary::setRunTuning({});
        kel::destroy();
    }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
};

/// Paths are told from the folder of the case.
std::string fromFolder(std::string text, const std::filesystem::path& folder) {
    const std::string prefix = folder.string() + "/";
    for (std::size_t at; (at = text.find(prefix)) != std::string::npos;)
        text.erase(at, prefix.size());
    return text;
}

void addFields(TKelDataset& dataset, ActualTable& table) {
    Cells names, labels, formats;
    for (int i = 0; i < dataset.numFields(); ++i) {
        names.push_back(dataset.field(i)->name());
        labels.push_back(dataset.field(i)->label());
        formats.push_back(dataset.field(i)->format());
    }
    table.facts["names"] = joinRow(names);
    table.facts["labels"] = joinRow(labels);
    table.facts["formats"] = joinRow(formats);
}

void addOptions(TKelOutput& output, const std::filesystem::path& folder, ActualTable& table) {
    const TKelOutputConfig& options = output.options();
    table.facts["outputFile"] = fromFolder(options.outputFile, folder);
    table.facts["format"] = std::to_string(options.format);
    table.facts["formatFlavour"] = std::to_string(options.formatFlavour);
    table.facts["direct"] = options.direct ? "true" : "false";
    table.facts["weightKind"] = std::to_string(options.weightKind);
    table.facts["weightVariable"] = options.weightVariable.value_or("");
    table.facts["style"] = fromFolder(options.style.value_or(""), folder);
    if (options.sort)
        table.facts["sort"] =
            options.sort->variable +
            (options.sort->order == TKelOutputSortConfig::Order::ASCENDING ? " asc" : " desc") +
            (options.sort->limit ? " " + std::to_string(*options.sort->limit) : "");
    else
        table.facts["sort"] = "";
}

/// The facts that the JSON tells; variables by their names.
void addJson(const nlohmann::json& json, ActualTable& table) {
    for (const auto& [key, value] : json.items()) {
        if (key == "variables") {
            Cells names;
            for (const auto& variable : value)
                names.push_back(variable["name"].get<std::string>());
            table.facts[key] = joinRow(names);
        } else if (key != "fields" && key != "name") {
            table.facts[key == "rows" ? "json" : key] =
                value.is_string() ? value.get<std::string>() : value.dump();
        }
    }
}

ActualTable tableOf(TKelOutput& output, const std::filesystem::path& folder) {
    ActualTable table;
    table.name = output.name();
    table.facts["type"] = std::to_string(static_cast<int>(output.type()));
    table.facts["dimension"] = std::to_string(output.dimension());
    Cells variables;
    for (const TKelVariable* variable : output.variables())
        variables.push_back(variable == nullptr ? "" : variable->name());
    table.facts["outputVariables"] = joinRow(variables);
    addJson(nlohmann::json::parse(output.asJson()), table);
    table.facts["methodNumber"] = std::to_string(static_cast<int>(output.method()));
    addOptions(output, folder, table);
    TKelDataset* dataset = output.dataset();
    if (dataset == nullptr)
        return table;
    addFields(*dataset, table);
    for (std::int64_t row = 0; row < dataset->recCount(); ++row) {
        Cells cells;
        for (int column = 0; column < dataset->numFields(); ++column)
            cells.push_back(dataset->stringValue(row, column));
        table.rows.push_back(std::move(cells));
    }
    return table;
}

/// What one program gives.
Outcome runProgram(const std::string& program, const std::shared_ptr<TKelDictionary>& dictionary,
                   const std::filesystem::path& folder) {
    Outcome outcome;
    Listener listener;
    try {
        const auto session = kel::makeDefaultSession(dictionary);
        session->setErrorsListener(&listener);
        session->executeText(program, nullptr);
        for (TKelOutput* output : session->outputs())
            outcome.tables.push_back(tableOf(*output, folder));
    } catch (const std::exception& error) {
        outcome.thrown = fromFolder(error.what(), folder);
    }
    for (const std::string& message : listener.messages)
        outcome.messages.push_back(fromFolder(message, folder));
    return outcome;
}

} // namespace

Outcome runCase(const Case& given, const std::filesystem::path& folder, unsigned threads,
                std::size_t blockRecords) {
    for (const auto& [name, text] : given.files)
        writeFile(folder / name, text);
    const Engine engine(given);
    boundary::setRunTuning({threads, blockRecords});
    const auto dictionary =
        kel::readDictionary((folder / (given.database + ".kxdb")).string(), nullptr, true);
    Outcome outcome;
    for (const std::string& program : given.programs)
        outcome = runProgram(program, dictionary, folder);
    return outcome;
}

std::string toText(const Outcome& outcome) {
    std::string text;
    for (const std::string& message : outcome.messages)
        text += message + "\n";
    if (!outcome.thrown.empty())
        text += "thrown: " + outcome.thrown + "\n";
    for (const ActualTable& table : outcome.tables) {
        text += "table " + table.name + "\n";
        for (const auto& [name, value] : table.facts)
            text += "    @" + name + " " + value + "\n";
        for (const Cells& row : table.rows)
            text += "    " + joinRow(row) + "\n";
    }
    return text;
}

} // namespace kelx::test
