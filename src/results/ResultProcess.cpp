// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultProcess.h"

#include "TKelOutput.h"
#include "TKelSession.h"
#include "results/ResultLog.h"

#include <utility>

ResultProcess::ResultProcess(const std::vector<TKelOutput*>& outputs,
                             std::shared_ptr<TKelSession> session, const TableMaker& maker,
                             const QString& stylePath, const WriteProgress& progress)
    : session_(std::move(session)) {
    for (TKelOutput* output : outputs) {
        dumpOutput(*output);
        tables_.push_back(maker.make(*output, stylePath));
        if (tables_.back()->exportedDirectly())
            lines_ += maker.writeDirect(*tables_.back(), *output, progress);
    }
}

TableBase* ResultProcess::table(int index) const {
    return index >= 0 && index < count() ? tables_[static_cast<std::size_t>(index)].get() : nullptr;
}
