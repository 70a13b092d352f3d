// SPDX-License-Identifier: Apache-2.0
// Compiles and runs programs against one dictionary.
#pragma once

#include "KelTypes.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class TKelDictionary;
class TKelOutput;
class TKelSpcErrorsListener;

/// The areas that a run is limited to.
class KEL_EXPORT TKelRunSelection {
public:
    explicit TKelRunSelection(std::string label);
    virtual ~TKelRunSelection();
    virtual std::string label() const; ///< empty where the whole database was processed

private:
    std::string label_;
};

/// The settings of a finished run.
class KEL_EXPORT TKelRunDefinition {
public:
    TKelRunDefinition(std::shared_ptr<TKelRunSelection> selection,
                      std::optional<std::string> universalFilter);
    virtual ~TKelRunDefinition();
    std::shared_ptr<TKelRunSelection> selection() const; ///< never null
    const std::optional<std::string>& universalFilter() const;

private:
    std::shared_ptr<TKelRunSelection> selection_;
    std::optional<std::string> universalFilter_;
};

/// Called about every 100 ms on the thread that runs; times in milliseconds, percent 0 to 100.
/// A true answer asks the engine to stop.
using TKelTimerCallback =
    std::function<bool(void*, int& expected, int& elapsed, int& percent, void*)>;

/// Made by kel::makeDefaultSession, one for each compile or run.
class KEL_EXPORT TKelSession {
public:
    TKelSession();
    TKelSession(const TKelSession&) = delete;
    TKelSession& operator=(const TKelSession&) = delete;
    virtual ~TKelSession();

    /// Runs a program (UTF-8) and blocks until it has ended. Faults go to the listener, then
    /// std::runtime_error is thrown. A cancelled run returns, with no outputs.
    void executeText(const std::string& program, void* context);

    virtual void setErrorsListener(TKelSpcErrorsListener* listener);
    virtual void setTimerCallback(TKelTimerCallback callback);  ///< an empty one removes it
    virtual void compile(const std::string& program);           ///< as executeText, without running
    virtual std::vector<TKelOutput*> outputs();                 ///< of the last run
    virtual std::shared_ptr<TKelRunDefinition> runDefinition(); ///< of the last run
    virtual TKelDictionary* dictionary();

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
