// SPDX-License-Identifier: GPL-3.0-or-later
// Each kind of damage, made on purpose, is told; a sound database has no findings.
#include "boundary_fixture.h"

#include "catalog/consistency.h"
#include "catalog/reader.h"
#include "storage/column_writer.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <chrono>

using namespace kelx;
using storage::ValueType;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

namespace fs = std::filesystem;

namespace {

class ConsistencyTest : public test::BoundaryTest {
protected:
    /// Findings as "Severity|Entity|Variable|file|Check|Found", the folder cut off.
    std::vector<std::string> findings() {
        report = kel::tools::databaseConsistency((folder / "sample.kxdb").string());
        std::vector<std::string> rows = test::rowsOf(*report);
        const std::string prefix = fs::canonical(folder.path()).string() + "/";
        for (std::string& row : rows)
            for (std::size_t at; (at = row.find(prefix)) != std::string::npos;)
                row.erase(at, prefix.size());
        return rows;
    }
    /// A column in place of another one; negative numbers are blanks.
    void rewrite(const std::string& file, const std::vector<std::int64_t>& values) {
        const auto writer = storage::ColumnWriter::create(folder / file, {});
        for (const std::int64_t value : values)
            value < 0 ? writer->addBlank() : writer->addInteger(value);
        writer->commit();
    }
    void rewriteTexts(const std::string& file, const std::vector<std::string>& values) {
        storage::ColumnPlan plan;
        plan.type = ValueType::String;
        const auto writer = storage::ColumnWriter::create(folder / file, plan);
        for (const std::string& value : values)
            value.empty() ? writer->addBlank() : writer->addText(value);
        writer->commit();
    }
    void repoint(const std::string& file, const std::vector<std::uint64_t>& counts) {
        storage::PointerWriter writer(folder / file);
        for (const std::uint64_t count : counts)
            writer.addParent(count);
        writer.commit();
    }
    void flipByte(const std::string& file, std::size_t offset) {
        std::string bytes = folder.read(file);
        bytes.at(offset) = static_cast<char>(bytes.at(offset) ^ 1);
        folder.write(file, bytes);
    }
    std::int64_t number(const char* name) { return kel::variant_to_int64(report->value(name)); }

