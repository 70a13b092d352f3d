// SPDX-License-Identifier: Apache-2.0
// Results put together by hand, so that tables can be tested without data.
#pragma once

#include "catalog/model.h"
#include "execution/result.h"
#include "output/workshop.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kelx::test {

/// COUNTRY > PROVINCE (CODE, NAME, RATE) > PERSON (SEX, AGE), without data.
class HandMade {
public:
    HandMade();

    catalog::Variable& variable(const std::string& entity, const std::string& name);
    language::ExpressionPtr expression(const std::string& entity, const std::string& name);
    /// A command over persons; its number is that of its place.
    language::TableCommand& add(const std::string& name, language::TableKind kind,
                                std::vector<language::ExpressionPtr> dimensions = {});
    /// Takes the results and gives the outputs, by name.
    void take(std::size_t index, execution::TableResult result);
    std::map<std::string, output::Table> finish();

    catalog::Dictionary dictionary;
    language::BoundProgram program;

private:
    std::vector<std::pair<std::size_t, execution::TableResult>> results_;
};

/// Valid categories as "1. Male", then perhaps "MV" and "NA".
execution::Dimension dimension(const catalog::Variable& variable,
                               const std::vector<std::string>& categories);
/// Numbers of records, from 0.
execution::Dimension recordNumbers(const std::vector<std::int64_t>& numbers);

struct HandCell {
    std::vector<std::uint32_t> categories;
    std::uint64_t records = 0;
    std::vector<double> values; ///< of a measure; then records are their number
};
execution::TableResult counted(std::vector<execution::Dimension> dimensions,
                               const std::vector<HandCell>& cells);
/// Works the figures of a row out from all its values.
using Rule = std::function<std::vector<execution::Figure>(const std::vector<double>& values)>;
execution::TableResult measured(std::vector<execution::Dimension> dimensions,
                                const std::vector<HandCell>& cells, std::size_t figures,
                                const Rule& rule);
execution::Figure mean(const std::vector<double>& values);

/// Values of a row joined by ",", of each row.
std::vector<std::string> rowsOf(const output::Form& form);
std::vector<std::string> namesOf(const output::Form& form);
std::vector<std::string> labelsOf(const output::Form& form);
std::vector<std::string> groupsOf(const output::Form& form);

} // namespace kelx::test
