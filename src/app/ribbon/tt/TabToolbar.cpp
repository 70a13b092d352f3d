// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/TabToolbar.h"

#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/Page.h"
#include "app/ribbon/tt/Style.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>

namespace tt {

namespace {

constexpr int referenceLine = 15; ///< pixels; the line height that the sizes are told for
constexpr int iconEdge = 24;      ///< at that line height
constexpr int narrowest = 200;    ///< the tabs scroll by themselves from here on

QString withShortcut(const QString& text, const QKeySequence& shortcut) {
    return text + QStringLiteral(" (") + shortcut.toString(QKeySequence::NativeText) + ')';
}

} // namespace

TabToolbar::TabToolbar(QWidget* parent, int maxHeight, int groupRowCount)
    : QToolBar(parent), maxHeight_(maxHeight), rowCount_(groupRowCount),
      tabs_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("ribbon"));
    setWindowTitle(tr("Ribbon"));
    setMovable(false);
    setFloatable(false);
    // The window's menu of bars could hide the ribbon for good.
    setContextMenuPolicy(Qt::PreventContextMenu);
    toggleViewAction()->setVisible(false);
    layout()->setContentsMargins(0, 0, 0, 0);
    tabs_->setProperty("TTWidget", true);
    tabs_->setDocumentMode(true);
    tabs_->setMinimumWidth(narrowest);
    tabs_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    tabs_->setAccessibleName(windowTitle());
    tabs_->tabBar()->setDrawBase(false);
    tabs_->tabBar()->setFocusPolicy(Qt::TabFocus);
    MakeCorner();
    addWidget(tabs_);
    ConnectTabs();
    UpdateHideButton();
    UpdateSizes();
}

TabToolbar::~TabToolbar() {
    // Ends the filter before the parts that it asks about go.
    QCoreApplication::instance()->removeEventFilter(this);
}

TabToolbar* TabToolbar::Around(QWidget* widget) {
    while (widget != nullptr && qobject_cast<TabToolbar*>(widget) == nullptr)
        widget = widget->parentWidget();
    return qobject_cast<TabToolbar*>(widget);
}

void TabToolbar::MakeCorner() {
    corner_ = new QWidget(tabs_);
    auto* layout = new QHBoxLayout(corner_);
    layout->setContentsMargins(2, 1, 4, 1);
    layout->setSpacing(2);
    hideButton_ = new QToolButton(corner_);
    hideButton_->setObjectName(QStringLiteral("hideRibbon"));
    hideButton_->setProperty("TTHide", true);
    hideButton_->setFocusPolicy(Qt::TabFocus);
    hideButton_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F1));
    layout->addWidget(hideButton_);
    tabs_->setCornerWidget(corner_, Qt::TopRightCorner);
}

void TabToolbar::ConnectTabs() {
    connect(hideButton_, &QToolButton::clicked, this, qOverload<>(&TabToolbar::HideAt));
    connect(tabs_, &QTabWidget::tabBarClicked, this, &TabToolbar::TabClicked);
    // Queued: the press of a double click is told after it, and would show the page again.
    connect(tabs_, &QTabWidget::tabBarDoubleClicked, this, qOverload<int>(&TabToolbar::HideAt),
            Qt::QueuedConnection);
    connect(tabs_, &QTabWidget::currentChanged, this, &TabToolbar::CurrentTabChanged);
    connect(qApp, &QApplication::focusChanged, this, &TabToolbar::FocusChanged);
}

Page* TabToolbar::AddPage(const QString& title) {
    const int index = static_cast<int>(pages_.size());
    auto* page = new Page(index, title, tabs_);
    pages_ += page;
    connect(page, &Page::Hiding, this, &TabToolbar::HideTab);
    connect(page, &Page::Showing, this, &TabToolbar::ShowTab);
    tabs_->addTab(page, title);
    AddTabShortcut(index);
    page->SetContentVisible(IsPageShown());
    UpdateSizes();
    return page;
}

void TabToolbar::AddTabShortcut(int index) {
    if (index >= 9)
        return;
    const QKeySequence keys(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(Qt::Key_1 + index)));
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, [this, index] {
        if (!tabs_->isTabVisible(index))
            return;
        tabs_->tabBar()->setFocus(Qt::ShortcutFocusReason);
        SetCurrentTab(index);
        SetPeeking(minimized_);
    });
    tabs_->setTabToolTip(index, keys.toString(QKeySequence::NativeText));
}

void TabToolbar::SetPageTitle(int index, const QString& title) {
    tabs_->setTabText(index, title);
    pages_[index]->SetTitle(title);
}

