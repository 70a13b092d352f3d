// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the rows of a view.
#pragma once

#include <QIcon>

/// Keeps its colours in selected rows, where the style would tint it into the background.
inline QIcon rowIcon(const QString& file) {
    QIcon icon(file);
    icon.addFile(file, {}, QIcon::Selected);
    return icon;
}
