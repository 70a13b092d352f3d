// SPDX-License-Identifier: Apache-2.0
#include "questions.h"

#include "language/compile.h"
#include "output/run.h"

#include <cmath>
#include <stdexcept>

namespace kelx::bench {
namespace {

using output::Table;
using output::toText;

double number(const output::Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    const auto* real = std::get_if<double>(&value);
    return real != nullptr ? *real : std::nan("");
}

/// "1. Male" and "Total" by what stands before the label.
std::string codeOf(const std::string& text) {
    return text.substr(0, text.find(". "));
}

/// Rows of triples for each dimension.
void addTriples(const Table& table, Answer& answer) {
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        std::string key;
        bool isTotal = false;
        for (std::size_t column = 0; column + 1 < table.columns.size(); column += 3) {
            const std::string kind = toText(table.at(row, column + 2));
            isTotal = isTotal || kind == "tot";
            key += column > 0 ? "|" : "";
            key += kind == "mv" ? "MV" : kind == "na" ? "NA" : toText(table.at(row, column));
        }
        if (!isTotal)
            answer[key] = number(table.at(row, table.columns.size() - 1));
    }
}

/// A measure: one field of texts "code. label", then the figure.
void addMeasure(const Table& table, Answer& answer) {
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        const std::string key = codeOf(toText(table.at(row, 0)));
        if (key != "Total")
            answer[key] = number(table.at(row, 1));
    }
}

/// An area list: code and label, then a field for each category and the total.
void addAreaList(const Table& table, Answer& answer) {
    for (std::size_t column = 2; column < table.columns.size(); ++column) {
        if (table.fields[column].label.starts_with("$"))
            continue;
        for (std::int64_t row = 0; row < table.rows(); ++row)
            answer[toText(table.at(row, 0)) + "|" + codeOf(table.fields[column].name)] =
                number(table.at(row, column));
    }
}

} // namespace

const std::vector<Question>& questions() {
    static const std::vector<Question> all = {
        {"frequency of sex", "FREQ PERSON.SEX"},
        {"frequency of age", "FREQ PERSON.AGE"},
        {"marital by sex of those of 15 and over",
         "CROSSTABS PERSON.MARITAL BY PERSON.SEX FILTER PERSON.AGE >= 15"},
        {"household type by education, weighted",
         "CROSSTABS HOUSEHOLD.TYPE BY PERSON.EDUCATION WEIGHT HOUSEHOLD.WEIGHT"},
        {"districts by sex", "TABLE T AS FREQ PERSON.SEX\nAREALIST DISTRICT, T"},
        {"children of each household",
         "DEFINE HOUSEHOLD.KIDS AS COUNT PERSON FILTER PERSON.AGE < 15\nFREQ HOUSEHOLD.KIDS"},
        {"median income by district code", "MEDIAN PERSON.INCOME BY DISTRICT.CODE"},
        {"province by sex by age", "CROSSTABS PROVINCE.CODE BY PERSON.SEX BY PERSON.AGE"},
    };
    return all;
}

EngineQuestion::EngineQuestion(catalog::Dictionary& dictionary, const Question& question)
    : dictionary_(dictionary) {
    language::Messages messages;
    language::CompileOptions options;
    options.autoWeight = false;
    program_ = language::compile(question.program, dictionary_, options, messages);
    if (messages.hasErrors())
        throw std::runtime_error(messages.all().front().text);
}

void EngineQuestion::run(unsigned threads) {
    language::Messages messages;
    execution::RunOptions options;
    options.threads = threads;
    last_ = output::runTables(program_, dictionary_, options, messages);
}

Answer EngineQuestion::answer() const {
    Answer answer;
    for (const Table& table : last_.tables) {
        if (table.type == 1)
            addAreaList(table, answer);
        else if (table.method > 1)
            addMeasure(table, answer);
        else
            addTriples(table, answer);
    }
    return answer;
}

void compare(const Answer& engine, const Answer& limit) {
    for (const auto& [key, figure] : limit) {
        const auto own = engine.find(key);
        const double found = own != engine.end() ? own->second : 0;
        if (!(std::fabs(found - figure) <= 1e-9 * std::fabs(figure)))
            throw std::runtime_error(key + " is " + std::to_string(found) + ", not " +
                                     std::to_string(figure));
    }
    for (const auto& [key, figure] : engine) {
        if (!limit.contains(key) && figure != 0)
            throw std::runtime_error(key + " is not there");
    }
}

} // namespace kelx::bench
