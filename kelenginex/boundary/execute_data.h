// SPDX-License-Identifier: Apache-2.0
// What a list of programs is run with.
#pragma once

#include "TKelDictionary.h"
#include "TKelExecute.h"

#include <memory>

struct TKelExecute::Data {
    std::shared_ptr<TKelDictionary> dictionary;
    TKelSpcErrorsListener* listener = nullptr;
    TKelExecuteCallback callback;
};
