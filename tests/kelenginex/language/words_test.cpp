// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalog/names.h"
#include "fixture.h"
#include "language/function_table.h"
#include "language/keywords.h"
#include "language/message_reference.h"
#include "language/message_table.h"
#include "language/reserved_words.h"
#include "language/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kelx::language {

TEST(ReservedWords, AreTheToldOnesInLowerCase) {
    const std::vector<std::string>& words = reservedWords();
    EXPECT_EQ(words.size(), 120u);
    EXPECT_TRUE(std::is_sorted(words.begin(), words.end()));
    EXPECT_EQ(std::set<std::string>(words.begin(), words.end()).size(), words.size());
    for (const char* word :
         {"abs", "cmpcode", "sdcvar", "sqrt", "xml", "maximum", "minimum", "dictionary",
          "sensitive", "documentation", "selectionlabel", "inline"})
        EXPECT_TRUE(isReserved(word)) << word;
    EXPECT_TRUE(isReserved("TabLe"));
    for (const char* word : {"", "left", "right", "missing1", "pers", "tables"})
        EXPECT_FALSE(isReserved(word)) << word;
}

TEST(ReservedWords, HoldEveryKeyword) {
    for (const KeywordEntry& entry : keywords()) {
        EXPECT_TRUE(isReserved(entry.word)) << entry.word;
        EXPECT_EQ(keywordOf(upperCase(entry.word)), entry.keyword) << entry.word;
    }
}

TEST(MessageTable, NamesEachCodeOnce) {
    std::set<std::string> names;
    for (const MessageEntry& entry : messageTable()) {
        const std::string prefix = entry.severity == Severity::Error ? "KEL_E_" : "KEL_W_";
        EXPECT_EQ(std::string(entry.name).substr(0, 6), prefix);
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        EXPECT_NE(std::string(entry.pattern), "") << entry.name;
        EXPECT_NE(std::string(entry.documentation), "") << entry.name;
        EXPECT_EQ(findMessage(entry.severity, entry.code), &entry) << entry.name;
    }
    const auto code = [](auto c) { return static_cast<int>(c); };
    EXPECT_STREQ(codeName(Severity::Error, code(Error::SelectionFile)), "KEL_E_SELECTION_FILE");
    EXPECT_STREQ(codeName(Severity::Warning, code(Warning::TableNameAgain)),
                 "KEL_W_TABLE_NAME_AGAIN");
    EXPECT_STREQ(codeName(Severity::Error, 0), "");
    EXPECT_STREQ(codeName(Severity::Warning, 9999), "");
}

TEST(MessageTable, IsDocumented) {
    // After a change: kelx messages > docs/messages.md
    EXPECT_EQ(test::readFile(std::filesystem::path(KELX_DOCS) / "messages.md"), messageReference());
    ASSERT_NE(findMessage("e_wrong_sign"), nullptr);
    EXPECT_EQ(describe(*findMessage("KEL_E_UNKNOWN_ENTITY")),
              "KEL_E_UNKNOWN_ENTITY\n  There is no entity ....\n  The dictionary has no entity "
              "with that name or alias.\n");
    EXPECT_EQ(findMessage("KEL_E"), nullptr);
}

TEST(MessageTable, KeepsItsNumbers) {
    EXPECT_EQ(static_cast<int>(Error::RepeatedClause), 13);
    EXPECT_EQ(findMessage(Severity::Error, 14), nullptr);
    EXPECT_EQ(static_cast<int>(Error::BadDecimals), 15);
    EXPECT_EQ(static_cast<int>(Error::SortColumn), 62);
    EXPECT_EQ(static_cast<int>(Error::WeightIsText), 73);
}

TEST(MessageTable, FillsPatterns) {
    const Message message = makeMessage(Error::UnknownEntity, {3, 4}, {"\"%1\"", " Hint"});
    EXPECT_EQ(message.text, "There is no entity \"%1\". Hint");
    EXPECT_EQ(message.position.line, 3);
    EXPECT_EQ(message.position.column, 4);
}

TEST(Messages, ShowThirtyByPlaceAndCountTheRest) {
    Messages messages;
    for (int line = 40; line > 0; --line)
        messages.add(makeMessage(Error::BadNumber, {line, 1}, {"X"}));
    for (int line = 1; line <= 3; ++line)
        messages.add(makeMessage(Warning::EmptyInterval, {line, 2}, {"5:1"}));
    EXPECT_EQ(messages.errorCount(), 40u);
    const std::vector<Message> shown = messages.forDisplay();
    ASSERT_EQ(shown.size(), 34u);
    EXPECT_EQ(shown.front().position.line, 1);
    EXPECT_EQ(shown[1].severity, Severity::Warning);
    EXPECT_EQ(shown[32].position.line, 30);
    EXPECT_EQ(shown.back().text, "and 10 more");
    EXPECT_STREQ(codeName(shown.back().severity, shown.back().code), "KEL_E_MORE");
}

