// SPDX-License-Identifier: GPL-3.0-or-later
// Carries the engine's questions to the user, whatever thread the engine runs on.
#pragma once

#include "TKelConfig.h"

#include <string>

/// Throws std::runtime_error where the user refuses or answers nothing. From a worker thread the
/// call blocks until the GUI thread has answered, so the GUI thread must not wait for the worker.
class TKelUIProviderImpl : public TKelUIProvider {
public:
    std::string promptPassword(const std::string& dbName) override;
    std::string pickDataDir(const std::string& dbName) override;
};
