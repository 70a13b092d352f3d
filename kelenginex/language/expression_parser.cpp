// SPDX-License-Identifier: Apache-2.0
#include "language/expression_parser.h"

#include "language/text.h"

#include <algorithm>
#include <charconv>
#include <limits>

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

/// Where the first digit that is not 0 stands: 0 just before the point, negative behind it.
long magnitude(std::string_view text) {
    const std::size_t exponentAt = std::min(text.find_first_of("eE"), text.size());
    const std::string_view digits = text.substr(0, exponentAt);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
    constexpr long far = 2'000'000;
    long exponent = 0;
    std::string_view written = text.substr(std::min(exponentAt + 1, text.size()));
    if (!written.empty() && written.front() == '+')
        written.remove_prefix(1);
    const auto read = std::from_chars(written.data(), written.data() + written.size(), exponent);
    if (read.ec == std::errc::result_out_of_range)
        exponent = written.front() == '-' ? -far : far;
    return std::clamp(exponent, -far, far) + static_cast<long>(point) - static_cast<long>(first);
}

/// A number too small for a real is 0, one too large is nothing.
std::optional<Constant> realOf(const std::string& text) {
    double real = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, real);
    if (read.ec == std::errc() && read.ptr == end)
        return real;
    return magnitude(text) < 0 ? std::optional<Constant>(0.0) : std::nullopt;
}

/// Nothing for the least whole number, which has no positive.
std::optional<Constant> negated(const Constant& constant) {
    const auto* integer = std::get_if<std::int64_t>(&constant);
    if (integer == nullptr)
        return -std::get<double>(constant);
    if (*integer == std::numeric_limits<std::int64_t>::min())
        return std::nullopt;
    return -*integer;
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

/// Elsewhere the word for IN with an interval.
bool isBetween(const Token& token) {
    return token.kind == TokenKind::Word && token.is(Keyword::None) &&
           lowerCase(token.text) == "between";
}

} // namespace

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
    return operand == nullptr ? nullptr : negation(token, std::move(operand));
}

NodePtr ExpressionParser::negation(const Token& word, NodePtr operand) {
    NodePtr node = makeNode(NodeKind::Operation, word);
    node->operation = Operation::Not;
    node->operatorText = "NOT";
    if (operand->span.begin < word.begin) { // x NOT IN (...)
        node->position = operand->position;
        node->span.begin = operand->span.begin;
    }
    node->span.end = operand->span.end;
    node->depth = operand->depth + 1;
    node->arguments.push_back(std::move(operand));
    return node;
}

NodePtr ExpressionParser::parseComparison() {
    NodePtr left = parseSum();
    while (left != nullptr) {
        const Token& word = cursor_.peek();
        const bool isNot = word.is(Keyword::Not) &&
                           (cursor_.peek(1).is(Keyword::In) || isBetween(cursor_.peek(1)));
        if (isNot)
            cursor_.take();
        if (isBetween(cursor_.peek())) { // what stands before it is no expression of its own
            cursor_.unexpected("an operator, such as = or IN");
            return nullptr;
        }
        if (cursor_.takeKeyword(Keyword::In)) {
            left = parseIn(std::move(left));
            if (isNot && left != nullptr)
                left = negation(word, std::move(left));
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
        bound = readNumber(cursor_.take(), minus);
        return bound.has_value();
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
    if (token.isSymbol("-") && cursor_.peek().kind == TokenKind::Number)
        return parseNumber(&token);
    NodePtr operand = parseSigned();
    if (operand == nullptr || token.isSymbol("+"))
        return operand;
    NodePtr node = makeNode(NodeKind::Operation, token);
    node->span.end = operand->span.end;
    const std::optional<Constant> number =
        isNumber(*operand) ? negated(operand->constant) : std::nullopt;
    if (number) {
        node->kind = NodeKind::Constant;
        node->constant = *number;
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
        return parseNumber(nullptr);
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

NodePtr ExpressionParser::parseNumber(const Token* minus) {
    const Token& token = cursor_.take();
    const std::optional<Constant> number = readNumber(token, minus != nullptr);
    if (!number)
        return nullptr;
    NodePtr node = makeNode(NodeKind::Constant, minus != nullptr ? *minus : token);
    node->span.end = token.end();
    node->constant = *number;
    return node;
}

std::optional<Constant> ExpressionParser::readNumber(const Token& number, bool minus) {
    const std::string text = (minus ? "-" : "") + std::string(number.text);
    if (text.find_first_of(".eE") != std::string::npos) {
        std::optional<Constant> real = realOf(text);
        if (!real)
            cursor_.report(Error::RealTooLarge, number.position, {inQuotes(text)});
        return real;
    }
    std::int64_t integer = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), integer).ec == std::errc())
        return integer;
    cursor_.report(Error::NumberTooLarge, number.position, {inQuotes(text)});
    return std::nullopt;
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
