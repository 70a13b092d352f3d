// SPDX-License-Identifier: Apache-2.0
// How long a program of many lines takes to open, to type in and to change its colours.
#include "editing.h"
#include "editor/language/QKelxHighlighter.h"
#include "editor/language/SyntaxStyles.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <cstdio>

namespace {

/// A plain editor with the colours, as far as they are the highlighter's work.
class ColouredEdit : public QPlainTextEdit {
public:
    ColouredEdit() : highlighter_(document()) {
        setLineWrapMode(NoWrap);
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        highlighter_.setVisibleBlocks([this] {
            return qMakePair(firstVisibleBlock().blockNumber(),
                             cursorForPosition(viewport()->rect().bottomRight()).blockNumber());
        });
    }
    void setStyle(int index) {
        applyStyleColors(*this, *syntaxStyle(index));
        highlighter_.setSyntaxStyle(syntaxStyle(index));
        highlighter_.recolour();
    }
    bool isFinished() const { return highlighter_.isFinished(); }

private:
    QKelxHighlighter highlighter_;
};

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const int lines = argc > 1 ? std::max(100, std::atoi(argv[1])) : 100000;
    const QString program = programOfLines(lines);
    std::printf("%d lines, %.1f MB\n", lines, double(program.size()) / 1e6);
    ColouredEdit editor;
    const auto coloured = [&] { return editor.isFinished(); };
    measureEditor(editor, program, coloured);

    int style = 0;
    measureRepeated("other colours", 9, [&] { editor.setStyle(++style % 8); });
    measureUntil("  until all is coloured", coloured);
    return 0;
}
