// SPDX-License-Identifier: Apache-2.0
#include "language/called_text.h"

#include "language/lexer.h"
#include "language/program_text.h"
#include "language/text.h"

#include <algorithm>
#include <unordered_map>

namespace kelx::language {

namespace {

bool isNameByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           c == '-' || static_cast<unsigned char>(c) >= 0x80;
}

bool isName(std::string_view text) {
    return !text.empty() && text[0] != '-' && (text[0] < '0' || text[0] > '9') &&
           std::all_of(text.begin(), text.end(), isNameByte);
}

class Putter {
public:
    Putter(std::string_view program, const CallValues& values)
        : program_(program), values_(values), used_(values.size(), false) {
        for (std::size_t i = 0; i < values.size(); ++i)
            index_.emplace(lowerCase(values[i].first), i);
    }

    CalledText run() {
        Messages unheard; // what is wrong with the text is told when it is read in earnest
        tokens_ = tokenize(program_, {}, unheard);
        for (at_ = 0; at_ < tokens_.size() && !result_.tooLong; ++at_)
            take(tokens_[at_]);
        append(program_.substr(copied_));
        for (std::size_t i = 0; i < values_.size(); ++i) {
            if (!used_[i])
                result_.unused.push_back(values_[i].first);
        }
        return std::move(result_);
    }

private:
    void take(const Token& token) {
        if (token.is(Keyword::Execute))
            inExecute_ = true;
        else if (token.kind == TokenKind::Word)
            inExecute_ = inExecute_ && tokens_[at_ + 1].isSymbol("=");
        if (token.kind == TokenKind::Braced && inExecute_)
            takeValue(token);
        else if (token.kind == TokenKind::Braced || token.kind == TokenKind::Text ||
                 token.kind == TokenKind::Label)
            replaceWithin(token.begin, token.end(), token.position, true);
    }

    /// Braces around a name of ours stay: they are EXECUTE's.
    void takeValue(const Token& token) {
        const std::string_view inside = token.text.substr(1, token.text.size() - 2);
        const std::string* value = isName(inside) ? find(inside) : nullptr;
        if (value != nullptr)
            replace(token.begin + 1, token.end() - 1, *value);
        else
            replaceWithin(token.begin + 1, token.end() - 1, token.position, false);
    }

    void replaceWithin(std::size_t begin, std::size_t end, Position position, bool tellUnknown) {
        for (std::size_t open = program_.find('{', begin); open < end && !result_.tooLong;) {
            const std::size_t close = std::min(endOfName(open + 1), end);
            const std::string_view name = program_.substr(open + 1, close - open - 1);
            if (close < end && program_[close] == '}' && isName(name))
                replaceName(open, close, name, tellUnknown ? &position : nullptr);
            open = program_.find('{', close);
        }
    }

    std::size_t endOfName(std::size_t at) const {
        while (at < program_.size() && isNameByte(program_[at]))
            ++at;
        return at;
    }

    void replaceName(std::size_t open, std::size_t close, std::string_view name,
                     const Position* tellUnknownAt) {
        if (const std::string* value = find(name))
            replace(open, close + 1, *value);
        else if (tellUnknownAt != nullptr)
            addUnknown(name, *tellUnknownAt);
    }

    void addUnknown(std::string_view name, const Position& position) {
        const auto [found, isNew] = unknown_.emplace(lowerCase(name), result_.unknown.size());
        if (isNew)
            result_.unknown.push_back({std::string(name), position});
        else
            ++result_.unknown[found->second].places;
    }

    const std::string* find(std::string_view name) {
        const auto found = index_.find(lowerCase(name));
        if (found == index_.end())
            return nullptr;
        used_[found->second] = true;
        return &values_[found->second].second;
    }

    void replace(std::size_t begin, std::size_t end, std::string_view value) {
        append(program_.substr(copied_, begin - copied_));
        const std::size_t from = result_.text.size();
        append(value);
        for (std::size_t i = from; i < result_.text.size(); ++i) {
            if (result_.text[i] == '\n' || result_.text[i] == '\r')
                result_.text[i] = ' ';
        }
        copied_ = end;
    }

    void append(std::string_view piece) {
        result_.tooLong = result_.tooLong || result_.text.size() + piece.size() > longestProgram;
        if (!result_.tooLong)
            result_.text += piece;
    }

    std::string_view program_;
    const CallValues& values_;
    std::unordered_map<std::string, std::size_t> index_; ///< of the values, names in lower case
    std::vector<bool> used_;
    std::unordered_map<std::string, std::size_t> unknown_; ///< in lower case, in the result
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    bool inExecute_ = false; ///< what follows may be values of an EXECUTE
    CalledText result_;
    std::size_t copied_ = 0; ///< of the program, already in the result
};

} // namespace

std::string CalledText::Unknown::inWords() const {
    return places > 1 ? ", which stands at " + std::to_string(places) + " places" : "";
}

CalledText putValues(std::string_view program, const CallValues& values) {
    return Putter(program, values).run();
}

} // namespace kelx::language
