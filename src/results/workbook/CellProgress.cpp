// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/CellProgress.h"

#include "results/workbook/WorkbookError.h"

namespace {
constexpr qint64 askEvery = 4000;
}

void CellProgress::add(qint64 cells) {
    done_ += cells;
    if (done_ - asked_ < askEvery)
        return;
    asked_ = done_;
    if (!mayGoOn())
        throw WritingCancelled();
}

bool CellProgress::mayGoOn() const {
    return !ask_ || ask_(done_, total_);
}
