// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultProcess.h"

#include "TKelOutput.h"
#include "TKelSession.h"
#include "results/DirectWriter.h"
#include "results/ResultLog.h"

#include <algorithm>
#include <utility>

ResultProcess::ResultProcess(const std::vector<TKelOutput*>& outputs,
                             std::shared_ptr<TKelSession> session, const TableMaker& maker,
                             const QString& stylePath, DirectWriter& direct)
    : session_(std::move(session)) {
    for (TKelOutput* output : outputs) {
        dumpOutput(*output);
        Made& made = made_.emplace_back();
        made.table = maker.make(*output, stylePath);
        if (made.table->exportedDirectly())
            made.direct = direct.write(*made.table, *output);
    }
}

TableBase* ResultProcess::table(int index) const {
    return index >= 0 && index < count() ? made_[static_cast<std::size_t>(index)].table.get()
                                         : nullptr;
}

const WriteOutcome* ResultProcess::direct(const TableBase& table) const {
    const auto made = std::find_if(made_.begin(), made_.end(),
                                   [&](const Made& one) { return one.table.get() == &table; });
    return made != made_.end() && made->direct ? &*made->direct : nullptr;
}

void ResultProcess::rebuild() {
    for (const Made& made : made_)
        made.table->rebuild();
}
