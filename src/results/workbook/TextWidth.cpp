// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/TextWidth.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr double narrowest = 8;
constexpr double widest = 60;
constexpr double room = 1.5;

double asciiWidth(char c) {
    if (std::strchr(" .,:;'!|iljI()[]{}ftr/\\", c) != nullptr)
        return 0.65;
    if (std::strchr("mwMW@%", c) != nullptr)
        return 1.5;
    return c >= 'A' && c <= 'Z' ? 1.2 : 1;
}

const std::array<double, 128>& asciiWidths() {
    static const auto widths = [] {
        std::array<double, 128> all{};
        for (std::size_t c = 1; c < all.size(); ++c)
            all[c] = asciiWidth(static_cast<char>(c));
        return all;
    }();
    return widths;
}

/// Scripts of East Asia are about as wide as high.
double wideWidth(char16_t c) {
    return c >= 0x1100 ? 2 : 1.1;
}

} // namespace

double textWidth(QStringView text) {
    double width = 0;
    for (const QChar c : text)
        width += c.unicode() < 128 ? asciiWidths()[c.unicode()] : wideWidth(c.unicode());
    return width;
}

void ColumnWidths::take(qsizetype column, double width) {
    if (column >= widest_.size())
        widest_.resize(column + 1);
    widest_[column] = std::max(widest_[column], width);
}

double ColumnWidths::width(qsizetype column) const {
    return std::clamp(widest_.value(column) + room, narrowest, widest);
}
