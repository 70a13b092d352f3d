// SPDX-License-Identifier: GPL-3.0-or-later
// The window of results: a list of the tables that were made, and the chosen one beside it.
#pragma once

#include "results/FrequencyTable.h"
#include "results/OutputModel.h"

#include <QSplitter>

#include <memory>
#include <variant>
#include <vector>

class FrequencyView;
class OutputView;
class QListWidget;
class QStackedWidget;

/// Frequencies own copies of their figures; the other outputs stay with the run that made them,
/// which lives as long as they are listed.
class ResultsManager : public QSplitter {
    Q_OBJECT

public:
    explicit ResultsManager(QWidget* parent = nullptr);

    /// Appends the outputs that hold figures and shows the first of them. Returns their number.
    std::size_t addOutputs(const std::vector<TKelOutput*>& outputs,
                           const std::shared_ptr<TKelSession>& session);
    int tableCount() const { return static_cast<int>(tables_.size()); }

protected:
    void changeEvent(QEvent* event) override;

private:
    using Table = std::variant<FrequencyTable, OutputTable>;

    void addTable(Table table, const QString& name, const QString& toolTip);
    void showTable(int row);
    void retranslate();

    std::vector<Table> tables_;
    QListWidget* list_;
    FrequencyView* frequency_;
    OutputView* output_;
    QStackedWidget* views_;
};
