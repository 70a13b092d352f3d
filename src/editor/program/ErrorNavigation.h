// SPDX-License-Identifier: GPL-3.0-or-later
// Leads from a row of the error list to its place in the editor.
#pragma once

class Editor;
class QListWidgetItem;

/// The first row is a summary and takes the mark away. A row without a readable place is told to
/// the user where that is unexpected.
void goToErrorOf(const QListWidgetItem& item, Editor& editor);
/// The same, silent: shows the place of the row while the user goes through the list.
void showErrorOf(const QListWidgetItem& item, Editor& editor);
