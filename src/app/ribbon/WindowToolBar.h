// SPDX-License-Identifier: GPL-3.0-or-later
// The page WINDOW: how the windows of the work area stand.
#pragma once

#include "app/ribbon/RibbonPage.h"

class QMdiArea;

class WindowToolBar : public RibbonPage {
    Q_OBJECT

public:
    /// The area must outlive the ribbon.
    WindowToolBar(tt::TabToolbar& toolbar, QMdiArea& workArea);

public slots:
    void on_vertical();
    void on_horizontal();
    void on_cascade();
    void on_minimizeAll();
    void on_arrangeIcons();
    void on_restore();

private:
    QMdiArea& workArea_;
};
