// SPDX-License-Identifier: GPL-3.0-or-later
// Faulty programs and the messages that tell of them.
#pragma once

#include <vector>

namespace kelx::language {

struct Fault {
    const char* program;
    const char* messages; ///< as told() writes them
};

/// Of measures, lists, TABOP and TABLIST, and of the clauses of all tables.
const std::vector<Fault>& tableFaults();

} // namespace kelx::language
