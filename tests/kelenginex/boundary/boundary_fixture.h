// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the boundary share: a configuration, a listener and an open sample.
#pragma once

#include "sample_files.h"

#include "kel.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace kelx::test {

class Provider : public TKelUIProvider {
public:
    std::string promptPassword(const std::string& dbName) override;
    std::string pickDataDir(const std::string& dbName) override;
    std::string answer; ///< empty: refuses, as a user does
    std::vector<std::string> asked;
};

class Config : public TKelConfig {
public:
    std::string engineCode() override { return "RR4"; }
    bool stopAtWarnings() override { return stop; }
    std::string pluginFolder() override { return "plugins"; }
    bool autoWeight() override { return weight; }
    int defaultQuantiles() override { return 10; }
    bool showProgress() override { return true; }
    std::string workFolder() override { return {}; }
    int memoryLimit() override { return 100; }
    bool sensitiveByDefault() override { return false; }
    bool strictTypes() override { return false; }
    std::shared_ptr<TKelUIProvider> uiProvider() override { return provider; }
    bool tab_show_intermediate() override { return intermediate; }
    bool stop = false;
    bool intermediate = false;
    bool weight = true;
    std::shared_ptr<Provider> provider = std::make_shared<Provider>();
};

class Listener : public TKelSpcErrorsListener {
public:
    struct Entry {
        std::string name, text;
        std::int64_t line, column;
    };
    void error(eSpcErrors code, const std::string& text, std::int64_t line,
               std::int64_t column) override {
        errors.push_back({kel::errorCodeName(code), text, line, column});
    }
    void warning(eSpcWarnings code, const std::string& text, std::int64_t line,
                 std::int64_t column) override {
        warnings.push_back({kel::warningCodeName(code), text, line, column});
    }
    bool hasErrors() override { return !errors.empty(); }
    bool hasWarnings() override { return !warnings.empty(); }
    void clear() override {
        errors.clear();
        warnings.clear();
    }
    std::vector<Entry> errors, warnings;
};

/// The engine between init and destroy, the sample's files in a folder.
class BoundaryTest : public testing::Test {
protected:
    BoundaryTest();
    ~BoundaryTest() override;
    std::shared_ptr<TKelDictionary> open(const std::string& name = "sample.kxdb");
    /// From now on the sample shows small cells, too.
    void dropSensitivity();
    /// Rows of the first output of a run, cells joined by "|".
    std::vector<std::string> run(const std::string& program);

    TemporaryFolder folder;
    std::shared_ptr<Config> config = std::make_shared<Config>();
    Listener listener;
    std::shared_ptr<TKelSession> session;
};

std::vector<std::string> rowsOf(TKelDataset& dataset);

} // namespace kelx::test
