// SPDX-License-Identifier: GPL-3.0-or-later
// The tree of runs and their tables, as items.
#pragma once

#include "results/ResultProcess.h"

#include <QModelIndex>

#include <memory>
#include <vector>

class QStandardItemModel;

using ResultProcesses = std::vector<std::unique_ptr<ResultProcess>>;

/// A place in the tree: a process, or one of its tables; -1 for none.
struct ResultPlace {
    int process = -1;
    int table = -1;

    ResultPlace() = default;
    explicit ResultPlace(const QModelIndex& index);
};

/// Anew from the list: rows of the model are indexes of the lists.
void fillResultTree(QStandardItemModel& model, const ResultProcesses& processes);
/// The first table of the last process, or that process where it has none.
QModelIndex newestResult(const QStandardItemModel& model);
