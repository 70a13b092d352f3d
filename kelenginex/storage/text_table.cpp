// SPDX-License-Identifier: Apache-2.0
#include "storage/text_table.h"

#include "storage/column.h"
#include "storage/error.h"
#include "storage/utf8.h"

#include <algorithm>
#include <numeric>

namespace kelx::storage {

std::uint32_t TextTable::numberOf(std::string_view text) {
    const auto found = numbers_.find(text);
    if (found != numbers_.end())
        return found->second;
    const auto number = static_cast<std::uint32_t>(numbers_.size());
    return numbers_.emplace(keep(text), number).first->second;
}

std::string_view TextTable::keep(std::string_view text) {
    if (!isUtf8(text))
        throw FileError(file_, "holds a text that is not UTF-8");
    if (texts_.size() + 1 >= blankCode(Physical::Code32))
        throw FileError(file_, "has more different texts than a column can hold");
    return texts_.emplace_back(text);
}

void TextTable::sort() {
    std::vector<std::uint32_t> order(texts_.size());
    std::iota(order.begin(), order.end(), 0u);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return texts_[a] < texts_[b]; });
    ranks_.resize(texts_.size());
    sorted_.resize(texts_.size());
    for (std::uint32_t rank = 0; rank < order.size(); ++rank) {
        ranks_[order[rank]] = rank;
        sorted_[rank] = texts_[order[rank]];
    }
}

} // namespace kelx::storage
