// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the words of a document while it is edited, by looking only at the lines that changed.
#pragma once

#include <QObject>
#include <QStringView>

#include <vector>

class QTextDocument;

/// White space ends a word and ASCII letters and digits make one; anything else is passed over, so
/// that "a,b" is one word and "a , b" two.
int countWords(QStringView text);

/// No word spans a line end, so the words of the lines add up to those of the document.
class WordCounter : public QObject {
    Q_OBJECT

public:
    /// Follows the document, which must outlive it.
    explicit WordCounter(QTextDocument& document);

    int words() const { return total_; }

private:
    void recount(int position, int removed, int added);
    void replaceCounts(int first, int oldEnd, int newEnd);

    QTextDocument& document_;
    std::vector<int> counts_; ///< by line
    int total_ = 0;
};
