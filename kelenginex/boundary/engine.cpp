// SPDX-License-Identifier: Apache-2.0
#include "boundary/engine.h"

#include <iconv.h>
#include <langinfo.h>

#include <mutex>
#include <string_view>

namespace kelx::boundary {

namespace {

std::mutex mutex;
std::shared_ptr<TKelConfig> current;
RunTuning tuningInForce;

/// Plain ASCII is what a process without a locale says; its readers take bytes as they come.
bool takesUtf8(std::string_view codeset) {
    return codeset == "UTF-8" || codeset == "utf8" || codeset == "ANSI_X3.4-1968" ||
           codeset == "US-ASCII" || codeset.empty();
}

} // namespace

std::shared_ptr<TKelConfig> configuration() {
    const std::lock_guard lock(mutex);
    return current;
}

void setConfiguration(std::shared_ptr<TKelConfig> config) {
    // The old one is released outside the lock: it may belong to somebody who calls the engine.
    {
        const std::lock_guard lock(mutex);
        current.swap(config);
    }
}

RunTuning runTuning() {
    const std::lock_guard lock(mutex);
    return tuningInForce;
}

void setRunTuning(const RunTuning& tuning) {
    const std::lock_guard lock(mutex);
    tuningInForce = tuning;
}

std::string toLocal8Bit(const std::string& utf8) {
    const std::string codeset = nl_langinfo(CODESET);
    if (takesUtf8(codeset)) {
        return utf8;
    }
    const iconv_t converter = iconv_open((codeset + "//TRANSLIT").c_str(), "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        return utf8;
    }
    std::string input = utf8;
    std::string output(4 * utf8.size() + 16, '\0');
    char* from = input.data();
    char* to = output.data();
    std::size_t left = input.size();
    std::size_t space = output.size();
    const bool done = iconv(converter, &from, &left, &to, &space) != static_cast<std::size_t>(-1);
    iconv_close(converter);
    output.resize(output.size() - space);
    return done ? output : utf8;
}

} // namespace kelx::boundary
