// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityInfoView.h"

#include <QEvent>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QTreeWidget>

namespace {

constexpr int rowsSeen = 12; ///< at most

QTreeWidgetItem* makeItem(const EntityInfo::Branch& branch) {
    auto* item = new QTreeWidgetItem({branch.name, QLocale().toString(branch.elements)});
    item->setToolTip(0, branch.label.toHtmlEscaped());
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    for (const EntityInfo::Branch& child : branch.children)
        item->addChild(makeItem(child));
    return item;
}

} // namespace

EntityInfoView::EntityInfoView(QWidget* parent) : InfoView(parent) {
    selected_ = addSection(QStringLiteral("lbSelectedEntity"));
    path_ = addLines();
    properties_ = addSection(QStringLiteral("lbEntityProperties"));
    lines_ = addLines();
    expand_ = addSection(QStringLiteral("lbExpandInformation"));
    tree_ = new QTreeWidget;
    tree_->setObjectName(QStringLiteral("treeElements"));
    tree_->setColumnCount(2);
    tree_->setUniformRowHeights(true);
    tree_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    tree_->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    tree_->setIndentation(tree_->fontMetrics().height());
    connect(tree_, &QTreeWidget::expanded, this, &EntityInfoView::fitTree);
    connect(tree_, &QTreeWidget::collapsed, this, &EntityInfoView::fitTree);
    addContent(tree_, 0);
    documentationCaption_ = addSection(QStringLiteral("lbEntityDocumentation"));
    documentation_ = addDocumentation();
    documentation_->setObjectName(QStringLiteral("teInfoEntityDocumentation"));
    addRoom();
    retranslate();
}

void EntityInfoView::setInfo(const EntityInfo& info) {
    info_ = info;
    documentation_->setPlainText(info.documentation);
    setSectionVisible(documentationCaption_, !info.documentation.isEmpty());
    documentation_->setVisible(!info.documentation.isEmpty());
    retranslate();
}

void EntityInfoView::fillTree() {
    tree_->clear();
    tree_->setHeaderLabels({tr("Entity"), tr("Number of Elements")});
    if (info_.name.isEmpty())
        return;
    tree_->addTopLevelItem(makeItem(info_.branch));
    // A row of its own has nothing to be expanded, and needs no room for that.
    tree_->setRootIsDecorated(!info_.branch.children.isEmpty());
    tree_->expandAll();
    fitTree();
}

/// As high as its rows: what is left belongs to the documentation.
void EntityInfoView::fitTree() {
    int rows = 0;
    for (const QTreeWidgetItem* item = tree_->topLevelItem(0); item != nullptr && rows < rowsSeen;
         item = tree_->itemBelow(item))
        ++rows;
    tree_->setFixedHeight(tree_->header()->sizeHint().height() + rows * tree_->sizeHintForRow(0) +
                          2 * tree_->frameWidth());
}

void EntityInfoView::changeEvent(QEvent* event) {
    InfoView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitTree();
}

void EntityInfoView::retranslate() {
    selected_->setText(tr("Selected Entity"));
    setLines(path_, info_.path());
    properties_->setText(tr("Entity Properties"));
    setLines(lines_, info_.lines());
    expand_->setText(tr("Expand Information"));
    tree_->setAccessibleName(tr("Expand Information"));
    fillTree();
    documentationCaption_->setText(tr("Properties Documentation"));
    documentation_->setAccessibleName(tr("Documentation"));
}
