// SPDX-License-Identifier: GPL-3.0-or-later
// The dataset as it stands: a column for each field, a row for each record.
#pragma once

#include "results/tables/TableLayout.h"

class TKelOutput;

/// Fields are headed by their labels, those of one group under the group's name.
TableLayout genericLayout(TKelOutput& output);
