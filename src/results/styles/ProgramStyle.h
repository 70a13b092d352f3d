// SPDX-License-Identifier: GPL-3.0-or-later
// The line of a program that names its table style.
#pragma once

#include <QString>

namespace programstyle {

/// The line, without its end. stylePath: with native separators.
QString line(const QString& stylePath);

/// The program with that line: in place of each one that names a style, else behind the first line
/// that is DEFINE alone, else behind a DEFINE that it begins with. Ends of lines stay as they are.
QString inserted(const QString& program, const QString& stylePath);

/// The same in a file of UTF-8 text. False where it cannot be read or written: it is as it was.
bool insertInto(const QString& programPath, const QString& stylePath);

} // namespace programstyle
