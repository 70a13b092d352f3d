// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/KelxScanner.h"

#include <algorithm>

namespace {

// Two letters beyond ASCII are equal to one of ASCII when case is ignored.
constexpr QChar longS(0x017f);
constexpr QChar kelvinSign(0x212a);

bool isOddLetter(QChar c) {
    return c == longS || c == kelvinSign;
}

/// A part of a word to the expression "\b".
bool isWordPart(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'_';
}

char fold(QChar c) {
    if (c == longS)
        return 's';
    if (c == kelvinSign)
        return 'k';
    return c >= u'A' && c <= u'Z' ? char(c.unicode() + ('a' - 'A')) : char(c.unicode());
}

bool isBoundary(QStringView line, qsizetype at) {
    const bool before = at > 0 && isWordPart(line[at - 1]);
    const bool after = at < line.size() && isWordPart(line[at]);
    return before != after;
}

} // namespace

KelxScanner::KelxScanner(const QStringList& reservedWords) {
    for (const QString& word : reservedWords) {
        words_ += word.toLower().toLatin1();
        longest_ = std::max(longest_, word.size());
    }
}

const std::vector<KelxRun>& KelxScanner::scan(QStringView line, bool& inComment) {
    tokens_.assign(std::size_t(line.size()), KelxToken::None);
    paintWords(line);
    numbers_.find(line, [this](qsizetype start, qsizetype length) {
        paint(start, length, KelxToken::Number);
    });
    paintStrings(line);
    if (const qsizetype start = line.indexOf(u"//"); start >= 0)
        paint(start, line.size() - start, KelxToken::Comment);
    inComment = paintBlockComments(line, inComment);
    collectRuns();
    return runs_;
}

void KelxScanner::paint(qsizetype start, qsizetype length, KelxToken token) {
    std::fill_n(tokens_.begin() + start, length, token);
}

void KelxScanner::paintWords(QStringView line) {
    for (qsizetype i = 0; i < line.size(); ++i) {
        const qsizetype begin = i;
        bool odd = false;
        while (i < line.size() && (isWordPart(line[i]) || isOddLetter(line[i]))) {
            odd = odd || isOddLetter(line[i]);
            ++i;
        }
        if (odd)
            paintOddWord(line, begin, i);
        else if (i > begin)
            paintWord(line, begin, i);
    }
}

void KelxScanner::paintWord(QStringView line, qsizetype begin, qsizetype end) {
    if (isReserved(line.sliced(begin, end - begin)))
        paint(begin, end - begin, KelxToken::Keyword);
}

/// Odd letters are no parts of words, and yet may stand in a reserved one: words begin and end
/// between them.
void KelxScanner::paintOddWord(QStringView line, qsizetype begin, qsizetype end) {
    for (qsizetype from = begin; from < end; ++from) {
        if (!isBoundary(line, from))
            continue;
        for (qsizetype to = from + 1; to <= std::min(end, from + longest_); ++to)
            if (isBoundary(line, to))
                paintWord(line, from, to);
    }
}

bool KelxScanner::isReserved(QStringView word) {
    if (word.size() > longest_)
        return false;
    folded_.resize(word.size());
    std::transform(word.begin(), word.end(), folded_.begin(), fold);
    return words_.contains(folded_);
}

void KelxScanner::paintStrings(QStringView line) {
    qsizetype open = line.indexOf(u'"');
    while (open >= 0) {
        const qsizetype close = line.indexOf(u'"', open + 1);
        if (close < 0)
            return;
        paint(open, close + 1 - open, KelxToken::String);
        open = line.indexOf(u'"', close + 1);
    }
}

/// Whether the line ends within a comment. The "*" that opens a comment may close it too.
bool KelxScanner::paintBlockComments(QStringView line, bool inComment) {
    qsizetype start = inComment ? 0 : line.indexOf(u"/*");
    while (start >= 0) {
        const qsizetype close = line.indexOf(u"*/", start);
        const qsizetype end = close < 0 ? line.size() : close + 2;
        paint(start, end - start, KelxToken::Comment);
        if (close < 0)
            return true;
        start = line.indexOf(u"/*", end);
    }
    return false;
}

void KelxScanner::collectRuns() {
    runs_.clear();
    for (auto from = tokens_.begin(); from != tokens_.end();) {
        const KelxToken token = *from;
        const auto to = std::find_if(from, tokens_.end(), [=](KelxToken t) { return t != token; });
        if (token != KelxToken::None)
            runs_.push_back({int(from - tokens_.begin()), int(to - from), token});
        from = to;
    }
}
