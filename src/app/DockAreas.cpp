// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DockAreas.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

#include <algorithm>

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
        treeWidth_ = wantedWidth(*dock);
        setWidths({dock}, {treeWidth_});
    } else if (neighbour != nullptr) {
        window_.tabifyDockWidget(neighbour, dock);
        keepTabTitles();
    } else {
        window_.splitDockWidget(tree, dock, Qt::Horizontal);
        setWidths({tree, dock}, {treeWidth_, wantedWidth(*dock)});
    }
}

/// Short names stay whole beside long ones; what does not fit can be scrolled to.
void DockAreas::keepTabTitles() {
    for (QTabBar* bar : window_.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        bar->setElideMode(Qt::ElideNone);
        bar->setUsesScrollButtons(true);
    }
}

void DockAreas::setWidths(const QList<QDockWidget*>& docks, const QList<int>& widths) {
    const QList<QPointer<QDockWidget>> guarded(docks.begin(), docks.end());
    // Docks that are new get their places, and their content its size, only with the next events.
    QTimer::singleShot(0, &window_, [&window = window_, guarded, widths] {
        QList<QDockWidget*> present;
        for (const QPointer<QDockWidget>& dock : guarded)
            if (dock)
                present += dock;
        if (present.size() == widths.size())
            window.resizeDocks(present, widths, Qt::Horizontal);
    });
}

void DockAreas::addRight(QDockWidget* dock) {
    const QList<QDockWidget*> there = docksIn(Qt::RightDockWidgetArea);
    window_.addDockWidget(Qt::RightDockWidgetArea, dock);
    if (there.isEmpty())
        setWidths({dock}, {wantedWidth(*dock)});
    else if (!there.contains(dock))
        window_.tabifyDockWidget(there.last(), dock);
}

QDockWidget* DockAreas::find(const QString& name) const {
    return window_.findChild<QDockWidget*>(name, Qt::FindDirectChildrenOnly);
}

void DockAreas::close(const QString& name) {
    if (QDockWidget* dock = find(name))
        remove(*dock);
}

void DockAreas::closeAllBut(const QDockWidget* kept) {
    for (QDockWidget* dock : allDocks(window_))
        if (dock != kept)
            remove(*dock);
}

/// It may be within its own close event, and goes with the next events; nobody finds it any more.
void DockAreas::remove(QDockWidget& dock) {
    dock.hide();
    window_.removeDockWidget(&dock);
    dock.setObjectName(QString());
    dock.deleteLater();
}
