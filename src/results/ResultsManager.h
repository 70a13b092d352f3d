// SPDX-License-Identifier: GPL-3.0-or-later
// The window of results: a list of the tables that were made, and the chosen one beside it.
#pragma once

#include "results/FrequencyTable.h"

#include <QSplitter>

#include <vector>

class FrequencyView;
class QListWidget;

/// Tables own copies of their figures and outlive the runs that made them.
class ResultsManager : public QSplitter {
    Q_OBJECT

public:
    explicit ResultsManager(QWidget* parent = nullptr);

    /// Appends the outputs that it can show and shows the first of them. Returns their number.
    std::size_t addOutputs(const std::vector<TKelOutput*>& outputs);
    int tableCount() const { return static_cast<int>(tables_.size()); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void showTable(int row);
    void retranslate();

    std::vector<FrequencyTable> tables_;
    QListWidget* list_;
    FrequencyView* view_;
};
