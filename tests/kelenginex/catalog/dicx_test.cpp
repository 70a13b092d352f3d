// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_files.h"

#include "catalog/reader.h"

#include <gmock/gmock.h>

#include <random>

using namespace kelx;
using catalog::ValueType;
using testing::HasSubstr;

namespace {

/// A .dicx file with this content of the root entity.
std::string dicx(const std::string& root) {
    return "<?xml version=\"1.0\"?><kelDictionary_XML><general><name>N</name></general><root>" +
           root + "</root></kelDictionary_XML>";
}

std::string variable(const std::string& content) {
    return dicx("<name>R</name><variable><name>V</name>" + content + "</variable>");
}

std::unique_ptr<catalog::Dictionary> parse(const std::string& xml) {
    return catalog::parseDicx(xml, "/d/x.dicx");
}

const catalog::Variable& onlyVariable(const catalog::Dictionary& dictionary) {
    return *dictionary.root->variables.at(0);
}

std::string fault(const std::string& xml) {
    return test::thrownBy([&] { parse(xml); });
}

// What the workbench writes for an INTEGER and a STRING variable.
const std::string workbenchStyle = dicx(R"(
  <name>COUNTRY</name><alias></alias><label></label><filename></filename><tag>0</tag>
  <entity>
    <name>PERSON</name><alias></alias><label>Person</label><selectable>true</selectable>
    <refCode>ID</refCode><filename>..\x\person.kpt</filename><weightVar>PERSON.W</weightVar>
    <variable><name>ID</name><alias></alias><varType>STRING</varType><fieldSize>3</fieldSize>
      <range><rangeItemType>4</rangeItemType><rangeMin>0</rangeMin><rangeMax>9999</rangeMax></range>
      <tag>-1</tag><valueLabels/><datasetID/><filename>id.kbf</filename>
      <varDicChoice><datasetType>CHR</datasetType><datasetSize>3</datasetSize></varDicChoice>
    </variable>
    <variable><name>SEX</name><alias></alias><label>Sex</label><fieldSize>1</fieldSize>
      <range><rangeItemType>4</rangeItemType><rangeMin>0</rangeMin><rangeMax>9999</rangeMax></range>
      <notappl>0</notappl><missing>0</missing><tag>0</tag>
      <valueLabels><valueLabelElement><value>1</value><label>Male</label></valueLabelElement>
      </valueLabels><datasetID/><filename>sex.kbf</filename>
      <varDicChoice><datasetType>CHR</datasetType><datasetSize>1</datasetSize></varDicChoice>
    </variable>
    <variable><name>W</name><fieldSize>1</fieldSize><notappl>8</notappl><missing>9</missing>
      <filename>w.kbf</filename></variable>
  </entity>)");

TEST(Dicx, ReadsWhatTheWorkbenchWrites) {
    const auto dictionary = parse(workbenchStyle);
    const catalog::Entity& person = *dictionary->findEntity("PERSON");
    EXPECT_TRUE(person.selectable);
    EXPECT_EQ(person.codeVar->name, "ID");
    EXPECT_EQ(person.weightVar->name, "W");
    EXPECT_EQ(person.filePath(), "/x/person.kpt");
    EXPECT_EQ(person.codeVar->type, ValueType::String);
    const catalog::Variable& sex = *person.findVariable("SEX");
    EXPECT_EQ(sex.type, ValueType::None);
    EXPECT_TRUE(sex.ranges.empty()) << "the fixed range says nothing";
    EXPECT_EQ(sex.missing, std::nullopt) << "0 and 0 stand for no codes";
    EXPECT_EQ(*sex.labelOf("1"), "Male");
    EXPECT_EQ(sex.raw, std::nullopt) << "the file is no .bin";
    EXPECT_EQ(person.weightVar->missing, 9);
    EXPECT_EQ(person.weightVar->notapp, 8);
}

TEST(Dicx, TakesTypesFromTheColumns) {
    const test::TemporaryFolder folder;
    test::writeSampleData(folder.path());
    const auto original = test::sampleDictionary(folder / "x.dicx");
    for (const auto& v : original->findEntity("PERSON")->variables) {
        v->type = ValueType::None;
        v->decimals.reset();
    }
    test::writeFile(folder / "x.dicx", catalog::writeDicx(*original));
    const auto read = catalog::readDictionary(folder / "x.dicx", {});
    const catalog::Entity& person = *read->findEntity("PERSON");
    EXPECT_EQ(person.findVariable("SEX")->type, ValueType::Integer);
    EXPECT_EQ(person.findVariable("URBAN")->type, ValueType::Boolean);
    EXPECT_EQ(person.findVariable("INCOME")->type, ValueType::Real);
    EXPECT_EQ(person.findVariable("INCOME")->decimals, 1);
}

TEST(Dicx, KeepsEverythingOnTheWayThere) {
    const auto original = test::sampleDictionary("/d/x.dicx");
    EXPECT_EQ(test::described(*parse(catalog::writeDicx(*original))), test::described(*original));
}

TEST(Dicx, KnowsAllTypesAndLayouts) {
    EXPECT_EQ(onlyVariable(*parse(variable("<varType>BOOL</varType>"))).type, ValueType::Boolean);
    EXPECT_EQ(onlyVariable(*parse(variable("<varType>UNICODE</varType>"))).type, ValueType::String);
    const auto raw = parse(variable("<decimals>2</decimals><filename>A.BIN</filename><varDicChoice>"
                                    "<datasetType>PCK</datasetType><datasetSize>7</datasetSize>"
                                    "<hidden>true</hidden></varDicChoice>"));
    const catalog::Variable& v = onlyVariable(*raw);
    ASSERT_TRUE(v.raw);
    EXPECT_EQ(v.raw->type, storage::RawType::Pck);
    EXPECT_EQ(v.raw->size, 7);
    EXPECT_EQ(v.raw->valueType, ValueType::Real);
    EXPECT_TRUE(v.hidden);
    EXPECT_FALSE(v.local);
}

TEST(Dicx, KeepsTwoCodesThatAreZero) {
    const std::string codes = "<notappl>0.0</notappl><missing>0.0</missing>";
    const auto kept = parse(catalog::writeDicx(*parse(variable(codes))));
    EXPECT_EQ(onlyVariable(*kept).notapp, 0);
    EXPECT_EQ(onlyVariable(*kept).missing, 0);
    const auto none = parse(variable("<notappl>0</notappl><missing>0</missing>"));
    EXPECT_EQ(onlyVariable(*none).notapp, std::nullopt);
    const auto one = parse(catalog::writeDicx(*parse(variable("<notappl>0</notappl><missing/>"))));
    EXPECT_EQ(onlyVariable(*one).notapp, 0);
    EXPECT_EQ(onlyVariable(*one).missing, std::nullopt);
}

TEST(Dicx, TellsWhatAProgramMade) {
    const auto made =
        parse(variable("<varDicChoice><isOriginal>false</isOriginal></varDicChoice>"));
    EXPECT_TRUE(onlyVariable(*made).local);
    EXPECT_TRUE(onlyVariable(*parse(catalog::writeDicx(*made))).local);
    for (const std::string original : {"<isOriginal>true</isOriginal>", "<isOriginal/>", ""})
        EXPECT_FALSE(
            onlyVariable(*parse(variable("<varDicChoice>" + original + "</varDicChoice>"))).local);
}

TEST(Dicx, KeepsARealRangeThatLooksFixed) {
    const std::string range = "<range><rangeItemType>4</rangeItemType><rangeMin>0</rangeMin>"
                              "<rangeMax>9999</rangeMax></range>";
    EXPECT_EQ(onlyVariable(*parse(variable("<varType>INTEGER</varType>" + range))).ranges.size(),
              1u);
    EXPECT_TRUE(onlyVariable(*parse(variable(range))).ranges.empty());
}

TEST(Dicx, FaultsNameTheFileAndTheCause) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "no well-formed XML"},
        {"<kelDictionary_XML><general>", "no well-formed XML"},
        {"<other/>", "kelDictionary_XML is missing"},
        {"<kelDictionary_XML/>", "element root is missing"},
        {dicx(""), "an entity without a name"},
        {dicx("<name>A B</name>"), "invalid name \"A B\""},
        {dicx("<name>" + std::string(300, 'A') + "</name>"), "more than 255 bytes"},
        {dicx("<name>R</name><entity><name>r</name></entity>"), "two entities with the name r"},
        {dicx("<name>R</name><variable><name>V</name></variable><variable><name>v</name>"
              "</variable>"),
         "two variables with the name R.v"},
        {dicx("<name>R</name><refCode>X</refCode>"), "entity R names X as its code variable"},
        {dicx("<name>R</name><weightVar>Q.X</weightVar>"), "names Q.X as its weight variable"},
        {dicx("<name>R</name><label>\xff</label>"), "no UTF-8"},
        {variable("<varType>INTEGR</varType>"), "variable R.V: \"INTEGR\" is no valid varType"},
        {variable("<fieldSize>99999999999</fieldSize>"), "no valid fieldSize"},
        {variable("<missing>1,5</missing>"), "\"1,5\" is no valid missing"},
        {variable("<range><rangeItemType>11</rangeItemType></range>"), "rangeItemType"},
        {variable("<filename>a.bin</filename><varDicChoice><datasetType>FLT</datasetType>"
                  "</varDicChoice>"),
         "\"FLT\" is no valid datasetType"},
    };
    for (const auto& [xml, message] : cases) {
        EXPECT_THAT(fault(xml), testing::AllOf(HasSubstr("/d/x.dicx"), HasSubstr(message))) << xml;
    }
}

