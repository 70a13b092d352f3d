// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ErrorList.h"

#include "editor/program/ErrorLines.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

ErrorList::ErrorList(QWidget* parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("errorListWidget"));
    setContextMenuPolicy(Qt::CustomContextMenu);
    retranslate();
}

void ErrorList::retranslate() {
    setAccessibleName(tr("Messages of the program"));
}

void ErrorList::addNotice(const QString& text) {
    addItem(text);
    item(count() - 1)->setData(noticeRole, true);
}

void ErrorList::markAllAsNotices() {
    for (int row = 0; row < count(); ++row)
        item(row)->setData(noticeRole, true);
}

void ErrorList::copyAll() const {
    QStringList rows;
    for (int row = 0; row < count(); ++row)
        rows += item(row)->text();
    QGuiApplication::clipboard()->setText(rows.join(QLatin1Char('\n')));
}

void ErrorList::showMenu(const QPoint& pos) {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("errorListMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy = menu->addAction(tr("Copy error list"), this, &ErrorList::copyAll);
    copy->setObjectName(QStringLiteral("actionCopyErrorList"));
    copy->setShortcut(QKeySequence(QKeySequence::Copy));
    copy->setShortcutVisibleInContextMenu(true);
    copy->setEnabled(count() > 0);
    QAction* clear = menu->addAction(tr("Clear error list"), this, &QListWidget::clear);
    clear->setObjectName(QStringLiteral("actionClearErrorList"));
    clear->setEnabled(count() > 0);
    menu->popup(viewport()->mapToGlobal(pos));
}

bool ErrorList::event(QEvent* event) {
    // The window's own Copy is for the program text.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        event->accept();
    return QListWidget::event(event);
}

void ErrorList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyAll();
        return;
    }
    const bool chooses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (chooses && currentItem() != nullptr) {
        emit chosen(currentItem());
        return;
    }
    QListWidgetItem* before = currentItem();
    QListWidget::keyPressEvent(event);
    if (currentItem() != nullptr && currentItem() != before)
        emit passed(currentItem());
}
