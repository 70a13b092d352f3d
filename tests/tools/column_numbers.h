// SPDX-License-Identifier: GPL-3.0-or-later
// A whole column as plain numbers, to count by hand.
#pragma once

#include "catalog/model.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

/// Numbers of a column; blanks are NaN. Texts give their numbers in the heap.
inline std::vector<double> numbers(const kelx::catalog::Entity& entity, const char* variable) {
    namespace storage = kelx::storage;
    const auto column = entity.findVariable(variable)->column();
    const storage::ColumnInfo& info = column->info();
    const std::size_t size = storage::physicalSize(info.physical);
    std::vector<double> result;
    storage::ColumnScratch scratch;
    for (std::uint64_t begin = 0; begin < info.records; begin += storage::recordsPerBlock) {
        const auto count = std::min<std::uint64_t>(storage::recordsPerBlock, info.records - begin);
        const auto* bytes =
            static_cast<const char*>(column->read(begin, static_cast<std::size_t>(count), scratch));
        for (std::uint64_t i = 0; i < count; ++i) {
            double real = 0;
            std::uint64_t code = 0;
            std::memcpy(&code, bytes + i * size, size);
            if (info.physical == storage::Physical::Real64)
                std::memcpy(&real, bytes + i * size, size);
            else if (code == storage::blankCode(info.physical))
                real = std::nan("");
            else
                real = static_cast<double>(info.base) + static_cast<double>(code);
            result.push_back(real);
        }
    }
    return result;
}
