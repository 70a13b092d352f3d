// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/DirectWriter.h"

#include "TKelOutput.h"
#include "results/ExportProgress.h"
#include "results/ResultFaults.h"
#include "results/exports/DirectExport.h"

#include <algorithm>

DirectWriter::DirectWriter(const KelSystem& settings, const std::vector<TKelOutput*>& outputs,
                           QWidget* parent)
    : settings_(&settings) {
    const auto files = std::count_if(outputs.begin(), outputs.end(),
                                     [](TKelOutput* output) { return output->options().direct; });
    if (files > 0)
        progress_ = std::make_unique<ExportProgress>(files, parent);
}

DirectWriter::~DirectWriter() = default;

WriteOutcome DirectWriter::write(const TableBase& table, TKelOutput& output) {
    const QString path = QString::fromStdString(output.options().outputFile);
    WriteOutcome outcome = progress_ != nullptr && progress_->beginFile(path)
                               ? DirectExport(*settings_)
                                     .write(table, output.options(), &lines_, progress_->progress())
                               : WriteOutcome{true, path, {}};
    if (!outcome.written())
        lines_ += resultFault(outcome);
    return outcome;
}

QString styleOfRun(const std::vector<TKelOutput*>& outputs) {
    const auto styled = std::find_if(outputs.begin(), outputs.end(), [](TKelOutput* output) {
        return output->options().style.has_value();
    });
    return styled == outputs.end() ? QString()
                                   : QString::fromStdString(*(*styled)->options().style);
}
