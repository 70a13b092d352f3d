// SPDX-License-Identifier: GPL-3.0-or-later
// Progress messages. They go to the toolkit's debug stream; there is no log file.
#pragma once

#include <QString>

/// With useCategory set, under the category "KelvoraX".
void logMessage(const QString& text, bool useCategory);
