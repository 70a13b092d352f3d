// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalog/reader.h"
#include "import/csv_exporter.h"
#include "import/csv_importer.h"
#include "storage/column_writer.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using kelx::test::TemporaryFolder;

namespace tools = kelx::tools;
namespace catalog = kelx::catalog;

namespace {

/// In the form that an export gives: every key above, names in capitals, quotes where needed.
const std::map<std::string, std::string> canonical = {
    {"codebook.csv", "level,field,type,code,label,is_missing\n"
                     "DATABASE,,root,,DATABASE,\n"
                     "AREA,,,,Area,\n"
                     "AREA,CODE,key text(2),,,\n"
                     "AREA,NAME,label,,Its name,\n"
                     "HOME,,,,HOME,\n"
                     "HOME,AREA_CODE,parent key,,,\n"
                     "HOME,ID,key integer,,,\n"
                     "HOME,W,weight,,,\n"
                     "HOME,LIT,boolean,,,\n"
                     "PERSON,,,,PERSON,\n"
                     "PERSON,AREA_CODE,parent key,,,\n"
                     "PERSON,HOME_ID,parent key,,,\n"
                     "PERSON,AGE,integer,,Age,\n"
                     "PERSON,AGE,integer,99,\"Unknown, \"\"99\"\"\",missing\n"
                     "PERSON,AGE,integer,98,,notapp\n"
                     "PERSON,SEX,code,,,\n"
                     "PERSON,SEX,code,1,Male,\n"
                     "PERSON,SEX,code,9,Unknown,missing\n"
                     "PERSON,DOSE,code real,,,\n"
                     "PERSON,DOSE,code real,0.00001,Little,\n"
                     "PERSON,DOSE,code real,100000000000000000000,Much,\n"
                     "PERSON,BORN,code text(2),,,\n"
                     "PERSON,BORN,code text(2),00,Abroad,\n"
                     "PERSON,INCOME,real,,,\n"
                     "PERSON,NOTE,text(12),,,\n"
                     "TRIP,,,,TRIP,\n"
                     "TRIP,AREA_CODE,parent key,,,\n"
                     "TRIP,HOME_ID,parent key,,,\n"
                     "TRIP,BIG,integer,,,\n"}, // a branch without a key
    {"AREA.csv", "CODE,NAME\n01,\"One, first\"\n02,\"Two\n\"\"lines\"\"\"\n03,Empty\n"},
    {"HOME.csv", "AREA_CODE,ID,W,LIT\n01,2,1.5,1\n01,1,0.1,0\n02,1,100000000000000000000,\n"},
    {"PERSON.csv", "AREA_CODE,HOME_ID,AGE,SEX,DOSE,BORN,INCOME,NOTE\n"
                   "01,2,30,1,0.00001,01,1234.5,\n01,2,99,9,,00,,\"a,b\"\n"
                   "01,1,,,,,-1,é\n02,1,98,1,100000000000000000000,02,0.0000001,x\n"},
    {"TRIP.csv", "AREA_CODE,HOME_ID,BIG\n01,1,-9223372036854775807\n02,1,\n02,1,5000000000\n"}};

tools::ImportRequest requestFor(const std::filesystem::path& from,
                                const std::filesystem::path& database) {
    tools::ImportRequest request;
    request.database = database;
    request.codebook = from / "codebook.csv";
    for (const char* level : {"AREA", "HOME", "PERSON", "TRIP"})
        request.levels.emplace_back(level, from / (std::string(level) + ".csv"));
    request.under.emplace_back("TRIP", "HOME");
    return request;
}

std::map<std::string, std::string> exported(const std::filesystem::path& database,
                                            const std::filesystem::path& folder) {
    tools::exportCsv(*catalog::readDictionary(database, {}), folder, false);
    return TemporaryFolder::contents(folder);
}

} // namespace

TEST(CsvRoundTrip, CanonicalFilesComeBackByteForByte) {
    const TemporaryFolder folder;
    for (const auto& [name, text] : canonical)
        folder.write("in/" + name, text);
    tools::importCsv(requestFor(folder.path() / "in", folder.path() / "db.kxdb"));
    EXPECT_EQ(exported(folder.path() / "db.kxdb", folder.path() / "csv"), canonical);
}

