// SPDX-License-Identifier: Apache-2.0
#include "language/lexer.h"

#include "language/characters.h"
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

/// A character as a message can show it.
std::string visible(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= ' ' && code < 0x7f ? inQuotes({&c, 1}) : codePointName(code);
}

struct Symbol {
    std::string_view written, meant;
    bool isWrong = false; ///< of another language
};

/// Longer ones first. A "=" may be doubled, as where "=" was replaced by "==" in "<=" or "==".
constexpr std::array<Symbol, 23> symbols = {{{"\xe2\x89\xa0", "<>", true},
                                             {"\xe2\x89\xa4", "<=", true},
                                             {"\xe2\x89\xa5", ">=", true},
                                             {"<>", "<>"},
                                             {"<=", "<="},
                                             {">=", ">="},
                                             {"!=", "<>", true},
                                             {"&&", "AND", true},
                                             {"||", "OR", true},
                                             {"=<", "<=", true},
                                             {"=>", ">=", true},
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
        : program_(program), known_(oddNames), messages_(messages), position_{1, 1, source} {}

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
            const Character c = characterAt(rest());
            if (c.kind == CharacterKind::Blank)
                advance(c.length);
            else if (rest().starts_with("\xef\xbb\xbf") && at_ == 0)
                at_ += 3;
            else if (c.kind == CharacterKind::Invisible)
                skipInvisible(c);
            else if (rest().starts_with("//"))
                advance(std::min(rest().find_first_of("\r\n"), rest().size()));
            else if (rest().starts_with("/*"))
                skipComment();
            else
                return true;
        }
        return false;
    }

    /// Between words it does no more harm than a blank.
    void skipInvisible(const Character& character) {
        tellInvisible(character, position_);
        advance(character.length);
    }

    void tellInvisible(const Character& character, Position position) {
        messages_.add(makeMessage(Error::UnknownCharacter, position,
                                  {codePointName(character.code), " It is invisible: delete it."}));
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
        const CharacterKind kind = characterAt(rest()).kind;
        if (const std::size_t broken = brokenWordLength(word); broken > word)
            add(TokenKind::Invalid, broken);
        else if (word > 0)
            addWord(word);
        else if (isDigit(peek()) || (peek() == '.' && isDigit(peek(1)) && !afterWord()))
            addNumber();
        else if (peek() == '"')
            addText();
        else if (kind == CharacterKind::SingleQuote || kind == CharacterKind::DoubleQuote)
            addMisquoted(kind);
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
        const std::size_t length = wordRun(rest());
        if (afterDot() || length == 0 || !isDigit(peek()))
            return length;
        return isNumberLike(rest().substr(0, length)) ? 0 : length;
    }

    /// A word that an invisible character cuts in two is one fault, which is told here.
    std::size_t brokenWordLength(std::size_t word) {
        std::size_t end = word;
        while (word > 0 && end < rest().size()) {
            const Character cut = characterAt(rest().substr(end));
            const std::size_t begin = end + cut.length;
            const std::size_t more = cut.kind == CharacterKind::Invisible && begin < rest().size()
                                         ? wordRun(rest().substr(begin))
                                         : 0;
            if (more == 0)
                break;
            if (end == word)
                tellInvisible(cut, positionBehind(word));
            end = begin + more;
        }
        return end;
    }

    Position positionBehind(std::size_t bytes) const {
        Position position = position_;
        position.column +=
            static_cast<std::int64_t>(storage::characterCount(rest().substr(0, bytes)));
        return position;
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
        const Token& before = tokens_.back();
        if (length > 0 && !before.is(Keyword::Rundef))
            made_.add(rest().substr(0, length));
        if (length > 0 && before.is(Keyword::Table))
            tables_.add(rest().substr(0, length));
        return length;
    }

    /// Length of the name with a "-" that begins here; 0 for none.
    std::size_t dashedLength() const {
        constexpr std::size_t longest = 200;
        const std::size_t first = wordRun(rest());
        std::size_t length = first;
        while (first > 0 && length <= longest && peek(length) == '-') {
            const std::size_t more =
                length + 1 < rest().size() ? wordRun(rest().substr(length + 1)) : 0;
            if (more == 0)
                break;
            length += 1 + more;
        }
        return length > first && length <= longest ? length : 0;
    }

    /// The tables of a list get a number behind the name.
    std::size_t listTableLength() const {
        const std::size_t length = tables_.isEmpty() ? 0 : dashedLength();
        const std::string_view name = rest().substr(0, length);
        const std::size_t end = name.find_last_not_of("0123456789");
        const bool numbered = end != std::string_view::npos && end + 1 < length && name[end] == '_';
        return numbered && tables_.lengthAt(name.substr(0, end), true) == end ? length : 0;
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
        return std::max({known_.lengthAt(rest(), afterDot()), made_.lengthAt(rest(), afterDot()),
                         listTableLength()});
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
        const std::string_view label = rest().substr(blanks);
        if (isQuoted(label))
            return;
        std::string_view line = label.substr(0, label.find_first_of("\r\n"));
        line = line.substr(0, commentIn(line));
        while (!line.empty() && (line.back() == ' ' || line.back() == '\t'))
            line.remove_suffix(1);
        const bool isName = blanks == 0 && line.starts_with('.');
        if (line.empty() || isName)
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
    static bool isQuoted(std::string_view label) {
        constexpr std::string_view ends = "\"\r\n";
        if (!label.starts_with('"'))
            return false;
        std::size_t end = label.find_first_of(ends, 1);
        while (end != std::string_view::npos && label.substr(end).starts_with("\"\""))
            end = label.find_first_of(ends, end + 2);
        if (end == std::string_view::npos || label[end] != '"')
            return true;
        label.remove_prefix(end + 1);
        label.remove_prefix(std::min(label.find_first_not_of(" \t"), label.size()));
        const bool ended = label.empty() || label.front() == '\r' || label.front() == '\n';
        const std::string_view word = label.substr(0, ended ? 0 : wordRun(label));
        return ended || label.starts_with("//") || label.starts_with("/*") ||
               placesOf(keywordOf(word)) != 0;
    }

    void addNumber() {
        std::size_t length = 0;
        const auto digits = [&] {
            while (isDigit(peek(length)))
                ++length;
        };
        digits();
        if (peek(length) == '.' && (isDigit(peek(length + 1)) || pointEndsNumber(length))) {
            ++length;
            digits();
        }
        length += exponentLength(length);
        add(TokenKind::Number, length);
    }

    std::size_t exponentLength(std::size_t at) const {
        if (peek(at) != 'e' && peek(at) != 'E')
            return 0;
        std::size_t length = peek(at + 1) == '-' || peek(at + 1) == '+' ? 2 : 1;
        if (!isDigit(peek(at + length)))
            return 0;
        while (isDigit(peek(at + length)))
            ++length;
        return length;
    }

    /// "5." and "1.e5", but not "5.AGE" or "5..".
    bool pointEndsNumber(std::size_t at) const {
        if (at == 0)
            return false;
        const std::size_t end = at + 1 + exponentLength(at + 1);
        if (end >= rest().size())
            return true;
        const Character next = characterAt(rest().substr(end));
        return next.kind != CharacterKind::Word && next.code != '.' && next.code != '*';
    }

    /// In other quotes than "...": read as it is meant, so that nothing more is told of it. One
    /// that is not closed takes the line with it.
    void addMisquoted(CharacterKind quotes) {
        messages_.add(makeMessage(Error::WrongQuotes, position_));
        std::size_t at = characterAt(rest()).length;
        while (at < rest().size() && peek(at) != '\r' && peek(at) != '\n') {
            const Character character = characterAt(rest().substr(at));
            at += character.length;
            if (character.kind == quotes ||
                (character.code == '"' && quotes == CharacterKind::DoubleQuote))
                return void(add(TokenKind::Text, at));
        }
        add(TokenKind::Invalid, at);
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
        add(TokenKind::Text, length).isReported = true;
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
            if (symbol.isWrong)
                messages_.add(makeMessage(Error::WrongSign, position_,
                                          {inQuotes(symbol.written), std::string(symbol.meant)}));
            std::size_t length = symbol.written.size();
            while (symbol.written.back() == '=' && peek(length) == '=')
                ++length;
            Token& token = add(TokenKind::Symbol, length);
            token.text = symbol.meant;
            if (keywordOf(symbol.meant) != Keyword::None) {
                token.kind = TokenKind::Word;
                token.keyword = keywordOf(symbol.meant);
                token.reserved = true;
            }
            return;
        }
        const char* hint = peek() == ';' ? " Commands need no sign between them." : "";
        messages_.add(makeMessage(Error::UnknownCharacter, position_, {visible(peek()), hint}));
        add(TokenKind::Invalid, 1);
    }

    std::string_view program_;
    const OddNames& known_;
    OddNames made_;   ///< those of the program
    OddNames tables_; ///< those of TABLE
    Messages& messages_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    Position position_;
    bool lineBegins_ = true;
};

/// Between quotes of any length in bytes.
std::string misquotedValue(std::string_view text) {
    text.remove_prefix(characterAt(text).length);
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xc0) == 0x80)
        text.remove_suffix(1);
    if (!text.empty())
        text.remove_suffix(1);
    return std::string(text);
}

} // namespace

std::string Token::value() const {
    if (kind != TokenKind::Text)
        return std::string(text);
    if (text.front() != '"')
        return misquotedValue(text);
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
