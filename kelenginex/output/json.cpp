// SPDX-License-Identifier: Apache-2.0
#include "output/buffered.h"
#include "output/names.h"

#include <nlohmann/json.hpp>

namespace kelx::output {
namespace {

/// One value. A text that is no UTF-8, from a careless import, must not cost the whole answer.
template <class T>
std::string json(const T& value) {
    return nlohmann::json(value).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string json(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return std::to_string(*integer);
    if (const auto* real = std::get_if<double>(&value))
        return json(*real);
    if (const auto* text = std::get_if<std::string>(&value))
        return json(*text);
    return "null";
}

template <class T>
std::string orNull(const std::optional<T>& value) {
    return value ? json(*value) : "null";
}

/// The members of an object, in their order.
class JsonObject {
public:
    explicit JsonObject(Buffered& out) : out_(out) { out_ << "{"; }

    Buffered& member(const char* name) {
        out_ << separator_ << "\"" << name << "\":";
        separator_ = ",";
        return out_;
    }
    void end() { out_ << "}"; }

private:
    Buffered& out_;
    const char* separator_ = "";
};

void writeVariables(const Table& table, Buffered& out) {
    out << "[";
    for (std::size_t i = 0; i < table.variables.size(); ++i) {
        out << (i > 0 ? "," : "");
        JsonObject object(out);
        object.member("name") << json(table.variables[i].name);
        object.member("label") << json(table.variables[i].label);
        object.end();
    }
    out << "]";
}

void writeFields(const Form& table, Buffered& out) {
    out << "[";
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        out << (i > 0 ? "," : "");
        JsonObject object(out);
        object.member("name") << json(table.fields[i].name);
        object.member("label") << json(table.fields[i].label);
        object.member("group") << json(table.fields[i].group);
        object.end();
    }
    out << "]";
}

/// A column whose values, where they repeat, are put into words once.
class JsonColumn {
public:
    explicit JsonColumn(const Column& column) : column_(column) {
        if (!column.numbers)
            return;
        for (const Value& value : *column.values)
            texts_.push_back(json(value));
    }
    void write(std::size_t row, Buffered& out) const {
        if (column_.numbers)
            out << texts_[(*column_.numbers)[row]];
        else
            out << json(column_.at(row));
    }

private:
    const Column& column_;
    std::vector<std::string> texts_;
};

void writeRows(const Form& table, Buffered& out) {
    const std::vector<JsonColumn> columns(table.columns.begin(), table.columns.end());
    const auto rows = static_cast<std::size_t>(table.rows());
    out << "[";
    for (std::size_t row = 0; row < rows; ++row) {
        out << (row > 0 ? ",[" : "[");
        for (std::size_t column = 0; column < columns.size(); ++column) {
            out << (column > 0 ? "," : "");
            columns[column].write(row, out);
        }
        out << "]";
    }
    out << "]";
}

} // namespace

void writeJson(const Table& table, const TextSink& sink) {
    Buffered out(sink);
    JsonObject object(out);
    object.member("name") << json(table.name);
    object.member("title") << orNull(table.title);
    object.member("kind") << json(table.kind);
    object.member("method") << json(methodName(table.method));
    object.member("unit") << (table.unit.empty() ? "null" : json(table.unit));
    object.member("database") << json(table.database);
    object.member("area") << json(table.area);
    object.member("filter") << orNull(table.filter);
    object.member("weight") << orNull(table.weight);
    object.member("tally") << orNull(table.tally);
    object.member("universalFilter") << orNull(table.universalFilter);
    object.member("suppressed") << json(table.suppressed);
    object.member("decimals") << orNull(table.decimals);
    writeVariables(table, object.member("variables"));
    writeFields(table.tripleForm(), object.member("fields"));
    writeRows(table.tripleForm(), object.member("rows"));
    object.end();
    out.finish();
}

} // namespace kelx::output
