// SPDX-License-Identifier: GPL-3.0-or-later
#include "consume.h"

#include "storage/column.h"
#include "storage/error.h"
#include "storage/kxdb_file.h"
#include "storage/pointer_file.h"
#include "storage/raw_column.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <xxhash.h>

namespace kelx::testing {

using namespace storage;

namespace {

void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "a reader broke its promise: %s\n", what);
    std::abort();
}

std::uint64_t codeAt(const void* values, std::size_t size, std::size_t i) {
    std::uint64_t code = 0;
    std::memcpy(&code, static_cast<const char*>(values) + i * size, size);
    return code;
}

void checkCodes(const Column& column, const void* values, std::size_t count) {
    const auto& info = column.info();
    for (std::size_t i = 0; i < count; ++i) {
        const auto code = codeAt(values, physicalSize(info.physical), i);
        if (code == blankCode(info.physical))
            continue;
        promise(code >= info.minCode && code <= info.maxCode, "a code lies within its bounds");
        if (info.type == ValueType::String)
            promise(code < column.textCount(), "a code has its text");
    }
}

void touch(const Column& column) {
    ColumnScratch scratch;
    const auto& info = column.info();
    for (std::uint64_t begin = 0; begin < info.records;) {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(50000, info.records - begin));
        const void* values = column.read(begin, count, scratch);
        if (info.physical != Physical::Real64)
            checkCodes(column, values, count);
        begin += count;
    }
    std::size_t bytes = 0;
    for (std::uint64_t code = 0; code < column.textCount(); ++code)
        bytes += column.text(code).size();
    promise(bytes < (std::size_t{1} << 40), "texts have sizes");
    column.verify();
}

std::uint64_t number(const std::string& bytes, std::size_t at) {
    std::uint64_t value = 0;
    if (at + 8 <= bytes.size())
        std::memcpy(&value, bytes.data() + at, 8);
    return value;
}

void setNumber(std::string& bytes, std::size_t at, std::uint64_t value) {
    if (at + 8 <= bytes.size())
        std::memcpy(bytes.data() + at, &value, 8);
}

/// Puts the hash of a part into its place, if the part lies in the file.
void repairPart(std::string& bytes, std::uint64_t offset, std::uint64_t length, std::size_t at) {
    if (offset <= bytes.size() && length <= bytes.size() - offset)
        setNumber(bytes, at, XXH3_64bits(bytes.data() + offset, length));
}

} // namespace

bool consumeColumn(const std::filesystem::path& file, const std::shared_ptr<const Secret>& key) {
    try {
        touch(*Column::open(file, key));
        return true;
    } catch (const FileError&) {
        return false;
    }
}

bool consumePointers(const std::filesystem::path& file) {
    try {
        const auto pointers = PointerFile::open(file);
        std::uint64_t before = 0;
        for (std::uint64_t parent = 0; parent <= pointers->parents(); ++parent) {
            promise(pointers->first(parent) >= before, "offsets ascend");
            before = pointers->first(parent);
        }
        promise(before == pointers->children(), "the last offset ends the children");
        if (before > 0)
            promise(pointers->parentOf(before - 1) < pointers->parents(), "a child has a parent");
        return true;
    } catch (const FileError&) {
        return false;
    }
}

bool consumeDictionary(const std::filesystem::path& file, const std::string& password) {
    int asked = 0;
    try {
        readKxdb(file, [&] {
            promise(++asked == 1, "the password is asked for once");
            return password;
        });
        return true;
    } catch (const FileError&) {
        return false;
    } catch (const std::runtime_error& problem) {
        promise(std::strcmp(problem.what(), "Wrong password.") == 0, "the error is a known one");
        return false;
    }
}

bool consumeDescription(const std::filesystem::path& binFile) {
    try {
        readRawDescription(binFile);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

bool consumeRaw(const std::filesystem::path& file, std::uint64_t selector) {
    RawLayout layout;
    layout.type = static_cast<RawType>(selector % 10);
    layout.valueType = static_cast<ValueType>(selector / 10 % 5);
    layout.size = static_cast<int>(selector / 50 % 70) + 1;
    layout.decimals = static_cast<int>(selector / 3500 % 4);
    const auto bits = std::filesystem::file_size(file) * 8;
    const auto width = static_cast<std::uint64_t>(layout.size);
    const std::uint64_t recordBits = layout.type == RawType::Bin   ? width
                                     : layout.type == RawType::Pck ? (width / 2 + 1) * 8
                                     : layout.type == RawType::Uni ? width * 16
                                                                   : width * 8;
    try {
        const auto column = openRawColumn(file, layout, bits / recordBits);
        promise(column->info().records == bits / recordBits, "all records are there");
        touch(*column);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

void repairHeader(std::string& bytes) {
    std::uint32_t size = 0;
    if (bytes.size() < 24)
        return;
    setNumber(bytes, 16, bytes.size());
    std::memcpy(&size, bytes.data() + 12, 4);
    if (size >= 24 && size <= bytes.size())
        setNumber(bytes, size - 8, XXH3_64bits(bytes.data(), size - 8));
}

void repairColumn(std::string& bytes) {
    if (bytes.size() < 256)
        return;
    constexpr std::size_t sizes[] = {1, 1, 2, 4, 8, 8};
    const auto physical = static_cast<unsigned char>(bytes[25]);
    const std::size_t blockSize = 65536 * sizes[physical < 6 ? physical : 0];
    const auto data = number(bytes, 88);
    const auto dataLength = std::min<std::uint64_t>(number(bytes, 96), bytes.size());
    const auto zones = number(bytes, 104);
    const auto zonesLength = number(bytes, 112);
    const bool plain = (bytes[27] & 1) == 0;
    if (plain && zones < bytes.size() && data <= bytes.size())
        for (std::size_t i = 0; i < zonesLength / 32 && i * blockSize < dataLength; ++i)
            repairPart(bytes, data + i * blockSize,
                       std::min<std::uint64_t>(blockSize, dataLength - i * blockSize),
                       zones + i * 32 + 24);
    repairPart(bytes, number(bytes, 120), number(bytes, 128), 152);
    repairPart(bytes, zones, zonesLength, 144);
    repairHeader(bytes);
}

void repairPointers(std::string& bytes) {
    if (bytes.size() < 128)
        return;
    repairPart(bytes, number(bytes, 48), number(bytes, 56), 64);
    repairHeader(bytes);
}

void repairDictionary(std::string& bytes) {
    if (bytes.size() < 128)
        return;
    setNumber(bytes, 40, bytes.size() - 128);
    repairPart(bytes, 128, bytes.size() - 128, 48);
    repairHeader(bytes);
}

void writeBytes(const std::filesystem::path& file, const std::string& bytes) {
    // A new file; some file systems sync one that is emptied and written again.
    std::filesystem::remove(file);
    std::ofstream out(file, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string readBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace kelx::testing
