// SPDX-License-Identifier: Apache-2.0
#include "execution/constant_bounds.h"

#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Constant;

const std::string& asText(const Constant& constant) {
    if (const auto* text = std::get_if<std::string>(&constant))
        return *text;
    throw std::runtime_error("IN compares texts with texts only.");
}

template <class T, class Convert>
std::vector<typename IntervalTable<T>::Bounds>
boundsOf(const std::vector<language::Interval>& intervals, Convert convert) {
    std::vector<typename IntervalTable<T>::Bounds> result(intervals.size());
    for (std::size_t i = 0; i < intervals.size(); ++i) {
        if (intervals[i].low)
            result[i].low = convert(*intervals[i].low);
        if (intervals[i].high)
            result[i].high = convert(*intervals[i].high);
    }
    return result;
}

} // namespace

double asReal(const Constant& constant) {
    if (const auto* real = std::get_if<double>(&constant))
        return *real;
    if (const auto* flag = std::get_if<bool>(&constant))
        return *flag ? 1 : 0;
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return static_cast<double>(*integer);
    throw std::runtime_error("IN compares numbers with numbers only.");
}

std::vector<IntervalTable<double>::Bounds>
realBounds(const std::vector<language::Interval>& intervals) {
    return boundsOf<double>(intervals, asReal);
}

std::vector<IntervalTable<std::string>::Bounds>
textBounds(const std::vector<language::Interval>& intervals) {
    return boundsOf<std::string>(intervals, asText);
}

} // namespace kelx::execution
