// SPDX-License-Identifier: GPL-3.0-or-later
// The user's mark of an entity or variable as text.
#pragma once

#include <QString>

namespace TagText {

/// Digits; empty for a mark that is not set (negative).
QString of(int tag);
/// At most 9999. An empty text leaves a mark that is not set as it is.
int parse(const QString& text, int before);

} // namespace TagText
