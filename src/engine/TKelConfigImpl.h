// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench's answers to what the engine asks about its setting: constants, no preference.
#pragma once

#include "TKelConfig.h"

#include <memory>
#include <string>

class TKelUIProviderImpl;

/// May be asked from any thread.
class TKelConfigImpl : public TKelConfig {
public:
    TKelConfigImpl();
    ~TKelConfigImpl() override;

    std::string engineCode() override;
    bool stopAtWarnings() override;
    std::string pluginFolder() override;
    bool autoWeight() override;
    int defaultQuantiles() override;
    bool showProgress() override;
    std::string workFolder() override;
    int memoryLimit() override;
    bool sensitiveByDefault() override;
    bool strictTypes() override;
    std::shared_ptr<TKelUIProvider> uiProvider() override;

private:
    std::shared_ptr<TKelUIProviderImpl> provider_;
};
