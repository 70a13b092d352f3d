// SPDX-License-Identifier: Apache-2.0
// A .dicx that describes a fixed-width text.
#pragma once

#include "import/fixed_source.h"
#include "import/flat_plan.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::tools {

struct DicxLayout {
    std::string rootName, rootLabel;
    TextLayout text;
    FlatPlan plan; ///< all fields have their level
    std::vector<std::string> notes;
};

/// Variables with a varWipChoice are fields of the text: `start` is their first character, from 1,
/// `fieldSize` their width; without a start a field follows the one before it by the number in
/// `field`. `recType` tells the kind of line where there are several; it stands in the line from
/// the given column on. Throws storage::FileError.
DicxLayout readDicxLayout(const std::filesystem::path& file, std::size_t recordTypeColumn);

} // namespace kelx::tools
