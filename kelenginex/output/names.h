// SPDX-License-Identifier: Apache-2.0
// What types and methods of outputs are called.
#pragma once

namespace kelx::output {

/// Of an eOutputType; empty for a number that is none.
const char* typeName(int type);
/// Of an eTableMethod; empty for a number that is none.
const char* methodName(int method);

} // namespace kelx::output
