// SPDX-License-Identifier: GPL-3.0-or-later
// Paths shortened for a title: the start and the file's own name say most.
#pragma once

#include <QString>

class QFont;

/// The path where it fits; else as many of its first parts as do, "...", and its last part, which
/// are shown whatever the width. width: in pixels.
QString elidePath(const QString& nativePath, const QFont& font, int width);
