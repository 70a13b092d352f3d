// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/WorkAreaModes.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace workarea {

namespace {

QList<QMdiSubWindow*> shownWindows(const QMdiArea& area) {
    QList<QMdiSubWindow*> windows = area.subWindowList();
    windows.removeIf([](const QMdiSubWindow* window) { return window->isHidden(); });
    return windows;
}

/// All windows in their normal size, so that an arrangement has none left out.
QList<QMdiSubWindow*> freeWindows(QMdiArea& area) {
    showWindows(area);
    const QList<QMdiSubWindow*> windows = shownWindows(area);
    for (QMdiSubWindow* window : windows)
        window->showNormal();
    return windows;
}

/// The border of part i of n along a length; the parts cover it without a gap.
int border(int length, qsizetype i, qsizetype n) {
    return static_cast<int>(length * i / n);
}

} // namespace

void showTabs(QMdiArea& area) {
    for (QMdiSubWindow* window : shownWindows(area))
        if (window->isMinimized())
            window->showNormal();
    area.setViewMode(QMdiArea::TabbedView);
    area.setTabsClosable(true);
    area.setTabsMovable(true);
    area.setTabShape(QTabWidget::Rounded);
}

void showWindows(QMdiArea& area) {
    area.setViewMode(QMdiArea::SubWindowView);
}

void tileVertically(QMdiArea& area) {
    const QList<QMdiSubWindow*> windows = freeWindows(area);
    const QSize room = area.viewport()->size();
    for (qsizetype i = 0; i < windows.size(); ++i) {
        const int left = border(room.width(), i, windows.size());
        const int right = border(room.width(), i + 1, windows.size());
        windows[i]->setGeometry(left, 0, right - left, room.height());
    }
}

void tileHorizontally(QMdiArea& area) {
    const QList<QMdiSubWindow*> windows = freeWindows(area);
    const QSize room = area.viewport()->size();
    for (qsizetype i = 0; i < windows.size(); ++i) {
        const int top = border(room.height(), i, windows.size());
        const int bottom = border(room.height(), i + 1, windows.size());
        windows[i]->setGeometry(0, top, room.width(), bottom - top);
    }
}

void cascade(QMdiArea& area) {
    freeWindows(area);
    area.cascadeSubWindows();
}

void minimizeAll(QMdiArea& area) {
    showWindows(area);
    for (QMdiSubWindow* window : shownWindows(area))
        window->showMinimized();
    arrangeIcons(area);
}

void arrangeIcons(QMdiArea& area) {
    const QSize room = area.viewport()->size();
    int x = 0;
    int bottom = room.height();
    for (QMdiSubWindow* window : shownWindows(area)) {
        if (!window->isMinimized())
            continue;
        if (x > 0 && x + window->width() > room.width()) {
            x = 0;
            bottom -= window->height();
        }
        window->move(x, bottom - window->height());
        x += window->width();
    }
}

} // namespace workarea
