// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariablesPane.h"

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/views/KelVariablesTableView.h"
#include "dictionary/views/VariableDiccionaryModel.h"
#include "dictionary/views/VariablesDictionaryProxyModel.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QShortcut>

VariablesPane::VariablesPane(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit), count_(new QLabel),
      table_(new KelVariablesTableView) {
    setObjectName(QStringLiteral("variablesPane"));
    filter_->setObjectName(QStringLiteral("variableFilter"));
    filter_->setClearButtonEnabled(true);
    filter_->installEventFilter(this);
    count_->setObjectName(QStringLiteral("variableCount"));
    auto* line = new QHBoxLayout;
    line->addWidget(filter_, 1);
    line->addWidget(count_);
    line->setContentsMargins(0, 0, fontMetrics().averageCharWidth(), 0);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(table_, 1);
    setFocusProxy(table_);
    connect(filter_, &QLineEdit::textChanged, table_, &KelVariablesTableView::on_FilterEntered);
    connect(table_, &KelVariablesTableView::countChanged, this, &VariablesPane::showCount);
    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, &VariablesPane::focusFilter);
    retranslate();
}

void VariablesPane::setEntity(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity) {
    const QString name = entity != nullptr ? entity->name : QString();
    if (name != entityName_)
        clearFilter();
    entityName_ = name;
    table_->setEntity(root, entity);
}

void VariablesPane::clearFilter() {
    filter_->clear();
}

void VariablesPane::focusFilter() {
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
}

bool VariablesPane::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = watched == filter_ && event->type() == QEvent::KeyPress;
    return (isKey && filterKey(static_cast<QKeyEvent*>(event)->key())) ||
           QWidget::eventFilter(watched, event);
}

bool VariablesPane::filterKey(int key) {
    if (key == Qt::Key_Escape && !filter_->text().isEmpty()) {
        clearFilter();
        return true;
    }
    if (key == Qt::Key_Down) {
        goToTable();
        return true;
    }
    return false;
}

void VariablesPane::goToTable() {
    table_->setFocus(Qt::OtherFocusReason);
    if (table_->currentVariable() == nullptr)
        table_->setCurrentIndex(table_->model()->index(0, 0));
}

void VariablesPane::showCount(int shown, int all) {
    const QLocale locale;
    count_->setText(tr("%1 of %2").arg(locale.toString(shown), locale.toString(all)));
}

void VariablesPane::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void VariablesPane::retranslate() {
    filter_->setPlaceholderText(tr("Filter..."));
    filter_->setToolTip(
        tr("Enter a filter term, you can filter by name, alias, group, label or tag"));
    filter_->setAccessibleName(tr("Filter of the variables"));
    count_->setAccessibleName(tr("Variables shown"));
    showCount(table_->proxyModel()->rowCount(), table_->variableModel()->rowCount());
}
