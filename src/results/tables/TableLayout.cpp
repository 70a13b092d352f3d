// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableLayout.h"

void HeaderRows::startRow() {
    texts.append(QStringList());
    colors.append(QStringList());
    spans.append(QList<std::pair<int, int>>());
    positions.append(QList<std::pair<int, int>>());
}

void HeaderRows::add(const QString& text, int column, int columnSpan, int rowSpan) {
    const int row = static_cast<int>(texts.size()) - 1;
    texts.last() += text;
    colors.last() += QStringLiteral("#7B7B7B");
    spans.last().append({columnSpan, rowSpan});
    positions.last().append({column, row});
}
