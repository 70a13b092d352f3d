// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/WindowPlace.h"

#include "app/settings/KelSystem.h"

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace {

QWidget& frameOf(QMainWindow& window) {
    auto* frame = qobject_cast<QMdiSubWindow*>(window.parentWidget());
    return frame != nullptr ? *frame : static_cast<QWidget&>(window);
}

} // namespace

WindowPlace::WindowPlace(KelSystem& system, QMainWindow& window, QToolBar& toolBar)
    : system_(system), window_(window), toolBar_(toolBar) {}

void WindowPlace::apply() {
    toolBar_.setVisible(system_.cmdEditorToolbar());
    window_.statusBar()->setVisible(system_.cmdEditorStatusBar());
    QTimer::singleShot(0, &window_, [place = *this]() mutable { place.applyFrame(); });
}

void WindowPlace::applyFrame() {
    QWidget& frame = frameOf(window_);
    if (frame.isMaximized() || frame.parentWidget() == nullptr)
        return;
    const QRect area = frame.parentWidget()->rect();
    const QRect wanted = system_.cmdEditorGeometry();
    frame.resize(wanted.size().boundedTo(area.size()).expandedTo(frame.minimumSizeHint()));
    if (area.contains(wanted.topLeft()))
        frame.move(wanted.topLeft());
}

void WindowPlace::write() const {
    const QWidget& frame = frameOf(window_);
    if (!frame.isMaximized())
        system_.setCmdEditorGeometry(QRect(frame.pos(), frame.size()));
    system_.setCmdEditorToolbar(!toolBar_.isHidden());
    system_.setCmdEditorStatusBar(!window_.statusBar()->isHidden());
    system_.save();
}
