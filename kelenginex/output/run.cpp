// SPDX-License-Identifier: Apache-2.0
#include "output/run.h"

#include "output/workshop.h"

#include <utility>

namespace kelx::output {

TablesOfRun runTables(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
                      const execution::RunOptions& options, language::Messages& messages) {
    Workshop workshop(program, dictionary);
    const auto take = [&](std::size_t index, execution::TableResult result,
                          execution::Progress& progress) {
        workshop.take(index, std::move(result), progress);
    };
    try {
        if (!execution::run(program, options, messages, take))
            return {{}, true};
        execution::Progress silent({});
        return {workshop.finish(silent), false};
    } catch (const SortFault& fault) {
        messages.add(fault.message());
        return {};
    }
}

} // namespace kelx::output
