// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WorkArea.h"

#include "app/ribbon/WorkAreaModes.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QTabBar>
#include <QTimer>

WorkArea::WorkArea(QWidget* parent) : QMdiArea(parent) {
    setObjectName(QStringLiteral("workArea"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setBackground(palette().brush(QPalette::Window));
    workarea::showTabs(*this);
}

void WorkArea::toggleTabs() {
    if (viewMode() == QMdiArea::TabbedView)
        workarea::showWindows(*this);
    else
        workarea::showTabs(*this);
}

/// The tabs are made anew with each change of the mode; one alone would take the whole width.
void WorkArea::childEvent(QChildEvent* event) {
    if (auto* tabs = event->polished() ? qobject_cast<QTabBar*>(event->child()) : nullptr)
        tabs->setExpanding(false);
    QMdiArea::childEvent(event);
}

QMdiSubWindow* WorkArea::addWindow(QWidget* content) {
    QMdiSubWindow* window = addSubWindow(content);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowIcon(content->windowIcon());
    window->installEventFilter(this);
    window->show();
    updateEmptyPage();
    return window;
}

QList<QMdiSubWindow*> WorkArea::windows() const {
    QList<QMdiSubWindow*> found;
    for (QMdiSubWindow* window : subWindowList())
        if (window->widget() != nullptr)
            found += window;
    return found;
}

QMdiSubWindow* WorkArea::find(const QString& objectName) const {
    for (QMdiSubWindow* window : windows())
        if (window->objectName() == objectName || window->widget()->objectName() == objectName)
            return window;
    return nullptr;
}

bool WorkArea::isEmptyBut(const QString& objectName) const {
    return isEmpty() || (windows().size() == 1 && find(objectName) != nullptr);
}

bool WorkArea::closeModified() {
    for (QMdiSubWindow* window : windows())
        if ((window->isWindowModified() || window->widget()->isWindowModified()) &&
            !window->close())
            return false;
    return true;
}

void WorkArea::setEmptyPage(QWidget* page) {
    delete emptyPage_;
    emptyPage_ = page;
    emptyPage_->setParent(viewport());
    updateEmptyPage();
}

void WorkArea::updateEmptyPage() {
    if (emptyPage_ == nullptr)
        return;
    emptyPage_->setGeometry(viewport()->rect());
    emptyPage_->setVisible(isEmpty());
    emptyPage_->lower();
}

bool WorkArea::eventFilter(QObject* object, QEvent* event) {
    // The window has left the list only after it is gone.
    if (event->type() == QEvent::Close || event->type() == QEvent::Hide)
        QTimer::singleShot(0, this, &WorkArea::updateEmptyPage);
    return QMdiArea::eventFilter(object, event);
}

void WorkArea::changeEvent(QEvent* event) {
    // Its own background is a shade of grey, whatever the palette says.
    if (event->type() == QEvent::PaletteChange)
        setBackground(palette().brush(QPalette::Window));
    QMdiArea::changeEvent(event);
}

void WorkArea::resizeEvent(QResizeEvent* event) {
    QMdiArea::resizeEvent(event);
    updateEmptyPage();
}
