// SPDX-License-Identifier: GPL-3.0-or-later
// How high rows and their icons are in the views of the dictionary, at any size of the font.
#pragma once

#include <QFontMetrics>
#include <QSize>

inline int viewRowHeight(const QFontMetrics& font) {
    return font.height() * 3 / 2;
}

inline QSize viewIconSize(const QFontMetrics& font) {
    return {font.height() * 6 / 5, font.height() * 6 / 5};
}
