// SPDX-License-Identifier: GPL-3.0-or-later
// A dock that tells of its closing and resizing.
// Who owns it may so refuse the closing or remember the size.
#pragma once

#include <QDockWidget>

class ClosableQDockedWidget : public QDockWidget {
    Q_OBJECT

public:
    using QDockWidget::QDockWidget;

signals:
    void resizeEventCall(int width, int height); ///< pixels
    /// The event is accepted by then; whoever ignores it keeps the dock open. Connect directly: the
    /// event lives only as long as the call.
    void closeEventCall(QCloseEvent* event);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};
