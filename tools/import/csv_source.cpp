// SPDX-License-Identifier: Apache-2.0
#include "import/csv_source.h"

#include <algorithm>

namespace kelx::tools {

CsvSource::CsvSource(const std::filesystem::path& file, const BytesRead& onRead)
    : csv_(file, onRead) {
    if (!csv_.next())
        csv_.fail(0, "the file has no header");
    for (std::size_t i = 0; i < csv_.fields(); ++i) {
        SourceField field;
        field.name = std::string(csv_.field(i));
        field.plan.place = csv_.place(i);
        fields_.push_back(std::move(field));
    }
    notes_ = makeNames(fields_);
}

std::string CsvSource::rowFault() const {
    if (csv_.fields() == fields_.size())
        return {};
    return "expected " + std::to_string(fields_.size()) + " fields, found " +
           std::to_string(csv_.fields());
}

} // namespace kelx::tools
