// SPDX-License-Identifier: Apache-2.0
// Reads CSV as RFC 4180 lays it down, record by record, and knows the place of every field.
#pragma once

#include "import/located_error.h"
#include "import/progress.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::tools {

/// Fields end with commas or another separator. A byte order mark is skipped, lines end with LF or
/// CRLF, empty lines are no records. Memory is bounded by the longest record.
class CsvReader {
public:
    /// No record may be longer, which also finds a quote that nobody closed.
    static constexpr std::size_t longestRecord = 16u << 20;

    /// Throws storage::FileError where the file cannot be opened.
    explicit CsvReader(const std::filesystem::path& file, BytesRead onRead = {},
                       char separator = ',');

    /// The next record; false at the end. Throws LocatedError on bytes that are no UTF-8, stray
    /// quotes and an open quote at the end.
    bool next();
    std::size_t fields() const { return fields_.size(); }
    /// Content without quotes; valid until next().
    std::string_view field(std::size_t index) const;
    Place place(std::size_t index) const; ///< where the field begins, its quote included
    const std::string& name() const { return name_; }

    /// Throws a fault at a field of the current record; an index past the end means its end.
    [[noreturn]] void fail(std::size_t index, const std::string& text) const;

private:
    struct Extent {
        std::size_t rawBegin, begin, length;
        bool unescaped; ///< the content lies in unescaped_, not in the record itself
    };
    enum class Split { Complete, NeedsMore };

    bool fill(); ///< reads more behind what is there; false at the end of the file
    Split split(bool atEnd);
    bool splitQuoted(std::size_t& at, std::size_t rawBegin, bool atEnd);
    Place placeOf(std::size_t offset) const;
    void checkUtf8(std::size_t length) const;
    [[noreturn]] void failAt(std::size_t offset, const std::string& text) const;

    std::ifstream stream_;
    std::string name_;
    BytesRead onRead_;
    char separator_;
    std::string buffer_;
    std::size_t recordBegin_ = 0;  ///< of the current record, in buffer_
    std::size_t recordEnd_ = 0;    ///< behind its line end
    std::size_t recordLength_ = 0; ///< without its line end
    std::uint64_t line_ = 1;       ///< of recordBegin_
    bool endReached_ = false;
    std::string unescaped_;
    std::vector<Extent> fields_;
};

} // namespace kelx::tools
