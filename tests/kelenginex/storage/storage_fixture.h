// SPDX-License-Identifier: GPL-3.0-or-later
// A folder for the files of one test, and short ways to write and read columns.
#pragma once

#include "consume.h"
#include "storage/column.h"
#include "storage/column_writer.h"
#include "storage/error.h"
#include "support/temporary_folder.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace kelx::testing {

using namespace storage;

using Integers = std::vector<std::optional<std::int64_t>>;
using Reals = std::vector<std::optional<double>>;
using Texts = std::vector<std::optional<std::string>>;

class StorageTest : public ::testing::Test {
protected:
    std::filesystem::path path(const std::string& name) const { return folder_ / name; }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
            found.push_back(entry.path().filename().string());
        return found;
    }

private:
    test::TemporaryFolder folder_;
};

/// A key that costs next to nothing to derive.
inline std::shared_ptr<const Secret> cheapKey(const std::string& password) {
    KeyRecipe recipe = Secret::newRecipe();
    recipe.operations = 1;
    recipe.memory = 8192;
    return Secret::derive(password, recipe);
}

inline void writeIntegers(const std::filesystem::path& file, const Integers& values,
                          const ColumnPlan& plan = {}) {
    const auto writer = ColumnWriter::create(file, plan);
    for (const auto& value : values)
        value ? writer->addInteger(*value) : writer->addBlank();
    EXPECT_EQ(writer->records(), values.size());
    writer->commit();
}

inline void writeReals(const std::filesystem::path& file, const Reals& values) {
    const auto writer = ColumnWriter::create(file, {ValueType::Real, 2, {}, {}, {}});
    for (const auto& value : values)
        value ? writer->addReal(*value) : writer->addBlank();
    writer->commit();
}

inline void writeTexts(const std::filesystem::path& file, const Texts& values,
                       const std::shared_ptr<const Secret>& key = {}) {
    const auto writer = ColumnWriter::create(file, {ValueType::String, 0, {}, {}, key});
    for (const auto& value : values)
        value ? writer->addText(*value) : writer->addBlank();
    writer->commit();
}

/// Calls take(record, code, isBlank) for every record, read in stretches that cross blocks.
template <class Take>
void forCodes(const Column& column, Take take) {
    ColumnScratch scratch;
    const auto& info = column.info();
    const std::size_t size = physicalSize(info.physical);
    for (std::uint64_t begin = 0; begin < info.records; begin += 40000) {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(40000, info.records - begin));
        const auto* bytes = static_cast<const char*>(column.read(begin, count, scratch));
        for (std::size_t i = 0; i < count; ++i) {
            std::uint64_t code = 0;
            std::memcpy(&code, bytes + i * size, size);
            take(begin + i, code, code == blankCode(info.physical));
        }
    }
}

inline Integers readIntegers(const Column& column) {
    Integers values;
    const auto base = static_cast<std::uint64_t>(column.info().base);
    forCodes(column, [&](std::uint64_t, std::uint64_t code, bool blank) {
        values.push_back(blank ? std::nullopt
                               : std::optional(static_cast<std::int64_t>(base + code)));
    });
    return values;
}

inline Reals readReals(const Column& column) {
    Reals values;
    forCodes(column, [&](std::uint64_t, std::uint64_t bits, bool) {
        double value = 0;
        std::memcpy(&value, &bits, sizeof(value));
        values.push_back(std::isnan(value) ? std::nullopt : std::optional(value));
    });
    return values;
}

inline Texts readTexts(const Column& column) {
    Texts values;
    forCodes(column, [&](std::uint64_t, std::uint64_t code, bool blank) {
        values.push_back(blank ? std::nullopt : std::optional(std::string(column.text(code))));
    });
    return values;
}

/// The text of the FileError that f throws; a failure where it throws none.
template <class F>
std::string faultOf(F f) {
    try {
        f();
    } catch (const FileError& error) {
        return error.what();
    }
    ADD_FAILURE() << "no FileError";
    return {};
}

} // namespace kelx::testing
