// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

#include <nlohmann/json.hpp>

namespace kelx::output {
namespace {

using Json = nlohmann::ordered_json;

Json orNull(const std::optional<std::string>& text) {
    return text ? Json(*text) : Json(nullptr);
}

Json toJson(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return *integer;
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    return nullptr;
}

const char* methodName(int method) {
    return method == 1 ? "FREQUENCY" : "NONE";
}

Json variablesOf(const Table& table) {
    Json result = Json::array();
    for (std::size_t i = 0; i < table.variables.size(); ++i) {
        const catalog::Variable* variable = table.variables[i];
        const Field& field = table.fields[i * 3];
        Json entry;
        entry["name"] = variable != nullptr ? variable->fullName() : field.name;
        entry["label"] = field.label;
        result.push_back(std::move(entry));
    }
    return result;
}

Json rowsOf(const Table& table) {
    Json result = Json::array();
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        Json cells = Json::array();
        for (std::size_t column = 0; column < table.fields.size(); ++column)
            cells.push_back(toJson(table.at(row, column)));
        result.push_back(std::move(cells));
    }
    return result;
}

} // namespace

std::string asJson(const Table& table) {
    Json json;
    json["name"] = table.name;
    json["title"] = orNull(table.title);
    json["kind"] = table.kind;
    json["method"] = methodName(table.method);
    json["unit"] = table.unit;
    json["database"] = table.database;
    json["area"] = table.area;
    json["filter"] = orNull(table.filter);
    json["weight"] = orNull(table.weight);
    json["tally"] = orNull(table.tally);
    json["universalFilter"] = orNull(table.universalFilter);
    json["suppressed"] = table.suppressed;
    json["decimals"] = table.decimals ? Json(*table.decimals) : Json(nullptr);
    json["variables"] = variablesOf(table);
    json["fields"] = Json::array();
    for (const Field& field : table.fields)
        json["fields"].push_back(
            Json{{"name", field.name}, {"label", field.label}, {"group", field.group}});
    json["rows"] = rowsOf(table);
    json["seconds"] = table.seconds;
    // A text that is no UTF-8, from a careless import, must not cost the whole answer.
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace kelx::output
