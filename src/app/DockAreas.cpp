// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DockAreas.h"

#include <QDockWidget>
#include <QMainWindow>

namespace {

const QString treeName = QStringLiteral("Dictionary");

QList<QDockWidget*> allDocks(const QMainWindow& window) {
    return window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

/// A dock that is told how wide it would like to be, or else its content.
int wantedWidth(const QDockWidget& dock) {
    return std::max(dock.minimumWidth(), dock.sizeHint().width());
}

} // namespace

DockAreas::DockAreas(QMainWindow& window) : window_(window) {
    window_.setDockNestingEnabled(true);
    window_.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    // The docks take the whole height, up to the ribbon and down to the status bar.
    for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::BottomLeftCorner})
        window_.setCorner(corner, Qt::LeftDockWidgetArea);
    for (const Qt::Corner corner : {Qt::TopRightCorner, Qt::BottomRightCorner})
        window_.setCorner(corner, Qt::RightDockWidgetArea);
}

QList<QDockWidget*> DockAreas::docksIn(Qt::DockWidgetArea area) const {
    QList<QDockWidget*> found;
    for (QDockWidget* dock : allDocks(window_))
        if (window_.dockWidgetArea(dock) == area && !dock->isFloating())
            found += dock;
    return found;
}

void DockAreas::addLeft(QDockWidget* dock) {
    QDockWidget* tree = find(treeName);
    QDockWidget* neighbour = nullptr;
    for (QDockWidget* candidate : docksIn(Qt::LeftDockWidgetArea))
        if (candidate != tree && candidate != dock)
            neighbour = candidate;
    window_.addDockWidget(Qt::LeftDockWidgetArea, dock);
    if (tree == nullptr || tree == dock) {
        window_.resizeDocks({dock}, {wantedWidth(*dock)}, Qt::Horizontal);
    } else if (neighbour != nullptr) {
        window_.tabifyDockWidget(neighbour, dock);
    } else {
        const int treeWidth = tree->width();
        window_.splitDockWidget(tree, dock, Qt::Horizontal);
        window_.resizeDocks({tree, dock}, {treeWidth, wantedWidth(*dock)}, Qt::Horizontal);
    }
}

void DockAreas::addRight(QDockWidget* dock) {
    const QList<QDockWidget*> there = docksIn(Qt::RightDockWidgetArea);
    window_.addDockWidget(Qt::RightDockWidgetArea, dock);
    if (there.isEmpty())
        window_.resizeDocks({dock}, {wantedWidth(*dock)}, Qt::Horizontal);
    else if (!there.contains(dock))
        window_.tabifyDockWidget(there.last(), dock);
}

QDockWidget* DockAreas::find(const QString& name) const {
    return window_.findChild<QDockWidget*>(name, Qt::FindDirectChildrenOnly);
}

void DockAreas::close(const QString& name) {
    delete find(name);
}

void DockAreas::closeAll() {
    qDeleteAll(allDocks(window_));
}
