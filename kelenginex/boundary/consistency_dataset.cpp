// SPDX-License-Identifier: Apache-2.0
#include "boundary/consistency_dataset.h"

#include "boundary/variants.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace kelx::boundary {

namespace {

constexpr std::array<const char*, 6> fieldNames = {"Severity", "Entity", "Variable",
                                                   "File",     "Check",  "Found"};

std::int64_t secondsSince1970() {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

TKelVariant integer(std::uint64_t value) {
    return static_cast<std::int64_t>(value);
}

} // namespace

ConsistencyDataset::ConsistencyDataset(catalog::ConsistencyReport report, CheckTimes times)
    : report_(std::move(report)) {
    using catalog::FindingSeverity;
    values_ = {{"time.start", times.start},
               {"time.end", times.end},
               {"time.duration", times.duration},
               {"database", std::move(times.database)},
               {"entities", integer(report_.entities)},
               {"variables", integer(report_.variables)},
               {"records", integer(report_.records)},
               {"errors", integer(report_.count(FindingSeverity::Error))},
               {"warnings", integer(report_.count(FindingSeverity::Warning))}};
}

int ConsistencyDataset::numFields() {
    return static_cast<int>(fieldNames.size());
}

std::int64_t ConsistencyDataset::recCount() {
    return static_cast<std::int64_t>(report_.findings.size());
}

std::shared_ptr<TKelField> ConsistencyDataset::field(int index) {
    if (index < 0 || index >= numFields()) {
        return nullptr;
    }
    const char* name = fieldNames[static_cast<std::size_t>(index)];
    return std::make_shared<TKelField>(name, name, "");
}

void ConsistencyDataset::range(std::pair<double, double>& out, int /*column*/) {
    out = {0, 0};
}

double ConsistencyDataset::doubleValue(std::int64_t row, int column) {
    return toDouble(stringValue(row, column));
}

std::string ConsistencyDataset::stringValue(std::int64_t row, int column) {
    if (row < 0 || row >= recCount()) {
        return {};
    }
    const catalog::Finding& finding = report_.findings[static_cast<std::size_t>(row)];
    switch (column) {
    case 0:
        return finding.severity == catalog::FindingSeverity::Error ? "Error" : "Warning";
    case 1:
        return finding.entity;
    case 2:
        return finding.variable;
    case 3:
        return finding.file;
    case 4:
        return finding.check;
    case 5:
        return finding.found;
    default:
        return {};
    }
}

TKelVariant ConsistencyDataset::value(const std::string& name) {
    const auto found = std::find_if(values_.begin(), values_.end(),
                                    [&](const auto& value) { return value.first == name; });
    return found == values_.end() ? TKelVariant(std::string()) : found->second;
}

std::vector<std::string> ConsistencyDataset::listValueNames() const {
    std::vector<std::string> names;
    for (const auto& [name, value] : values_) {
        names.push_back(name);
    }
    return names;
}

std::shared_ptr<TKelDataset> checkDatabase(const std::string& path,
                                           const catalog::Questions& questions) {
    CheckTimes times;
    times.start = secondsSince1970();
    const auto begin = std::chrono::steady_clock::now();
    const auto dictionary = catalog::readDictionary(path, questions);
    catalog::ConsistencyReport report = catalog::checkConsistency(*dictionary);
    times.duration =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    times.end = std::max(times.start, secondsSince1970());
    times.database = dictionary->file.string();
    return std::make_shared<ConsistencyDataset>(std::move(report), std::move(times));
}

} // namespace kelx::boundary
