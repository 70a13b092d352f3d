// SPDX-License-Identifier: Apache-2.0
// Puts the rows of a finished table into the order that its command asks for.
#pragma once

#include "execution/progress.h"
#include "language/messages.h"
#include "output/table.h"

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace kelx::output {

/// What only the maker of a table knows about its rows and columns.
struct SortGuide {
    /// Names of variables that mean a column, beside the names and labels of fields.
    std::vector<std::pair<std::string, std::size_t>> names;
    /// The columns of a table that is part of this one, or all figures of its own.
    struct Part {
        std::string name;
        std::size_t first = 0;
        std::size_t columns = 1;
        std::size_t total = 0; ///< the one that the name alone means
    };
    std::vector<Part> parts;
    std::size_t column = 0; ///< where the command names none
    /// Columns whose values are numbered in their own order.
    std::vector<std::size_t> ordered;
    /// True for a row that stays behind the others, such as a total; none where it is empty.
    std::function<bool(std::size_t row)> isMarker;
};

/// A table with what its sorting needs.
struct Laid {
    Table table;
    SortGuide guide;
};

/// SORT names what is no column of the table.
class SortFault : public std::runtime_error {
public:
    explicit SortFault(language::Message message)
        : std::runtime_error(message.text), message_(std::move(message)) {}
    const language::Message& message() const { return message_; }

private:
    language::Message message_;
};

/// Stable; numbers as numbers, texts by code point, blanks last. The limit is one of rows that are
/// no markers. Throws SortFault where there is no such column, and execution::Cancelled.
void sortRows(Laid& laid, const language::SortClause& clause, execution::Progress& progress);

} // namespace kelx::output
