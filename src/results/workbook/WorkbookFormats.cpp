// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/WorkbookFormats.h"

#include <cstddef>
#include <cstdint>

#include <xlsxwriter.h>

namespace {

struct Look {
    bool isBold;
    bool hasBorder;
    bool isBlackBorder;
    bool isCentred;
    std::uint32_t background; ///< 0 for none
    const char* number;       ///< null for general
};

constexpr std::uint32_t grey = 0x808080;
constexpr std::uint32_t lightGrey = 0xC0C0C0;
constexpr const char* integerFormat = "# ##0";
constexpr const char* realFormat = "# ##0.00";

/// By CellStyle.
constexpr std::array<Look, 11> looks{{
    {false, false, false, false, 0, nullptr},
    {true, false, false, false, 0, nullptr},
    {true, false, false, true, 0, nullptr},
    {false, false, false, false, 0, nullptr},
    {true, true, true, true, grey, nullptr},
    {false, true, false, false, 0, nullptr},
    {false, true, false, false, 0, integerFormat},
    {false, true, false, false, 0, realFormat},
    {false, true, false, false, lightGrey, nullptr},
    {false, true, false, false, lightGrey, integerFormat},
    {false, true, false, false, lightGrey, realFormat},
}};

void dress(lxw_format* format, const Look& look) {
    format_set_font_name(format, "Tahoma");
    format_set_font_size(format, 9);
    if (look.isBold)
        format_set_bold(format);
    if (look.hasBorder)
        format_set_border(format, LXW_BORDER_THIN);
    if (look.isBlackBorder)
        format_set_border_color(format, LXW_COLOR_BLACK);
    if (look.isCentred) {
        format_set_align(format, LXW_ALIGN_CENTER);
        format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    }
    if (look.background != 0)
        format_set_bg_color(format, look.background);
    if (look.number != nullptr)
        format_set_num_format(format, look.number);
}

} // namespace

lxw_format* WorkbookFormats::format(CellStyle style) {
    if (style == CellStyle::Plain)
        return nullptr;
    const auto index = static_cast<std::size_t>(style);
    if (formats_[index] == nullptr) {
        formats_[index] = workbook_add_format(workbook_);
        dress(formats_[index], looks[index]);
    }
    return formats_[index];
}
