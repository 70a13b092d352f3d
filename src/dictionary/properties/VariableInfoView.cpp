// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariableInfoView.h"

#include "app/widgets/ReadOnlyTable.h"
#include "dictionary/properties/VarValueLabelDiccionaryModel.h"
#include "dictionary/properties/VarValueLabelDiccionaryProxyModel.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>

namespace {

constexpr int rowsSeen = 6; ///< at least

/// What a dictionary leaves out is left out here.
void addTold(QList<InfoLine>& lines, const QString& caption, const QString& text) {
    if (!text.isEmpty())
        lines.append({caption, text});
}

/// Codes and the mark are looked for: that there is none is told, too.
void addTechnical(QList<InfoLine>& lines, const QString& caption, const QString& text) {
    lines.append({caption, text.isEmpty() ? QStringLiteral("-") : text});
}

} // namespace

VariableInfoView::VariableInfoView(QWidget* parent)
    : InfoView(parent), categories_(new VarValueLabelDiccionaryModel(this)) {
    properties_ = addSection(QStringLiteral("lbVariableProperties"));
    lines_ = addLines();
    categoriesCaption_ = addSection(QStringLiteral("lbVariableCategories"));
    auto* proxy = new VarValueLabelDiccionaryProxyModel(this);
    proxy->setSourceModel(categories_);
    table_ = new ReadOnlyTable(proxy, QStringLiteral("tableInfoCategories"));
    table_->setSortingEnabled(true);
    table_->sortByColumn(-1, Qt::AscendingOrder);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setColumnWidth(VarValueLabelDiccionaryModel::CodeColumn,
                           9 * table_->fontMetrics().averageCharWidth());
    table_->setMinimumHeight((rowsSeen + 1) * table_->verticalHeader()->defaultSectionSize());
    addContent(table_, 3);
    documentationCaption_ = addSection(QStringLiteral("lbVariableDocumentation"));
    documentation_ = addDocumentation();
    documentation_->setObjectName(QStringLiteral("teInfoVariableDocumentation"));
    retranslate();
}

void VariableInfoView::setInfo(const VariableInfo& info) {
    info_ = info;
    categories_->setList(info.categories, info.technical.type == QLatin1String("INTEGER"));
    documentation_->setPlainText(info.documentation);
    retranslate();
}

QList<InfoLine> VariableInfoView::lines() const {
    QList<InfoLine> lines;
    addTold(lines, tr("Name: "), info_.fullName);
    addTold(lines, tr("Label: "), info_.label);
    addTold(lines, tr("Alias: "), info_.alias);
    addTold(lines, tr("Group: "), info_.group);
    addTechnical(lines, tr("Tag: "), info_.tag);
    addTold(lines, tr("Type: "), info_.technical.type);
    addTold(lines, tr("Min: "), info_.technical.minimum);
    addTold(lines, tr("Max: "), info_.technical.maximum);
    addTechnical(lines, tr("NotApp: "), info_.technical.notApp);
    addTechnical(lines, tr("Missing: "), info_.technical.missing);
    return lines;
}

void VariableInfoView::retranslate() {
    properties_->setText(tr("Variable Properties"));
    setLines(lines_, lines());
    categoriesCaption_->setText(tr("Variable Categories"));
    table_->setAccessibleName(tr("Variable Categories"));
    documentationCaption_->setText(tr("Properties Documentation"));
    documentation_->setAccessibleName(tr("Documentation"));
    emit categories_->headerDataChanged(Qt::Horizontal, 0,
                                        VarValueLabelDiccionaryModel::ColumnCount - 1);
}
