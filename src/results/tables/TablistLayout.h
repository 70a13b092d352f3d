// SPDX-License-Identifier: GPL-3.0-or-later
// Tables side by side, under one row of headings.
#pragma once

#include "results/tables/TableLayout.h"

class TKelOutput;

TableLayout tablistLayout(TKelOutput& output);
