// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of flat imports share.
#pragma once

#include "catalog/consistency.h"
#include "catalog/reader.h"
#include "import/column_texts.h"
#include "import/flat_importer.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace kelx::test {

class FlatTest : public testing::Test {
protected:
    FlatTest() { request.database = folder / "out/db.kxdb"; }

    /// Imports and reads what came out, which must be sound.
    std::unique_ptr<catalog::Dictionary> import() {
        report = tools::importFlat(request);
        auto dictionary = catalog::readDictionary(request.database, {});
        for (const auto& finding : catalog::checkConsistency(*dictionary).findings)
            if (finding.severity == catalog::FindingSeverity::Error && !request.tolerant)
                ADD_FAILURE() << finding.file << ": " << finding.found;
        return dictionary;
    }
    /// The fault of an import, the test's folder cut off; nothing may be left of it.
    std::string fault() {
        std::string text = "no fault";
        try {
            tools::importFlat(request);
        } catch (const std::exception& error) {
            text = error.what();
        }
        EXPECT_FALSE(std::filesystem::exists(folder / "out")) << text;
        std::filesystem::remove_all(folder / "out");
        return cut(text);
    }
    std::string cut(std::string text) const {
        const std::string prefix = folder.path().string() + "/";
        for (std::size_t at; (at = text.find(prefix)) != std::string::npos;)
            text.erase(at, prefix.size());
        return text;
    }
    std::string faultOf(const std::string& csv) {
        request.data = folder.write("flat.csv", csv);
        return fault();
    }
    std::unique_ptr<catalog::Dictionary> importOf(const std::string& csv) {
        request.data = folder.write("flat.csv", csv);
        request.overwrite = true;
        return import();
    }

    /// Values as texts, "-" for a blank.
    static std::vector<std::string> values(const catalog::Dictionary& dictionary,
                                           const char* entity, const char* variable) {
        const catalog::Entity* found = dictionary.findEntity(entity);
        if (found == nullptr || found->findVariable(variable) == nullptr)
            return {"no such variable"};
        tools::ColumnTexts texts(*found->findVariable(variable));
        std::vector<std::string> all;
        for (std::uint64_t i = 0; i < found->records(); ++i)
            all.push_back(texts.at(i).empty() ? "-" : texts.at(i));
        return all;
    }
    /// Number of records under each record of the entity above.
    static std::vector<std::uint64_t> children(const catalog::Dictionary& dictionary,
                                               const char* entity) {
        const auto pointers = dictionary.findEntity(entity)->pointers();
        std::vector<std::uint64_t> counts;
        for (std::uint64_t i = 0; i < pointers->parents(); ++i)
            counts.push_back(pointers->first(i + 1) - pointers->first(i));
        return counts;
    }

    TemporaryFolder folder;
    tools::FlatRequest request;
    tools::ImportReport report;
};

} // namespace kelx::test
