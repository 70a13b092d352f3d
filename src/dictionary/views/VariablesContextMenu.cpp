// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariablesContextMenu.h"

#include "app/messages/Messages.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/MenuEntry.h"
#include "dictionary/views/Validate.h"

#include <algorithm>

VariablesContextMenu::VariablesContextMenu(std::shared_ptr<TKpEntity> root,
                                           QList<TKpVariable*> selected, TKpVariable* current,
                                           QWidget* parent)
    : QMenu(parent), root_(std::move(root)), selected_(std::move(selected)) {
    setObjectName(QStringLiteral("variablesContextMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    setToolTipsVisible(true);
    addView();
    addSeparator();
    addEdit(*current);
    addSeparator();
    addStatistics();
    addSeparator();
    addMarks();
    addSeparator();
    addGroup(current->group);
}

void VariablesContextMenu::addView() {
    connect(addMenuEntry(*this, QStringLiteral("actionQuickView"), tr("Quick View"), Qt::Key_F3),
            &QAction::triggered, this, &VariablesContextMenu::signalQuickView);
    connect(addMenuEntry(*this, QStringLiteral("actionProperties"), tr("Properties"), Qt::Key_F8),
            &QAction::triggered, this, &VariablesContextMenu::signalShowProperties);
}

void VariablesContextMenu::addEdit(const TKpVariable& current) {
    QAction* rename = addMenuEntry(*this, QStringLiteral("actionRename"), tr("Rename"), Qt::Key_F2);
    connect(rename, &QAction::triggered, this, &VariablesContextMenu::signalRename);
    rename->setEnabled(current.local);
    if (!current.local)
        rename->setToolTip(Validate::message(Validate::NotLocal, current.fullName));
    QAction* remove =
        addMenuEntry(*this, QStringLiteral("actionDelete"), tr("Delete"), QKeySequence::Delete);
    connect(remove, &QAction::triggered, this, &VariablesContextMenu::onDeleteVar);
    const bool allLocal = std::all_of(selected_.begin(), selected_.end(),
                                      [](const TKpVariable* variable) { return variable->local; });
    remove->setEnabled(allLocal);
    if (!allLocal)
        remove->setToolTip(variableNotDeletable());
    connect(addMenuEntry(*this, QStringLiteral("actionSelectAll"), tr("Select All"),
                         QKeySequence::SelectAll),
            &QAction::triggered, this, &VariablesContextMenu::signalSelectAll);
}

void VariablesContextMenu::addStatistics() {
    connect(addMenuEntry(*this, QStringLiteral("actionFrequency"), tr("Frequency")),
            &QAction::triggered, this, &VariablesContextMenu::onFrequency);
    addUnfinished(*this, QStringLiteral("actionStatistics"), tr("Statistics"),
                  tr("<b>Contruction: Statistics variable context menu </b> "));
    addUnfinished(*this, QStringLiteral("actionView"), tr("View"),
                  tr("<b>Contruction: View variable context menu </b> "));
}

void VariablesContextMenu::addMarks() {
    addUnfinished(*this, QStringLiteral("actionMarkHidden"), tr("Mark as hidden"),
                  tr("<b>Contruction: Mark as hidden variable context menu </b> "));
    addUnfinished(*this, QStringLiteral("actionUnmarkHidden"), tr("Unmark as hidden"),
                  tr("<b>Contruction: Unmark as hidden variable context menu </b> "));
}

void VariablesContextMenu::addGroup(const QString& group) {
    QMenu* menu = addMenu(tr("Group"));
    menu->setObjectName(QStringLiteral("menuGroup"));
    menu->setEnabled(!group.isEmpty());
    QString shown = group;
    shown.replace(u'&', QLatin1String("&&")); // no mnemonics in what files say
    addMenuEntry(*menu, QStringLiteral("actionGroupName"), tr("Group Name") + ": " + shown)
        ->setEnabled(false);
    menu->addSeparator();
    addUnfinished(*menu, QStringLiteral("actionGroupFrequency"), tr("Frequency"),
                  tr("<b>Contruction: Group Frequency variable context menu </b> "));
    addUnfinished(*menu, QStringLiteral("actionGroupStatistics"), tr("Statistics"),
                  tr("<b>Contruction: Group Statisitcs variable context menu </b> "));
    addUnfinished(*menu, QStringLiteral("actionGroupView"), tr("View"),
                  tr("<b>Contruction: Group View variable context menu </b> "));
    addUnfinished(*menu, QStringLiteral("actionGroupMarkHidden"), tr("Mark hidden"),
                  tr("<b>Contruction: Group Mark as hidden variable context menu </b> "));
    addUnfinished(*menu, QStringLiteral("actionGroupUnmarkHidden"), tr("Unmark hidden"),
                  tr("<b>Contruction: Group unmark as hidden variable context menu </b> "));
}

void VariablesContextMenu::addUnfinished(QMenu& menu, const QString& name, const QString& text,
                                         const QString& message) {
    connect(addMenuEntry(menu, name, text), &QAction::triggered, this,
            [message] { showRichInformation(message); });
}

void VariablesContextMenu::onDeleteVar() {
    if (confirmVariableDeletion())
        emit signalDelete();
}

/// Full names, since entities may have variables of the same name.
void VariablesContextMenu::onFrequency() {
    QStringList names;
    for (const TKpVariable* variable : selected_)
        names += variable->fullName;
    emit executeProgram("freq " + names.join(QLatin1String(", ")));
}

bool confirmVariableDeletion() {
    return askYesNo(VariablesContextMenu::tr("Confirmation screen"),
                    VariablesContextMenu::tr("Are you sure you want to delete the variable(s)?"));
}

QString variableNotDeletable() {
    return VariablesContextMenu::tr(
        "The variable could not be deleted, it is not a local variable");
}
