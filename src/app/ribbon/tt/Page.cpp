// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/Page.h"

#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/Group.h"
#include "app/ribbon/tt/TabToolbar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <stdexcept>

namespace tt {

namespace {

QWidget* insideToolbar(QWidget* parent) {
    if (TabToolbar::Around(parent) == nullptr)
        throw std::runtime_error("Page should be constructed inside TabToolbar!");
    return parent;
}

/// Shows a part of the row of groups. The wheel moves it sideways; keys are the page's.
class Strip : public QScrollArea {
public:
    explicit Strip(QWidget* content, QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidgetResizable(true);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setWidget(content);
    }
    QSize minimumSizeHint() const override { return {0, widget()->minimumSizeHint().height()}; }

protected:
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void wheelEvent(QWheelEvent* event) override {
        const QPoint turn = event->angleDelta();
        const int distance = turn.x() != 0 ? turn.x() : turn.y();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - distance);
        event->accept();
    }
};

} // namespace

Page::Page(int index, const QString& title, QWidget* parent)
    : QWidget(insideToolbar(parent)), index_(index), content_(new QWidget) {
    setProperty("TTPage", true);
    setAttribute(Qt::WA_StyledBackground);
    SetTitle(title);
    groups_ = new QHBoxLayout(content_);
    groups_->setContentsMargins(4, 0, 4, 0);
    groups_->setSpacing(4);
    groups_->addStretch();
    content_->setProperty("TTStrip", true);
    area_ = new Strip(content_, this);
    back_ = MakeScrollButton(Qt::LeftArrow, -1);
    forward_ = MakeScrollButton(Qt::RightArrow, 1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(back_);
    layout->addWidget(area_);
    layout->addWidget(forward_);
    connect(area_->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &Page::UpdateScrollButtons);
    connect(area_->horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            &Page::UpdateScrollButtons);
}

QToolButton* Page::MakeScrollButton(Qt::ArrowType arrow, int direction) {
    auto* button = new QToolButton(this);
    button->setProperty("TTScroll", true);
    button->setObjectName(direction < 0 ? QStringLiteral("scrollBack")
                                        : QStringLiteral("scrollForward"));
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the focus scrolls by itself
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    button->setAccessibleName(direction < 0 ? tr("Scroll back") : tr("Scroll forward"));
    button->setToolTip(button->accessibleName());
    button->hide();
    connect(button, &QToolButton::clicked, this, [this, direction] {
        QScrollBar* bar = area_->horizontalScrollBar();
        bar->setValue(bar->value() + direction * bar->pageStep() / 2);
    });
    return button;
}

Group* Page::AddGroup(const QString& title) {
    auto* group = new Group(title, content_);
    const int end = groups_->count() - 1; // before the stretch
    groups_->insertWidget(end, group);
    groups_->insertWidget(end + 1, Group::MakeSeparator(content_));
    return group;
}

void Page::Hide() {
    emit Hiding(index_);
}

void Page::Show() {
    emit Showing(index_);
}

void Page::SetContentVisible(bool visible) {
    area_->setVisible(visible);
    UpdateScrollButtons();
}

void Page::SetTitle(const QString& title) {
    setAccessibleName(title.trimmed());
}

int Page::ContentWidth() const {
    return content_->minimumSizeHint().width();
}

QSize Page::minimumSizeHint() const {
    return {0, content_->minimumSizeHint().height()};
}

void Page::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    UpdateScrollButtons();
}

bool Page::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        UpdateScrollButtons();
    return done;
}

void Page::UpdateScrollButtons() {
    // The page's own width decides: the strip's changes with the buttons.
    const bool tooNarrow = !area_->isHidden() && ContentWidth() > width();
    const QScrollBar* bar = area_->horizontalScrollBar();
    back_->setVisible(tooNarrow);
    forward_->setVisible(tooNarrow);
    back_->setEnabled(bar->value() > bar->minimum());
    forward_->setEnabled(bar->value() < bar->maximum());
}

QList<CompactToolButton*> Page::Buttons() const {
    QList<CompactToolButton*> buttons = findChildren<CompactToolButton*>();
    buttons.removeIf([](const CompactToolButton* button) { return !button->isEnabled(); });
    return buttons;
}

CompactToolButton* Page::FirstButton() const {
    return Buttons().value(0);
}

void Page::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        MoveFocus(-1);
        break;
    case Qt::Key_Right:
        MoveFocus(1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Page::MoveFocus(int step) {
    const QList<CompactToolButton*> buttons = Buttons();
    if (buttons.isEmpty())
        return;
    const auto* current = qobject_cast<CompactToolButton*>(focusWidget());
    const qsizetype from =
        std::max(qsizetype(0), buttons.indexOf(const_cast<CompactToolButton*>(current)));
    const qsizetype to = (from + step + buttons.size()) % buttons.size();
    buttons[to]->setFocus(Qt::TabFocusReason);
    area_->ensureWidgetVisible(buttons[to], 0, 0);
}

} // namespace tt
