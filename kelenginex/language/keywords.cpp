// SPDX-License-Identifier: Apache-2.0
#include "language/keywords.h"

#include "language/text.h"

#include <unordered_map>

namespace kelx::language {

namespace {

constexpr unsigned table = startsCommand | isTableKind;
constexpr unsigned both = isTableClause | isRunClause;
constexpr unsigned command = startsCommand | startsAnywhere;

const std::vector<KeywordEntry> entries = {
    {"rundef", Keyword::Rundef, command},
    {"define", Keyword::Define, command | notSupportedYet},
    {"execute", Keyword::Execute, command},
    {"table", Keyword::Table, command},
    {"frequency", Keyword::Frequency, table},
    {"freq", Keyword::Frequency, table},
    {"crosstabs", Keyword::Crosstabs, table},
    {"count", Keyword::Count, table},
    {"average", Keyword::Average, table},
    {"median", Keyword::Median, table},
    {"sum", Keyword::Sum, table},
    {"minimum", Keyword::Minimum, table},
    {"min", Keyword::Minimum, table},
    {"maximum", Keyword::Maximum, table},
    {"max", Keyword::Maximum, table},
    {"stats", Keyword::Stats, table},
    {"gini", Keyword::Gini, table},
    {"quantile", Keyword::Quantile, table},
    {"arealist", Keyword::Arealist, table},
    {"view", Keyword::View, table},
    {"tabop", Keyword::Tabop, table},
    {"tablist", Keyword::Tablist, table},
    {"weight", Keyword::Weight, both},
    {"tally", Keyword::Tally, isTableClause},
    {"filter", Keyword::Filter, both},
    {"title", Keyword::Title, both},
    {"decimals", Keyword::Decimals, both},
    {"by", Keyword::By, isTableClause},
    {"of", Keyword::Of, isTableClause},
    {"sort", Keyword::Sort, isTableClause},
    {"outfile", Keyword::Outfile, isTableClause},
    {"outgraph", Keyword::Outgraph, isTableClause},
    {"save", Keyword::Save, isTableClause},
    {"sensitive", Keyword::Sensitive, isTableClause},
    {"tablestyle", Keyword::Tablestyle, both | notSupportedYet},
    {"graphstyle", Keyword::Graphstyle, both | notSupportedYet},
    {"mapstyle", Keyword::Mapstyle, both | notSupportedYet},
    {"areabreak", Keyword::Areabreak, isRunClause | notSupportedYet},
    {"selection", Keyword::Selection, isRunClause},
    {"selectionlabel", Keyword::Selectionlabel, isRunClause},
    {"filterlabel", Keyword::Filterlabel, isRunClause},
    {"autoweight", Keyword::Autoweight, isRunClause},
    {"noweight", Keyword::Noweight, isRunClause},
    {"dictionary", Keyword::Dictionary, isRunClause},
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
};

std::unordered_map<std::string, Keyword> makeIndex() {
    std::unordered_map<std::string, Keyword> index;
    for (const KeywordEntry& entry : entries)
        index.emplace(entry.word, entry.keyword);
    return index;
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
    for (const KeywordEntry& entry : entries) {
        if (entry.keyword == keyword)
            return entry.places;
    }
    return 0;
}

std::vector<std::string> wordsFor(unsigned places) {
    std::vector<std::string> words;
    for (const KeywordEntry& entry : entries) {
        if ((entry.places & places) != 0)
            words.push_back(upperCase(entry.word));
    }
    return words;
}

} // namespace kelx::language
