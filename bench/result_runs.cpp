// SPDX-License-Identifier: Apache-2.0
#include "result_runs.h"

#include "results/tables/TableFactory.h"

#include "TKelDictionary.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "kel.h"

#include <stdexcept>

namespace {

class Provider : public TKelUIProvider {
public:
    std::string promptPassword(const std::string&) override { throw std::runtime_error("locked"); }
    std::string pickDataDir(const std::string&) override { throw std::runtime_error("no data"); }
};

class Config : public TKelConfig {
public:
    std::string engineCode() override { return "RR4"; }
    bool stopAtWarnings() override { return false; }
    std::string pluginFolder() override { return {}; }
    bool autoWeight() override { return true; }
    int defaultQuantiles() override { return 4; }
    bool showProgress() override { return false; }
    std::string workFolder() override { return {}; }
    int memoryLimit() override { return 100; }
    bool sensitiveByDefault() override { return false; }
    bool tab_show_intermediate() override { return false; }
    bool strictTypes() override { return false; }
    std::shared_ptr<TKelUIProvider> uiProvider() override { return provider_; }

private:
    std::shared_ptr<Provider> provider_ = std::make_shared<Provider>();
};

} // namespace

ResultRuns::ResultRuns(const std::filesystem::path& database) : database_(database) {
    kel::init(std::make_shared<Config>());
    kel::setupLocale("en");
    dictionary_ = kel::readDictionary(database.string(), nullptr, true);
}

ResultRuns::~ResultRuns() {
    dictionary_.reset();
    kel::destroy();
}

std::shared_ptr<TKelSession> ResultRuns::run(const std::string& program) {
    auto session = kel::makeDefaultSession(dictionary_);
    session->executeText(program, nullptr);
    return session;
}

std::unique_ptr<TableBase> ResultRuns::table(TKelSession& session) {
    TKelOutput* output = session.outputs().at(0);
    auto table = makeResultTable({output,
                                  {},
                                  TableMetadata(*output, *session.dictionary(),
                                                QString::fromStdString(database_.string()))});
    layOut(*table);
    return table;
}

void layOut(const TableBase& table) {
    table.cells();
    table.reportCells();
}
