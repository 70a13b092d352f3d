// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as a cell of a workbook can hold them.
#pragma once

#include <QByteArray>
#include <QString>

struct WorkbookText {
    static constexpr qsizetype maxLength = 32767; ///< UTF-16 units that a cell holds

    explicit WorkbookText(const QString& text);

    QByteArray utf8;    ///< without NUL and what XML forbids; control characters are left in
    bool isCut = false; ///< the text was longer than a cell holds
};
