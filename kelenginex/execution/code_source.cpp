// SPDX-License-Identifier: Apache-2.0
#include "execution/code_source.h"

#include "execution/kernels.h"
#include "execution/typed_data.h"

#include <cmath>
#include <cstring>
#include <stdexcept>

namespace kelx::execution {

using language::Operation;
using storage::Physical;

CodeSource::CodeSource(const language::Expression& expression) : entity_(expression.entity) {
    if (expression.operation == Operation::CompoundCode) {
        entity_ = expression.codeEntity;
        domain_ = {Physical::Code64, 0, entity_->records()};
        return;
    }
    if (expression.operation != Operation::VariableValue)
        throw std::runtime_error("A table by " + expression.text + " is not supported yet.");
    entity_ = expression.variable->entity;
    column_ = expression.variable->column();
    const storage::ColumnInfo& info = column_->info();
    domain_ = {info.physical, info.minCode, info.maxCode - info.minCode + 1};
}

const void* CodeSource::own(const Frame& frame) {
    if (column_)
        return column_->read(frame.begin, frame.count, scratch_);
    recordNumbers_.resize(frame.count);
    for (std::size_t i = 0; i < frame.count; ++i)
        recordNumbers_[i] = frame.begin + i;
    return recordNumbers_.data();
}

const void* CodeSource::codes(Frames& frames) {
    if (serial_ == frames.serial())
        return current_;
    serial_ = frames.serial();
    current_ = own(frames.frame(*entity_));
    if (entity_ == &frames.base())
        return current_;
    const auto& ends = frames.runEnds(*entity_, frames.base());
    spread_.resize(frames.baseFrame().count * storage::physicalSize(domain_.physical) +
                   expandSlack);
    withCodes(current_, domain_.physical, [&](const auto* codes) {
        using Code = std::decay_t<decltype(*codes)>;
        kernels().of<Code>().expand(codes, ends.data(), ends.size(),
                                    reinterpret_cast<Code*>(spread_.data()));
    });
    current_ = spread_.data();
    return current_;
}

void CodeSource::numbers(Frames& frames, std::vector<std::uint64_t>& out) {
    const std::size_t count = frames.baseFrame().count;
    out.resize(count);
    const std::uint64_t blank = storage::blankCode(Physical::Code64);
    withCodes(codes(frames), domain_.physical, [&](const auto* codes) {
        using Code = std::decay_t<decltype(*codes)>;
        for (std::size_t i = 0; i < count; ++i)
            out[i] = codes[i] == static_cast<Code>(~Code{0}) ? blank : codes[i];
    });
    if (!isReal())
        return;
    for (std::uint64_t& number : out) {
        double value = 0;
        std::memcpy(&value, &number, sizeof value);
        if (std::isnan(value))
            number = column_->info().naCode == number ? number : blank;
        else if (value == 0)
            number = 0;
    }
}

} // namespace kelx::execution
