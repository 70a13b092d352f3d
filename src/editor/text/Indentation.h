// SPDX-License-Identifier: GPL-3.0-or-later
// What Return, Tab and Backtab do with the blanks and tabs at the start of lines.
#pragma once

class QPlainTextEdit;

/// Breaks the line and, if asked, gives the new one the leading tabs of the old. False at the start
/// of the document, where nothing is done.
bool breakLine(QPlainTextEdit& editor, bool copyTabs);

/// Puts a tab in front of the selection and of each line in it. A line end that ends the selection
/// begins no line.
void indentSelection(QPlainTextEdit& editor);

/// Takes one level, four blanks or a tab, from the start of the cursor's line, or of each line that
/// the selection touches. Never more than leading white space.
void unindentLines(QPlainTextEdit& editor);
