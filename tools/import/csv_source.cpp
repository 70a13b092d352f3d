// SPDX-License-Identifier: Apache-2.0
#include "import/csv_source.h"

#include <algorithm>
#include <tuple>

namespace kelx::tools {

CsvSource::CsvSource(const std::filesystem::path& file, const BytesRead& onRead,
                     std::optional<char> separator)
    : csv_(file, onRead, separator.value_or(',')) {
    if (!csv_.next())
        csv_.fail(0, "the file has no header");
    if (!separator)
        checkSeparator();
    for (std::size_t i = 0; i < csv_.fields(); ++i) {
        SourceField field;
        field.name = std::string(csv_.field(i));
        field.plan.place = csv_.place(i);
        fields_.push_back(std::move(field));
    }
    notes_ = makeNames(fields_);
}

void CsvSource::checkSeparator() const {
    const std::string_view header = csv_.field(0);
    if (csv_.fields() != 1)
        return;
    for (const auto& [sign, name, option] :
         {std::tuple(';', "semicolons", "\";\""), std::tuple('\t', "tabs", "tab"),
          std::tuple('|', "bars", "\"|\"")})
        if (header.find(sign) != std::string_view::npos)
            csv_.fail(0, "the header is the one field " + inQuotes(std::string(header)) +
                             "; its fields seem to be separated by " + name + ": --separator " +
                             option);
}

std::string CsvSource::rowFault() const {
    if (csv_.fields() == fields_.size())
        return {};
    return "expected " + std::to_string(fields_.size()) + " fields, found " +
           std::to_string(csv_.fields());
}

} // namespace kelx::tools
