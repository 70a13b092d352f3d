// SPDX-License-Identifier: GPL-3.0-or-later
// What the user prefers for tables that no style tells otherwise.
#pragma once

#include <QString>

struct TablePreferences {
    int decimals = 2;
    QString thousandSep = QStringLiteral(" ");
    /// "Name", "Label", "Alias", "NameAndLabel", "AliasAndLabel"; other words as "NameAndLabel".
    QString variableHeading = QStringLiteral("NameAndLabel");

    /// Of the stored choice: 0 blank, 1 apostrophe, 2 comma.
    static QString separatorOf(int choice);
};
