// SPDX-License-Identifier: GPL-3.0-or-later
// The arrangements of the windows of a work area: as tabs, or as windows of their own, tiled,
// cascaded or minimised. Hidden windows stay hidden and out of the count.
#pragma once

class QMdiArea;

namespace workarea {

/// Tabs that can be closed and moved.
void showTabs(QMdiArea& area);
void showWindows(QMdiArea& area);
/// Side by side, each as high as the area.
void tileVertically(QMdiArea& area);
/// Above one another, each as wide as the area.
void tileHorizontally(QMdiArea& area);
void cascade(QMdiArea& area);
void minimizeAll(QMdiArea& area);
/// Minimised windows go to the bottom, in rows from the left; the others stay.
void arrangeIcons(QMdiArea& area);

} // namespace workarea
