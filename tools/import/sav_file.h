// SPDX-License-Identifier: Apache-2.0
// A .sav or .zsav file for its reader.
#pragma once

#include <cstddef>
#include <cstdint>

#include <readstat.h>

namespace kelx::tools {

/// Shows the file with a number of cases that is not known, so that the reader goes to its end
/// whatever the header says, and keeps what it says.
class SavFile {
public:
    SavFile() = default;
    ~SavFile();
    SavFile(const SavFile&) = delete;
    SavFile& operator=(const SavFile&) = delete;

    /// The parser reads through this, which outlives it.
    void serve(readstat_parser_t* parser);
    std::int64_t cases() const { return cases_; } ///< of the header; -1: it does not say
    bool endsWithinRow() const { return endsWithinRow_; }

private:
    static SavFile& of(void* context) { return *static_cast<SavFile*>(context); }
    int open(const char* path);
    ssize_t read(char* bytes, std::size_t count);
    void readHeader();

    int file_ = -1;
    std::int64_t position_ = 0;
    std::int64_t cases_ = -1;
    std::int32_t compression_ = 0;
    bool endsWithinRow_ = false;
};

} // namespace kelx::tools
