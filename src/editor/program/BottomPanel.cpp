// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/BottomPanel.h"

#include "editor/program/ErrorList.h"
#include "editor/search/FindDialog.h"

#include <QKeyEvent>

BottomPanel::BottomPanel(QWidget* parent)
    : QTabWidget(parent), errors_(new ErrorList(this)), find_(new FindDialog(this)) {
    setObjectName(QStringLiteral("bottomTabs"));
    setDocumentMode(true);
    setTabPosition(QTabWidget::South);
    addTab(errors_, QString());
    addTab(find_, find_->windowTitle());
    connect(find_, &FindDialog::editorWanted, this, &BottomPanel::left);
    connect(find_, &QWidget::windowTitleChanged, this,
            [this](const QString& title) { setTabText(1, title); });
    retranslate();
}

void BottomPanel::showErrors() {
    setCurrentWidget(errors_);
}

void BottomPanel::showFind() {
    setCurrentWidget(find_);
}

bool BottomPanel::isFinding() const {
    return isVisible() && currentWidget() == find_ && find_->focusWidget() != nullptr &&
           find_->focusWidget()->hasFocus();
}

void BottomPanel::retranslate() {
    setTabText(0, tr("Output"));
    setAccessibleName(tr("Messages and finding"));
    errors_->retranslate();
}

void BottomPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QTabWidget::keyPressEvent(event);
}
