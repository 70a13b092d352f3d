// SPDX-License-Identifier: GPL-3.0-or-later
// How well one colour can be told from another, as the accessibility guidelines of the web define
// it.
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// 0 to 1, opaque colours only.
inline double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// 1 to 21; text needs 4.5.
inline double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}
