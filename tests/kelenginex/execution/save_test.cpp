// SPDX-License-Identifier: GPL-3.0-or-later
// SAVE: what is written, what comes back from the files, and what is left when it cannot be.
#include "define_fixture.h"

#include "storage/error.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <stdexcept>

namespace kelx::test {
namespace {

namespace fs = std::filesystem;

class Saving : public testing::Test {
protected:
    fs::path folder() const { return country_.dictionary.dataFolder; }
    static std::string contents(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    /// All files of the database, with what they hold.
    std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> all;
        for (const auto& entry : fs::directory_iterator(folder()))
            all[entry.path().filename().string()] = contents(entry.path());
        return all;
    }

    std::shared_ptr<catalog::Variable> add(ValueType type, const std::string& file,
                                           ExpressionPtr value, bool overwrite = false) {
        auto& definition = program_.add("PERSON", "NEW", type, std::move(value));
        definition.save = language::SaveClause{folder() / file, file, overwrite, {}};
        return definition.variable;
    }
    std::shared_ptr<catalog::Variable> addAge(ValueType type, const std::string& file,
                                              bool overwrite = false) {
        return add(type, file, program_.number("PERSON.AGE"), overwrite);
    }
    void run(const execution::ProgressCallback& callback = {}) {
        execution::RunOptions options;
        options.progress = callback;
        options.threads = 1; // so that runs ask at the same places
        options.progressInterval = {};
        messages_ = {};
        cancelled_ = execution::run(program_.bound, options, messages_).cancelled;
    }
    std::string errorOf() {
        try {
            run();
        } catch (const storage::FileError& error) {
            return error.what();
        }
        return {};
    }
    static std::vector<std::string> reopened(const catalog::Variable& variable) {
        EXPECT_FALSE(variable.column()->info().naCode);
        return DefineProgram::valuesOf(variable);
    }

