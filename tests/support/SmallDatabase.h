// SPDX-License-Identifier: GPL-3.0-or-later
// A database small enough to count by hand.
//
// COUNTRY (1) > DISTRICT (2) > HOUSEHOLD (3) > PERSON (7)
//
//   district  household  weight  rooms  persons' SEX
//   01 North  1          1.5     2      1 2 2
//   01        2          2       3      2 2
//   02 South  3          1       2      1 9
//
// SEX: 1 Male, 2 Female, 9 not stated (missing). Weighted by the household: Male 2.5, Female 7,
// missing 1, valid total 9.5.
#pragma once

#include <QString>

/// Writes small.kxdb, small.dicx and the data files into the folder. With a password, small.kxdb is
/// protected and small.dicx is left out.
void writeSmallDatabase(const QString& folder, const QString& password = {});
