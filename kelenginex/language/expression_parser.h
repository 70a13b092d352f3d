// SPDX-License-Identifier: Apache-2.0
// Reads expressions: OR, AND, NOT, comparisons and IN, + and -, * and /, signs, from loose to
// tight.
#pragma once

#include "language/ast.h"
#include "language/token_cursor.h"

#include <optional>

namespace kelx::language {

class ExpressionParser {
public:
    explicit ExpressionParser(TokenCursor& cursor) : cursor_(cursor) {}

    /// Null where a fault was reported.
    ast::NodePtr parse();
    /// Entity.Variable or a name alone, with allowAll Entity.* too; null where a fault was
    /// reported.
    std::optional<ast::Name> parseName(const std::string& expected, bool allowAll);

private:
    enum class Chain { Or, And };

    ast::NodePtr parseChain(Chain chain);
    ast::NodePtr parseNot();
    ast::NodePtr parseComparison();
    ast::NodePtr parseIn(ast::NodePtr operand);
    ast::NodePtr parseSum();
    ast::NodePtr parseProduct();
    ast::NodePtr parseSigned();
    ast::NodePtr parsePrimary();
    ast::NodePtr parseParenthesis();
    ast::NodePtr parseCall();
    ast::NodePtr parseNumber();
    bool parseInterval(std::vector<ast::Interval>& intervals);
    bool parseBound(std::optional<Constant>& bound, bool& open);
    ast::NodePtr combine(Operation operation, const std::string& text, ast::NodePtr left,
                         ast::NodePtr right);
    ast::NodePtr tooDeep(Position position);

    TokenCursor& cursor_;
    int nesting_ = 0;
};

} // namespace kelx::language
