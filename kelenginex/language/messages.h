// SPDX-License-Identifier: Apache-2.0
// Located messages about a program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kelx::language {

/// A place in a program text, 1-based; columns count characters, not bytes.
struct Position {
    std::int64_t line = 1;
    std::int64_t column = 1;
};

enum class Severity { Error, Warning };

/// One message. The code's symbolic name, text pattern and documentation stand in one table
/// (message_table.h).
struct Message {
    Severity severity = Severity::Error;
    int code = 0;
    Position position;
    std::string text; ///< UTF-8
};

/// Collects messages in the order of their places.
class Messages {
public:
    static constexpr std::size_t shown = 30; ///< beyond, "and N more"

    void add(Message message) { list_.push_back(std::move(message)); }
    bool hasErrors() const;
    std::size_t errorCount() const;
    const std::vector<Message>& all() const { return list_; }
    /// At most `shown` errors and as many warnings, by place, then one line that counts the rest.
    std::vector<Message> forDisplay() const;

private:
    std::vector<Message> list_;
};

} // namespace kelx::language
