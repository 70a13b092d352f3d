// SPDX-License-Identifier: Apache-2.0
// The one shape that all files with records have for an import.
#pragma once

#include "import/codebook.h"
#include "import/located_error.h"
#include "import/progress.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::tools {

/// A value as its file holds it: text files have texts, statistics files numbers too.
struct SourceValue {
    enum class Kind { Blank, Text, Number };

    Kind kind = Kind::Blank;
    std::string_view text; ///< of a text; valid until the next row
    double number = 0;

    static SourceValue ofText(std::string_view text) {
        return {text.empty() ? Kind::Blank : Kind::Text, text, 0};
    }
    static SourceValue ofNumber(double number) { return {Kind::Number, {}, number}; }
    bool isBlank() const { return kind == Kind::Blank; }
};
/// For messages and to compare values of keys.
std::string shownText(const SourceValue& value);

/// A field of a source. What the source does not say is found from the values or a codebook.
struct SourceField {
    std::string name; ///< as the source writes it
    FieldPlan plan;   ///< named so that programs can use it
    bool typeKnown = false;
    bool numeric = false;  ///< of an unknown type: texts are faults, and zeros in front no sign
    std::size_t shape = 0; ///< which kind of row has it
};

/// Rows one after the other. Throws storage::FileError and LocatedError.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual const std::string& name() const = 0; ///< the file, for messages
    /// Labels and special codes may come with the last row only; all else is there from the start.
    virtual const std::vector<SourceField>& fields() const = 0;
    virtual bool next() = 0;
    virtual std::size_t shape() const { return 0; } ///< which kind of row this is
    virtual SourceValue value(std::size_t field) const = 0;
    /// A field past the end means the end of the row.
    virtual Place place(std::size_t field) const = 0;
    /// A fault of the current row that makes it useless; empty for none.
    virtual std::string rowFault() const { return {}; }

    /// A fault of the file as a whole, known behind its last row; empty for none.
    virtual std::string endFault() const { return {}; }

    /// What the source changed on its own, for the report.
    virtual std::vector<std::string> notes() const { return {}; }

    LocatedError faultAt(std::size_t field, const std::string& text) const {
        return {name(), place(field), text};
    }
};

/// Opens the file anew; the function is told of the bytes read.
using SourceOpener = std::function<std::unique_ptr<RowSource>(const BytesRead& onRead)>;

/// Names for the fields that programs can use and that differ in any case: other characters become
/// "_". Tells which were changed.
std::vector<std::string> makeNames(std::vector<SourceField>& fields);

} // namespace kelx::tools
