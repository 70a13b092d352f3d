// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/DictionaryExtendTreeView.h"

#include <QKeyEvent>

namespace {

using Tree = DictionaryExtendTreeView;
using KeySignal = void (Tree::*)(const QModelIndex&);

KeySignal signalOf(const QKeyEvent& event, bool canPrint) {
    if (event.keyCombination() == QKeyCombination(Qt::Key_F3))
        return &Tree::f3_PressEntityTreeView;
    if (event.keyCombination() == QKeyCombination(Qt::Key_F8))
        return &Tree::f8_PressEntityTreeView;
    if (canPrint && event.matches(QKeySequence::Print))
        return &Tree::ctrlP_PressEntityTreeView;
    return nullptr;
}

} // namespace

bool DictionaryExtendTreeView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && currentIndex().isValid() &&
        signalOf(*static_cast<QKeyEvent*>(event), canPrint()) != nullptr) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

void DictionaryExtendTreeView::keyPressEvent(QKeyEvent* event) {
    const KeySignal signal = signalOf(*event, canPrint());
    if (signal != nullptr && currentIndex().isValid())
        emit(this->*signal)(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}
