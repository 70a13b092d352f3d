// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/FactComboBox.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

FactComboBox::FactComboBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::NoFocus);
    // A long name must not make the dock wide.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(5);
}

void FactComboBox::showOnly(const QString& text) {
    clear();
    if (!text.isEmpty())
        addItem(text);
}

bool FactComboBox::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel: // scrolls the page instead
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        event->ignore();
        return false;
    case QEvent::ToolTip:
        // There is no list in which a name that is cut off could be read whole.
        if (fontMetrics().horizontalAdvance(currentText()) > width()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                               currentText().toHtmlEscaped(), this);
            return true;
        }
        return QComboBox::event(event);
    default:
        return QComboBox::event(event);
    }
}

void FactComboBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(currentText(), Qt::ElideRight, width());
    const auto side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    style()->drawItemText(&painter, rect(), static_cast<int>(side), palette(), isEnabled(), shown,
                          QPalette::WindowText);
}
