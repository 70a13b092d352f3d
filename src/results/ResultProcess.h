// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of one run. It keeps the session that made their outputs, and with it the dictionary,
// so that they can be laid out anew at any time.
#pragma once

#include "results/TableMaker.h"
#include "results/workbook/WriteOutcome.h"

#include <memory>
#include <optional>
#include <vector>

class DirectWriter;
class TKelOutput;
class TKelSession;

class ResultProcess {
public:
    /// Makes a table of each output, in order, and has those written that go straight to a file.
    ResultProcess(const std::vector<TKelOutput*>& outputs, std::shared_ptr<TKelSession> session,
                  const TableMaker& maker, const QString& stylePath, DirectWriter& direct);

    int count() const { return static_cast<int>(made_.size()); }
    TableBase* table(int index) const; ///< null out of range
    /// How the file of one of its tables went; null where it went to none.
    const WriteOutcome* direct(const TableBase& table) const;
    void rebuild(); ///< all tables anew

private:
    struct Made {
        std::unique_ptr<TableBase> table;
        std::optional<WriteOutcome> direct;
    };

    std::shared_ptr<TKelSession> session_;
    std::vector<Made> made_; ///< the tables go before the session
};
