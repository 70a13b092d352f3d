// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/StyleTable.h"

#include <array>

namespace tt {

namespace {

constexpr std::array styleNames = {"Kelvora Light", "Paper", "Slate", "Night"};

struct Row {
    const char* name;
    std::array<const char*, styleNames.size()> colors; ///< one a style
};

// Text keeps a contrast of 4.5 to all that it stands on, text out of use one of 3.
// clang-format off
constexpr Row rows[] = {
    {"Window", {"#f2f3f6", "#f3eee3", "#262a31", "#1a1a1d"}},
    {"WindowText", {"#1f2530", "#2e2a24", "#e4e7ec", "#e8e6e1"}},
    {"Base", {"#ffffff", "#fdfbf6", "#323844", "#2b2b30"}},
    {"AlternateBase", {"#f6f7f9", "#f7f2e8", "#373e4b", "#313137"}},
    {"Text", {"#1f2530", "#2e2a24", "#e4e7ec", "#e8e6e1"}},
    {"Button", {"#eceef2", "#ece5d6", "#343a44", "#2a2a2e"}},
    {"ButtonText", {"#1f2530", "#2e2a24", "#e4e7ec", "#e8e6e1"}},
    {"DisabledText", {"#7c838f", "#857c6e", "#959daa", "#8b8984"}},
    {"Placeholder", {"#667080", "#6d6557", "#b0b7c1", "#a5a29a"}},
    {"Highlight", {"#1f66b0", "#2f6b4f", "#2f6fb3", "#d79a2b"}},
    {"HighlightText", {"#ffffff", "#ffffff", "#ffffff", "#17130a"}},
    {"Link", {"#1a5fa8", "#235f45", "#7db8f2", "#e8b24c"}},
    {"LinkVisited", {"#6b4ba3", "#6f4a78", "#c4aeee", "#c9a3d8"}},
    {"ToolTip", {"#ffffff", "#fffaf0", "#3a414c", "#303035"}},
    {"ToolTipText", {"#1f2530", "#2e2a24", "#eef0f4", "#f0eee9"}},
    {"TabBar", {"#e4e7ed", "#e7decc", "#1f2329", "#111113"}},
    {"TabText", {"#3a4250", "#4a4337", "#c3cad4", "#c9c6bf"}},
    {"TabHover", {"#d6dce5", "#dbd0b9", "#2c323b", "#232327"}},
    {"TabTextCurrent", {"#155a9e", "#245a41", "#8cc2f7", "#e8b24c"}},
    {"Page", {"#fafbfc", "#faf6ed", "#2b3038", "#1f1f22"}},
    {"Border", {"#ccd2da", "#d6ccb8", "#3d4450", "#36363b"}},
    {"Accent", {"#1f66b0", "#2f6b4f", "#5a9fe0", "#d79a2b"}},
    {"Hover", {"#e2ecf8", "#ebe6d3", "#38414d", "#303036"}},
    {"HoverBorder", {"#b0cdec", "#c9c7a4", "#4d6a8a", "#5c5442"}},
    {"Pressed", {"#c9def4", "#d9dec4", "#2f4a68", "#4a3d22"}},
    {"PressedBorder", {"#7fb0e0", "#8fae8f", "#5a9fe0", "#d79a2b"}},
    {"Checked", {"#d6e7f8", "#dfe6cf", "#33485f", "#40361f"}},
    {"CheckedBorder", {"#6ea6dc", "#7fa383", "#5a9fe0", "#b9862a"}},
    {"Focus", {"#1f66b0", "#2f6b4f", "#7db8f2", "#e8b24c"}},
    {"Separator", {"#d5dae1", "#ddd3c0", "#414955", "#3a3a40"}},
    {"GroupTitle", {"#5c6573", "#645c4e", "#a3acb9", "#a3a098"}},
};
// clang-format on

} // namespace

std::vector<std::pair<QString, StyleParams>> BuiltInStyles() {
    std::vector<std::pair<QString, StyleParams>> styles;
    for (std::size_t i = 0; i < styleNames.size(); ++i) {
        StyleParams params;
        for (const Row& row : rows)
            params.Set(QLatin1String(row.name), QColor(QLatin1String(row.colors[i])));
        styles.emplace_back(QLatin1String(styleNames[i]), params);
    }
    return styles;
}

} // namespace tt
