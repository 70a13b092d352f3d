// SPDX-License-Identifier: Apache-2.0
// Runs a list of programs.
#pragma once

#include "KelTypes.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class TKelOutput;
class TKelSpcErrorsListener;

/// A true answer asks for a stop.
using TKelExecuteCallback = std::function<bool(void*, const TKelExecuteCallbackInfo&, void*)>;

/// Made by kel::makeExecute.
class KEL_EXPORT TKelExecute {
public:
    TKelExecute();
    TKelExecute(const TKelExecute&) = delete;
    TKelExecute& operator=(const TKelExecute&) = delete;
    virtual ~TKelExecute();

    /// Runs the text's EXECUTE commands in order and blocks. Errors as in TKelSession.
    virtual void execute(const std::string& text);
    virtual void setErrorsListener(TKelSpcErrorsListener* listener);
    virtual void setCallback(TKelExecuteCallback callback);

    // Additions of this engine.
    std::vector<TKelOutput*> outputs(); ///< of the last execute, in order

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