    SmallCountry country_;
    DefineProgram program_{country_.dictionary};
    language::Messages messages_;
    bool cancelled_ = false;
};

// Ages 34, 99 (MV), 98 (NA), 7, 7, 70, blank, 15.

TEST_F(Saving, valuesComeBackFromTheFile) {
    for (const char* extension : {".kbf", ".bin"}) {
        SCOPED_TRACE(extension);
        program_.bound.definitions.clear();
        const auto income = program_.number("PERSON.INCOME");
        const auto real = add(ValueType::Real, std::string("r") + extension, income);
        real->decimals = 2;
        const auto whole = add(ValueType::Integer, std::string("i") + extension, income);
        const auto truth = add(ValueType::Boolean, std::string("b") + extension, income);
        const auto text =
            add(ValueType::String, std::string("t") + extension,
                variable(*country_.dictionary.findEntity("PERSON")->findVariable("NAME")));
        run();
        EXPECT_TRUE(fs::exists(folder() / (std::string("r") + extension)));
        EXPECT_EQ(reopened(*real), listed("100.5 0 . 0 . 20 100.5 -3"));
        EXPECT_EQ(reopened(*whole), listed("101 0 . 0 . 20 101 -3"));
        EXPECT_EQ(reopened(*truth), listed("1 0 . 0 . 1 1 1"));
        EXPECT_EQ(reopened(*text), listed("Ana Béa Cid Dan Eva . Ana Zoë"));
        EXPECT_EQ(whole->fileName, std::string("i") + extension);
        EXPECT_EQ(whole->size, 3);
        EXPECT_EQ(text->size, 3);
    }
    const auto column = storage::Column::open(folder() / "r.kbf");
    EXPECT_EQ(column->info().decimals, 2);
    EXPECT_EQ(storage::Column::open(folder() / "i.kbf")->info().physical, storage::Physical::Code8);
}

TEST_F(Saving, notApplicableGetsACodeThatIsFree) {
    for (const char* extension : {".kbf", ".bin"}) {
        SCOPED_TRACE(extension);
        program_.bound.definitions.clear();
        const auto whole = addAge(ValueType::Integer, std::string("i") + extension);
        const auto real = addAge(ValueType::Real, std::string("r") + extension);
        const auto text = addAge(ValueType::String, std::string("t") + extension);
        const auto truth = addAge(ValueType::Boolean, std::string("b") + extension);
        const auto labelled = addAge(ValueType::Integer, std::string("l") + extension);
        labelled->valueLabels = {{"71", "Old"}, {"80", "Older"}};
        labelled->missing = 120;
        const auto coded = addAge(ValueType::Integer, std::string("c") + extension);
        coded->notapp = -8;
        run();
        EXPECT_EQ(reopened(*whole), listed("34 . 71 7 7 70 . 15"));
        EXPECT_EQ(whole->notapp, 71);
        EXPECT_EQ(reopened(*real), listed("34 . 71 7 7 70 . 15"));
        EXPECT_EQ(real->notapp, 71);
        EXPECT_EQ(reopened(*text), listed("34 . 9 7 7 70 . 15"));
        EXPECT_EQ(text->notapp, 9);
        EXPECT_EQ(reopened(*truth), listed("1 . 2 1 1 1 . 1"));
        EXPECT_EQ(truth->notapp, 2);
        EXPECT_EQ(truth->type, ValueType::Integer);
        ASSERT_EQ(messages_.all().size(), 1U);
        EXPECT_EQ(messages_.all()[0].text, "PERSON.NEW is saved as the numbers 1 and 0, and 2 "
                                           "where it is not applicable.");
        EXPECT_EQ(reopened(*labelled), listed("34 120 121 7 7 70 120 15"));
        EXPECT_EQ(labelled->notapp, 121);
        EXPECT_EQ(reopened(*coded), listed("34 . -8 7 7 70 . 15"));
        EXPECT_EQ(coded->notapp, -8);
    }
}

TEST_F(Saving, aTableIsTheSameFromTheFile) {
    const auto made = addAge(ValueType::Integer, "age.kbf");
    language::Messages messages;
    const auto before = execution::run(program_.withFrequencyOf(*made), {}, messages);
    program_.bound.definitions.clear();
    const auto after = execution::run(program_.bound, {}, messages);
    EXPECT_EQ(figures(before.tables.at(0)), figures(after.tables.at(0)));
    EXPECT_EQ(figures(after.tables.at(0)).at("NA"), 1);
}

TEST_F(Saving, existingFilesNeedOverwrite) {
    std::ofstream(folder() / "old.kbf") << "old";
    addAge(ValueType::Integer, "new.kbf");
    addAge(ValueType::Integer, "old.kbf");
    const auto before = files();
    const std::string error = errorOf();
    EXPECT_NE(error.find("old.kbf"), std::string::npos) << error;
    EXPECT_NE(error.find("OVERWRITE"), std::string::npos) << error;
    EXPECT_EQ(contents(folder() / "old.kbf"), "old");
    EXPECT_EQ(files(), before);
    program_.bound.definitions[1].save->overwrite = true;
    run();
    EXPECT_EQ(reopened(*program_.bound.definitions[1].variable), listed("34 . 71 7 7 70 . 15"));
}

TEST_F(Saving, oneThatFailsLeavesAllAsTheyWere) {
    std::ofstream(folder() / "a.kbf") << "old";
    const auto first = addAge(ValueType::Integer, "a.kbf", true);
    addAge(ValueType::Integer, "b.kbf");
    const auto before = files();
    const auto expectUntouched = [&] {
        EXPECT_EQ(contents(folder() / "a.kbf"), "old");
        EXPECT_EQ(files(), before);
        EXPECT_TRUE(first->fileName.empty());
        EXPECT_FALSE(first->notapp);
        program_.bound.definitions.pop_back();
    };
    addAge(ValueType::Integer, "no/such/folder/c.kbf");
    EXPECT_NE(errorOf().find("c.kbf"), std::string::npos);
    expectUntouched();
    addAge(ValueType::Integer, "b.kbf");
    EXPECT_NE(errorOf().find("two variables"), std::string::npos);
    expectUntouched();
    // A text that ends in a blank does not come back from a raw file.
    add(ValueType::String, "c.bin", constant(std::string("x ")));
    EXPECT_NE(errorOf().find("c.bin: record 1"), std::string::npos);
    expectUntouched();
}

TEST_F(Saving, aStopAtAnyCallLeavesAllAsTheyWere) {
    std::ofstream(folder() / "old.kbf") << "old";
    add(ValueType::String, "t.kbf",
        variable(*country_.dictionary.findEntity("PERSON")->findVariable("NAME")));
    addAge(ValueType::Integer, "old.kbf", true);
    addAge(ValueType::Integer, "raw.bin");
    const auto before = files();
    int stopAt = 0;
    std::vector<int> told;
    do {
        ++stopAt;
        told.clear();
        run([&](int, int, int percent) {
            told.push_back(percent);
            return static_cast<int>(told.size()) == stopAt;
        });
        if (cancelled_) {
            EXPECT_EQ(static_cast<int>(told.size()), stopAt);
            EXPECT_LT(told.back(), 100);
            ASSERT_EQ(files(), before) << stopAt;
        }
    } while (cancelled_ && stopAt < 1000);
    // Only the answer to the last call, when all is done, is not heard.
    EXPECT_GT(stopAt, 5);
    EXPECT_EQ(static_cast<int>(told.size()), stopAt);
    EXPECT_EQ(told.back(), 100);
    EXPECT_EQ(files().size(), before.size() + 3);
    EXPECT_NE(contents(folder() / "old.kbf"), "old");
}

TEST_F(Saving, moreFilesAppearWithTheVariablesOrNoneDoes) {
    const auto made = addAge(ValueType::Integer, "new.kbf");
    const auto before = files();
    const auto end = [&](storage::StagedFiles& staged, execution::Progress&) {
        EXPECT_EQ(made->fileName, "new.kbf");
        EXPECT_EQ(made->notapp, 71);
        staged.write(folder() / "more.csv", [](const fs::path& file) { std::ofstream(file) << 1; });
        EXPECT_FALSE(fs::exists(folder() / "new.kbf"));
    };
    const auto runTo = [&](const execution::RunEnd& last) {
        execution::run(program_.bound, {}, messages_, {}, last);
    };
    EXPECT_THROW(runTo([&](storage::StagedFiles& staged, execution::Progress& progress) {
                     end(staged, progress);
                     throw std::runtime_error("full");
                 }),
                 std::runtime_error);
    EXPECT_EQ(files(), before);
    // Another process comes first.
    EXPECT_THROW(runTo([&](storage::StagedFiles&, execution::Progress&) {
                     std::ofstream(folder() / "new.kbf") << "theirs";
                 }),
                 storage::FileError);
    EXPECT_EQ(contents(folder() / "new.kbf"), "theirs");
    fs::remove(folder() / "new.kbf");
    made->notapp.reset();
    runTo(end);
    EXPECT_EQ(contents(folder() / "more.csv"), "1");
    EXPECT_EQ(reopened(*made), listed("34 . 71 7 7 70 . 15"));
}

TEST_F(Saving, protectedDatabasesSealTheirColumns) {
    country_.dictionary.key = storage::Secret::derive("secret", storage::Secret::newRecipe());
    const auto made = add(ValueType::String, "t.kbf", constant(std::string("kept to ourselves")));
    run();
    EXPECT_TRUE(made->column()->info().isProtected);
    EXPECT_EQ(reopened(*made).front(), "kept to ourselves");
    EXPECT_EQ(contents(folder() / "t.kbf").find("ourselves"), std::string::npos);
    EXPECT_THROW(storage::Column::open(folder() / "t.kbf"), storage::FileError);
    program_.bound.definitions.clear();
    const auto before = files();
    add(ValueType::String, "t.bin", constant(std::string("kept to ourselves")));
    EXPECT_NE(errorOf().find(".kbf"), std::string::npos);
    EXPECT_EQ(files(), before);
}

} // namespace
} // namespace kelx::test
