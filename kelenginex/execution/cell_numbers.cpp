// SPDX-License-Identifier: Apache-2.0
#include "execution/cell_numbers.h"

#include "execution/kernels.h"
#include "execution/measure_figures.h"
#include "execution/typed_data.h"

#include <algorithm>

namespace kelx::execution {
namespace {

const Entity* lowestOf(const plan::PlannedTable& table) {
    const Entity* lowest = nullptr;
    for (const auto& dimension : table.dimensions) {
        const Entity& entity = CodeSource(*dimension).entity();
        if (lowest == nullptr || lowest->isAncestorOf(entity))
            lowest = &entity;
    }
    return lowest;
}

std::vector<CodeDomain> domainsOf(const plan::PlannedTable& table) {
    std::vector<CodeDomain> domains;
    domains.reserve(table.dimensions.size());
    for (const auto& dimension : table.dimensions)
        domains.push_back(CodeSource(*dimension).domain());
    return domains;
}

} // namespace

CellNumbers::CellNumbers(const plan::PlannedTable& table, const Entity& unit, SourcePool& pool)
    : unit_(&unit), lowest_(lowestOf(table)),
      dense_(domainsOf(table), MeasureForm(*table.command).weighted), shape_(dense_),
      numbers_(table.dimensions.size()), codes_(std::max<std::size_t>(numbers_.size(), 1)) {
    for (const auto& dimension : table.dimensions)
        sources_.push_back(&pool.of(*dimension));
    known_.resize(dense_.cells);
    shape_.cells = 0;
    shape_.strides.clear();
}

const std::vector<std::uint32_t>& CellNumbers::ends(Frames& frames) {
    if (lowest_ != nullptr)
        return frames.runEnds(*lowest_, *unit_);
    onlyEnd_ = {static_cast<std::uint32_t>(frames.baseFrame().count)};
    return onlyEnd_;
}

const std::vector<std::uint32_t>& CellNumbers::find(Frames& frames, HashCells& cells) {
    if (lowest_ == nullptr) {
        result_ = {static_cast<std::uint32_t>(cells.add(codes_.data(), 0, {}))};
        return result_;
    }
    result_.resize(frames.frame(*lowest_).count);
    if (dense_.dense())
        findDense(frames, cells);
    else
        findHashed(frames, cells);
    return result_;
}

void CellNumbers::makeIndex(Frames& frames) {
    const std::size_t count = result_.size();
    index_.resize(count);
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        const CodeDomain& domain = sources_[i]->domain();
        withCodes(sources_[i]->codes(frames, *lowest_), domain.physical, [&](const auto* codes) {
            using Code = std::decay_t<decltype(*codes)>;
            kernels().of<Code>().index32(codes, count, static_cast<Code>(domain.lowest),
                                         static_cast<Code>(domain.numbers() - 1), dense_.strides[i],
                                         i > 0, index_.data());
        });
    }
}

void CellNumbers::findDense(Frames& frames, HashCells& cells) {
    makeIndex(frames);
    for (std::size_t i = 0; i < index_.size(); ++i) {
        std::uint32_t& known = known_[index_[i]];
        if (known == 0) {
            for (std::size_t d = 0; d < codes_.size(); ++d) {
                const CodeDomain& domain = dense_.domains[d];
                const std::uint64_t slot = index_[i] / dense_.strides[d] % domain.numbers();
                codes_[d] = slot == domain.size ? storage::blankCode(storage::Physical::Code64)
                                                : domain.lowest + slot;
            }
            known = static_cast<std::uint32_t>(cells.add(codes_.data(), 0, {})) + 1;
        }
        result_[i] = known - 1;
    }
}

void CellNumbers::findHashed(Frames& frames, HashCells& cells) {
    for (std::size_t d = 0; d < sources_.size(); ++d)
        sources_[d]->numbers(frames, *lowest_, numbers_[d]);
    for (std::size_t i = 0; i < result_.size(); ++i) {
        for (std::size_t d = 0; d < codes_.size(); ++d)
            codes_[d] = numbers_[d][i];
        result_[i] = static_cast<std::uint32_t>(cells.add(codes_.data(), 0, {}));
    }
}

} // namespace kelx::execution
