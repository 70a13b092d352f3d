// SPDX-License-Identifier: GPL-3.0-or-later
// Knows where searches began, and so when one has come round; follows what replacing does to the
// text meanwhile.
#pragma once

#include <QHash>
#include <QString>

/// Positions in a document.
struct Match {
    int start = 0;
    int end = 0;
};

class SearchRounds {
public:
    void forget() { rounds_.clear(); }
    /// A match for the query, looked for from that cursor. Whether it is news: otherwise all have
    /// been shown.
    bool takes(const QString& query, int cursor, Match match);
    /// Where the query's round began.
    int begin(const QString& query) const { return rounds_.value(query).begin; }
    void follow(int position, int removed, int added);

private:
    struct Round {
        int begin = 0;         ///< the cursor before the first match
        Match first;           ///< or what stands in its place
        bool replaced = false; ///< something else stands there
    };

    QHash<QString, Round> rounds_;
};
