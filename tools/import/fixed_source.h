// SPDX-License-Identifier: Apache-2.0
// A text whose fields stand at fixed places in each line.
#pragma once

#include "import/row_source.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace kelx::tools {

/// Where the fields of a text stand.
struct TextLayout {
    struct Part {
        std::size_t start = 0; ///< first character, from 0
        std::size_t width = 0;
    };
    std::vector<SourceField> fields;      ///< their shapes index recordTypes
    std::vector<Part> parts;              ///< of each field
    std::vector<std::string> recordTypes; ///< one without a name: lines have no type
    Part recordType;
};

/// One line a row; empty lines are none. Places count characters of UTF-8.
class FixedSource : public RowSource {
public:
    static constexpr std::size_t longestLine = 1u << 20;

    FixedSource(const std::filesystem::path& file, const TextLayout& layout,
                const BytesRead& onRead);

    const std::string& name() const override { return name_; }
    const std::vector<SourceField>& fields() const override { return layout_.fields; }
    bool next() override;
    std::size_t shape() const override { return shape_; }
    SourceValue value(std::size_t field) const override;
    Place place(std::size_t field) const override;
    std::string rowFault() const override { return fault_; }

private:
    bool readLine();
    void checkLine();
    void findShape();
    std::string_view part(const TextLayout::Part& part) const;

    const TextLayout& layout_;
    std::ifstream stream_;
    std::string name_;
    BytesRead onRead_;
    std::string buffer_;
    std::size_t begin_ = 0; ///< of what is left in the buffer
    std::string_view line_;
    bool ascii_ = true;
    std::vector<std::size_t> starts_; ///< of the characters, where some have several bytes
    std::uint64_t number_ = 0;
    std::size_t shape_ = 0;
    std::string fault_;
};

} // namespace kelx::tools
