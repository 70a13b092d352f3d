// SPDX-License-Identifier: GPL-3.0-or-later
// One cell of a result table.
#pragma once

#include <QString>

struct ResultCell {
    QString raw;      ///< as it came from the dataset or was computed, in full precision
    QString display;  ///< formatted for reading
    double value = 0; ///< raw as a number; 0 where it is none
};
