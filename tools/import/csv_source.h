// SPDX-License-Identifier: Apache-2.0
// A CSV file whose first record names its columns.
#pragma once

#include "import/csv_reader.h"
#include "import/row_source.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace kelx::tools {

class CsvSource : public RowSource {
public:
    /// Reads the header. Without a separator given it is the comma, unless the header looks as if
    /// that were another one: then throws LocatedError.
    CsvSource(const std::filesystem::path& file, const BytesRead& onRead,
              std::optional<char> separator = {});

    const std::string& name() const override { return csv_.name(); }
    const std::vector<SourceField>& fields() const override { return fields_; }
    bool next() override { return csv_.next(); }
    SourceValue value(std::size_t field) const override {
        return SourceValue::ofText(csv_.field(field));
    }
    Place place(std::size_t field) const override { return csv_.place(field); }
    std::string rowFault() const override; ///< not as many fields as the header
    std::vector<std::string> notes() const override { return notes_; }
    std::size_t faultyField() const { return std::min(csv_.fields(), fields_.size()); }

private:
    void checkSeparator() const;

    CsvReader csv_;
    std::vector<SourceField> fields_;
    std::vector<std::string> notes_;
};

} // namespace kelx::tools
