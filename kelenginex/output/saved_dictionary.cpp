// SPDX-License-Identifier: Apache-2.0
#include "output/saved_dictionary.h"

#include "catalog/reader.h"
#include "output/saved_variables.h"

#include <system_error>
#include <utility>

namespace kelx::output {

void SavedDictionary::stage(const language::BoundProgram& program,
                            const catalog::Dictionary& dictionary, Joined which,
                            storage::StagedFiles& files, const storage::Pulse& pulse) {
    std::error_code ignored;
    if (!savesVariables(program) || !std::filesystem::exists(dictionary.file, ignored))
        return;
    lock_.emplace(dictionary.file, pulse);
    auto current = catalog::readAgain(dictionary);
    const std::size_t joined = which == Joined::All ? joinSavedVariables(program, *current)
                                                    : joinReplacedVariables(program, *current);
    if (joined == 0) {
        lock_.reset();
        return;
    }
    catalog::stageDictionary(*current, files);
    current_ = std::move(current);
}

} // namespace kelx::output
