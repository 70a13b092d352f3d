// SPDX-License-Identifier: Apache-2.0
// What an output holds, and how one is made from a table.
#pragma once

#include "TKelOutput.h"
#include "TKelSession.h"

#include "boundary/state.h"
#include "boundary/table_dataset.h"
#include "language/bound.h"
#include "output/table.h"

#include <memory>
#include <vector>

struct TKelOutput::Data {
    kelx::output::Table table;
    TKelOutputConfig options;
    std::unique_ptr<kelx::boundary::TableDataset> dataset;
    std::vector<TKelVariable*> variables;
    std::vector<std::unique_ptr<TKelVariable>> ownVariables; ///< made by the program
    TKelEntity* entity = nullptr;
    std::shared_ptr<TKelRunDefinition> definition =
        std::make_shared<TKelRunDefinition>(nullptr, std::nullopt);
};

namespace kelx::boundary {

/// The command tells what the table itself does not say, such as the style.
std::unique_ptr<TKelOutput> makeOutput(output::Table table, const language::TableCommand& command,
                                       const DictionaryState& state);

} // namespace kelx::boundary
