// SPDX-License-Identifier: Apache-2.0
// Runs programs as the results window has them: outputs, then tables.
#pragma once

#include "results/tables/TableBase.h"

#include <filesystem>
#include <memory>
#include <string>

class TKelDictionary;
class TKelOutput;
class TKelSession;

/// The engine and the open database, from construction to destruction.
class ResultRuns {
public:
    explicit ResultRuns(const std::filesystem::path& database);
    ~ResultRuns();
    ResultRuns(const ResultRuns&) = delete;
    ResultRuns& operator=(const ResultRuns&) = delete;

    /// A session that has run the program. Throws what the engine throws.
    std::shared_ptr<TKelSession> run(const std::string& program);
    /// The table of the session's only output, with its facts; grid and report are laid out.
    std::unique_ptr<TableBase> table(TKelSession& session);

private:
    std::filesystem::path database_;
    std::shared_ptr<TKelDictionary> dictionary_;
};

/// Lays out grid and report.
void layOut(const TableBase& table);