TEST(Messages, KeepNoMoreThanAnybodyReads) {
    Messages messages;
    for (int line = 1; line <= 50000; ++line)
        messages.add(makeMessage(Error::BadNumber, {line, 2}, {"5a"}));
    EXPECT_LT(messages.all().size(), 50000U);
    EXPECT_EQ(messages.errorCount(), 50000U);
    EXPECT_EQ(messages.forDisplay().back().text, "and 49970 more");
}

TEST(Messages, CountTheRestOfWarnings) {
    Messages messages;
    for (int line = 1; line <= 31; ++line)
        messages.add(makeMessage(Warning::EmptyInterval, {line, 2}, {"5:1"}));
    EXPECT_FALSE(messages.hasErrors());
    EXPECT_STREQ(codeName(Severity::Warning, messages.forDisplay().back().code), "KEL_W_MORE");
    EXPECT_EQ(messages.forDisplay().back().text, "and 1 more");
}

TEST(Functions, AreFoundInAnyCase) {
    ASSERT_NE(findFunction("cmpCode"), nullptr);
    EXPECT_STREQ(findFunction("substr")->name, "SUBSTR");
    EXPECT_EQ(findFunction("substr")->parameters.size(), 3u);
    EXPECT_EQ(findFunction("SUBST"), nullptr);
    EXPECT_EQ(functionTable().size(), 19u);
}

TEST(Text, SimplifiesBlanksOutsideOfQuotes) {
    EXPECT_EQ(simplified("  A =\n\t \"x  y\" // note\n AND /* a  b */ B "), "A = \"x  y\" AND B");
    EXPECT_EQ(simplified("\"open  "), "\"open  ");
}

// As Unicode's simple case folding has it.
TEST(Text, MakesLettersSmall) {
    EXPECT_EQ(lowerCase("ABC xyz 1_[`{"), "abc xyz 1_[`{");
    EXPECT_EQ(lowerCase("ÀÉÎÕÖØÞß×÷ÿŸ"), "àéîõöøþß×÷ÿÿ");
    EXPECT_EQ(lowerCase("ĀĮİıĲĶĸĹŇŉŊŶŹŽ"), "āįİıĳķĸĺňŉŋŷźž");
    EXPECT_EQ(lowerCase("ΆΈΊΌΎΏΑΡΣΫάςσώ"), "άέίόύώαρσϋάσσώ");
    EXPECT_EQ(lowerCase("ЀЏАЯаяѐѠѡҀҊҿӀӁӎӏӐԮ"),
              "ѐџаяаяѐѡѡҁҋҿӏӂӎӏӑԯ");
    EXPECT_EQ(lowerCase("日本 \xc3"), "日本 \xc3");
    EXPECT_TRUE(catalog::sameName("Año", "AÑO"));
    EXPECT_FALSE(catalog::sameName("Año", "Ano"));
    EXPECT_FALSE(catalog::sameName("é", "a"));
}

TEST(Text, FindsInvalidUtf8) {
    EXPECT_FALSE(firstInvalidUtf8("Región \xf0\x9f\x98\x80 €").has_value());
    EXPECT_EQ(firstInvalidUtf8("ab\xe9 x"), 2u);          // Latin-1
    EXPECT_EQ(firstInvalidUtf8("\xc0\xaf"), 0u);          // overlong
    EXPECT_EQ(firstInvalidUtf8("a\xed\xa0\x80"), 1u);     // surrogate
    EXPECT_EQ(firstInvalidUtf8("a\xf4\x90\x80\x80"), 1u); // beyond the last character
    EXPECT_EQ(firstInvalidUtf8("abc\xe2\x82"), 3u);       // cut off
}

TEST(Text, SuggestsTheNearest) {
    EXPECT_EQ(nearest("ROMS", {"RENT", "ROOMS", "WEIGHT"}), "ROOMS");
    EXPECT_EQ(nearest("weihgt", {"RENT", "ROOMS", "WEIGHT"}), "WEIGHT");
    EXPECT_EQ(nearest("ZZZZZZ", {"RENT", "ROOMS", "WEIGHT"}), "");
    EXPECT_EQ(nearest("X", {"Y"}), "");
}

} // namespace kelx::language
