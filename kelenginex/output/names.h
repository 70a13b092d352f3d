// SPDX-License-Identifier: Apache-2.0
// What types and methods of outputs are called.
#pragma once

#include "language/bound.h"

namespace kelx::output {

/// The eTableMethod of a kind of table; 0 where it has none.
int methodOf(language::TableKind kind);
/// The eOutputType of a kind of table.
int typeOf(language::TableKind kind);

/// Of an eOutputType; empty for a number that is none.
const char* typeName(int type);
/// Of an eTableMethod; empty for a number that is none.
const char* methodName(int method);
/// "FREQUENCY", "COUNT", "AREALIST" and so on.
const char* kindName(language::TableKind kind);

} // namespace kelx::output
