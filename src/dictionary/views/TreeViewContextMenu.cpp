// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/TreeViewContextMenu.h"

#include "app/messages/Messages.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/views/MenuEntry.h"

TreeViewContextMenu::TreeViewContextMenu(std::shared_ptr<TKpEntity> entity, bool canPrint,
                                         QWidget* parent)
    : QMenu(parent), entity_(std::move(entity)) {
    setObjectName(QStringLiteral("treeViewContextMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    setToolTipsVisible(true);
    TKpEntity* shown = entity_.get();
    connect(addMenuEntry(*this, QStringLiteral("actionQuickView"), tr("Quick View"), Qt::Key_F3),
            &QAction::triggered, this, [this, shown] { emit quickView(shown); });
    connect(addMenuEntry(*this, QStringLiteral("actionProperties"), tr("Properties"), Qt::Key_F8),
            &QAction::triggered, this, [this, shown] { emit propertiesView(shown); });
    addPrint(canPrint);
    addSeparator();
    addSelectable();
    addSeparator();
    connect(addMenuEntry(*this, QStringLiteral("actionFrequency"), tr("Frequency")),
            &QAction::triggered, this,
            [this, shown] { emit executeProgram("FREQ " + shown->name + ".*"); });
    addUnfinished(QStringLiteral("actionStatistics"), tr("Statistics"),
                  tr("<b>Construction: Statistics variable context menu </b> "));
    addUnfinished(QStringLiteral("actionView"), tr("View"),
                  tr("<b>Contruction: View context menu </b> "));
    addSeparator();
    addUnfinished(QStringLiteral("actionHideAll"), tr("Hide All Variables"),
                  tr("<b>Contruction: Hide All Variables context menu </b> "));
    addUnfinished(QStringLiteral("actionUnhideAll"), tr("Unhide All Variables"),
                  tr("<b>Contruction: Unhide All Variables from context menu </b> "));
}

void TreeViewContextMenu::addPrint(bool canPrint) {
    QAction* action =
        addMenuEntry(*this, QStringLiteral("actionPrint"), tr("Print"), QKeySequence::Print);
    connect(action, &QAction::triggered, this, [this] { emit printView(entity_.get()); });
    action->setEnabled(canPrint);
    if (!canPrint)
        action->setToolTip(tr("Printing is not available yet"));
}

/// Tells only: what can be selected is laid down with the database.
void TreeViewContextMenu::addSelectable() {
    QAction* action = addMenuEntry(*this, QStringLiteral("actionSelectable"), tr("Selectable"));
    action->setCheckable(true);
    action->setChecked(entity_->selectable);
    action->setEnabled(false);
}

void TreeViewContextMenu::addUnfinished(const QString& name, const QString& text,
                                        const QString& message) {
    connect(addMenuEntry(*this, name, text), &QAction::triggered, this,
            [message] { showRichInformation(message); });
}
