// SPDX-License-Identifier: Apache-2.0
// Writes CSV files that appear complete or not at all.
#pragma once

#include "storage/atomic_file.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace kelx::tools {

/// Quotes where a field needs it and nowhere else; lines end with LF.
class CsvWriter {
public:
    explicit CsvWriter(const std::filesystem::path& file) : file_(file) {}
    void field(std::string_view text);
    void endRecord();
    void commit();

private:
    static constexpr std::size_t chunk = 1u << 16;
    storage::AtomicFile file_;
    std::string pending_;
    std::size_t recordBegin_ = 0;
    bool first_ = true;
};

} // namespace kelx::tools
