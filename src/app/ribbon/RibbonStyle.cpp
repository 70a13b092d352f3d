// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/RibbonStyle.h"

#include "app/ribbon/tt/Style.h"
#include "app/ribbon/tt/TabToolbar.h"

#include <QApplication>
#include <QToolTip>

QString ribbonStyleName(int menuColor) {
    const QStringList names = tt::StyleNames();
    return names.value(menuColor, names.constFirst());
}

void applyRibbonStyle(tt::TabToolbar& toolbar, int menuColor) {
    const QString name = ribbonStyleName(menuColor);
    const QPalette palette = tt::palette(name);
    // A new palette repaints every widget, and the ribbon is rebuilt often.
    if (QApplication::palette() != palette) {
        QApplication::setPalette(palette);
        QToolTip::setPalette(palette);
    }
    toolbar.SetStyle(name);
}
