// SPDX-License-Identifier: Apache-2.0
// Measures any editor of plain text as a user meets it: with all that is painted in consequence.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class Editor;
class QPlainTextEdit;

/// A realistic program: definitions, tables and comments.
QString programOfLines(int lines);

/// Prints median and slowest of the rounds, in milliseconds.
void measureRepeated(
    const char* what, int rounds, const std::function<void()>& act,
    const std::function<void()>& undo = [] {});
/// Prints how long the idle program takes until it is done.
void measureUntil(const char* what, const std::function<bool()>& done);
/// Finds and replaces words that stand in nearly every line, takes it back, and indents all lines.
void measureAllLines(Editor& editor);
/// Opening the program, and typing at its start, middle and end, while its colours are still due
/// and afterwards; finished tells when no more work waits. What took longer than a user should
/// wait: opening 2 s, a key 16 ms at the median and 50 ms at worst.
QStringList measureEditor(QPlainTextEdit& editor, const QString& program,
                          const std::function<bool()>& finished);
