// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TablePreferences.h"

QString TablePreferences::separatorOf(int choice) {
    if (choice == 1)
        return QStringLiteral("'");
    return choice == 2 ? QStringLiteral(",") : QStringLiteral(" ");
}
