// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/QKelxHighlighter.h"

#include "editor/language/QSyntaxStyle.h"
#include "editor/language/QUtils.h"

#include <QTextDocument>
#include <QTextLayout>

#include <limits>

namespace {

/// Characters coloured before other work has its turn: a few milliseconds.
constexpr int turnBudget = 60000;

int cost(const QTextBlock& block) {
    return block.length() + 20;
}

constexpr int commentState = 1;

} // namespace

QKelxHighlighter::QKelxHighlighter(QTextDocument* document)
    : QStyleSyntaxHighlighter(document), scanner_(QUtils::reservedWords()) {
    idle_.setSingleShot(true);
    idle_.setInterval(0);
    connect(&idle_, &QTimer::timeout, this, &QKelxHighlighter::work);
    QKelxHighlighter::setSyntaxStyle(syntaxStyle());
}

void QKelxHighlighter::setSyntaxStyle(QSyntaxStyle* style) {
    QStyleSyntaxHighlighter::setSyntaxStyle(style);
    static constexpr std::array names{"", "Keyword", "Number", "String", "Comment"};
    for (std::size_t i = 1; i < names.size(); ++i)
        formats_[i] =
            style != nullptr ? style->getFormat(QLatin1String(names[i])) : QTextCharFormat();
}

void QKelxHighlighter::setVisibleBlocks(std::function<QPair<int, int>()> visible) {
    visible_ = std::move(visible);
}

void QKelxHighlighter::recolour() {
    if (document() == nullptr)
        return;
    queue_.clear();
    queue_.add(document()->firstBlock());
    queue_.add(document()->lastBlock());
    work();
}

void QKelxHighlighter::finish() {
    spent_ = 0;
    if (hasWork())
        colourQueued(std::numeric_limits<int>::max());
}

void QKelxHighlighter::highlightBlock(const QString& text) {
    if (!idle_.isActive())
        idle_.start();
    if (spent_ >= turnBudget) {
        queue_.add(currentBlock()); // its state stays, so that nobody goes on from here yet
        return;
    }
    spent_ += cost(currentBlock());
    bool inComment = previousBlockState() == commentState;
    for (const KelxRun& run : scanner_.scan(text, inComment))
        setFormat(run.start, run.length, formats_[std::size_t(run.token)]);
    setCurrentBlockState(inComment ? commentState : 0);
}

void QKelxHighlighter::work() {
    spent_ = 0;
    if (!hasWork())
        return;
    colourVisible();
    colourQueued(turnBudget);
    if (!isFinished())
        idle_.start();
}

/// What waits in a document that is no longer ours is forgotten.
bool QKelxHighlighter::hasWork() {
    if (!isFinished() && queue_.first().document() != document())
        queue_.clear();
    return !isFinished();
}

void QKelxHighlighter::colourVisible() {
    if (!visible_)
        return;
    const auto [first, last] = visible_();
    const QTextBlock begin = document()->findBlockByNumber(first);
    QTextBlock done;
    for (QTextBlock block = begin; block.isValid() && block.blockNumber() <= last;
         block = block.next())
        if (queue_.holds(block)) {
            colour(block);
            done = block;
        }
    if (done.isValid())
        markChanged(begin, done);
}

void QKelxHighlighter::colourQueued(int budget) {
    const QTextBlock first = queue_.first();
    QTextBlock block = first;
    while (true) {
        const bool goesOn = colour(block);
        budget -= cost(block);
        const QTextBlock next = block.next();
        const bool more = next.isValid() && (goesOn || queue_.holds(next));
        if (!more || budget <= 0) {
            queue_.advanceTo(more ? next : QTextBlock());
            break;
        }
        block = next;
    }
    markChanged(first, block);
}

/// Whether the next block is concerned. Setting the formats by ourselves lets the layout hear of
/// many blocks at once.
bool QKelxHighlighter::colour(QTextBlock block) {
    const int before = block.userState();
    if (!block.layout()->preeditAreaText().isEmpty()) {
        rehighlightBlock(block); // which knows how to leave out what is still being composed
        return block.userState() != before;
    }
    bool inComment = block.previous().userState() == commentState;
    QList<QTextLayout::FormatRange> ranges;
    for (const KelxRun& run : scanner_.scan(block.text(), inComment)) {
        const QTextCharFormat& format = formats_[std::size_t(run.token)];
        if (!format.isEmpty())
            ranges.append({run.start, run.length, format});
    }
    block.layout()->setFormats(ranges);
    block.setUserState(inComment ? commentState : 0);
    return block.userState() != before;
}

void QKelxHighlighter::markChanged(const QTextBlock& first, const QTextBlock& last) {
    const int from = first.position();
    document()->markContentsDirty(from, last.position() + last.length() - from);
}
