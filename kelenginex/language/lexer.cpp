// SPDX-License-Identifier: Apache-2.0
#include "language/lexer.h"

#include "language/message_table.h"
#include "language/reserved_words.h"
#include "language/text.h"

#include <algorithm>
#include <array>

namespace kelx::language {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Letters of other scripts count: every byte beyond ASCII belongs to a word.
bool isWordByte(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// A character as a message can show it.
std::string visible(char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    if (code >= ' ' && code < 0x7f)
        return inQuotes({&c, 1});
    return std::string("U+00") + digits[code >> 4] + digits[code & 15];
}

struct Symbol {
    std::string_view written, meant;
};

/// Longer ones first. A "=" may be doubled, as where "=" was replaced by "==" in "<=" or "==".
constexpr std::array<Symbol, 15> symbols = {{{"<>", "<>"},
                                             {"<=", "<="},
                                             {">=", ">="},
                                             {"=", "="},
                                             {"<", "<"},
                                             {">", ">"},
                                             {".", "."},
                                             {",", ","},
                                             {"(", "("},
                                             {")", ")"},
                                             {":", ":"},
                                             {"+", "+"},
                                             {"-", "-"},
                                             {"*", "*"},
                                             {"/", "/"}}};

class Lexer {
public:
    Lexer(std::string_view program, const OddNames& oddNames, Messages& messages,
          std::size_t source)
        : program_(program), oddNames_(oddNames), messages_(messages), position_{1, 1, source} {}

    std::vector<Token> run() {
        while (skipBlanks())
            next();
        add(TokenKind::End, 0);
        return std::move(tokens_);
    }

private:
    std::string_view rest() const { return program_.substr(at_); }
    char peek(std::size_t ahead = 0) const {
        return at_ + ahead < program_.size() ? program_[at_ + ahead] : '\0';
    }

    /// Moves on and keeps count of lines and columns.
    void advance(std::size_t bytes) {
        for (const std::size_t end = at_ + bytes; at_ < end; ++at_) {
            const char c = program_[at_];
            if (c == '\n' || (c == '\r' && peek(1) != '\n')) {
                ++position_.line;
                position_.column = 1;
                lineBegins_ = true;
            } else if ((static_cast<unsigned char>(c) & 0xc0) != 0x80) {
                ++position_.column;
            }
        }
    }

    /// True where a token begins after blanks and comments.
    bool skipBlanks() {
        while (at_ < program_.size()) {
            const char c = peek();
            if (c == ' ' || (c >= '\t' && c <= '\r'))
                advance(1);
            else if (rest().starts_with("\xef\xbb\xbf") && at_ == 0)
                at_ += 3;
            else if (rest().starts_with("//"))
                advance(std::min(rest().find_first_of("\r\n"), rest().size()));
            else if (rest().starts_with("/*"))
                skipComment();
            else
                return true;
        }
        return false;
    }

    void skipComment() {
        const std::size_t end = rest().find("*/", 2);
        if (end == std::string_view::npos)
            messages_.add(makeMessage(Error::UnterminatedComment, position_));
        advance(end == std::string_view::npos ? rest().size() : end + 2);
    }

    Token& add(TokenKind kind, std::size_t length) {
        Token token;
        token.kind = kind;
        token.firstOnLine = lineBegins_;
        token.text = program_.substr(at_, length);
        token.length = length;
        token.begin = at_;
        token.position = position_;
        lineBegins_ = false;
        advance(length);
        tokens_.push_back(token);
        return tokens_.back();
    }

    void next() {
        const std::size_t word = wordLength();
        if (word > 0)
            addWord(word);
        else if (isDigit(peek()) || (peek() == '.' && isDigit(peek(1)) && !afterWord()))
            addNumber();
        else if (peek() == '"')
            addText();
        else if (peek() == '{')
            addBraced();
        else
            addSymbol();
    }

    bool afterDot() const {
        return !tokens_.empty() && tokens_.back().isSymbol(".") && tokens_.back().end() == at_;
    }
    bool afterWord() const {
        return !tokens_.empty() && tokens_.back().kind == TokenKind::Word &&
               tokens_.back().end() == at_;
    }

    /// Length of the name or word that begins here; 0 where none does.
    std::size_t wordLength() {
        const std::size_t made = atNewName() ? newNameLength() : 0;
        const std::size_t value = made > 0 ? made : valueNameLength();
        const std::size_t odd = value > 0 ? value : oddNameLength();
        if (odd > 0)
            return odd;
        std::size_t length = 0;
        while (isWordByte(peek(length)))
            ++length;
        if (afterDot() || length == 0 || !isDigit(peek()))
            return length;
        return isNumberLike(rest().substr(0, length)) ? 0 : length;
    }

    /// "12" and "1e5" (also the "1e" of 1e-5) are no words, "2nd" is.
    bool isNumberLike(std::string_view run) const {
        const std::size_t digits = std::min(run.find_first_not_of("0123456789"), run.size());
        if (digits == run.size())
            return true;
        if (run[digits] != 'e' && run[digits] != 'E')
            return false;
        const std::string_view exponent = run.substr(digits + 1);
        if (exponent.empty())
            return (peek(run.size()) == '-' || peek(run.size()) == '+') &&
                   isDigit(peek(run.size() + 1));
        return exponent.find_first_not_of("0123456789") == std::string_view::npos;
    }

    /// DEFINE Entity., ALIAS, TABLE or RUNDEF stands before.
    bool atNewName() const {
        const std::size_t count = tokens_.size();
        if (afterDot())
            return count >= 3 && tokens_[count - 3].is(Keyword::Define);
        if (count == 0 || tokens_.back().end() == at_)
            return false;
        const Token& last = tokens_.back();
        return last.is(Keyword::Alias) || last.is(Keyword::Table) || last.is(Keyword::Rundef);
    }

    /// A name that a program makes may hold "-", and keeps it from there on.
    std::size_t newNameLength() {
        const std::size_t length = dashedLength();
        if (length > 0 && !tokens_.back().is(Keyword::Rundef))
            noteName(rest().substr(0, length));
        return length;
    }

    /// Length of the name with a "-" that begins here; 0 for none.
    std::size_t dashedLength() const {
        constexpr std::size_t longest = 200;
        if (!isWordByte(peek()))
            return 0;
        std::size_t length = 0;
        bool dashed = false;
        while (length <= longest && (isWordByte(peek(length)) ||
                                     (peek(length) == '-' && isWordByte(peek(length + 1))))) {
            dashed = dashed || peek(length) == '-';
            ++length;
        }
        return dashed && length <= longest ? length : 0;
    }

    /// The tables of a list get a number behind the name.
    void noteName(std::string_view name) {
        constexpr std::size_t numberDigits = 6;
        oddNames_.names.insert(lowerCase(name));
        oddNames_.longest = std::max(oddNames_.longest, name.size() + numberDigits);
        if (tokens_.back().is(Keyword::Table))
            tables_.insert(lowerCase(name));
    }
    bool isTableOfList(const std::string& name) const {
        const std::size_t end = name.find_last_not_of("0123456789");
        return !tables_.empty() && end != std::string::npos && end + 1 < name.size() &&
               name[end] == '_' && tables_.contains(name.substr(0, end));
    }

    /// `name = {` of EXECUTE.
    std::size_t valueNameLength() const {
        const bool possible = !tokens_.empty() && (tokens_.back().kind == TokenKind::Text ||
                                                   tokens_.back().kind == TokenKind::Braced ||
                                                   tokens_.back().isSymbol(","));
        const std::size_t length = possible ? dashedLength() : 0;
        std::size_t at = length;
        const auto skip = [&] {
            while (peek(at) == ' ' || peek(at) == '\t')
                ++at;
        };
        skip();
        if (length == 0 || peek(at++) != '=')
            return 0;
        skip();
        return peek(at) == '{' ? length : 0;
    }

    std::size_t oddNameLength() const {
        if (oddNames_.names.empty() || !isWordByte(peek()))
            return 0;
        std::size_t length = 0;
        while (length < oddNames_.longest && (isWordByte(peek(length)) || peek(length) == '-'))
            ++length;
        for (; length > 0; --length) {
            if (isWordByte(peek(length)) && isWordByte(peek(length - 1)))
                continue;
            const std::string_view name = rest().substr(0, length);
            const bool allDigits = name.find_first_not_of("0123456789") == std::string_view::npos;
            const std::string key = lowerCase(name);
            if ((afterDot() || !allDigits) && (oddNames_.names.contains(key) || isTableOfList(key)))
                return length;
        }
        return 0;
    }

    void addWord(std::size_t length) {
        const bool isName = !tokens_.empty() && tokens_.back().isSymbol(".");
        Token& token = add(TokenKind::Word, length);
        if (isName)
            return;
        token.keyword = keywordOf(token.text);
        token.reserved = isReserved(token.text);
        const bool label = token.is(Keyword::Selectionlabel) || token.is(Keyword::Filterlabel);
        if (label || (token.is(Keyword::Group) && token.firstOnLine))
            addLabel();
    }

    /// What follows on the line, where it is not a text in quotes.
    void addLabel() {
        std::size_t blanks = 0;
        while (peek(blanks) == ' ' || peek(blanks) == '\t')
            ++blanks;
        std::string_view line = rest().substr(blanks);
        line = line.substr(0, line.find_first_of("\r\n"));
        line = line.substr(0, commentIn(line));
        while (!line.empty() && (line.back() == ' ' || line.back() == '\t'))
            line.remove_suffix(1);
        const bool isName = blanks == 0 && line.starts_with('.');
        if (line.empty() || isName || isQuoted(line))
            return;
        advance(blanks);
        add(TokenKind::Label, line.size());
    }

    /// Where a comment begins in a label: only behind a blank, since addresses hold "//".
    static std::size_t commentIn(std::string_view line) {
        for (std::size_t at = 0; at + 1 < line.size(); ++at) {
            const bool alone = at == 0 || line[at - 1] == ' ' || line[at - 1] == '\t';
            if (alone && line[at] == '/' && (line[at + 1] == '/' || line[at + 1] == '*'))
                return at;
        }
        return line.size();
    }

    /// A text in quotes, alone or with another clause or a command behind it. One that is never
    /// closed is told as such.
    static bool isQuoted(std::string_view line) {
        if (line.front() != '"')
            return false;
        std::size_t end = line.find('"', 1);
        while (end != std::string_view::npos && line.substr(end + 1).starts_with('"'))
            end = line.find('"', end + 2);
        if (end == std::string_view::npos)
            return true;
        line.remove_prefix(end + 1);
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        const auto* const wordEnd = std::find_if_not(line.begin(), line.end(), isWordByte);
        return line.empty() || line.starts_with("//") || line.starts_with("/*") ||
               placesOf(
                   keywordOf({line.data(), static_cast<std::size_t>(wordEnd - line.begin())})) != 0;
    }

    void addNumber() {
        std::size_t length = 0;
        const auto digits = [&] {
            while (isDigit(peek(length)))
                ++length;
        };
        digits();
        if (peek(length) == '.' && isDigit(peek(length + 1))) {
            ++length;
            digits();
        }
        if (peek(length) == 'e' || peek(length) == 'E') {
            const std::size_t sign = peek(length + 1) == '-' || peek(length + 1) == '+' ? 1 : 0;
            if (isDigit(peek(length + 1 + sign))) {
                length += 1 + sign;
                digits();
            }
        }
        add(TokenKind::Number, length);
    }

    /// A documentation may have many lines.
    void addText() {
        const bool isLong = !tokens_.empty() && tokens_.back().is(Keyword::Doc) &&
                            rest().find('"', 1) != std::string_view::npos;
        const std::string_view ends = isLong ? "\"" : "\"\r\n";
        std::size_t length = 1;
        for (;; ++length) {
            const std::size_t offset = rest().substr(length).find_first_of(ends);
            if (offset == std::string_view::npos || rest()[length + offset] != '"')
                return addOpenText(std::min(offset, rest().size() - length) + length);
            length += offset + 1;
            if (peek(length) != '"')
                break;
        }
        add(TokenKind::Text, length);
    }

    void addOpenText(std::size_t length) {
        messages_.add(makeMessage(Error::UnterminatedString, position_));
        add(TokenKind::Text, length);
    }

    /// Place of the brace that closes the one here.
    std::size_t closingBrace() const {
        std::size_t open = 0;
        for (std::size_t i = 0; i < rest().size(); ++i) {
            if (rest()[i] == '{')
                ++open;
            else if (rest()[i] == '}' && --open == 0)
                return i;
        }
        return std::string_view::npos;
    }

    void addBraced() {
        const std::size_t end = closingBrace();
        if (end == std::string_view::npos)
            messages_.add(makeMessage(Error::UnterminatedBrace, position_));
        add(end == std::string_view::npos ? TokenKind::Invalid : TokenKind::Braced,
            end == std::string_view::npos ? rest().size() : end + 1);
    }

    void addSymbol() {
        for (const Symbol& symbol : symbols) {
            if (!rest().starts_with(symbol.written))
                continue;
            if (symbol.written == "." && afterWord()) {
                tokens_.back().keyword = Keyword::None;
                tokens_.back().reserved = false;
            }
            std::size_t length = symbol.written.size();
            while (symbol.written.back() == '=' && peek(length) == '=')
                ++length;
            add(TokenKind::Symbol, length).text = symbol.meant;
            return;
        }
        messages_.add(makeMessage(Error::UnknownCharacter, position_, {visible(peek())}));
        add(TokenKind::Invalid, 1);
    }

    std::string_view program_;
    OddNames oddNames_;                      ///< those of the dictionary and of the program
    std::unordered_set<std::string> tables_; ///< those of oddNames_ that TABLE made
    Messages& messages_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    Position position_;
    bool lineBegins_ = true;
};

} // namespace

std::string Token::value() const {
    if (kind != TokenKind::Text)
        return std::string(text);
    std::string result;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"' && ++i >= text.size())
            break;
        result += text[i];
    }
    return result;
}

std::vector<Token> tokenize(std::string_view program, const OddNames& oddNames, Messages& messages,
                            std::size_t source) {
    return Lexer(program, oddNames, messages, source).run();
}

} // namespace kelx::language
