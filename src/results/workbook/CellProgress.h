// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the cells that are written and asks every few thousand of them whether to go on.
#pragma once

#include "results/workbook/WriteOutcome.h"

class CellProgress {
public:
    CellProgress(const WriteProgress& ask, qint64 total) : ask_(ask), total_(total) {}

    void add(qint64 cells); ///< throws WritingCancelled
    bool mayGoOn() const;   ///< asks at once
    qint64 total() const { return total_; }

private:
    const WriteProgress& ask_;
    qint64 total_;
    qint64 done_ = 0;
    qint64 asked_ = 0; ///< done_ when it was asked last
};
