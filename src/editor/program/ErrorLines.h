// SPDX-License-Identifier: GPL-3.0-or-later
// Where a click on a line of the error list goes.
#pragma once

#include <QString>
#include <Qt>

/// Data of a row that the window itself wrote and that names no place (a summary, a suggestion, the
/// program that runs now): true.
inline constexpr int noticeRole = Qt::UserRole + 1;

struct ErrorLineTarget {
    int line = 0;          ///< 1-based; 0 for none
    bool isNotice = false; ///< names no place, and need not
};

/// marked: the row's noticeRole. Suggestions are known without it.
ErrorLineTarget errorLineTarget(const QString& row, bool marked);
