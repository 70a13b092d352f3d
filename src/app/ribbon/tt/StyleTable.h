// SPDX-License-Identifier: GPL-3.0-or-later
// The styles that the ribbon brings along, as a table of colours.
#pragma once

#include "app/ribbon/tt/Style.h"

#include <utility>
#include <vector>

namespace tt {

/// Name and colours, the default first.
std::vector<std::pair<QString, StyleParams>> BuiltInStyles();

} // namespace tt
