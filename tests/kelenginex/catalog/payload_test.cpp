// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_files.h"

#include "catalog/reader.h"

#include <gmock/gmock.h>

#include <random>

using namespace kelx;
using testing::HasSubstr;

namespace {

std::unique_ptr<catalog::Dictionary> parse(const std::string& payload) {
    return catalog::parsePayload(payload, "/d/x.kxdb");
}

std::string fault(const std::string& payload) {
    return test::thrownBy([&] { parse(payload); });
}

std::string payload(const std::string& root) {
    return R"({"format":"kelvora dictionary","version":1,"general":{},"root":)" + root + "}";
}

std::string variable(const std::string& content) {
    return payload(R"({"name":"R","variables":[{"name":"V","type":"INTEGER")" + content + "}]}");
}

TEST(Payload, KeepsEverything) {
    const auto original = test::sampleDictionary("/d/x.kxdb");
    catalog::Variable& sex = *original->findEntity("PERSON")->findVariable("SEX");
    sex.raw = storage::RawLayout{storage::RawType::Pck, 5, 2, catalog::ValueType::Real};
    sex.active = false;
    sex.hidden = true;
    original->findEntity("PERSON")->isVirtual = true;
    const std::string text = catalog::writePayload(*original);
    const auto read = parse(text);
    EXPECT_EQ(test::described(*read), test::described(*original));
    const catalog::Variable& back = *read->findEntity("PERSON")->findVariable("SEX");
    ASSERT_TRUE(back.raw);
    EXPECT_EQ(back.raw->type, storage::RawType::Pck);
    EXPECT_EQ(back.raw->size, 5);
    EXPECT_EQ(back.raw->decimals, 2);
    EXPECT_EQ(back.raw->valueType, catalog::ValueType::Real);
    EXPECT_FALSE(back.active);
    const catalog::Variable& weight = *read->findEntity("PERSON")->findVariable("WEIGHT");
    EXPECT_TRUE(weight.local);
    EXPECT_EQ(weight.state, 7);
    EXPECT_EQ(weight.metadata, "{\"made\": \"by hand\"}");
    EXPECT_EQ(catalog::writePayload(*read), text);
}

TEST(Payload, LeavesOutWhatEndsWithItsRun) {
    const auto original = test::sampleDictionary("/d/x.kxdb");
    catalog::Entity& person = *original->findEntity("PERSON");
    auto made = std::make_unique<catalog::Variable>();
    made->name = "MADE";
    made->define = true;
    person.weightVar = person.addVariable(std::move(made));
    const auto read = parse(catalog::writePayload(*original));
    EXPECT_EQ(read->findEntity("PERSON")->findVariable("MADE"), nullptr);
    EXPECT_EQ(read->findEntity("PERSON")->weightVar, nullptr);
}

TEST(Payload, FaultsNameTheFileAndTheCause) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "no valid JSON"},
        {"[1]", "not described as an object"},
        {R"({"format":"other"})", "no dictionary"},
        {R"({"format":"kelvora dictionary","version":2})", "up to version 1, not 2"},
        {R"({"format":"kelvora dictionary"})", "without a version"},
        {payload("null"), "not described as an object"},
        {payload(R"({"name":5})"), "\"name\" has no valid value"},
        {payload(R"({"name":"R","code":"X"})"), "names X as its code variable"},
        {payload(R"({"name":"R","variables":{}})"), "\"variables\" has no valid value"},
        {variable(R"(,"size":1.5)"), "variable R.V: \"size\" has no valid value"},
        {variable(R"(,"size":18446744073709551615)"), "\"size\" has no valid value"},
        {variable(R"(,"missing":"9")"), "\"missing\" has no valid value"},
        {variable(R"(,"ranges":[[4,1]])"), "\"ranges\" has no valid value"},
        {variable(R"(,"ranges":[[0,1,2]])"), "\"ranges\" has no valid value"},
        {variable(R"(,"labels":[["1",2]])"), "\"labels\" has no valid value"},
        {variable(R"(,"raw":{"type":"PCK","size":0,"valueType":"REAL"})"), "\"raw\" has no valid"},
        {payload(std::string(100000, '[')), "nested too deeply"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_THAT(fault(text), testing::AllOf(HasSubstr("/d/x.kxdb"), HasSubstr(message)))
            << text.substr(0, 200);
    }
}

TEST(Payload, SurvivesDamage) {
    std::minstd_rand random(11);
    const std::string good = catalog::writePayload(*test::sampleDictionary("/d/x.kxdb"));
    std::size_t refused = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string bad = good;
        bad[random() % bad.size()] = static_cast<char>(random() % 256);
        if (round % 4 == 0) {
            bad.erase(random() % bad.size(), random() % 40);
        }
        refused += fault(bad).empty() ? 0 : 1;
    }
    EXPECT_GT(refused, 1000u);
    EXPECT_LT(refused, 4000u);
}

} // namespace
