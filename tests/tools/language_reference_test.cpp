// SPDX-License-Identifier: GPL-3.0-or-later
// The examples of docs/language.md and the programs of the sample, run on it as they stand.
#include "catalog/reader.h"
#include "language/compile.h"
#include "language/function_table.h"
#include "language/keywords.h"
#include "language/lexer.h"
#include "language/text.h"
#include "output/run.h"
#include "sample/sample.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <utility>

using kelx::test::TemporaryFolder;

namespace {

using namespace kelx;

/// The blocks marked as programs.
std::vector<std::string> examples(const std::filesystem::path& file) {
    std::ifstream text(file);
    std::vector<std::string> blocks;
    bool inside = false;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("```")) {
            inside = line == "```spc";
            if (inside)
                blocks.emplace_back();
        } else if (inside) {
            blocks.back() += line + "\n";
        }
    }
    return blocks;
}

/// The words of examples, each with the place that it has there.
class WordsInUse {
public:
    void read(const std::string& program) {
        language::Messages messages;
        const auto tokens = language::tokenize(program, {}, messages);
        command_ = Keyword::None;
        for (std::size_t i = 0; i + 1 < tokens.size(); ++i)
            read(tokens[i], tokens[i + 1], i > 0 && tokens[i - 1].is(Keyword::As));
    }

    bool hasFunction(const std::string& name) const { return functions_.contains(name); }
    /// A word that starts a command or is a kind of table is the same at both places.
    bool has(const std::string& word, unsigned place) const {
        const auto places = words_.find(word);
        return places != words_.end() && (place == 0 || (places->second & place) != 0);
    }

private:
    using Keyword = language::Keyword;

    void read(const language::Token& token, const language::Token& next, bool afterAs) {
        if (token.kind != language::TokenKind::Word)
            return;
        const std::string word = language::upperCase(token.text);
        if (next.isSymbol("("))
            functions_.insert(word);
        if (!token.is(Keyword::None))
            words_[word] |= placeOf(token, afterAs);
    }

    unsigned placeOf(const language::Token& token, bool afterAs) {
        const unsigned places = language::placesOf(token.keyword);
        if ((places & language::startsAnywhere) != 0) {
            command_ = token.keyword;
            return language::startsCommand | language::startsAnywhere;
        }
        if (command_ == Keyword::Define && afterAs)
            return places & language::isDefineKind;
        if ((places & language::isTableKind) != 0) {
            command_ = Keyword::Table;
            return language::startsCommand | language::isTableKind;
        }
        return places & (command_ == Keyword::Define   ? language::isDefineClause
                         : command_ == Keyword::Rundef ? language::isRunClause
                                                       : language::isTableClause);
    }

    Keyword command_ = Keyword::None; ///< Table for all kinds of tables
    std::map<std::string, unsigned> words_;
    std::set<std::string> functions_;
};

const std::vector<std::pair<unsigned, const char*>> placeNames = {
    {language::startsCommand | language::isTableKind, "as a command"},
    {language::isTableClause, "as a clause of a table"},
    {language::isRunClause, "as a clause of RUNDEF"},
    {language::isDefineKind, "as a kind of DEFINE"},
    {language::isDefineClause, "as a clause of DEFINE"}};

/// A sample to run on, made once.
class LanguageReference : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        tools::SampleRequest request;
        request.folder = folder_->path() / "sample";
        request.persons = 20000;
        tools::writeSample(request);
        dictionary_ = catalog::readDictionary(request.folder / "sample.kxdb", {});
    }
    static void TearDownTestSuite() {
        dictionary_.reset();
        folder_.reset();
    }

    static std::filesystem::path sample() { return folder_->path() / "sample"; }

    /// Every table of the program has rows, and there is nothing to be told.
    static void expectRuns(const std::string& program) {
        SCOPED_TRACE(program);
        language::Messages messages;
        language::CompileOptions options;
        options.baseFolder = sample();
        const auto bound = language::compile(program, *dictionary_, options, messages);
        if (!messages.hasErrors()) {
            const auto made = output::runTables(bound, *dictionary_, {}, messages);
            EXPECT_FALSE(made.tables.empty());
            for (const auto& table : made.tables)
                EXPECT_GT(table.rows(), 0) << table.name;
        }
        for (const auto& message : messages.all())
            ADD_FAILURE() << message.text;
    }

private:
    static inline std::unique_ptr<TemporaryFolder> folder_;
    static inline std::unique_ptr<catalog::Dictionary> dictionary_;
};

} // namespace

TEST_F(LanguageReference, ExamplesRunWithoutAWord) {
    const auto programs = examples(LANGUAGE_REFERENCE);
    EXPECT_GE(programs.size(), 5U);
    for (const std::string& program : programs)
        expectRuns(program);
}

TEST(LanguageReferenceWords, AllHaveAnExample) {
    WordsInUse examplesUse;
    for (const std::string& program : examples(LANGUAGE_REFERENCE))
        examplesUse.read(program);
    for (const language::KeywordEntry& entry : language::keywords()) {
        const std::string word = language::upperCase(entry.word);
        EXPECT_TRUE(examplesUse.has(word, 0)) << word << " has no example";
        for (const auto& [place, name] : placeNames) {
            EXPECT_TRUE((entry.places & place) == 0 || examplesUse.has(word, place))
                << word << " has no example " << name;
        }
    }
    for (const language::FunctionEntry& function : language::functionTable())
        EXPECT_TRUE(examplesUse.hasFunction(function.name)) << function.form << " has no example";
}

TEST_F(LanguageReference, SamplesProgramsRunWithoutAWord) {
    std::size_t programs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(sample())) {
        if (entry.path().extension() != ".spc" || entry.path().stem() == "profile")
            continue; // profile.spc is called, with values
        expectRuns(kelx::test::readFile(entry.path()));
        ++programs;
    }
    EXPECT_GE(programs, 8U);
}
