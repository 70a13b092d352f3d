// SPDX-License-Identifier: Apache-2.0
#include "language/reserved_words.h"

#include "language/text.h"

#include <algorithm>

namespace kelx::language {

const std::vector<std::string>& reservedWords() {
    static const std::vector<std::string> words = {"abs",        "alias",
                                                   "and",        "append",
                                                   "areabreak",  "arealist",
                                                   "as",         "assign",
                                                   "autoweight", "average",
                                                   "bar",        "bmp",
                                                   "bool",       "by",
                                                   "case",       "cmpcode",
                                                   "count",      "crosstabs",
                                                   "csv",        "dbf",
                                                   "decimals",   "default",
                                                   "define",     "denom",
                                                   "desc",       "dictionary",
                                                   "doc",        "documentation",
                                                   "else",       "emf",
                                                   "execute",    "false",
                                                   "filter",     "filterlabel",
                                                   "fraction",   "freq",
                                                   "frequency",  "gini",
                                                   "graphstyle", "group",
                                                   "highest",    "html",
                                                   "in",         "indicator",
                                                   "inline",     "integer",
                                                   "length",     "like",
                                                   "line",       "ln",
                                                   "log",        "lower",
                                                   "lowest",     "mapstyle",
                                                   "max",        "maximum",
                                                   "median",     "min",
                                                   "minimum",    "missing",
                                                   "not",        "notapp",
                                                   "noweight",   "num",
                                                   "number",     "of",
                                                   "or",         "outfile",
                                                   "outgraph",   "overwrite",
                                                   "pie",        "pos",
                                                   "pyramid",    "quantile",
                                                   "random",     "range",
                                                   "ratio",      "real",
                                                   "recode",     "rundef",
                                                   "sample",     "save",
                                                   "sdc",        "sdcvar",
                                                   "selection",  "selectionlabel",
                                                   "sensitive",  "sidra",
                                                   "size",       "sort",
                                                   "spss",       "sqrt",
                                                   "stata",      "stats",
                                                   "str",        "string",
                                                   "substr",     "sum",
                                                   "switch",     "systematic",
                                                   "table",      "tablestyle",
                                                   "tablist",    "tabop",
                                                   "tally",      "text",
                                                   "title",      "total",
                                                   "trim",       "true",
                                                   "type",       "upper",
                                                   "val",        "valuelabels",
                                                   "varlabel",   "view",
                                                   "weight",     "wmf",
                                                   "xls",        "xml"};
    return words;
}

bool isReserved(std::string_view word) {
    return std::binary_search(reservedWords().begin(), reservedWords().end(), lowerCase(word));
}

} // namespace kelx::language
