// SPDX-License-Identifier: Apache-2.0
// Puts the values of EXECUTE into the text of the program that it calls.
#pragma once

#include "language/messages.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelx::language {

using CallValues = std::vector<std::pair<std::string, std::string>>; ///< names and values

struct CalledText {
    /// A {name} without a value; it is left as it stands.
    struct Unknown {
        std::string name;
        Position position; ///< the first one
        std::size_t places = 1;

        std::string inWords() const; ///< of more places than one: what a message tells of them
    };
    std::string text;
    std::vector<Unknown> unknown;
    std::vector<std::string> unused; ///< names that the text does not hold
    bool tooLong = false;            ///< for a program; the text is not whole then
};

/// Replaces each {name} outside of comments; names in any case. As the value of an EXECUTE, a
/// {name} that has a value becomes {value}, and any other stays what it is. Line breaks of a value
/// become blanks, so that lines keep their numbers. Stops where the text gets longer than any
/// program can be.
CalledText putValues(std::string_view program, const CallValues& values);

} // namespace kelx::language
