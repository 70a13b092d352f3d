// SPDX-License-Identifier: Apache-2.0
// Turns the records of a .bin file into numbers and texts, some thousands at a time.
#pragma once

#include "storage/mapped_file.h"
#include "storage/raw_column.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelx::storage {

/// A stretch of records; only the vector of the kind asked for is filled.
struct RawRecords {
    std::vector<std::int64_t> integers;
    std::vector<double> reals;
    std::vector<std::string> texts;
    std::vector<std::uint8_t> blank;
};

/// Over a mapped file whose size and layout are already known to fit. Throws FileError naming the
/// record where one does not hold what the layout promises.
class RawReader {
public:
    static constexpr std::size_t stretch = 8192;

    RawReader(const MappedFile& map, const RawLayout& layout) : map_(map), layout_(layout) {}

    void readIntegers(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    void readReals(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    void readTexts(std::uint64_t begin, std::size_t count, RawRecords& out) const;

private:
    enum class Native { Integer, Real, Text };
    Native native() const;
    void decodeIntegers(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    void decodeReals(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    void decodeTexts(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    template <class T>
    void decodeSigned(std::uint64_t begin, std::size_t count, std::int64_t blank,
                      RawRecords& out) const;
    void decodeBits(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    void decodePacked(std::uint64_t begin, std::size_t count, RawRecords& out) const;
    const std::byte* record(std::uint64_t number) const;
    [[noreturn]] void fail(std::uint64_t number, const std::string& problem) const;

    const MappedFile& map_;
    RawLayout layout_;
};

} // namespace kelx::storage
