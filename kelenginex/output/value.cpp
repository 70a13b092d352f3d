// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

#include "plan/area_codes.h"

namespace kelx::output {
namespace {

struct AsText {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int64_t integer) const { return std::to_string(integer); }
    std::string operator()(double real) const { return plan::numberText(real); }
    std::string operator()(const std::string& text) const { return text; }
};

std::string collected(void (*write)(const Table&, const TextSink&), const Table& table) {
    std::string result;
    write(table, [&](std::string_view part) { result += part; });
    return result;
}

} // namespace

std::string toText(const Value& value) {
    return std::visit(AsText(), value);
}

std::string Column::textAt(std::size_t row) const {
    return visit(row, AsText());
}

std::string asJson(const Table& table) {
    return collected(writeJson, table);
}

std::string asCsv(const Table& table) {
    return collected(writeCsv, table);
}

std::string asText(const Table& table) {
    return collected(writeText, table);
}

} // namespace kelx::output
