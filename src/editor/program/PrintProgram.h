// SPDX-License-Identifier: GPL-3.0-or-later
// Programs on paper: black on white whatever the colour scheme of the screen.
#pragma once

class Editor;
class QPrinter;
class QString;
class QWidget;

/// Lets the user choose; false where he cancels.
bool askPrinter(QPrinter& printer, QWidget* parent);
void printProgram(const Editor& editor, const QString& name, QPrinter& printer);
