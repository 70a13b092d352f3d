// SPDX-License-Identifier: Apache-2.0
// What lies under an area that is given by its compound code.
#pragma once

#include "KelTypes.h"

#include "catalog/model.h"

#include <string>
#include <vector>

namespace kelx::boundary {

/// Records of each entity below under the area; nothing where there is no such area. Throws
/// storage::FileError where codes or pointers cannot be read.
std::vector<EntityAreaCount> countBelow(const catalog::Entity& entity,
                                        const std::string& compoundCode);
/// Own code, as compound codes hold it, and label of each record of child under the area, in record
/// order.
std::vector<AreaCodeRecord> codesBelow(const catalog::Entity& entity,
                                       const std::string& compoundCode,
                                       const catalog::Entity& child);
/// Characters of the longest code of a code variable of a dictionary.
int codeWidth(const catalog::Variable& code);

} // namespace kelx::boundary
