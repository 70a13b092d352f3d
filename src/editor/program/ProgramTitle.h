// SPDX-License-Identifier: GPL-3.0-or-later
// How documents are named on their tabs and in the title of their window.
#pragma once

#include <QString>

class Editor;

QString tabTitle(Editor& editor);   ///< marked where it is modified
QString tabToolTip(Editor& editor); ///< the whole path
/// windowWidth: in pixels; a path is shortened to it.
QString windowTitleOf(Editor& editor, int windowWidth);