TEST(CsvRoundTrip, ShuffledRowsGiveTheSameDatabase) {
    const TemporaryFolder folder;
    for (const auto& [name, text] : canonical)
        folder.write("in/" + name, text);
    // Rows of different parents change places; those of one parent keep their order.
    folder.write("in/HOME.csv", "AREA_CODE,ID,W,LIT\n02,1,1e+20,\n01,2,1.5,yes\n01,1,0.10,false\n");
    folder.write("in/PERSON.csv", "NOTE,HOME_ID,AGE,SEX,DOSE,BORN,INCOME,AREA_CODE\n"
                                  "x,1,98,1,1e20,02,0.0000001,02\né,1,,,,,-1,01\n"
                                  "\"\",2,30,1,1e-5,01,1234.50,01\n\"a,b\",2,099,9,,00,,01\n");
    tools::importCsv(requestFor(folder.path() / "in", folder.path() / "db.kxdb"));
    auto files = exported(folder.path() / "db.kxdb", folder.path() / "csv");
    EXPECT_EQ(files["HOME.csv"], canonical.at("HOME.csv"));
    EXPECT_EQ(files["PERSON.csv"], "AREA_CODE,HOME_ID,NOTE,AGE,SEX,DOSE,BORN,INCOME\n"
                                   "01,2,,30,1,0.00001,01,1234.5\n01,2,\"a,b\",99,9,,00,\n"
                                   "01,1,é,,,,,-1\n"
                                   "02,1,x,98,1,100000000000000000000,02,0.0000001\n");
}

TEST(CsvRoundTrip, WhatAnyDictionarySaysComesBackByteForByte) {
    const TemporaryFolder folder;
    for (const auto& [name, text] : canonical)
        folder.write("in/" + name, text);
    tools::importCsv(requestFor(folder.path() / "in", folder.path() / "db.kxdb"));
    // As other programs write it: codes of many forms, special codes without a label between them.
    auto db = catalog::readDictionary(folder.path() / "db.kxdb", {});
    catalog::Entity& person = *db->findEntity("PERSON");
    person.findVariable("AGE")->valueLabels = {{"98", ""}, {"099", "Unknown"}};
    person.findVariable("SEX")->valueLabels = {
        {"9", ""}, {"02", "Female"}, {"2", "Woman"}, {"1", ""}};
    person.findVariable("DOSE")->valueLabels = {{"1e-05", "Little"}};
    catalog::saveDictionary(*db, folder.path() / "db.kxdb");
    const auto first = exported(folder.path() / "db.kxdb", folder.path() / "csv");
    EXPECT_NE(first.at("codebook.csv")
                  .find("PERSON,AGE,integer,99,Unknown,missing\n"
                        "PERSON,AGE,integer,98,,notapp\n"
                        "PERSON,SEX,code,,,\n"
                        "PERSON,SEX,code,2,Female,\n"
                        "PERSON,SEX,code,1,1,\n"
                        "PERSON,SEX,code,9,,missing\n"
                        "PERSON,DOSE,code real,,,\n"
                        "PERSON,DOSE,code real,0.00001,Little,\n"),
              std::string::npos)
        << first.at("codebook.csv");
    const auto report =
        tools::importCsv(requestFor(folder.path() / "csv", folder.path() / "again" / "db.kxdb"));
    EXPECT_EQ(exported(folder.path() / "again" / "db.kxdb", folder.path() / "csv2"), first);
    const auto& age = report.levels[2].variables[0];
    EXPECT_EQ(age.name, "AGE");
    EXPECT_FALSE(age.coded);
    EXPECT_EQ(age.outside, 0u);
}

TEST(CsvRoundTrip, TypesFitTheirDataWhateverTheDictionarySays) {
    const TemporaryFolder folder;
    for (const auto& [name, text] : canonical)
        folder.write("in/" + name, text);
    tools::importCsv(requestFor(folder.path() / "in", folder.path() / "db.kxdb"));
    auto db = catalog::readDictionary(folder.path() / "db.kxdb", {});
    db->findEntity("HOME")->codeVar = db->findEntity("HOME")->findVariable("W"); // 1.5, 0.1, ...
    db->findEntity("PERSON")->findVariable("NOTE")->size = 1;                    // of "a,b"
    catalog::saveDictionary(*db, folder.path() / "db.kxdb");
    const auto first = exported(folder.path() / "db.kxdb", folder.path() / "csv");
    EXPECT_NE(first.at("codebook.csv").find("HOME,W,key text,,,\n"), std::string::npos);
    EXPECT_NE(first.at("codebook.csv").find("PERSON,NOTE,text,,,\n"), std::string::npos);
    tools::importCsv(requestFor(folder.path() / "csv", folder.path() / "again/db.kxdb"));
    EXPECT_EQ(exported(folder.path() / "again/db.kxdb", folder.path() / "csv2"), first);
}

