// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TKelConfigImpl.h"

#include "engine/TKelUIProviderImpl.h"

TKelConfigImpl::TKelConfigImpl() : provider_(std::make_shared<TKelUIProviderImpl>()) {}

TKelConfigImpl::~TKelConfigImpl() = default;

std::string TKelConfigImpl::engineCode() {
    return "RR4";
}

bool TKelConfigImpl::stopAtWarnings() {
    return false;
}

std::string TKelConfigImpl::pluginFolder() {
    return "plugins";
}

bool TKelConfigImpl::autoWeight() {
    return true;
}

int TKelConfigImpl::defaultQuantiles() {
    return 10;
}

bool TKelConfigImpl::showProgress() {
    return true;
}

std::string TKelConfigImpl::workFolder() {
    return {};
}

int TKelConfigImpl::memoryLimit() {
    return 100;
}

bool TKelConfigImpl::sensitiveByDefault() {
    return false;
}

bool TKelConfigImpl::strictTypes() {
    return false;
}

std::shared_ptr<TKelUIProvider> TKelConfigImpl::uiProvider() {
    return provider_;
}
