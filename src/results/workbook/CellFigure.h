// SPDX-License-Identifier: GPL-3.0-or-later
// What a cell's text is to a workbook: nothing, a figure that its numbers hold, or a text.
#pragma once

#include <string_view>

struct CellFigure {
    /// Digits: a whole number of which a workbook, whose numbers are doubles, would lose some.
    enum class Kind { Empty, Whole, Real, Digits, Text };

    /// Whole where the text is digits only; tested in 64 bits.
    explicit CellFigure(std::string_view raw);

    bool isNumber() const { return kind == Kind::Whole || kind == Kind::Real; }

    Kind kind = Kind::Text;
    double value = 0;
};
