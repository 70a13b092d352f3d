// SPDX-License-Identifier: Apache-2.0
// How long a program of many lines takes to open, to type in and to change its colours.
#include "editor/text/Editor.h"
#include "editing.h"
#include "editor/language/QKelxHighlighter.h"
#include "editor/language/SyntaxStyles.h"

#include <QApplication>
#include <QFontDatabase>

#include <cstdio>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const int lines = argc > 1 ? std::max(100, std::atoi(argv[1])) : 100000;
    const QString program = programOfLines(lines);
    std::printf("%d lines, %.1f MB\n", lines, double(program.size()) / 1e6);
    EditorLook look;
    look.font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    Editor editor(look);
    const auto* highlighter = editor.document()->findChild<QKelxHighlighter*>();
    const auto coloured = [&] { return highlighter->isFinished(); };
    const QStringList faults = measureEditor(editor, program, coloured);
    measureAllLines(editor);
    measureUntil("  until all is coloured", coloured);

    int style = 0;
    measureRepeated("other colours", 9, [&] { editor.setSyntaxStyle(syntaxStyle(++style % 8)); });
    measureUntil("  until all is coloured", coloured);
    for (const QString& fault : faults)
        std::fprintf(stderr, "too slow: %s\n", qPrintable(fault));
    return faults.isEmpty() ? 0 : 1;
}
