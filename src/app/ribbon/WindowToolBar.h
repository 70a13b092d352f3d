// SPDX-License-Identifier: GPL-3.0-or-later
// The page WINDOW: how the windows of the work area stand.
#pragma once

#include "app/ribbon/RibbonPage.h"

class QMdiArea;
struct RibbonState;

class WindowToolBar : public RibbonPage {
    Q_OBJECT

public:
    /// The area must outlive the ribbon.
    WindowToolBar(tt::TabToolbar& toolbar, QMdiArea& workArea, const RibbonState& state);

public slots:
    void on_vertical();
    void on_horizontal();
    void on_cascade();
    void on_minimizeAll();
    void on_arrangeIcons();
    void on_restore();

signals:
    void showResults(); ///< brings the window of results back

private:
    QMdiArea& workArea_;
};
