// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of many blocks as one column, against the plain way.
#include "execution/text_builder.h"

#include "execution/crew.h"
#include "storage/coding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <set>
#include <string>

namespace kelx::execution {
namespace {

using Texts = std::vector<std::optional<std::string>>;

/// Blank where there is no text; NA where it is "NA".
std::shared_ptr<const storage::Column> built(const Texts& texts, unsigned threads) {
    const auto builder = makeTextBuilder(texts.size());
    for (std::size_t block = 0; block < builder->blocks(); ++block) {
        BlockValues values;
        values.type = storage::ValueType::String;
        values.texts = std::make_unique<storage::TextTable>("test");
        values.allValid = false;
        for (std::size_t i = 0; i < builder->size(block); ++i) {
            const auto& text = texts[block * storage::recordsPerBlock + i];
            const bool valid = text && *text != "NA";
            values.integers.push_back(valid ? values.texts->numberOf(*text) : 0);
            values.states.push_back(valid  ? state::valid
                                    : text ? state::blankNotApplicable
                                           : state::blank);
        }
        builder->put(block, values);
    }
    Progress progress({});
    while (const std::size_t parts = builder->nextStep())
        shareOut(
            parts, threads, StageShare{},
            [&](std::size_t part, const GoOn&) { builder->join(part); }, progress);
    return builder->take(0);
}

void expectTexts(const storage::Column& column, const Texts& texts) {
    std::set<std::string> distinct;
    for (const auto& text : texts)
        if (text && *text != "NA")
            distinct.insert(*text);
    ASSERT_EQ(column.textCount(), distinct.size());
    std::uint64_t code = 0;
    for (const std::string& text : distinct)
        ASSERT_EQ(column.text(code++), text);
    storage::ColumnScratch scratch;
    std::size_t at = 0;
    const auto compare = [&](const auto* codes, std::size_t count) {
        const std::uint64_t noText = storage::blankCode(column.info().physical);
        for (std::size_t i = 0; i < count; ++i, ++at) {
            const bool blank = codes[i] == noText;
            ASSERT_EQ(blank, !texts[at]) << at;
            if (texts[at] && *texts[at] == "NA") {
                ASSERT_EQ(codes[i], column.info().naCode) << at;
            } else if (texts[at]) {
                ASSERT_EQ(column.text(codes[i]), *texts[at]) << at;
            }
        }
    };
    for (std::size_t begin = 0; begin < texts.size(); begin += storage::recordsPerBlock) {
        const std::size_t count =
            std::min<std::size_t>(texts.size() - begin, storage::recordsPerBlock);
        const void* data = column.read(begin, count, scratch);
        storage::withCode(column.info().physical, [&]<class Code>(Code) {
            compare(static_cast<const Code*>(data), count);
        });
    }
}

TEST(TextBuilder, JoinsTheTextsOfManyBlocks) {
    std::mt19937 random(7);
    const std::size_t records = 5 * storage::recordsPerBlock + 1234;
    for (const unsigned distinct : {0U, 3U, 70'000U, 4'000'000U}) {
        Texts texts(records);
        for (auto& text : texts) {
            const unsigned draw = random() % 20;
            if (draw == 0)
                text = "NA";
            else if (draw > 1 && distinct > 0)
                text = std::to_string(random() % distinct) + " Street";
        }
        for (const unsigned threads : {1U, 2U})
            expectTexts(*built(texts, threads), texts);
    }
    expectTexts(*built({}, 1), {});
}

} // namespace
} // namespace kelx::execution
