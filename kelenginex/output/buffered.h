// SPDX-License-Identifier: Apache-2.0
// Collects small pieces of text into larger ones.
#pragma once

#include "output/table.h"

#include <string>
#include <string_view>

namespace kelx::output {

/// Hands on what is left with finish(), not in the destructor: a sink may throw.
class Buffered {
public:
    explicit Buffered(const TextSink& sink) : sink_(sink) {}

    Buffered& operator<<(std::string_view text) {
        buffer_ += text;
        if (buffer_.size() >= most)
            finish();
        return *this;
    }
    void finish() {
        sink_(buffer_);
        buffer_.clear();
    }

private:
    static constexpr std::size_t most = 1U << 16;
    const TextSink& sink_;
    std::string buffer_;
};

} // namespace kelx::output
