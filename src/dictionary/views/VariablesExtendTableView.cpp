// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariablesExtendTableView.h"

#include <QKeyEvent>

namespace {

using Table = VariablesExtendTableView;
using KeySignal = void (Table::*)();

KeySignal signalOf(const QKeyEvent& event) {
    if (event.matches(QKeySequence::SelectAll))
        return &Table::signalSelectallVariablesTableView;
    if (event.modifiers() != Qt::NoModifier)
        return nullptr;
    switch (event.key()) {
    case Qt::Key_F2:
        return &Table::signalKeyF2PressVariablesTableView;
    case Qt::Key_F3:
        return &Table::signalKeyF3PressVariablesTableView;
    case Qt::Key_F8:
        return &Table::signalKeyF8PressVariablesTableView;
    case Qt::Key_Delete:
        return &Table::signalKeyDeletePressVariablesTableView;
    default:
        return nullptr;
    }
}

} // namespace

bool VariablesExtendTableView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        signalOf(*static_cast<QKeyEvent*>(event)) != nullptr) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void VariablesExtendTableView::keyPressEvent(QKeyEvent* event) {
    if (const KeySignal signal = signalOf(*event))
        emit(this->*signal)();
    else
        QTableView::keyPressEvent(event);
}
