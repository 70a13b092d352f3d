// SPDX-License-Identifier: Apache-2.0
#include "TKelExecute.h"

#include "boundary/execute_data.h"

#include <stdexcept>

TKelExecute::TKelExecute() : d(std::make_unique<Data>()) {}

TKelExecute::~TKelExecute() = default;

void TKelExecute::execute(const std::string& /*text*/) {
    throw std::runtime_error("EXECUTE is not supported yet");
}

void TKelExecute::setErrorsListener(TKelSpcErrorsListener* listener) {
    d->listener = listener;
}

void TKelExecute::setCallback(TKelExecuteCallback callback) {
    d->callback = std::move(callback);
}

std::vector<TKelOutput*> TKelExecute::outputs() {
    return {};
}
