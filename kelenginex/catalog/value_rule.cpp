// SPDX-License-Identifier: Apache-2.0
#include "catalog/value_rule.h"

#include "catalog/names.h"

#include <algorithm>

namespace kelx::catalog {

ValueRule::ValueRule(const Variable& variable)
    : notapp_(variable.notapp), missing_(variable.missing) {
    takeLabels(variable);
    if (variable.type != ValueType::String) {
        ranges_ = variable.ranges;
    }
    set_ = !ranges_.empty() || !labelled_.empty() || !texts_.empty();
}

void ValueRule::takeLabels(const Variable& variable) {
    for (const auto& [value, label] : variable.valueLabels) {
        const auto number = parseNumber(value);
        if (number && isSpecial(*number)) {
            continue;
        }
        if (variable.type == ValueType::String) {
            texts_.insert(value);
        } else if (number) {
            labelled_.push_back(*number);
        }
    }
    std::sort(labelled_.begin(), labelled_.end());
}

bool ValueRule::isSpecial(double value) const {
    return value == notapp_ || value == missing_;
}

bool ValueRule::expects(double value) const {
    return !set_ || isSpecial(value) ||
           std::any_of(ranges_.begin(), ranges_.end(),
                       [&](const Range& range) { return range.contains(value); }) ||
           std::binary_search(labelled_.begin(), labelled_.end(), value);
}

bool ValueRule::expects(std::string_view text) const {
    if (!set_ || texts_.contains(std::string(text))) {
        return true;
    }
    const auto number = parseNumber(text);
    return number && isSpecial(*number);
}

} // namespace kelx::catalog
