// SPDX-License-Identifier: GPL-3.0-or-later
// How the text of a cell is shown: figures with groups and decimals, markers by their words.
#pragma once

#include <QString>

#include <string_view>

struct FormattedCell {
    QString display;
    bool isText = false;  ///< the column is aligned left
    bool isTotal = false; ///< the row is one of totals
};

/// "Total" for "__tot__", "MV" for "__mv__", "NA" for "__na__" (substrings); empty for other texts.
QString markerName(std::string_view text);

struct CellFormat {
    int decimals = 2;
    QString separator = QStringLiteral(","); ///< of groups of thousands; empty for none
    /// Texts that are no number are read once more without blanks, apostrophes and commas.
    bool readsGrouped = true;

    /// A figure, or a text where it is none.
    FormattedCell format(std::string_view raw) const;
    /// Of a column that holds codes and labels: nothing in it is a figure.
    static FormattedCell formatText(std::string_view raw);
};