TEST(Dicx, StopsAtDeepNesting) {
    std::string xml = "<name>R</name>";
    for (int i = 0; i < 20000; ++i) {
        xml += "<entity><name>E" + std::to_string(i) + "</name>";
    }
    for (int i = 0; i < 20000; ++i) {
        xml += "</entity>";
    }
    EXPECT_THAT(fault(dicx(xml)), HasSubstr("nested more than 64 levels"));
}

TEST(Dicx, ReadsNoOtherFiles) {
    const test::TemporaryFolder folder;
    test::writeFile(folder / "secret.txt", "SECRET");
    const std::string xml = "<!DOCTYPE k [<!ENTITY s SYSTEM \"file://" +
                            (folder / "secret.txt").string() +
                            "\"> <!ENTITY a \"aaaa\"> <!ENTITY b \"&a;&a;\">]>" +
                            dicx("<name>R</name><label>&s;&b;</label>").substr(21);
    const auto dictionary = parse(xml);
    EXPECT_EQ(dictionary->root->label, "&s;&b;");
}

// Damage of every kind ends in an exception or in a sound tree, never in a crash.
TEST(Dicx, SurvivesDamage) {
    std::minstd_rand random(7);
    const std::string good = workbenchStyle;
    std::size_t refused = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string bad = good;
        for (int change = 0; change < 1 + round % 4; ++change) {
            bad[random() % bad.size()] = static_cast<char>(random() % 256);
        }
        if (round % 3 == 0) {
            bad.resize(random() % bad.size());
        }
        if (!fault(bad).empty()) {
            EXPECT_THAT(fault(bad), HasSubstr("/d/x.dicx: "));
            ++refused;
        }
    }
    EXPECT_GT(refused, 1000u);
    EXPECT_LT(refused, 4000u);
}

} // namespace
