// SPDX-License-Identifier: GPL-3.0-or-later
// What a cell's text is to a workbook: nothing, a figure that its numbers hold, or a text.
#pragma once

#include <string_view>

struct CellFigure {
    enum class Kind { Empty, Whole, Real, Text };

    /// Whole where the text is digits only; tested in 64 bits. Whole numbers that a double can't
    /// hold exactly, and what is not finite, are texts: no digit is lost.
    explicit CellFigure(std::string_view raw);

    bool isNumber() const { return kind == Kind::Whole || kind == Kind::Real; }

    Kind kind = Kind::Text;
    double value = 0;
};
