// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/Group.h"

#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/TabToolbar.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include <algorithm>
#include <stdexcept>

namespace tt {

namespace {

int rowsInside(QWidget* parent) {
    const TabToolbar* toolbar = TabToolbar::Around(parent);
    if (toolbar == nullptr)
        throw std::runtime_error("Group should be constructed inside TabToolbar!");
    return std::max(1, toolbar->RowCount());
}

} // namespace

Group::Group(const QString& title, QWidget* parent)
    : QWidget(parent), row_(new QHBoxLayout), title_(new QLabel(title.trimmed(), this)),
      rowCount_(rowsInside(parent)) {
    setProperty("TTGroup", true);
    setAccessibleName(title.trimmed());
    title_->setProperty("TTGroupName", true);
    title_->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 1);
    layout->setSpacing(0);
    row_->setSpacing(2);
    layout->addLayout(row_, 1);
    layout->addWidget(title_);
    SizeTitle();
}

CompactToolButton* Group::AddAction(QToolButton::ToolButtonPopupMode popupMode, QAction* action) {
    auto* button = new CompactToolButton(action, popupMode, this);
    row_->addWidget(button);
    column_ = nullptr;
    TabToolbar* toolbar = TabToolbar::Around(this);
    toolbar->ListenTo(action);
    button->setIconSize(toolbar->IconSize());
    return button;
}

void Group::AddSeparator() {
    row_->addWidget(MakeSeparator(this));
    column_ = nullptr;
}

void Group::AddWidget(QWidget* widget) {
    if (column_ == nullptr || column_->count() >= rowCount_) {
        column_ = new QVBoxLayout;
        column_->setSpacing(1);
        row_->addLayout(column_);
    }
    column_->addWidget(widget);
}

QWidget* Group::MakeSeparator(QWidget* parent) {
    auto* line = new QWidget(parent);
    line->setProperty("TTSeparator", true);
    line->setAttribute(Qt::WA_StyledBackground);
    line->setFixedWidth(1);
    return line;
}

void Group::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        SizeTitle();
}

void Group::SizeTitle() {
    QFont small = font();
    if (small.pointSizeF() > 0)
        small.setPointSizeF(small.pointSizeF() * 0.85);
    else
        small.setPixelSize(small.pixelSize() * 85 / 100);
    title_->setFont(small);
}

} // namespace tt