    std::shared_ptr<TKelDataset> report;
};

TEST_F(ConsistencyTest, ASoundDatabaseHasNoFindings) {
    const auto before = std::chrono::system_clock::now();
    EXPECT_THAT(findings(), IsEmpty());
    EXPECT_THAT(report->valueNames(),
                ElementsAre("time.start", "time.end", "time.duration", "database", "entities",
                            "variables", "records", "errors", "warnings"));
    EXPECT_EQ(number("entities"), 3);
    EXPECT_EQ(number("variables"), 7);
    EXPECT_EQ(number("records"), 1 + 2 + 5);
    EXPECT_EQ(number("errors"), 0);
    EXPECT_EQ(number("warnings"), 0);
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(before.time_since_epoch()).count();
    EXPECT_NEAR(static_cast<double>(number("time.start")), static_cast<double>(seconds), 60);
    EXPECT_GE(number("time.end"), number("time.start"));
    EXPECT_GT(kel::variant_to_double(report->value("time.duration")), 0);
    EXPECT_EQ(kel::variant_to_string(report->value("database")), (folder / "sample.kxdb").string());
    EXPECT_EQ(kel::variant_to_string(report->value("nonsense")), "");

    ASSERT_EQ(report->numFields(), 6);
    std::vector<std::string> fields;
    for (int i = 0; i < 6; ++i)
        fields.push_back(report->field(i)->name());
    EXPECT_THAT(fields, ElementsAre("Severity", "Entity", "Variable", "File", "Check", "Found"));
    EXPECT_EQ(report->field(6), nullptr);
    EXPECT_EQ(report->stringValue(0, 0), "");
}

TEST_F(ConsistencyTest, TellsFilesThatAreMissingOrTooMany) {
    fs::remove(folder / "age.kbf");
    folder.write("left.kbf", "x");
    folder.write("LEFT.BIN", "x");
    folder.write("notes.txt", "x");
    EXPECT_THAT(
        findings(),
        ElementsAre("Error|PERSON|AGE|age.kbf|File|is not there",
                    "Warning|||LEFT.BIN|Orphans|no variable and no entity names this file",
                    "Warning|||left.kbf|Orphans|no variable and no entity names this file"));
    EXPECT_EQ(number("errors"), 1);
    EXPECT_EQ(number("warnings"), 2);
    fs::remove(folder / "person.kpt");
    EXPECT_THAT(findings(), testing::Contains("Error|PERSON|||File|is not there").Times(0));
    EXPECT_THAT(findings(), testing::Contains("Error|PERSON||person.kpt|File|is not there"));
}

TEST_F(ConsistencyTest, TellsDamagedBytes) {
    flipByte("sex.kbf", 256);   // the first value
    flipByte("income.kbf", 40); // in the header
    flipByte("province.kpt", fs::file_size(folder / "province.kpt") - 1);
    EXPECT_THAT(
        findings(),
        ElementsAre(testing::StartsWith("Error|PROVINCE||province.kpt|Pointers|is damaged"),
                    MatchesRegex("Error\\|PERSON\\|SEX\\|sex.kbf\\|Checksum\\|1 block "
                                 "cannot be read: is damaged: block 1 does not match its checksum"),
                    testing::StartsWith("Error|PERSON|INCOME|income.kbf|File|")));
}

TEST_F(ConsistencyTest, TellsWrongNumbersOfRecords) {
    rewrite("age.kbf", {10, 20, 30, 40});
    EXPECT_THAT(findings(), ElementsAre("Error|PERSON|AGE|age.kbf|Records|holds 4 records, but "
                                        "PERSON has 5"));
    rewrite("age.kbf", {10, 20, 30, 40, 50});
    repoint("person.kpt", {3, 3});
    EXPECT_THAT(findings(),
                ElementsAre("Error|PERSON||person.kpt|Pointers|end at record 6, but all columns of "
                            "PERSON hold 5 records"));
    repoint("person.kpt", {3, 1, 1});
    EXPECT_THAT(findings(), ElementsAre("Error|PERSON||person.kpt|Pointers|are for 3 records of "
                                        "PROVINCE, which has 2"));
}

TEST_F(ConsistencyTest, TellsCodesThatAreBlankOrDouble) {
    rewriteTexts("prov.kbf", {"07", "07"});
    EXPECT_THAT(findings(),
                ElementsAre("Error|PROVINCE|PROV|prov.kbf|Codes|1 code stands twice under its "
                            "parent: \"07\" in record 2, under record 1 of COUNTRY"));
    rewriteTexts("prov.kbf", {"", "07"});
    EXPECT_THAT(findings(),
                ElementsAre("Error|PROVINCE|PROV|prov.kbf|Blanks|1 code is blank: record 1"));

    // The same code under another parent is no fault.
    const auto dictionary = catalog::readDictionary(folder / "sample.kxdb", {});
    catalog::Entity* person = dictionary->findEntity("PERSON");
    person->codeVar = person->findVariable("AGE");
    person->codeVar->ranges.clear();
    catalog::saveDictionary(*dictionary, folder / "sample.kxdb");
    rewriteTexts("prov.kbf", {"01", "02"});
    rewrite("age.kbf", {1, 2, 3, 1, 2});
    EXPECT_THAT(findings(), IsEmpty());
    rewrite("age.kbf", {1, 2, 1, 3, 3});
    const auto tight = findings();
    rewrite("age.kbf", {1, 900000000000, 1, 3, 3}); // a range that no table holds
    EXPECT_EQ(findings(), tight);
    EXPECT_THAT(tight, ElementsAre("Error|PERSON|AGE|age.kbf|Codes|2 codes stand twice under their "
                                   "parent: 1 in record 3, under record 1 of PROVINCE; 3 in record "
                                   "5, under record 2 of PROVINCE"));
}

// A level right under the root may do without a pointer file, and is one family then.
TEST_F(ConsistencyTest, ChecksCodesAndWeightsOfAnyLevel) {
    const auto dictionary = catalog::readDictionary(folder / "sample.kxdb", {});
    catalog::Entity* province = dictionary->findEntity("PROVINCE");
    fs::remove(province->filePath());
    province->fileName.clear();
    province->weightVar = province->findVariable("PROVNAME");
    catalog::saveDictionary(*dictionary, folder / "sample.kxdb");
    const std::string weight =
        "Error|PROVINCE|PROVNAME|provname.kbf|Weight|holds texts and cannot be a weight";
    EXPECT_THAT(findings(), ElementsAre(weight));
    rewriteTexts("prov.kbf", {"07", "07"});
    EXPECT_THAT(findings(),
                ElementsAre("Error|PROVINCE|PROV|prov.kbf|Codes|1 code stands twice under its "
                            "parent: \"07\" in record 2, under record 1 of COUNTRY",
                            weight));
}

TEST_F(ConsistencyTest, TellsValuesOutsideLabelsAndRanges) {
    rewrite("sex.kbf", {8, 7, 9, -1, 6}); // 8: not applicable, 9: missing
    EXPECT_THAT(findings(),
                ElementsAre("Warning|PERSON|SEX|sex.kbf|Values|2 values outside labels and ranges: "
                            "7 in record 2; 6 in record 5"));

    const auto dictionary = catalog::readDictionary(folder / "sample.kxdb", {});
    catalog::Variable* age = dictionary->findEntity("PERSON")->findVariable("AGE");
    age->ranges = {{4, 0, 30}, {8, 100, 0}};
    age->valueLabels = {{"45", "Special"}};
    age->missing = 99;
    catalog::Variable* name = dictionary->findEntity("PROVINCE")->findVariable("PROVNAME");
    name->valueLabels = {{"North", "The North"}};
    catalog::saveDictionary(*dictionary, folder / "sample.kxdb");
    rewrite("sex.kbf", {1, 1, 1, 1, 1});
    rewrite("age.kbf", {30, 31, 45, 99, 100});
    EXPECT_THAT(findings(), ElementsAre("Warning|PROVINCE|PROVNAME|provname.kbf|Values|1 value "
                                        "outside labels and ranges: \"South\" in record 2",
                                        "Warning|PERSON|AGE|age.kbf|Values|1 value outside labels "
                                        "and ranges: 31 in record 2"));
}

// Notes beside the findings: a blank is a value as any other.
TEST_F(ConsistencyTest, CountsTheBlanksOfVariablesThatAreNoCodes) {
    rewrite("age.kbf", {10, -1, 30, -1, -1});
    rewriteTexts("prov.kbf", {"", "07"});
    EXPECT_THAT(findings(),
                ElementsAre("Error|PROVINCE|PROV|prov.kbf|Blanks|1 code is blank: record 1"));
    const auto dictionary = catalog::readDictionary(folder / "sample.kxdb", {});
    const catalog::ConsistencyReport own = catalog::checkConsistency(*dictionary);
    const auto age =
        std::find_if(own.blanks.begin(), own.blanks.end(),
                     [](const catalog::Blanks& blanks) { return blanks.variable == "AGE"; });
    ASSERT_NE(age, own.blanks.end());
    EXPECT_EQ(age->entity, "PERSON");
    EXPECT_EQ(age->blanks, 3U);
    EXPECT_EQ(age->records, 5U);
    for (const catalog::Blanks& blanks : own.blanks)
        EXPECT_NE(blanks.variable, "PROV");
}

// Faults beyond the first block, more than can be shown, on several threads.
TEST_F(ConsistencyTest, LooksThroughAllBlocks) {
    const std::uint64_t persons = 200000;
    repoint("person.kpt", {3, persons - 3});
    std::vector<std::int64_t> sexes(persons, 1);
    for (std::uint64_t i = persons - 7; i < persons; ++i)
        sexes[i] = 5;
    rewrite("sex.kbf", sexes);
    for (const char* file : {"age.kbf", "income.kbf", "weight.kbf", "urban.kbf"})
        rewrite(file, std::vector<std::int64_t>(persons, 1));
    EXPECT_THAT(findings(),
                ElementsAre("Warning|PERSON|SEX|sex.kbf|Values|7 values outside labels and ranges: "
                            "5 in record 199994; 5 in record 199995; 5 in record 199996; 5 in "
                            "record 199997; 5 in record 199998; ..."));
    flipByte("sex.kbf", 256 + 3 * 65536 + 10);
    flipByte("sex.kbf", 256 + 10);
    EXPECT_THAT(findings(), ElementsAre(HasSubstr("|Checksum|2 blocks cannot be read: ")));
}

TEST_F(ConsistencyTest, WhatCannotBeOpenedIsAFault) {
    EXPECT_THAT(
        test::thrownBy([&] { kel::tools::databaseConsistency((folder / "none.kxdb").string()); }),
        HasSubstr("none.kxdb"));
    folder.write("sample.kxdb", "rubbish");
    EXPECT_THAT(test::thrownBy([&] { findings(); }), HasSubstr("sample.kxdb: "));
}

} // namespace
