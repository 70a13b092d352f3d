// SPDX-License-Identifier: Apache-2.0
// The Gini coefficient of values that come in ascending order.
#pragma once

#include "execution/sum.h"

#include <limits>

namespace kelx::execution {

class Gini {
public:
    /// 2 w x C - w^2 x, with C the running weight up to and with the value, is w x (C' + C) with
    /// C' the one before: records of one value may come together or one by one.
    void add(double value, double weight) {
        const double before = weight_.value();
        weight_.add(weight);
        moment_.add(weight * value);
        area_.add(weight * value * (before + weight_.value()));
    }
    /// NaN where there is none.
    double value() const {
        const double all = weight_.value() * moment_.value();
        return all != 0 ? area_.value() / all - 1 : std::numeric_limits<double>::quiet_NaN();
    }

private:
    Sum weight_, moment_, area_;
};

} // namespace kelx::execution