void TabToolbar::AddCornerAction(QAction* action) {
    auto* button = new QToolButton(corner_);
    button->setObjectName(action->objectName());
    button->setProperty("TTCorner", true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setDefaultAction(action);
    button->setAccessibleName(action->toolTip());
    auto* layout = static_cast<QHBoxLayout*>(corner_->layout());
    layout->insertWidget(layout->count() - 1, button);
    ListenTo(action);
    UpdateSizes();
}

void TabToolbar::SetStyle(const QString& name) {
    setStyleSheet(StyleSheet(name));
    style_ = name;
    UpdateSizes();
    emit StyleChanged();
}

int TabToolbar::CurrentTab() const {
    return tabs_->currentIndex();
}

void TabToolbar::SetCurrentTab(int index) {
    tabs_->setCurrentIndex(index);
}

void TabToolbar::SetMinimized(bool minimized) {
    if (minimized == minimized_)
        return;
    minimized_ = minimized;
    SetPeeking(false);
    UpdateHideButton();
    UpdateSizes();
    if (minimized)
        emit Minimized();
    else
        emit Maximized();
}

void TabToolbar::SetPeeking(bool peeking) {
    if (peeking == peeking_)
        return;
    peeking_ = peeking;
    // Clicks do not always move the focus: the work area's ground takes none.
    if (peeking)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
    UpdateSizes();
}

QSize TabToolbar::IconSize() const {
    const int edge = static_cast<int>(iconEdge * Scale());
    return {edge, edge};
}

void TabToolbar::ListenTo(QAction* action) {
    // The tabs always show, while a page that does not would make its shortcuts deaf.
    tabs_->addAction(action);
}

void TabToolbar::FocusChanged(QWidget* old, QWidget* now) {
    Q_UNUSED(old)
    if (peeking_ && now != nullptr && !Holds(now))
        SetPeeking(false);
}

void TabToolbar::TabClicked(int index) {
    if (!minimized_ || index < 0 || index == specialTab_)
        return;
    const bool again = peeking_ && index == CurrentTab();
    if (!again)
        tabs_->tabBar()->setFocus(Qt::MouseFocusReason); // so that it can go
    SetPeeking(!again);
}

void TabToolbar::CurrentTabChanged(int index) {
    if (index >= 0 && index == specialTab_) {
        tabs_->setCurrentIndex(lastTab_);
        emit SpecialTabClicked();
        return;
    }
    lastTab_ = index;
    if (minimized_ && tabs_->tabBar()->hasFocus())
        SetPeeking(true);
}

void TabToolbar::HideAt(int index) {
    if (index < 0)
        return;
    SetCurrentTab(index);
    SetMinimized(!minimized_);
}

void TabToolbar::HideAt() {
    HideAt(CurrentTab());
}

void TabToolbar::HideTab(int index) {
    tabs_->setTabVisible(index, false);
}

void TabToolbar::ShowTab(int index) {
    tabs_->setTabVisible(index, true);
}

void TabToolbar::changeEvent(QEvent* event) {
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        UpdateSizes();
}

bool TabToolbar::event(QEvent* event) {
    const bool done = QToolBar::event(event);
    // What was asked for before the sheet was applied was measured without it.
    if (event->type() == QEvent::Polish || event->type() == QEvent::Show)
        UpdateSizes();
    return done;
}

bool TabToolbar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && peeking_) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && !Holds(widget))
            SetPeeking(false);
    }
    return QToolBar::eventFilter(watched, event);
}

void TabToolbar::keyPressEvent(QKeyEvent* event) {
    const bool onTabs = tabs_->tabBar()->hasFocus();
    const int key = event->key();
    if (onTabs && (key == Qt::Key_Down || key == Qt::Key_Return))
        EnterPage();
    else if (!onTabs && key == Qt::Key_Up)
        LeavePage();
    else if (peeking_ && key == Qt::Key_Escape) {
        LeavePage();
        SetPeeking(false);
    } else {
        QToolBar::keyPressEvent(event);
    }
}

void TabToolbar::EnterPage() {
    SetPeeking(minimized_);
    if (CompactToolButton* button = pages_[CurrentTab()]->FirstButton())
        button->setFocus(Qt::TabFocusReason);
}

void TabToolbar::LeavePage() {
    tabs_->tabBar()->setFocus(Qt::TabFocusReason);
}

bool TabToolbar::Holds(const QWidget* widget) const {
    while (widget != nullptr && widget != this)
        widget = widget->parentWidget();
    return widget == this;
}

double TabToolbar::Scale() const {
    return fontMetrics().height() / static_cast<double>(referenceLine);
}

void TabToolbar::UpdateSizes() {
    int pageHeight = static_cast<int>(maxHeight_ * Scale());
    for (Page* page : std::as_const(pages_)) {
        page->SetContentVisible(IsPageShown());
        for (auto* button : page->findChildren<CompactToolButton*>())
            button->setIconSize(IconSize());
        pageHeight = std::max(pageHeight, page->minimumSizeHint().height());
    }
    const int small = IconSize().height() * 2 / 3;
    for (auto* button : corner_->findChildren<QToolButton*>())
        button->setIconSize({small, small});
    const int barHeight =
        std::max(tabs_->tabBar()->sizeHint().height(), corner_->sizeHint().height());
    tabs_->setFixedHeight(barHeight + (IsPageShown() ? pageHeight : 0));
}

void TabToolbar::UpdateHideButton() {
    hideButton_->setText(minimized_ ? QStringLiteral("▼") : QStringLiteral("▲"));
    const QString name = minimized_ ? tr("Show the ribbon") : tr("Minimize the ribbon");
    hideButton_->setAccessibleName(name);
    hideButton_->setToolTip(withShortcut(name, hideButton_->shortcut()));
}

} // namespace tt
