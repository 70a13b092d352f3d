// SPDX-License-Identifier: GPL-3.0-or-later
// The examples of docs/language.md and the programs of the sample, run on it as they stand.
#include "catalog/reader.h"
#include "language/compile.h"
#include "output/run.h"
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
