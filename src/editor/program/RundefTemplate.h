// SPDX-License-Identifier: GPL-3.0-or-later
// The text that the syntax clue puts in for its line "RUNDEF command": all clauses, explained.
#pragma once

#include <QString>

QString rundefTemplate();
