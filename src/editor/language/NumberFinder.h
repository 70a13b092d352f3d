// SPDX-License-Identifier: GPL-3.0-or-later
// Finds numbers in a line. The expression alone could take hours on a hostile line: it is run on
// the few characters that a number may consist of, and not on endless ones.
#pragma once

#include <QRegularExpression>
#include <QString>

#include <functional>

class NumberFinder {
public:
    NumberFinder();

    using Found = std::function<void(qsizetype start, qsizetype length)>;
    /// Calls found for each match of expression() in the line. A row of digits and their letters
    /// that is longer than longest() has none.
    void find(QStringView line, const Found& found);

    static QString expression();
    static constexpr qsizetype longest() { return 256; }

private:
    void findIn(QStringView line, qsizetype begin, qsizetype end, const Found& found);

    QRegularExpression expression_;
    QString window_; ///< kept, so that it is not allocated for each number
};
