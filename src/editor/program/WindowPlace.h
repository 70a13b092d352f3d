// SPDX-License-Identifier: GPL-3.0-or-later
// Where a program window stands and which of its bars show, from one window to the next.
#pragma once

class KelSystem;
class QMainWindow;
class QToolBar;

class WindowPlace {
public:
    WindowPlace(KelSystem& system, QMainWindow& window, QToolBar& toolBar);

    /// The place once the window stands in its frame; the bars at once. A frame that fills the work
    /// area keeps doing so.
    void apply();
    void write() const;

private:
    void applyFrame();

    KelSystem& system_;
    QMainWindow& window_;
    QToolBar& toolBar_;
};