TEST(CsvRoundTrip, TellsTheRecordsWrittenAndEndsWhenAsked) {
    const TemporaryFolder folder;
    for (const auto& [name, text] : canonical)
        folder.write("in/" + name, text);
    tools::importCsv(requestFor(folder.path() / "in", folder.path() / "db.kxdb"));
    const auto db = catalog::readDictionary(folder.path() / "db.kxdb", {});
    std::uint64_t last = 0;
    const auto note = [&](std::uint64_t done, std::uint64_t all) {
        EXPECT_EQ(all, 13u); // 3 areas, 3 homes, 4 persons, 3 trips
        last = done;
    };
    tools::exportCsv(*db, folder.path() / "csv", false, note);
    EXPECT_EQ(last, 13u);
    const auto stop = [](std::uint64_t, std::uint64_t) { throw std::runtime_error("enough"); };
    EXPECT_THROW(tools::exportCsv(*db, folder.path() / "none", false, stop), std::runtime_error);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "none"));
}

TEST(CsvRoundTrip, AnEntityWithoutCodeGetsAKeyWhereOthersNeedIt) {
    const TemporaryFolder folder;
    std::string book = "level,field,type,code,label,is_missing\nUP,K,key integer,,,\n"
                       "DOWN,P,parent key,,,\nDOWN,V,integer,,,\n";
    tools::ImportRequest request;
    request.database = folder.path() / "db.kxdb";
    request.codebook = folder.write("book.csv", book);
    request.levels = {{"UP", folder.write("up.csv", "K\n30\n10\n")},
                      {"DOWN", folder.write("down.csv", "P,V\n10,1\n30,2\n10,3\n")}};
    tools::importCsv(request);
    auto db = catalog::readDictionary(request.database, {});
    db->findEntity("UP")->codeVar = nullptr;
    tools::exportCsv(*db, folder.path() / "csv", false);
    EXPECT_EQ(folder.read("csv/UP.csv"), "RECORD,K\n1,30\n2,10\n");
    EXPECT_EQ(folder.read("csv/DOWN.csv"), "UP_RECORD,V\n1,2\n2,1\n2,3\n");
}

TEST(CsvRoundTrip, LargeShuffledFilesKeepEveryValue) {
    // Several blocks; the expected order comes from a stable sort of our own rows here.
    const TemporaryFolder folder;
    constexpr int parents = 1000, rows = 150000;
    std::string up = "K\n", down = "P,V,T\n";
    for (int p = 0; p < parents; ++p)
        up += std::to_string(p) + "\n";
    std::vector<std::string> expected(parents);
    for (int row = 0; row < rows; ++row) {
        const int parent = static_cast<int>((row * 7919LL + row / 13) % parents);
        const std::string line = std::to_string(parent) + "," + std::to_string(row % 70000 - 300) +
                                 ",t" + std::to_string(row % 301) + "\n";
        down += line;
        expected[static_cast<std::size_t>(parent)] += line;
    }
    tools::ImportRequest request;
    request.database = folder.path() / "db.kxdb";
    request.codebook =
        folder.write("book.csv", "level,field,type,code,label,is_missing\nUP,K,key integer,,,\n"
                                 "DOWN,P,parent key,,,\nDOWN,V,integer,,,\nDOWN,T,text,,,\n");
    request.levels = {{"UP", folder.write("up.csv", up)}, {"DOWN", folder.write("down.csv", down)}};
    tools::importCsv(request);
    std::string all = "UP_K,V,T\n";
    for (const std::string& lines : expected)
        all += lines;
    EXPECT_EQ(exported(request.database, folder.path() / "csv")["DOWN.csv"], all);
}
