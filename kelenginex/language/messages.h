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
    std::size_t source = 0; ///< of a called program, its number in Messages; 0 is the program
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

    /// A message about a called program is told at the call, and begins "file:line: ".
    void add(Message message);
    /// The number of a program that is called, for the positions in it.
    std::size_t addSource(std::string file, Position call);
    bool hasErrors() const { return errors_ > 0; }
    std::size_t errorCount() const { return errors_; }
    /// Those that are kept: the first ones, far more than anybody reads.
    const std::vector<Message>& all() const { return list_; }
    /// Hints cost time: after many messages nobody reads them.
    bool wantsHints() const { return list_.size() < 2 * shown; }
    /// At most `shown` errors and as many warnings, by place, then one line that counts the rest.
    std::vector<Message> forDisplay() const;

private:
    struct Source {
        std::string file;
        Position call;
    };

    static constexpr std::size_t kept = 20000;

    std::vector<Message> list_;
    std::size_t errors_ = 0, warnings_ = 0; ///< also those that are not kept
    std::vector<Source> sources_;
};

} // namespace kelx::language
