// SPDX-License-Identifier: Apache-2.0
#include "execution/code_source.h"

#include "execution/kernels.h"
#include "execution/typed_data.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>
#include <stdexcept>

namespace kelx::execution {

using language::Operation;
using storage::Physical;

CodeSource::CodeSource(const language::Expression& expression) : entity_(expression.entity) {
    if (expression.operation == Operation::CompoundCode ||
        expression.operation == Operation::RecordNumber) {
        entity_ = expression.codeEntity;
        domain_ = {Physical::Code64, 0, entity_->records(), false};
        return;
    }
    if (expression.operation != Operation::VariableValue)
        throw std::logic_error(expression.text + " has no codes");
    entity_ = expression.variable->entity;
    column_ = expression.variable->column();
    const storage::ColumnInfo& info = column_->info();
    domain_ = {info.physical, info.minCode, info.maxCode - info.minCode + 1, info.blanks > 0};
}

const void* CodeSource::own(Frames& frames) {
    if (serial_ == frames.serial())
        return own_;
    serial_ = frames.serial();
    const Frame frame = frames.frame(*entity_);
    if (column_) {
        own_ = column_->read(frame.begin, frame.count, scratch_);
    } else {
        recordNumbers_.resize(frame.count);
        std::iota(recordNumbers_.begin(), recordNumbers_.end(), frame.begin);
        own_ = recordNumbers_.data();
    }
    return own_;
}

const void* CodeSource::codes(Frames& frames, const Entity& at) {
    if (entity_ == &at)
        return own(frames);
    auto to = std::find_if(spread_.begin(), spread_.end(),
                           [&](const Spread& known) { return known.at == &at; });
    if (to == spread_.end())
        to = spread_.insert(to, {&at, {}, 0});
    return spread(frames, *to);
}

const void* CodeSource::spread(Frames& frames, Spread& to) {
    if (to.serial == frames.serial())
        return to.bytes.data();
    to.serial = frames.serial();
    const auto& ends = frames.runEnds(*entity_, *to.at);
    to.bytes.resize(frames.frame(*to.at).count * storage::physicalSize(domain_.physical) +
                    expandSlack);
    withCodes(own(frames), domain_.physical, [&](const auto* codes) {
        using Code = std::decay_t<decltype(*codes)>;
        kernels().of<Code>().expand(codes, ends.data(), ends.size(),
                                    reinterpret_cast<Code*>(to.bytes.data()));
    });
    return to.bytes.data();
}

void CodeSource::numbers(Frames& frames, const Entity& at, std::vector<std::uint64_t>& out) {
    const std::size_t count = frames.frame(at).count;
    out.resize(count);
    const std::uint64_t blank = storage::blankCode(Physical::Code64);
    withCodes(codes(frames, at), domain_.physical, [&](const auto* codes) {
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
