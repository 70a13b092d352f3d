// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/CompactToolButton.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace tt {

namespace {

const QChar arrow(0x25BE);

int width(const QFontMetrics& metrics, const QString& line) {
    return metrics.horizontalAdvance(line);
}

/// Where the label breaks best; -1 where it has no blank.
qsizetype bestBreak(const QString& label, const QFontMetrics& metrics) {
    qsizetype best = -1;
    int bestWidth = 0;
    for (qsizetype at = label.indexOf(' '); at >= 0; at = label.indexOf(' ', at + 1)) {
        const int longer =
            std::max(width(metrics, label.left(at)), width(metrics, label.mid(at + 1)));
        if (best < 0 || longer < bestWidth) {
            best = at;
            bestWidth = longer;
        }
    }
    return best;
}

} // namespace

CompactToolButton::CompactToolButton(QAction* action, ToolButtonPopupMode popupMode,
                                     QWidget* parent)
    : QToolButton(parent), popupMode_(popupMode) {
    // A click on the ribbon leaves the focus where the user works.
    setFocusPolicy(Qt::TabFocus);
    setProperty("class", QStringLiteral("TTToolButtonStyle"));
    setObjectName(action->objectName());
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setDefaultAction(action);
    ShowAction();
}

QString CompactToolButton::TwoLines(const QString& label, bool hasMenu, const QFontMetrics& metrics,
                                    int width) {
    const qsizetype at =
        metrics.horizontalAdvance(label) > width ? bestBreak(label, metrics) : qsizetype(-1);
    QString first = label;
    QString second;
    if (at >= 0) {
        first = label.left(at);
        second = label.mid(at + 1);
    }
    if (hasMenu)
        second += second.isEmpty() ? QString(arrow) : QString(' ') + arrow;
    // An empty second line would not count for the height.
    return first + '\n' + (second.isEmpty() ? QString(QChar::Nbsp) : second);
}

int CompactToolButton::LabelWidth() const {
    return 3 * fontMetrics().height();
}

QSize CompactToolButton::sizeHint() const {
    return QToolButton::sizeHint().expandedTo({LabelWidth() + fontMetrics().height() / 2, 0});
}

void CompactToolButton::actionEvent(QActionEvent* event) {
    QToolButton::actionEvent(event);
    ShowAction();
}

void CompactToolButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        ShowAction();
}

void CompactToolButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->ignore(); // the page moves the focus
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (defaultAction()->menu() != nullptr && popupMode_ == InstantPopup)
            showMenu();
        else
            click();
        break;
    default:
        QToolButton::keyPressEvent(event);
    }
}

void CompactToolButton::ShowAction() {
    const QAction* action = defaultAction();
    if (action == nullptr)
        return;
    const bool hasMenu = action->menu() != nullptr;
    // A tool button whose action has a menu takes a mode of its own, and stays enabled.
    setPopupMode(popupMode_);
    setEnabled(action->isEnabled());
    setText(TwoLines(action->iconText(), hasMenu, fontMetrics(), LabelWidth()));
    setAccessibleName(action->iconText());
    setAccessibleDescription(action->toolTip());
}

} // namespace tt
