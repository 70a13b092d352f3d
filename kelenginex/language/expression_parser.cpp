// SPDX-License-Identifier: Apache-2.0
#include "language/expression_parser.h"

#include "language/text.h"

#include <algorithm>
#include <charconv>

namespace kelx::language {

namespace {

using ast::Node;
using ast::NodeKind;
using ast::NodePtr;

constexpr int deepestNesting = 200; ///< parentheses, functions and signs
constexpr int deepestTree = 600;    ///< long sums are deep trees

const char* const value =
    "a value, such as a number, a text in quotes, Entity.Variable, a function or \"(\"";

/// Counts one level of nesting for as long as it lives.
class Level {
public:
    explicit Level(int& nesting) : nesting_(nesting) { ++nesting_; }
    ~Level() { --nesting_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;

private:
    int& nesting_;
};

NodePtr makeNode(NodeKind kind, const Token& token) {
    auto node = std::make_unique<Node>();
    node->kind = kind;
    node->position = token.position;
    node->span = {token.begin, token.end()};
    return node;
}

bool isNumber(const Node& node) {
    return node.kind == NodeKind::Constant &&
           (std::holds_alternative<std::int64_t>(node.constant) ||
            std::holds_alternative<double>(node.constant));
}

/// SUM (x) is a mistaken function, AND (x) is none.
bool canBeFunction(const Token& word) {
    return word.is(Keyword::None) || word.is(Keyword::Missing) ||
           (placesOf(word.keyword) & startsCommand) != 0;
}

struct OperatorEntry {
    std::string_view symbol;
    Operation operation;
};

constexpr OperatorEntry comparisons[] = {
    {"=", Operation::Equal},      {"<>", Operation::NotEqual}, {"<", Operation::Less},
    {"<=", Operation::LessEqual}, {">", Operation::Greater},   {">=", Operation::GreaterEqual}};
constexpr OperatorEntry sums[] = {{"+", Operation::Add}, {"-", Operation::Subtract}};
constexpr OperatorEntry products[] = {{"*", Operation::Multiply}, {"/", Operation::Divide}};

template <std::size_t n>
const OperatorEntry* findOperator(const OperatorEntry (&entries)[n], const Token& token) {
    const auto* found = std::find_if(std::begin(entries), std::end(entries),
                                     [&](const auto& e) { return token.isSymbol(e.symbol); });
    return found == std::end(entries) ? nullptr : found;
}

/// A tree as flat as can be: AND and OR may be grouped in any way.
NodePtr balanced(std::vector<NodePtr>& operands, std::size_t begin, std::size_t end,
                 Operation operation, const std::string& text) {
    if (end - begin == 1)
        return std::move(operands[begin]);
    const std::size_t middle = begin + (end - begin) / 2;
    auto node = std::make_unique<Node>();
    node->kind = NodeKind::Operation;
    node->operation = operation;
    node->operatorText = text;
    node->arguments.push_back(balanced(operands, begin, middle, operation, text));
    node->arguments.push_back(balanced(operands, middle, end, operation, text));
    const Node& left = *node->arguments[0];
    const Node& right = *node->arguments[1];
    node->position = left.position;
    node->span = {left.span.begin, right.span.end};
    node->depth = 1 + std::max(left.depth, right.depth);
    return node;
}

} // namespace

std::optional<Constant> numberOf(std::string_view text) {
    std::int64_t integer = 0;
    const char* const end = text.data() + text.size();
    if (text.find_first_of(".eE") == std::string_view::npos) {
        const auto read = std::from_chars(text.data(), end, integer);
        return read.ec == std::errc() ? std::optional<Constant>(integer) : std::nullopt;
    }
    double real = 0;
    const auto read = std::from_chars(text.data(), end, real);
    return read.ec == std::errc() && read.ptr == end ? std::optional<Constant>(real) : std::nullopt;
}

Constant negated(const Constant& constant) {
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return -*integer;
    return -std::get<double>(constant);
}

NodePtr ExpressionParser::tooDeep(Position position) {
    cursor_.report(Error::TooDeep, position);
    return nullptr;
}

NodePtr ExpressionParser::combine(Operation operation, const std::string& text, NodePtr left,
                                  NodePtr right) {
    std::vector<NodePtr> both;
    both.push_back(std::move(left));
    both.push_back(std::move(right));
    NodePtr node = balanced(both, 0, 2, operation, text);
    return node->depth > deepestTree ? tooDeep(node->position) : std::move(node);
}

NodePtr ExpressionParser::parse() {
    const Level level(nesting_);
    if (nesting_ > deepestNesting)
        return tooDeep(cursor_.peek().position);
    return parseChain(Chain::Or);
}

NodePtr ExpressionParser::parseSelection() {
    mayEndInOr_ = true;
    NodePtr node = parse();
    mayEndInOr_ = false;
    return node;
}

/// Behind an OR: nothing that it could join.
bool ExpressionParser::atOpenEnd() const {
    return mayEndInOr_ && (cursor_.atEnd() || cursor_.atClause() || cursor_.atCommand() ||
                           cursor_.peek().isSymbol(")"));
}

NodePtr ExpressionParser::parseChain(Chain chain) {
    const bool isOr = chain == Chain::Or;
    std::vector<NodePtr> operands;
    Position link;
    do {
        if (isOr && !operands.empty() && atOpenEnd()) {
            cursor_.report(Warning::OpenSelection, link);
            break;
        }
        operands.push_back(isOr ? parseChain(Chain::And) : parseNot());
        if (operands.back() == nullptr)
            return nullptr;
        link = cursor_.peek().position;
    } while (cursor_.takeKeyword(isOr ? Keyword::Or : Keyword::And));
    return balanced(operands, 0, operands.size(), isOr ? Operation::Or : Operation::And,
                    isOr ? "OR" : "AND");
}

NodePtr ExpressionParser::parseNot() {
    if (!cursor_.peek().is(Keyword::Not))
        return parseComparison();
    const Level level(nesting_);
    const Token& token = cursor_.take();
    if (nesting_ > deepestNesting)
        return tooDeep(token.position);
    NodePtr operand = parseNot();
    if (operand == nullptr)
        return nullptr;
    NodePtr node = makeNode(NodeKind::Operation, token);
    node->operation = Operation::Not;
    node->operatorText = "NOT";
    node->span.end = operand->span.end;
    node->depth = operand->depth + 1;
    node->arguments.push_back(std::move(operand));
    return node;
}

NodePtr ExpressionParser::parseComparison() {
    NodePtr left = parseSum();
    while (left != nullptr) {
        if (cursor_.takeKeyword(Keyword::In)) {
            left = parseIn(std::move(left));
            continue;
        }
        const OperatorEntry* entry = findOperator(comparisons, cursor_.peek());
        if (entry == nullptr)
            break;
        cursor_.take();
        NodePtr right = parseSum();
        if (right == nullptr)
            return nullptr;
        left = combine(entry->operation, std::string(entry->symbol), std::move(left),
                       std::move(right));
    }
    return left;
}

NodePtr ExpressionParser::parseIn(NodePtr operand) {
    auto node = std::make_unique<Node>();
    node->kind = NodeKind::Operation;
    node->operation = Operation::In;
    node->operatorText = "IN";
    node->position = operand->position;
    if (!cursor_.takeSymbol("(")) {
        cursor_.unexpected("\"(\" and the values of IN, as in IN (1:5, 9)");
        return nullptr;
    }
    do {
        if (!parseInterval(node->intervals))
            return nullptr;
    } while (cursor_.takeSymbol(","));
    if (!cursor_.takeSymbol(")")) {
        cursor_.unexpected("\",\" and another value of IN, or \")\"");
        return nullptr;
    }
    node->span = {operand->span.begin, cursor_.lastEnd()};
    node->depth = operand->depth + 1;
    node->arguments.push_back(std::move(operand));
    return node->depth > deepestTree ? tooDeep(node->position) : std::move(node);
}

bool ExpressionParser::parseInterval(std::vector<ast::Interval>& intervals) {
    ast::Interval interval;
    interval.position = cursor_.peek().position;
    interval.span.begin = cursor_.peek().begin;
    bool open = false;
    if (!parseBound(interval.bounds.low, open))
        return false;
    if (cursor_.takeSymbol(":")) {
        if (!parseBound(interval.bounds.high, open))
            return false;
    } else if (open) {
        cursor_.unexpected("\":\" and the other end of the interval");
        return false;
    } else {
        interval.bounds.high = interval.bounds.low;
        interval.single = true;
    }
    interval.span.end = cursor_.lastEnd();
    intervals.push_back(std::move(interval));
    return true;
}

bool ExpressionParser::parseBound(std::optional<Constant>& bound, bool& open) {
    if (cursor_.takeKeyword(Keyword::Lowest) || cursor_.takeKeyword(Keyword::Highest)) {
        open = true;
        return true;
    }
    const bool minus = cursor_.takeSymbol("-");
    if (cursor_.peek().kind == TokenKind::Number) {
        const NodePtr number = parseNumber();
        if (number != nullptr)
            bound = minus ? negated(number->constant) : number->constant;
        return number != nullptr;
    }
    if (!minus && cursor_.peek().kind == TokenKind::Text) {
        bound = cursor_.take().value();
        return true;
    }
    cursor_.unexpected(minus ? "a number" : "a number or a text in quotes");
    return false;
}

NodePtr ExpressionParser::parseSum() {
    NodePtr left = parseProduct();
    while (left != nullptr) {
        const OperatorEntry* entry = findOperator(sums, cursor_.peek());
        if (entry == nullptr)
            break;
        cursor_.take();
        NodePtr right = parseProduct();
        if (right == nullptr)
            return nullptr;
        left = combine(entry->operation, std::string(entry->symbol), std::move(left),
                       std::move(right));
    }
    return left;
}

NodePtr ExpressionParser::parseProduct() {
    NodePtr left = parseSigned();
    while (left != nullptr) {
        const OperatorEntry* entry = findOperator(products, cursor_.peek());
        if (entry == nullptr)
            break;
        cursor_.take();
        NodePtr right = parseSigned();
        if (right == nullptr)
            return nullptr;
        left = combine(entry->operation, std::string(entry->symbol), std::move(left),
                       std::move(right));
    }
    return left;
}

NodePtr ExpressionParser::parseSigned() {
    if (!cursor_.peek().isSymbol("-") && !cursor_.peek().isSymbol("+"))
        return parsePrimary();
    const Level level(nesting_);
    const Token& token = cursor_.take();
    if (nesting_ > deepestNesting)
        return tooDeep(token.position);
    NodePtr operand = parseSigned();
    if (operand == nullptr || token.isSymbol("+"))
        return operand;
    NodePtr node = makeNode(isNumber(*operand) ? NodeKind::Constant : NodeKind::Operation, token);
    node->span.end = operand->span.end;
    if (isNumber(*operand)) {
        node->constant = negated(operand->constant);
        return node;
    }
    node->operation = Operation::Negate;
    node->operatorText = "-";
    node->depth = operand->depth + 1;
    node->arguments.push_back(std::move(operand));
    return node;
}

NodePtr ExpressionParser::parsePrimary() {
    const Token& token = cursor_.peek();
    if (token.kind == TokenKind::Number)
        return parseNumber();
    if (token.isSymbol("("))
        return parseParenthesis();
    if (token.kind == TokenKind::Word && canBeFunction(token) && cursor_.peek(1).isSymbol("("))
        return parseCall();
    if (token.kind == TokenKind::Text || token.is(Keyword::True) || token.is(Keyword::False)) {
        NodePtr node = makeNode(NodeKind::Constant, token);
        if (token.kind == TokenKind::Text)
            node->constant = token.value();
        else
            node->constant = token.is(Keyword::True);
        cursor_.take();
        return node;
    }
    std::optional<ast::Name> name = parseName(value, false);
    if (!name)
        return nullptr;
    NodePtr node = makeNode(NodeKind::Name, token);
    node->span = name->span;
    node->name = std::move(*name);
    return node;
}

NodePtr ExpressionParser::parseParenthesis() {
    const Token& open = cursor_.take();
    NodePtr node = parse();
    if (node == nullptr)
        return nullptr;
    if (!cursor_.takeSymbol(")")) {
        cursor_.unexpected("an operator or \")\"", {"AND", "OR", "IN"});
        return nullptr;
    }
    node->position = open.position;
    node->span = {open.begin, cursor_.lastEnd()};
    return node;
}

NodePtr ExpressionParser::parseCall() {
    NodePtr node = makeNode(NodeKind::Call, cursor_.peek());
    node->name.name = std::string(cursor_.take().text);
    cursor_.take();
    if (cursor_.takeSymbol(")")) {
        node->span.end = cursor_.lastEnd();
        return node;
    }
    do {
        NodePtr argument = parse();
        if (argument == nullptr)
            return nullptr;
        node->depth = std::max(node->depth, argument->depth + 1);
        node->arguments.push_back(std::move(argument));
    } while (cursor_.takeSymbol(","));
    if (!cursor_.takeSymbol(")")) {
        cursor_.unexpected("an operator, \",\" or \")\"", {"AND", "OR", "IN"});
        return nullptr;
    }
    node->span.end = cursor_.lastEnd();
    return node;
}

NodePtr ExpressionParser::parseNumber() {
    const Token& token = cursor_.take();
    NodePtr node = makeNode(NodeKind::Constant, token);
    const std::optional<Constant> number = numberOf(token.text);
    if (!number) {
        cursor_.report(Error::NumberTooLarge, token.position, {inQuotes(token.text)});
        return nullptr;
    }
    node->constant = *number;
    return node;
}

std::optional<ast::Name> ExpressionParser::parseName(const std::string& expected, bool allowAll) {
    const Token& first = cursor_.peek();
    if (first.kind != TokenKind::Word || first.reserved) {
        const unsigned places = placesOf(first.keyword) & ~(isDefineKind | isDefineClause);
        const bool plain = first.reserved && places == 0;
        cursor_.unexpected(plain ? expected + " (a variable of this name is written Entity." +
                                       upperCase(first.text) + ")"
                                 : expected);
        return std::nullopt;
    }
    ast::Name name;
    name.position = name.namePosition = first.position;
    name.name = std::string(cursor_.take().text);
    name.span = {first.begin, first.end()};
    if (!cursor_.takeSymbol("."))
        return name;
    name.entity = std::move(name.name);
    name.namePosition = cursor_.peek().position;
    name.all = allowAll && cursor_.peek().isSymbol("*");
    if (!name.all && cursor_.peek().kind != TokenKind::Word) {
        cursor_.unexpected(allowAll ? "the name of a variable or *" : "the name of a variable");
        return std::nullopt;
    }
    name.name = std::string(cursor_.take().text);
    name.span.end = cursor_.lastEnd();
    return name;
}

} // namespace kelx::language
