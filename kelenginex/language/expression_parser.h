// SPDX-License-Identifier: Apache-2.0
// Reads expressions: OR, AND, NOT, comparisons and IN, + and -, * and /, signs, from loose to
// tight.
#pragma once

#include "language/ast.h"
#include "language/token_cursor.h"

#include <optional>
#include <string_view>

namespace kelx::language {

class ExpressionParser {
public:
    explicit ExpressionParser(TokenCursor& cursor) : cursor_(cursor) {}

    /// Null where a fault was reported.
    ast::NodePtr parse();
    /// The same for a selection, which may end in an OR with nothing behind it: a row without a
    /// code was left out there.
    ast::NodePtr parseSelection();
    /// Entity.Variable or a name alone, with allowAll Entity.* too; null where a fault was
    /// reported.
    std::optional<ast::Name> parseName(const std::string& expected, bool allowAll);

    /// The value of a number; nothing where it is too large, which is reported.
    std::optional<Constant> readNumber(const Token& number, bool minus);

    /// a : b, or a value alone; without parentheses.
    bool parseInterval(std::vector<ast::Interval>& intervals);

private:
    enum class Chain { Or, And };

    ast::NodePtr parseChain(Chain chain);
    ast::NodePtr parseNot();
    ast::NodePtr parseComparison();
    ast::NodePtr parseIn(ast::NodePtr operand);
    ast::NodePtr negation(const Token& word, ast::NodePtr operand);
    ast::NodePtr parseSum();
    ast::NodePtr parseProduct();
    ast::NodePtr parseSigned();
    ast::NodePtr parsePrimary();
    ast::NodePtr parseParenthesis();
    ast::NodePtr parseCall();
    ast::NodePtr parseNumber(const Token* minus);
    bool parseBound(std::optional<Constant>& bound, bool& open);
    ast::NodePtr combine(Operation operation, const std::string& text, ast::NodePtr left,
                         ast::NodePtr right);
    ast::NodePtr tooDeep(Position position);
    bool atOpenEnd() const;

    TokenCursor& cursor_;
    int nesting_ = 0;
    bool mayEndInOr_ = false;
};

} // namespace kelx::language
