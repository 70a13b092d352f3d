// SPDX-License-Identifier: Apache-2.0
#include "language/messages.h"

#include "language/message_table.h"

#include <algorithm>
#include <tuple>

namespace kelx::language {

namespace {

bool isError(const Message& message) {
    return message.severity == Severity::Error;
}

bool standsBefore(const Message& left, const Message& right) {
    return std::tie(left.position.line, left.position.column) <
           std::tie(right.position.line, right.position.column);
}

} // namespace

void Messages::add(Message message) {
    ++(isError(message) ? errors_ : warnings_);
    if (list_.size() >= kept)
        return;
    std::size_t source = message.position.source;
    if (source > 0 && source <= sources_.size())
        message.text = sources_[source - 1].file + ":" + std::to_string(message.position.line) +
                       ": " + message.text;
    for (; source > 0 && source <= sources_.size(); source = message.position.source)
        message.position = sources_[source - 1].call;
    list_.push_back(std::move(message));
}

std::size_t Messages::addSource(std::string file, Position call) {
    sources_.push_back({std::move(file), call});
    return sources_.size();
}

std::vector<Message> Messages::forDisplay() const {
    std::vector<Message> sorted = list_;
    std::stable_sort(sorted.begin(), sorted.end(), standsBefore);
    std::vector<Message> result;
    std::size_t errors = 0, warnings = 0;
    for (const Message& message : sorted) {
        if ((isError(message) ? errors : warnings)++ < shown)
            result.push_back(message);
    }
    if (result.size() == errors_ + warnings_)
        return result;
    const std::string rest = std::to_string(errors_ + warnings_ - result.size());
    const Position end = result.back().position;
    result.push_back(errors_ > shown ? makeMessage(Error::More, end, {rest})
                                     : makeMessage(Warning::More, end, {rest}));
    return result;
}

} // namespace kelx::language
