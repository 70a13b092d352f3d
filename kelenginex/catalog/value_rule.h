// SPDX-License-Identifier: Apache-2.0
// Which values a dictionary expects of a variable.
#pragma once

#include "catalog/model.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace kelx::catalog {

/// A value is expected where it has a label, lies in a range, or is the missing or the
/// not-applicable code. Without ranges, and without labels for other values than those codes,
/// every value is. Ranges say nothing of texts.
class ValueRule {
public:
    explicit ValueRule(const Variable& variable);

    bool isSet() const { return set_; }
    bool expects(double value) const;
    bool expects(std::string_view text) const; ///< of a text variable

private:
    bool isSpecial(double value) const;
    void takeLabels(const Variable& variable);

    bool set_ = false;
    std::optional<double> notapp_, missing_;
    std::vector<Range> ranges_;
    std::vector<double> labelled_; ///< ascending
    std::unordered_set<std::string> texts_;
};

} // namespace kelx::catalog
