// SPDX-License-Identifier: GPL-3.0-or-later
// What a variable's values are and where they are stored, for reading.
#pragma once

#include <QString>

class TKpVariable;

/// Texts as they are shown; empty where the variable tells nothing.
struct TechnicalFacts {
    QString type;
    QString minimum; ///< of each range, in their order
    QString maximum;
    QString notApp;
    QString missing;
    QString file;
    bool fileExists = false;

    static TechnicalFacts of(const TKpVariable& variable);
};
