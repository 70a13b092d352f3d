// SPDX-License-Identifier: GPL-3.0-or-later
// The class of tables that suits an output.
#pragma once

#include "results/tables/TableBase.h"

#include <memory>

/// Asserts an output.
std::unique_ptr<TableBase> makeResultTable(TableSource source);
