// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/PrintProgram.h"

#include "editor/language/QKelxHighlighter.h"
#include "editor/language/QSyntaxStyle.h"
#include "editor/text/Editor.h"

#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace {

constexpr int tabWidth = 5; ///< blanks, as in the editor

} // namespace

bool askPrinter(QPrinter& printer, QWidget* parent) {
    printer.setPrinterName(QStringLiteral("Document printer"));
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

void printProgram(const Editor& editor, const QString& name, QPrinter& printer) {
    QTextDocument paper;
    paper.setDefaultFont(editor.font());
    QTextOption option = paper.defaultTextOption();
    option.setTabStopDistance(QFontMetricsF(editor.font()).horizontalAdvance(QLatin1Char(' ')) *
                              tabWidth);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    paper.setDefaultTextOption(option);
    paper.setPlainText(editor.toPlainText());
    QKelxHighlighter colors(&paper);
    colors.setSyntaxStyle(QSyntaxStyle::defaultStyle());
    colors.finish();
    printer.setDocName(name);
    paper.print(&printer);
}
