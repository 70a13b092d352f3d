// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

namespace kelx::output {

Column Column::of(Values byRow) {
    return {std::make_shared<const Values>(std::move(byRow)), nullptr, nullptr};
}

Column Column::of(Values each, std::shared_ptr<const Numbers> numbers) {
    return {std::make_shared<const Values>(std::move(each)), std::move(numbers), nullptr};
}

Column Column::of(std::shared_ptr<const Figures> byRow) {
    return {nullptr, nullptr, std::move(byRow)};
}

std::size_t Column::rows() const {
    if (figures)
        return figures->size();
    if (numbers)
        return numbers->size();
    return values ? values->size() : 0;
}

Value Column::at(std::size_t row) const {
    return visit(row, [](const auto& value) { return Value(value); });
}

} // namespace kelx::output
