// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/WindowToolBar.h"

#include "app/ribbon/RibbonState.h"
#include "app/ribbon/WorkAreaModes.h"

WindowToolBar::WindowToolBar(tt::TabToolbar& toolbar, QMdiArea& workArea, const RibbonState& state)
    : RibbonPage(toolbar, "Window"), workArea_(workArea) {
    tt::Group& view = addGroup(tr("Tabs"));
    QAction* restore = add(view, "restore", tr("Restore"), tr("Show the windows as tabs again"));
    tt::Group& arrange = addGroup(tr("Arrange"));
    QAction* vertical =
        add(arrange, "vertical", tr("Tile vertical"), tr("Place the windows side by side"));
    QAction* horizontal = add(arrange, "horizontal", tr("Tile horizontal"),
                              tr("Place the windows above one another"));
    QAction* cascade = add(arrange, "cascade", tr("Cascade"), tr("Let the windows overlap"));
    QAction* minimize = add(arrange, "minimize", tr("Minimize All"), tr("Minimize all windows"));
    QAction* icons = add(arrange, "arrange", tr("Arrange Icons"),
                         tr("Line up the minimized windows at the bottom"));
    tt::Group& results = addGroup(tr("Results"));
    QAction* show = add(results, "results", tr("Results"), tr("Show the tables made so far"));
    show->setEnabled(state.hasResults);
    connect(show, &QAction::triggered, this, &WindowToolBar::showResults);
    connect(restore, &QAction::triggered, this, &WindowToolBar::on_restore);
    connect(vertical, &QAction::triggered, this, &WindowToolBar::on_vertical);
    connect(horizontal, &QAction::triggered, this, &WindowToolBar::on_horizontal);
    connect(cascade, &QAction::triggered, this, &WindowToolBar::on_cascade);
    connect(minimize, &QAction::triggered, this, &WindowToolBar::on_minimizeAll);
    connect(icons, &QAction::triggered, this, &WindowToolBar::on_arrangeIcons);
}

void WindowToolBar::on_vertical() {
    workarea::tileVertically(workArea_);
}

void WindowToolBar::on_horizontal() {
    workarea::tileHorizontally(workArea_);
}

void WindowToolBar::on_cascade() {
    workarea::cascade(workArea_);
}

void WindowToolBar::on_minimizeAll() {
    workarea::minimizeAll(workArea_);
}

void WindowToolBar::on_arrangeIcons() {
    workarea::arrangeIcons(workArea_);
}

void WindowToolBar::on_restore() {
    workarea::showTabs(workArea_);
}
