// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

#include "plan/area_codes.h"

namespace kelx::output {
namespace {

std::string collected(void (*write)(const Table&, const TextSink&), const Table& table) {
    std::string result;
    write(table, [&](std::string_view part) { result += part; });
    return result;
}

} // namespace

std::string toText(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return std::to_string(*integer);
    if (const auto* real = std::get_if<double>(&value))
        return plan::numberText(*real);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    return {};
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
