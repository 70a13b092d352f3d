// SPDX-License-Identifier: Apache-2.0
#include "language/figure_names.h"

namespace kelx::language {

std::vector<std::string> figureNames(const TableCommand& command) {
    switch (command.kind) {
    case TableKind::Average:
        return {"Average"};
    case TableKind::Sum:
        return {"Sum"};
    case TableKind::Minimum:
        return {"Minimum"};
    case TableKind::Maximum:
        return {"Maximum"};
    case TableKind::Median:
        return {"Median"};
    case TableKind::Gini:
        return {"Gini"};
    case TableKind::Stats:
        return {"Cases",
                "Sum",
                "Mean",
                "Median",
                "Minimum",
                "Maximum",
                "Standard deviation",
                "Variance",
                "Coefficient of variation",
                "Standard error"};
    case TableKind::Quantile: {
        std::vector<std::string> names;
        for (int i = 1; i < command.quantiles; ++i)
            names.push_back("Quantile " + std::to_string(i));
        return names;
    }
    default:
        return {"Count"};
    }
}

} // namespace kelx::language
