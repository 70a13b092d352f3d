// SPDX-License-Identifier: Apache-2.0
// The engine's free functions and, with it, the whole boundary.
#pragma once

#include "KelTypes.h"
#include "TKelConfig.h"
#include "TKelDataset.h"
#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "TKelExecute.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "TKelSpcErrorsListener.h"
#include "TKelVariable.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kel {

/// Starts the engine; the first call. The configuration stays valid until destroy.
KEL_EXPORT void init(std::shared_ptr<TKelConfig> config);
/// Language of the engine's texts; "en".
KEL_EXPORT void setupLocale(const std::string& locale);
/// Ends the engine; the last call. Objects that are still held may only be released afterwards.
KEL_EXPORT void destroy();
KEL_EXPORT std::string version();

/// Opens a .kxdb or .dicx file (path in UTF-8). Throws std::exception with a text for the user.
/// May ask the UI provider for a password or for the data folder.
KEL_EXPORT std::shared_ptr<TKelDictionary> readDictionary(const std::string& path,
                                                          _validation_context* context, bool flag);
/// Writes the form that the extension tells, .kxdb where it tells none.
KEL_EXPORT void saveDictionary(const std::shared_ptr<TKelDictionary>& dictionary,
                               const std::string& path);
KEL_EXPORT std::shared_ptr<TKelSession>
makeDefaultSession(const std::shared_ptr<TKelDictionary>& dictionary);
KEL_EXPORT std::shared_ptr<TKelExecute>
makeExecute(const std::shared_ptr<TKelDictionary>& dictionary);

/// Runs the function on this thread; returns the seconds that it took.
KEL_EXPORT double measureTime(const std::function<void()>& function);

KEL_EXPORT const std::string errorCodeName(eSpcErrors code);
KEL_EXPORT const std::string warningCodeName(eSpcWarnings code);
/// The language's reserved words, in lower case.
KEL_EXPORT const std::vector<std::string> reservedWords();
KEL_EXPORT bool isReserved(const std::string& word); ///< in any case

KEL_EXPORT std::int64_t variant_to_int64(const TKelVariant& value); ///< 0 for text without number
KEL_EXPORT double variant_to_double(const TKelVariant& value);
KEL_EXPORT std::string variant_to_string(const TKelVariant& value);

namespace tools {
/// Checks a database; the report's rows are its findings.
KEL_EXPORT std::shared_ptr<TKelDataset> databaseConsistency(const std::string& dictionaryPath);
} // namespace tools

} // namespace kel
