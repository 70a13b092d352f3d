// SPDX-License-Identifier: GPL-3.0-or-later
// Finds what each part of a line of the command language is: the rules of the colours, without a
// document.
#pragma once

#include "editor/language/NumberFinder.h"

#include <QByteArray>
#include <QSet>
#include <QStringList>

#include <vector>

enum class KelxToken : unsigned char { None, Keyword, Number, String, Comment };
constexpr int kelxTokenCount = 5;

/// Neighbouring characters of one kind.
struct KelxRun {
    int start = 0; ///< in UTF-16 units
    int length = 0;
    KelxToken token = KelxToken::None;
};

/// What comes later covers what came before it: words, numbers, strings, line comments, block
/// comments. The rules ignore one another, so a string may begin a comment.
class KelxScanner {
public:
    /// The words are of ASCII letters, digits and "_", in any case.
    explicit KelxScanner(const QStringList& reservedWords);

    /// The runs from left to right, plain text left out; valid until the next call. inComment:
    /// whether the line begins within a block comment, and then whether it ends within one.
    const std::vector<KelxRun>& scan(QStringView line, bool& inComment);

private:
    void paint(qsizetype start, qsizetype length, KelxToken token);
    void paintWords(QStringView line);
    void paintWord(QStringView line, qsizetype begin, qsizetype end);
    void paintOddWord(QStringView line, qsizetype begin, qsizetype end);
    void paintStrings(QStringView line);
    bool paintBlockComments(QStringView line, bool inComment);
    bool isReserved(QStringView word);
    void collectRuns();

    QSet<QByteArray> words_; ///< in lower case
    qsizetype longest_ = 0;  ///< word
    QByteArray folded_;
    NumberFinder numbers_;
    std::vector<KelxToken> tokens_; ///< of each character
    std::vector<KelxRun> runs_;
};
