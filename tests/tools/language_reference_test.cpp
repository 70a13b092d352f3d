// SPDX-License-Identifier: GPL-3.0-or-later
// The examples of docs/language.md, run on a sample as the text says.
#include "catalog/reader.h"
#include "execution/run.h"
#include "language/compile.h"
#include "sample/sample.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

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

} // namespace

TEST(LanguageReference, ExamplesRunWithoutAWord) {
    const TemporaryFolder folder;
    tools::SampleRequest request;
    request.folder = folder.path() / "sample";
    request.persons = 20000;
    tools::writeSample(request);
    const auto dictionary = catalog::readDictionary(request.folder / "sample.kxdb", {});
    const auto programs = examples(LANGUAGE_REFERENCE);
    EXPECT_GE(programs.size(), 5U);
    for (const std::string& program : programs) {
        SCOPED_TRACE(program);
        language::Messages messages;
        const auto bound = language::compile(program, *dictionary, {}, messages);
        for (const auto& message : messages.all())
            ADD_FAILURE() << message.text;
        if (messages.hasErrors())
            continue;
        const auto result = execution::run(bound, {}, messages);
        EXPECT_EQ(result.tables.size(), bound.tables.size());
        for (const auto& table : result.tables)
            EXPECT_FALSE(table.cells.empty());
        EXPECT_TRUE(messages.all().empty());
    }
}
