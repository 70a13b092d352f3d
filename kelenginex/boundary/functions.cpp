// SPDX-License-Identifier: Apache-2.0
#include "kel.h"

#include "boundary/consistency_dataset.h"
#include "boundary/engine.h"
#include "boundary/execute_data.h"
#include "boundary/memory.h"
#include "boundary/session_data.h"
#include "boundary/state.h"
#include "boundary/variants.h"
#include "catalog/reader.h"
#include "execution/discard.h"
#include "language/message_table.h"
#include "language/reserved_words.h"
#include "storage/folder_lock.h"
#include "storage/posix_io.h"

#include <chrono>
#include <ctime>
#include <stdexcept>

namespace {

kelx::catalog::Questions questions() {
    const auto config = kelx::boundary::configuration();
    const auto provider = config != nullptr ? config->uiProvider() : nullptr;
    if (provider == nullptr) {
        return {};
    }
    return {[provider](const std::string& name) { return provider->promptPassword(name); },
            [provider](const std::string& name) { return provider->pickDataDir(name); }};
}

std::string now() {
    const std::time_t seconds = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return {text, length};
}

void requireDictionary(const std::shared_ptr<TKelDictionary>& dictionary) {
    if (dictionary == nullptr) {
        throw std::invalid_argument("There is no open dictionary.");
    }
}

/// Where the file is gone or spoilt there is nothing that could be lost.
void takeFromFile(kelx::boundary::DictionaryState& state) {
    std::unique_ptr<kelx::catalog::Dictionary> current;
    try {
        current = kelx::catalog::readAgain(*state.dictionary);
    } catch (const std::runtime_error&) {
        return;
    }
    state.takeFromFile(*current);
}

} // namespace

namespace kel {

void init(std::shared_ptr<TKelConfig> config) {
    kelx::boundary::setConfiguration(std::move(config));
    kelx::execution::Discards::open();
}

void setupLocale(const std::string& /*locale*/) {
    // English is the only language of the engine's texts.
}

void destroy() {
    kelx::boundary::setConfiguration(nullptr);
    kelx::execution::Discards::close();
}

std::string version() {
    return KELVORAX_VERSION;
}

std::shared_ptr<TKelDictionary> readDictionary(const std::string& path,
                                               _validation_context* /*context*/, bool /*flag*/) {
    return kelx::boundary::withinMemory([&] {
        auto model = kelx::catalog::readDictionary(path, questions());
        auto dictionary = std::make_shared<TKelDictionary>();
        KelBoundaryAccess::adopt(*dictionary, std::move(model));
        return dictionary;
    });
}

void saveDictionary(const std::shared_ptr<TKelDictionary>& dictionary, const std::string& path) {
    requireDictionary(dictionary);
    auto& state = KelBoundaryAccess::state(*dictionary);
    auto& model = *state.dictionary;
    const kelx::storage::FolderLock lock(path, {});
    if (kelx::storage::realFile(path) == kelx::storage::realFile(model.file)) {
        takeFromFile(state);
    }
    const std::string created = model.created;
    const std::string updated = model.updated;
    model.updated = now();
    if (model.created.empty()) {
        model.created = model.updated;
    }
    try {
        kelx::catalog::saveDictionary(model, path);
        state.noteFile(model);
    } catch (...) {
        model.created = created;
        model.updated = updated;
        throw;
    }
}

std::shared_ptr<TKelSession> makeDefaultSession(const std::shared_ptr<TKelDictionary>& dictionary) {
    requireDictionary(dictionary);
    auto session = std::make_shared<TKelSession>();
    KelBoundaryAccess::data(*session).dictionary = dictionary;
    return session;
}

std::shared_ptr<TKelExecute> makeExecute(const std::shared_ptr<TKelDictionary>& dictionary) {
    requireDictionary(dictionary);
    auto execute = std::make_shared<TKelExecute>();
    KelBoundaryAccess::data(*execute).dictionary = dictionary;
    return execute;
}

double measureTime(const std::function<void()>& function) {
    const auto begin = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

const std::string errorCodeName(eSpcErrors code) {
    return kelx::language::codeName(kelx::language::Severity::Error, static_cast<int>(code));
}

const std::string warningCodeName(eSpcWarnings code) {
    return kelx::language::codeName(kelx::language::Severity::Warning, static_cast<int>(code));
}

const std::vector<std::string> reservedWords() {
    return kelx::language::reservedWords();
}

bool isReserved(const std::string& word) {
    return kelx::language::isReserved(word);
}

std::int64_t variant_to_int64(const TKelVariant& value) {
    return kelx::boundary::toInteger(value);
}

double variant_to_double(const TKelVariant& value) {
    return kelx::boundary::toDouble(value);
}

std::string variant_to_string(const TKelVariant& value) {
    return kelx::boundary::toText(value);
}

namespace tools {

std::shared_ptr<TKelDataset> databaseConsistency(const std::string& dictionaryPath) {
    return kelx::boundary::withinMemory(
        [&] { return kelx::boundary::checkDatabase(dictionaryPath, questions()); });
}

} // namespace tools

} // namespace kel
