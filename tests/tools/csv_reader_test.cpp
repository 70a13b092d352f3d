// SPDX-License-Identifier: GPL-3.0-or-later
#include "import/csv_reader.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

using kelx::test::TemporaryFolder;

using kelx::tools::CsvReader;
using kelx::tools::LocatedError;
using Record = std::vector<std::string>;

namespace {

std::vector<Record> readAll(const std::string& text) {
    const TemporaryFolder folder;
    CsvReader reader(folder.write("a.csv", text));
    std::vector<Record> records;
    while (reader.next()) {
        Record& record = records.emplace_back();
        for (std::size_t i = 0; i < reader.fields(); ++i)
            record.emplace_back(reader.field(i));
    }
    return records;
}

/// "line:column text" of the fault.
std::string faultOf(const std::string& text) {
    try {
        readAll(text);
    } catch (const LocatedError& fault) {
        return std::to_string(fault.place().line) + ":" + std::to_string(fault.place().column) +
               " " + fault.text();
    }
    return "no fault";
}

} // namespace

TEST(CsvReader, ReadsRecordsWhateverTheirLineEnds) {
    const std::vector<Record> expected = {{"a", "b"}, {"1", ""}, {"", "2"}};
    EXPECT_EQ(readAll("a,b\n1,\n,2\n"), expected);
    EXPECT_EQ(readAll("a,b\r\n1,\r\n,2\r\n"), expected);
    EXPECT_EQ(readAll("\xef\xbb\xbf"
                      "a,b\n1,\n,2"),
              expected);
    EXPECT_EQ(readAll("\na,b\n\r\n\n1,\n,2\n\n"), expected);
    EXPECT_EQ(readAll(""), std::vector<Record>());
    EXPECT_EQ(readAll("a,"), (std::vector<Record>{{"a", ""}}));
}

TEST(CsvReader, UndoesQuotes) {
    EXPECT_EQ(readAll("\"a,b\",\"say \"\"no\"\"\",\"two\r\nlines\",\"\"\"\",\"\",\"ü\"\n"),
              (std::vector<Record>{{"a,b", "say \"no\"", "two\r\nlines", "\"", "", "ü"}}));
    EXPECT_EQ(readAll("\"\"\nx\n"), (std::vector<Record>{{""}, {"x"}}));
    EXPECT_EQ(readAll("\"a\""), (std::vector<Record>{{"a"}}));
}

TEST(CsvReader, KnowsThePlaceOfEveryField) {
    const TemporaryFolder folder;
    CsvReader reader(folder.write("a.csv", "é,b,c\n\n\"x\ny\",\"ö\",zz\n1,2,3\n"));
    const auto place = [&reader](std::size_t i) {
        return std::pair(reader.place(i).line, reader.place(i).column);
    };
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(place(1), std::pair(1ul, 3ul));
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(place(0), std::pair(3ul, 1ul));
    EXPECT_EQ(place(1), std::pair(4ul, 4ul));
    EXPECT_EQ(place(2), std::pair(4ul, 8ul));
    EXPECT_EQ(place(3), std::pair(4ul, 10ul));
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(place(2), std::pair(5ul, 5ul));
    EXPECT_FALSE(reader.next());
}

TEST(CsvReader, LocatesWhatIsNoCsv) {
    EXPECT_EQ(faultOf("a,b\n1,\"x\n\n"), "2:3 this quote is never closed");
    EXPECT_EQ(faultOf("a,b\n1,x\"y\n"), "2:4 a quote inside a field that does not begin with one");
    EXPECT_EQ(faultOf("a,b\n\"1\"x,2\n"), "2:4 text behind the closing quote of a field");
    EXPECT_EQ(faultOf("a\rb\n"), "1:2 a carriage return without a line feed");
    EXPECT_EQ(faultOf(std::string("a\nx\0y\n", 6)), "2:2 a zero byte; is this really a text file?");
    // Latin-1, an overlong form, a surrogate, a value past the last one, a cut sequence.
    for (const char* bytes : {"\xe9", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x82"})
        EXPECT_EQ(faultOf("a,b\nü," + std::string(bytes) + "\n"), "2:3 bytes that are no UTF-8");
}

TEST(CsvReader, KeepsItsPlaceAcrossBufferBounds) {
    // Records of many lengths, so that the buffer ends within fields, quotes and line ends.
    std::string text;
    std::vector<Record> expected;
    for (int i = 0; i < 40000; ++i) {
        const std::string cell(static_cast<std::size_t>(i % 37), 'x');
        text += "\"" + cell + "\"\"\n\"," + std::to_string(i) + "\r\n";
        expected.push_back({cell + "\"\n", std::to_string(i)});
    }
    EXPECT_EQ(readAll(text), expected);
    EXPECT_EQ(faultOf(text + "1,\"\n"), "80001:3 this quote is never closed");
}

TEST(CsvReader, RefusesARecordWithoutEnd) {
    const std::string text = "a\n\"" + std::string(CsvReader::longestRecord + 1000, 'x');
    EXPECT_THAT(faultOf(text + std::string(1u << 20, 'y')),
                testing::StartsWith("2:1 this record is longer than 16 MiB"));
}
