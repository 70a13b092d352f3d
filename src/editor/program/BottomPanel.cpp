// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/BottomPanel.h"

#include "editor/program/ErrorList.h"
#include "editor/search/FindDialog.h"

#include <QKeyEvent>
#include <QScrollArea>

namespace {

/// Some languages need more width than a small window has.
QScrollArea* pageAround(QWidget* content) {
    auto* page = new QScrollArea;
    page->setFrameShape(QFrame::NoFrame);
    page->setFocusPolicy(Qt::NoFocus);
    page->setWidgetResizable(true);
    page->setWidget(content);
    page->setMinimumHeight(content->minimumSizeHint().height());
    return page;
}

} // namespace

BottomPanel::BottomPanel(QWidget* parent)
    : QTabWidget(parent), errors_(new ErrorList(this)), find_(new FindDialog(this)),
      findPage_(pageAround(find_)) {
    setObjectName(QStringLiteral("bottomTabs"));
    setDocumentMode(true);
    setTabPosition(QTabWidget::South);
    addTab(errors_, QString());
    addTab(findPage_, find_->windowTitle());
    connect(find_, &FindDialog::editorWanted, this, &BottomPanel::left);
    connect(find_, &QWidget::windowTitleChanged, this,
            [this](const QString& title) { setTabText(1, title); });
    retranslate();
}

void BottomPanel::showErrors() {
    setCurrentWidget(errors_);
}

void BottomPanel::showFind() {
    setCurrentWidget(findPage_);
}

bool BottomPanel::isFinding() const {
    return isVisible() && currentWidget() == findPage_ && find_->focusWidget() != nullptr &&
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
