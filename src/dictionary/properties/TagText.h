// SPDX-License-Identifier: GPL-3.0-or-later
// The user's mark of an entity or variable as text.
#pragma once

#include <QString>

namespace TagText {

/// A number; empty for a mark that is not set (-1).
QString of(int tag);
/// At most 9999; an empty text sets no mark.
int parse(const QString& text);

} // namespace TagText
