// SPDX-License-Identifier: Apache-2.0
// The running engine: its setting, and what only tests and tools may change.
#pragma once

#include "TKelConfig.h"

#include <cstddef>
#include <memory>
#include <string>

namespace kelx::boundary {

/// Null before kel::init and after kel::destroy.
std::shared_ptr<TKelConfig> configuration();
void setConfiguration(std::shared_ptr<TKelConfig> config);

/// How programs are run. The figures never depend on it.
struct RunTuning {
    unsigned threads = 0; ///< 0: one for each core
    std::size_t blockRecords = 65536;
};
RunTuning runTuning();
void setRunTuning(const RunTuning& tuning);

/// UTF-8 to the local 8-bit encoding; as it is where that is UTF-8 or cannot hold the text.
std::string toLocal8Bit(const std::string& utf8);

} // namespace kelx::boundary
