// SPDX-License-Identifier: GPL-3.0-or-later
// Colours the command language: reserved words, numbers, strings and comments. A large change is
// coloured bit by bit while the program is idle, what is in view first.
#pragma once

#include "editor/language/BlockQueue.h"
#include "editor/language/KelxScanner.h"
#include "editor/language/QStyleSyntaxHighlighter.h"

#include <QPair>
#include <QTimer>

#include <array>
#include <functional>

class QKelxHighlighter : public QStyleSyntaxHighlighter {
    Q_OBJECT

public:
    explicit QKelxHighlighter(QTextDocument* document = nullptr);

    void setSyntaxStyle(QSyntaxStyle* style) override;
    /// Gives the whole document the colours of the style, without the pause that setDocument()
    /// and rehighlight() bring to a long one.
    void recolour();
    /// Tells the numbers of the first and the last block in view when asked.
    void setVisibleBlocks(std::function<QPair<int, int>()> visible);
    /// Whether no block waits for its colours.
    bool isFinished() const { return queue_.isEmpty(); }
    void finish(); ///< colours at once what waits, for one who needs it all, as a printer does

protected:
    void highlightBlock(const QString& text) override;

private:
    void work();
    bool hasWork();
    void colourVisible();
    void colourQueued(int budget);
    bool colour(QTextBlock block); ///< whether the next block is concerned
    void markChanged(const QTextBlock& first, const QTextBlock& last);

    KelxScanner scanner_;
    std::array<QTextCharFormat, kelxTokenCount> formats_; ///< by KelxToken
    BlockQueue queue_;
    int spent_ = 0; ///< on colours since the program was idle
    QTimer idle_;
    std::function<QPair<int, int>()> visible_;
};
