// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of one run. It keeps the session that made their outputs, and with it the dictionary,
// so that they can be laid out anew at any time.
#pragma once

#include "results/TableMaker.h"

#include <memory>
#include <vector>

class TKelOutput;
class TKelSession;

class ResultProcess {
public:
    /// Makes a table of each output, in order, and writes those that go straight to a file.
    /// progress is asked while a file is written; it may be empty.
    ResultProcess(const std::vector<TKelOutput*>& outputs, std::shared_ptr<TKelSession> session,
                  const TableMaker& maker, const QString& stylePath,
                  const WriteProgress& progress = {});

    int count() const { return static_cast<int>(tables_.size()); }
    TableBase* table(int index) const; ///< null out of range
    /// What is to be told of files that were not written, or elsewhere than the program says.
    const QStringList& lines() const { return lines_; }

private:
    std::shared_ptr<TKelSession> session_;
    std::vector<std::unique_ptr<TableBase>> tables_; ///< they go before the session
    QStringList lines_;
};
