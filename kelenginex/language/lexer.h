// SPDX-License-Identifier: Apache-2.0
// Cuts a program into tokens.
#pragma once

#include "language/keywords.h"
#include "language/messages.h"
#include "language/odd_names.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

enum class TokenKind {
    End,
    Word,
    Number,
    Text,    ///< in quotes, quotes included; other quotes than double ones were reported
    Label,   ///< without quotes, to the end of the line
    Braced,  ///< between braces, braces included; may hold other braces in pairs
    Symbol,  ///< punctuation and operators; `==` and the like already as `=`
    Invalid, ///< reported already
};

/// A piece of the program; views point into its text.
struct Token {
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::None; ///< None next to a "."
    bool reserved = false;           ///< cannot stand alone as a name
    bool firstOnLine = false;
    bool isReported = false; ///< is at fault, and that was told
    std::string_view text;
    std::size_t begin = 0;  ///< byte offset in the program
    std::size_t length = 0; ///< in the program; `text` differs for `==`
    Position position;

    std::size_t end() const { return begin + length; }
    bool is(Keyword word) const { return keyword == word; }
    bool isSymbol(std::string_view symbol) const {
        return kind == TokenKind::Symbol && text == symbol;
    }
    /// The text without its quotes, "" being a quote; a label as it stands.
    std::string value() const;
};

/// The tokens of a program, an End last. The text must outlive them. Faults go to messages.
/// `source` is the text's number there, for a program that is called.
std::vector<Token> tokenize(std::string_view program, const OddNames& oddNames, Messages& messages,
                            std::size_t source = 0);

} // namespace kelx::language
