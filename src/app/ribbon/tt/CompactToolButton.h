// SPDX-License-Identifier: GPL-3.0-or-later
// A button of the ribbon: the icon above a label of two short lines, so that long labels in any
// language take little width.
#pragma once

#include <QToolButton>

namespace tt {

class CompactToolButton : public QToolButton {
    Q_OBJECT

public:
    /// Shows the action, whose menu, where it has one, opens by the mode.
    CompactToolButton(QAction* action, ToolButtonPopupMode popupMode, QWidget* parent);

    /// Two lines: broken at the blank that makes the longer line shortest where the label is wider
    /// than that many pixels and has a blank. The second line of a menu button ends in an arrow.
    static QString TwoLines(const QString& label, bool hasMenu, const QFontMetrics& metrics,
                            int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int LabelWidth() const; ///< room that every button has
    void ShowAction();

    ToolButtonPopupMode popupMode_;
};

} // namespace tt
