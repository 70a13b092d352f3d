// SPDX-License-Identifier: Apache-2.0
// What the engine asks about its setting, and of the user while it reads a dictionary.
#pragma once

#include "KelExport.h"

#include <memory>
#include <string>

/// Questions that only a user can answer. Called on the thread that called the engine.
/// An implementation throws std::runtime_error when the user refuses; the engine lets it through.
class KEL_EXPORT TKelUIProvider {
public:
    virtual ~TKelUIProvider();
    /// The password of the protected database dbName.
    virtual std::string promptPassword(const std::string& dbName) = 0;
    /// The folder that holds the data files of dbName.
    virtual std::string pickDataDir(const std::string& dbName) = 0;
};

/// The engine's setting, given to kel::init and alive until kel::destroy.
class KEL_EXPORT TKelConfig {
public:
    virtual ~TKelConfig();
    virtual std::string engineCode() = 0;   ///< key of the setting
    virtual bool stopAtWarnings() = 0;      ///< warnings end a compilation
    virtual std::string pluginFolder() = 0; ///< folder of extensions; not used, there are none
    virtual bool autoWeight() = 0;          ///< weight variables apply by themselves
    virtual int defaultQuantiles() = 0;     ///< not used: the language says that there are 4
    virtual bool showProgress() = 0;        ///< call the timer callback
    virtual std::string workFolder() = 0;   ///< not used: files are made where they are to stand
    virtual int memoryLimit() = 0;          ///< not used: kept variables take what they need
    virtual bool sensitiveByDefault() = 0;  ///< not used: cells are hidden where SENSITIVE says so
    virtual bool tab_show_intermediate();   ///< tables used only by others are outputs too
    virtual bool strictTypes() = 0;         ///< not used: the language converts as it says
    virtual std::shared_ptr<TKelUIProvider> uiProvider() = 0;
};
