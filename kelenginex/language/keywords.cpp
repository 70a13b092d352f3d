// SPDX-License-Identifier: Apache-2.0
#include "language/keywords.h"

#include "language/text.h"

#include <unordered_map>

namespace kelx::language {

namespace {

constexpr unsigned table = startsCommand | isTableKind;
constexpr unsigned both = isTableClause | isRunClause;
constexpr unsigned command = startsCommand | startsAnywhere;
constexpr unsigned all = both | isDefineClause;

const std::vector<KeywordEntry> entries = {
    {"rundef", Keyword::Rundef, command},
    {"define", Keyword::Define, command},
    {"execute", Keyword::Execute, command},
    {"table", Keyword::Table, command},
    {"frequency", Keyword::Frequency, table},
    {"freq", Keyword::Frequency, table},
    {"crosstabs", Keyword::Crosstabs, table},
    {"count", Keyword::Count, table | isDefineKind},
    {"average", Keyword::Average, table | isDefineKind},
    {"median", Keyword::Median, table | isDefineKind},
    {"sum", Keyword::Sum, table | isDefineKind},
    {"minimum", Keyword::Minimum, table | isDefineKind},
    {"min", Keyword::Minimum, table | isDefineKind},
    {"maximum", Keyword::Maximum, table | isDefineKind},
    {"max", Keyword::Maximum, table | isDefineKind},
    {"stats", Keyword::Stats, table},
    {"gini", Keyword::Gini, table},
    {"quantile", Keyword::Quantile, table},
    {"arealist", Keyword::Arealist, table},
    {"view", Keyword::View, table},
    {"tabop", Keyword::Tabop, table},
    {"tablist", Keyword::Tablist, table},
    {"weight", Keyword::Weight, all},
    {"tally", Keyword::Tally, isTableClause},
    {"filter", Keyword::Filter, all},
    {"title", Keyword::Title, both},
    {"decimals", Keyword::Decimals, all},
    {"by", Keyword::By, isTableClause},
    {"of", Keyword::Of, isTableClause},
    {"sort", Keyword::Sort, isTableClause},
    {"outfile", Keyword::Outfile, isTableClause},
    {"outgraph", Keyword::Outgraph, isTableClause},
    {"save", Keyword::Save, isTableClause | isDefineClause},
    {"sensitive", Keyword::Sensitive, isTableClause | isDefineClause},
    {"tablestyle", Keyword::Tablestyle, all},
    {"graphstyle", Keyword::Graphstyle, both},
    {"mapstyle", Keyword::Mapstyle, both},
    {"areabreak", Keyword::Areabreak, isRunClause},
    {"selection", Keyword::Selection, isRunClause},
    {"selectionlabel", Keyword::Selectionlabel, isRunClause},
    {"filterlabel", Keyword::Filterlabel, isRunClause},
    {"autoweight", Keyword::Autoweight, isRunClause},
    {"noweight", Keyword::Noweight, isRunClause},
    {"dictionary", Keyword::Dictionary, isRunClause},
    {"recode", Keyword::Recode, isDefineKind},
    {"switch", Keyword::Switch, isDefineKind},
    {"number", Keyword::Number, isDefineKind},
    {"sample", Keyword::Sample, isDefineKind},
    {"ratio", Keyword::Ratio, isDefineKind},
    {"fraction", Keyword::Fraction, isDefineKind},
    {"indicator", Keyword::Indicator, isDefineKind},
    {"else", Keyword::Else, isDefineClause},
    {"type", Keyword::Type, isDefineClause},
    {"range", Keyword::Range, isDefineClause},
    {"varlabel", Keyword::Varlabel, isDefineClause},
    {"valuelabels", Keyword::Valuelabels, isDefineClause},
    {"doc", Keyword::Doc, isDefineClause},
    {"documentation", Keyword::Doc, isDefineClause},
    {"default", Keyword::Default, isDefineClause},
    {"missing", Keyword::Missing, isDefineClause},
    {"notapp", Keyword::Notapp, isDefineClause},
    {"like", Keyword::Like, isDefineClause},
    {"alias", Keyword::Alias, isDefineClause},
    {"group", Keyword::Group, isDefineClause},
    {"and", Keyword::And, 0},
    {"or", Keyword::Or, 0},
    {"not", Keyword::Not, 0},
    {"in", Keyword::In, 0},
    {"true", Keyword::True, 0},
    {"false", Keyword::False, 0},
    {"as", Keyword::As, 0},
    {"inline", Keyword::Inline, 0},
    {"lowest", Keyword::Lowest, 0},
    {"highest", Keyword::Highest, 0},
    {"random", Keyword::Random, 0},
    {"systematic", Keyword::Systematic, 0},
    {"case", Keyword::Case, 0},
    {"assign", Keyword::Assign, 0},
    {"num", Keyword::Num, 0},
    {"denom", Keyword::Denom, 0},
    {"overwrite", Keyword::Overwrite, 0},
};

std::unordered_map<std::string, Keyword> makeIndex() {
    std::unordered_map<std::string, Keyword> index;
    for (const KeywordEntry& entry : entries)
        index.emplace(entry.word, entry.keyword);
    return index;
}

/// By keyword: every token is asked for its places, and often.
std::vector<unsigned> makePlaces() {
    std::vector<unsigned> places(static_cast<std::size_t>(Keyword::Overwrite) + 1, 0);
    for (const KeywordEntry& entry : entries)
        places[static_cast<std::size_t>(entry.keyword)] = entry.places;
    return places;
}

} // namespace

const std::vector<KeywordEntry>& keywords() {
    return entries;
}

Keyword keywordOf(std::string_view word) {
    static const std::unordered_map<std::string, Keyword> index = makeIndex();
    constexpr std::size_t longest = 16;
    if (word.size() > longest)
        return Keyword::None;
    const auto found = index.find(lowerCase(word));
    return found == index.end() ? Keyword::None : found->second;
}

unsigned placesOf(Keyword keyword) {
    static const std::vector<unsigned> places = makePlaces();
    return places[static_cast<std::size_t>(keyword)];
}

std::vector<std::string> wordsFor(unsigned places) {
    std::vector<std::string> words;
    for (const KeywordEntry& entry : entries) {
        if ((entry.places & places) != 0)
            words.push_back(upperCase(entry.word));
    }
    return words;
}

std::vector<std::string> wordsOf(Keyword keyword) {
    std::vector<std::string> words;
    for (const KeywordEntry& entry : entries) {
        if (entry.keyword == keyword)
            words.push_back(upperCase(entry.word));
    }
    return words;
}

} // namespace kelx::language
