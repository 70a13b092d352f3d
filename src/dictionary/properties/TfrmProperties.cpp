// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/TfrmProperties.h"

#include "app/messages/Messages.h"
#include "app/shell/Shell.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/EntityPropertiesQDockWidget.h"
#include "dictionary/properties/VariablePropertiesQDockWidget.h"

#include <utility>

TfrmProperties::TfrmProperties(Shell& shell, QObject* parent) : QObject(parent), shell_(shell) {}

EntityPropertiesQDockWidget* TfrmProperties::entityDock() const {
    return qobject_cast<EntityPropertiesQDockWidget*>(shell_.dock(entityDockName()));
}

VariablePropertiesQDockWidget* TfrmProperties::variableDock() const {
    return qobject_cast<VariablePropertiesQDockWidget*>(shell_.dock(variableDockName()));
}

EntityPropertiesQDockWidget* TfrmProperties::makeEntityDock() {
    auto* dock = new EntityPropertiesQDockWidget;
    dock->setObjectName(entityDockName());
    connect(dock, &EntityPropertiesQDockWidget::entitychanged, this,
            &TfrmProperties::onEntityPropertyChanged);
    shell_.addDockLeft(dock);
    return dock;
}

VariablePropertiesQDockWidget* TfrmProperties::makeVariableDock() {
    auto* dock = new VariablePropertiesQDockWidget;
    dock->setObjectName(variableDockName());
    connect(dock, &VariablePropertiesQDockWidget::variablechanged, this,
            &TfrmProperties::onVarPropertyChanged);
    shell_.addDockLeft(dock);
    return dock;
}

bool TfrmProperties::showEntity(TKpEntity* entity) {
    EntityPropertiesQDockWidget* dock = entityDock();
    if (dock == nullptr)
        dock = makeEntityDock();
    if (entity != nullptr && dock->entity() == entity) {
        dock->rebind(root_, entity);
        return true;
    }
    if (!settleEntity())
        return false;
    dock->setEntity(root_, entity);
    return true;
}

bool TfrmProperties::showVariable(TKpVariable* variable) {
    VariablePropertiesQDockWidget* dock = variableDock();
    if (dock == nullptr)
        dock = makeVariableDock();
    if (variable != nullptr && dock->variable() == variable) {
        dock->rebind(root_, variable);
        return true;
    }
    if (!settleVariable())
        return false;
    dock->setVariable(root_, variable);
    return true;
}

bool TfrmProperties::settleEntity() {
    EntityPropertiesQDockWidget* dock = entityDock();
    if (dock == nullptr)
        return true;
    dock->storeTexts();
    if (!dock->isModified())
        return true;
    if (askYesNo(tr("Confirm"), tr("Entity definition has been modified. Save changes?")))
        return dock->save();
    dock->discard();
    return true;
}

bool TfrmProperties::settleVariable() {
    VariablePropertiesQDockWidget* dock = variableDock();
    if (dock == nullptr)
        return true;
    dock->commitEditor();
    if (!dock->isModified())
        return true;
    if (askYesNo(tr("Confirm"), tr("Variable definition has been modified. Save changes?\n")))
        return dock->save();
    dock->discard();
    return true;
}

bool TfrmProperties::settlePending() {
    return settleEntity() && settleVariable();
}

bool TfrmProperties::hasPending() const {
    const EntityPropertiesQDockWidget* entity = entityDock();
    const VariablePropertiesQDockWidget* variable = variableDock();
    return (entity != nullptr && entity->isModified()) ||
           (variable != nullptr && variable->isModified());
}

void TfrmProperties::setRoot(const std::shared_ptr<TKpEntity>& root) {
    // The docks still show the old tree, which must outlive their looking up of names.
    const std::shared_ptr<TKpEntity> old = std::exchange(root_, root);
    if (EntityPropertiesQDockWidget* dock = entityDock())
        rebindEntity(*dock);
    if (VariablePropertiesQDockWidget* dock = variableDock())
        rebindVariable(*dock);
}

void TfrmProperties::rebindEntity(EntityPropertiesQDockWidget& dock) {
    TKpEntity* found = dock.entity() != nullptr ? findEntity(dock.entity()->name) : nullptr;
    if (found != nullptr)
        dock.rebind(root_, found);
    else
        dock.setEntity(root_, nullptr);
}

void TfrmProperties::rebindVariable(VariablePropertiesQDockWidget& dock) {
    const TKpVariable* shown = dock.variable();
    TKpVariable* found = shown != nullptr ? findVariable(shown->entityName, shown->name) : nullptr;
    if (found != nullptr) {
        dock.rebind(root_, found);
        return;
    }
    const QString lost = dock.isModified() && root_ ? shown->fullName : QString();
    dock.setVariable(root_, nullptr);
    if (!lost.isEmpty())
        showWarning(tr("The variable %1 is not in the dictionary any more. Your changes of it were "
                       "not saved.")
                        .arg(lost));
}

TKpEntity* TfrmProperties::findEntity(const QString& name) const {
    TKpEntity* found = DictionaryUtil().findEntity(root_.get(), name);
    return found != nullptr && found->name == name ? found : nullptr;
}

TKpVariable* TfrmProperties::findVariable(const QString& entityName, const QString& name) const {
    const TKpEntity* entity = findEntity(entityName);
    if (entity == nullptr)
        return nullptr;
    for (TKpVariable* variable : entity->variables)
        if (variable->name == name)
            return variable;
    return nullptr;
}

void TfrmProperties::setChanged(bool changed) {
    if (EntityPropertiesQDockWidget* dock = entityDock())
        dock->setWindowModified(changed);
    if (VariablePropertiesQDockWidget* dock = variableDock())
        dock->setWindowModified(changed);
}

void TfrmProperties::onVarPropertyChanged(bool value) {
    setChanged(value);
    emit varchanged(value);
}

void TfrmProperties::onEntityPropertyChanged(bool value) {
    setChanged(value);
    emit entchanged(value);
}
