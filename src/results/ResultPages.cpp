// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultPages.h"

#include "app/widgets/ElidedLabel.h"
#include "results/ResTableDelegate.h"
#include "results/ResultFacts.h"
#include "results/ResultGridModel.h"
#include "results/ResultReportModel.h"
#include "results/ResultTableView.h"
#include "results/tables/TableBase.h"

#include <QFormLayout>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int mostFactLines = 9; ///< more of them scroll
constexpr int reportMargin = 10; ///< pixels

QLabel* makeInfo(const QString& name) {
    auto* label = new QLabel(QStringLiteral("[INFO]"));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // a long path must not widen the window
    label->hide();
    return label;
}

} // namespace

ResultPage::ResultPage(const QString& name, const QString& infoName, ResultTableView* view)
    : view_(view), info_(makeInfo(infoName)), layout_(new QVBoxLayout(this)) {
    setObjectName(name);
    layout_->addWidget(info_);
    layout_->addWidget(view_, 1);
    connect(view_, &QWidget::customContextMenuRequested, this, &ResultPage::menuRequested);
}

void ResultPage::clear() {
    info_->clear();
    info_->hide();
}

void ResultPage::showTable(const TableBase& table) {
    QStringList notes{table.metadata().suppressedNote(), table.layoutNote()};
    notes.removeAll({});
    info_->setText(notes.join('\n'));
    info_->setVisible(!info_->text().isEmpty());
    info_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    layout_->setStretchFactor(info_, 0);
    view_->show();
    view_->fit();
}

void ResultPage::addNote(const QString& text) {
    info_->setText(info_->text().isEmpty() ? text : info_->text() + '\n' + text);
    info_->show();
}

void ResultPage::showWords(const QString& text) {
    info_->setText(text);
    info_->setAlignment(Qt::AlignCenter);
    layout_->setStretchFactor(info_, 1);
    info_->show();
    view_->hide();
}

ResultListPage::ResultListPage()
    : ResultPage(QStringLiteral("tabTable"), QStringLiteral("labelTableInfo"),
                 new ResultTableView(new ResultGridModel, QStringLiteral("tableWidget"), 0)),
      model_(static_cast<ResultGridModel*>(view()->model())), facts_(new QScrollArea),
      form_(new QFormLayout) {
    form_->setObjectName(QStringLiteral("formLayout"));
    form_->setContentsMargins(0, 0, 0, 0);
    auto* content = new QWidget;
    content->setLayout(form_);
    facts_->setObjectName(QStringLiteral("factsArea"));
    facts_->setFrameShape(QFrame::NoFrame);
    facts_->setWidgetResizable(true);
    facts_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    facts_->setWidget(content);
    facts_->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    pageLayout()->insertWidget(0, facts_);
    limitFacts();
    connect(view()->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &ResultListPage::nameColumns);
}

void ResultListPage::clear() {
    ResultPage::clear();
    while (form_->rowCount() > 0)
        form_->removeRow(0);
    limitFacts();
    model_->showTable(nullptr);
    view()->clearSpans();
}

void ResultListPage::showTable(const TableBase& table) {
    showFacts(table);
    model_->showTable(&table);
    ResultPage::showTable(table);
    nameColumns();
}

void ResultListPage::showFacts(const TableBase& table) {
    while (form_->rowCount() > 0)
        form_->removeRow(0);
    for (const ResultFact& fact : ResultFacts(table.metadata()).form())
        addFact(fact.label, fact.value);
    limitFacts();
}

void ResultListPage::addFact(const QString& label, const QString& value) {
    auto* name = new QLabel("<span style=\" font-size:10pt; font-weight:600;\">" +
                            label.toHtmlEscaped() + "</span>");
    auto* text = new ElidedLabel;
    text->setFullText(value);
    text->setAccessibleName(label.isEmpty() ? value.trimmed() : label + ": " + value.trimmed());
    form_->addRow(name, text);
}

void ResultListPage::limitFacts() {
    const int line = fontMetrics().height() + std::max(0, form_->verticalSpacing());
    facts_->setFixedHeight(std::min(form_->sizeHint().height(), mostFactLines * line));
    facts_->setVisible(form_->rowCount() > 0);
}

void ResultListPage::nameColumns() {
    model_->setColumnsNamed(view()->rowAt(0) >= model_->firstCellRow());
}

ResultReportPage::ResultReportPage()
    : ResultPage(QStringLiteral("tabReport"), QStringLiteral("labelReportInfo"),
                 new ResultTableView(new ResultReportModel, QStringLiteral("tableWidgetReport"),
                                     headerRowHeight)),
      model_(static_cast<ResultReportModel*>(view()->model())) {
    view()->setItemDelegate(new ResTableDelegate(view()));
    view()->setShowGrid(false);
    view()->setPaper(reportMargin);
    view()->horizontalHeader()->hide();
    view()->verticalHeader()->hide();
}

void ResultReportPage::clear() {
    ResultPage::clear();
    model_->showTable(nullptr);
    view()->clearSpans();
}

void ResultReportPage::showTable(const TableBase& table) {
    model_->showTable(&table);
    ResultPage::showTable(table);
}
