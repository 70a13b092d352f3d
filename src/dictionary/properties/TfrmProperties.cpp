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

namespace {

/// A box that is closed without an answer loses nothing: then what was typed stays where it is.
template <class Dock>
bool settle(Dock& dock, const QString& title, const QString& question) {
    if (!dock.isModified())
        return true;
    switch (askYesNoCancel(title, question)) {
    case Choice::Yes:
        return dock.save();
    case Choice::No:
        dock.discard();
        return true;
    case Choice::Cancel:
        break;
    }
    return false;
}

} // namespace

TfrmProperties::TfrmProperties(Shell& shell, QObject* parent) : QObject(parent), shell_(shell) {}

TfrmProperties::~TfrmProperties() {
    // The docks may stand on for a moment, when the dictionary is gone already.
    setRoot(nullptr);
}

void TfrmProperties::makeEntityDock() {
    if (shell_.dockExists(entityDockName()))
        shell_.closeDock(entityDockName());
    entityDock_ = new EntityPropertiesQDockWidget;
    entityDock_->setObjectName(entityDockName());
    connect(entityDock_, &EntityPropertiesQDockWidget::entitychanged, this,
            &TfrmProperties::onEntityPropertyChanged);
    shell_.addDockLeft(entityDock_);
}

void TfrmProperties::makeVariableDock() {
    if (shell_.dockExists(variableDockName()))
        shell_.closeDock(variableDockName());
    variableDock_ = new VariablePropertiesQDockWidget;
    variableDock_->setObjectName(variableDockName());
    connect(variableDock_, &VariablePropertiesQDockWidget::variablechanged, this,
            &TfrmProperties::onVarPropertyChanged);
    shell_.addDockLeft(variableDock_);
}

bool TfrmProperties::showEntity(TKpEntity* entity) {
    if (entityDock_ == nullptr)
        makeEntityDock();
    if (entity != nullptr && entityDock_->entity() == entity) {
        entityDock_->rebind(root_, entity);
        return true;
    }
    if (!settleEntity())
        return false;
    entityDock_->setEntity(root_, entity);
    return true;
}

bool TfrmProperties::showVariable(TKpVariable* variable) {
    if (variableDock_ == nullptr)
        makeVariableDock();
    if (variable != nullptr && variableDock_->variable() == variable) {
        variableDock_->rebind(root_, variable);
        return true;
    }
    if (!settleVariable())
        return false;
    variableDock_->setVariable(root_, variable);
    return true;
}

bool TfrmProperties::settleEntity() {
    if (entityDock_ == nullptr)
        return true;
    entityDock_->storeTexts();
    return settle(*entityDock_, tr("Confirm"),
                  tr("Entity definition has been modified. Save changes?"));
}

bool TfrmProperties::settleVariable() {
    if (variableDock_ == nullptr)
        return true;
    variableDock_->commitEditor();
    return settle(*variableDock_, tr("Confirm"),
                  tr("Variable definition has been modified. Save changes?\n"));
}

bool TfrmProperties::settlePending() {
    return settleEntity() && settleVariable();
}

bool TfrmProperties::hasPending() const {
    return (entityDock_ != nullptr && entityDock_->isModified()) ||
           (variableDock_ != nullptr && variableDock_->isModified());
}

void TfrmProperties::setRoot(const std::shared_ptr<TKpEntity>& root) {
    // The docks still show the old tree, which must outlive their looking up of names.
    const std::shared_ptr<TKpEntity> old = std::exchange(root_, root);
    if (entityDock_ != nullptr)
        rebindEntity();
    if (variableDock_ != nullptr)
        rebindVariable();
}

void TfrmProperties::rebindEntity() {
    TKpEntity* found =
        entityDock_->entity() != nullptr ? findEntity(entityDock_->entity()->name) : nullptr;
    if (found != nullptr)
        entityDock_->rebind(root_, found);
    else
        entityDock_->setEntity(root_, nullptr);
}

void TfrmProperties::rebindVariable() {
    const TKpVariable* shown = variableDock_->variable();
    TKpVariable* found = shown != nullptr ? findVariable(shown->entityName, shown->name) : nullptr;
    if (found != nullptr) {
        variableDock_->rebind(root_, found);
        return;
    }
    const QString lost =
        shown != nullptr && variableDock_->isModified() && root_ ? shown->fullName : QString();
    variableDock_->setVariable(root_, nullptr);
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
    if (entityDock_ != nullptr)
        entityDock_->setWindowModified(changed);
    if (variableDock_ != nullptr)
        variableDock_->setWindowModified(changed);
}

void TfrmProperties::onVarPropertyChanged(bool value) {
    setChanged(value);
    emit varchanged(value);
}

void TfrmProperties::onEntityPropertyChanged(bool value) {
    setChanged(value);
    emit entchanged(value);
}
