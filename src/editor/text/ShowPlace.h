// SPDX-License-Identifier: GPL-3.0-or-later
// Goes to a place of a text so that one sees what stands around it.
#pragma once

class QPlainTextEdit;
class QTextCursor;

/// In the middle of the view, unless it was in view already.
void showPlace(QPlainTextEdit& editor, const QTextCursor& place);
