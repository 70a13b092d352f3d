// SPDX-License-Identifier: Apache-2.0
// The words that the language knows, and where each of them can stand.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

enum class Keyword {
    None,
    // Commands.
    Rundef,
    Define,
    Execute,
    Table,
    Frequency,
    Crosstabs,
    Count,
    Average,
    Median,
    Sum,
    Minimum,
    Maximum,
    Stats,
    Gini,
    Quantile,
    Arealist,
    View,
    Tabop,
    Tablist,
    // Clauses.
    Weight,
    Tally,
    Filter,
    Title,
    Decimals,
    By,
    Of,
    Sort,
    Outfile,
    Outgraph,
    Save,
    Sensitive,
    Tablestyle,
    Graphstyle,
    Mapstyle,
    Areabreak,
    Selection,
    Selectionlabel,
    Filterlabel,
    Autoweight,
    Noweight,
    Dictionary,
    // Kinds and clauses of DEFINE.
    Recode,
    Switch,
    Number,
    Sample,
    Ratio,
    Fraction,
    Indicator,
    Else,
    Type,
    Range,
    Varlabel,
    Valuelabels,
    Doc,
    Default,
    Missing,
    Notapp,
    Like,
    Alias,
    Group,
    // Words inside of commands and expressions.
    And,
    Or,
    Not,
    In,
    True,
    False,
    As,
    Inline,
    Lowest,
    Highest,
    Random,
    Systematic,
    Case,
    Assign,
    Num,
    Denom,
    Overwrite,
};

/// Places where a keyword can stand; a set of bits.
enum Place : unsigned {
    startsCommand = 1,
    isTableKind = 2,     ///< after TABLE name, and by itself
    isTableClause = 4,   ///< after a table
    isRunClause = 8,     ///< in RUNDEF
    startsAnywhere = 32, ///< unmistakably a new command, wherever on the line it stands
    isDefineKind = 64,   ///< after DEFINE name AS
    isDefineClause = 128 ///< after that
};

struct KeywordEntry {
    const char* word; ///< in lower case
    Keyword keyword;
    unsigned places;
};

const std::vector<KeywordEntry>& keywords();
Keyword keywordOf(std::string_view word); ///< in any case
unsigned placesOf(Keyword keyword);
/// Upper-case spellings of the keywords that have one of the places.
std::vector<std::string> wordsFor(unsigned places);
std::vector<std::string> wordsOf(Keyword keyword); ///< its upper-case spellings

} // namespace kelx::language
