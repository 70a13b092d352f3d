// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of a style for the whole application: the ribbon's sheet and everyone's palette.
#pragma once

#include <QString>

namespace tt {
class TabToolbar;
}

/// The name of a style by its place in the list; the first one for a place outside of it.
QString ribbonStyleName(int menuColor);
void applyRibbonStyle(tt::TabToolbar& toolbar, int menuColor);
