// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/InfoProperties.h"

#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/EntityInfoView.h"
#include "dictionary/properties/VariableInfoView.h"

#include <QEvent>
#include <QStackedWidget>

#include <algorithm>

InfoProperties::InfoProperties(QWidget* parent)
    : ClosableQDockedWidget(parent), pages_(new QStackedWidget), variable_(new VariableInfoView),
      entity_(new EntityInfoView) {
    setObjectName(QStringLiteral("VarProperties"));
    pages_->addWidget(new QWidget); // nothing is shown yet
    pages_->addWidget(variable_);
    pages_->addWidget(entity_);
    setWidget(pages_);
    setSubject(nullptr, {});
}

void InfoProperties::showVariable(const TKpVariable& variable) {
    variable_->setInfo(VariableInfo::of(variable));
    pages_->setCurrentWidget(variable_);
    entityName_ = variable.entityName;
    variableName_ = variable.name;
    setSubject(QT_TR_NOOP("Variable"), variable.entityName + '.' + variable.name);
}

void InfoProperties::showEntity(TKpEntity* root, TKpEntity& entity) {
    entity_->setInfo(EntityInfo::of(root, entity));
    pages_->setCurrentWidget(entity_);
    entityName_ = entity.name;
    variableName_.clear();
    setSubject(QT_TR_NOOP("Entity"), entity.name);
}

void InfoProperties::refresh(TKpEntity* root) {
    TKpEntity* entity = kind_ != nullptr ? DictionaryUtil().findEntity(root, entityName_) : nullptr;
    if (entity == nullptr || entity->name != entityName_)
        return;
    if (variableName_.isEmpty())
        return showEntity(root, *entity);
    const auto found = std::find_if(
        entity->variables.cbegin(), entity->variables.cend(),
        [this](const TKpVariable* variable) { return variable->name == variableName_; });
    if (found != entity->variables.cend())
        showVariable(**found);
}

void InfoProperties::clear() {
    pages_->setCurrentIndex(0);
    setSubject(nullptr, {});
}

void InfoProperties::setSubject(const char* kind, const QString& name) {
    kind_ = kind;
    name_ = name;
    setWindowTitle(kind == nullptr ? tr("Quick View") : tr(kind) + QLatin1String(": ") + name);
}

void InfoProperties::retranslate() {
    variable_->retranslate();
    entity_->retranslate();
    setSubject(kind_, name_);
}

void InfoProperties::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    ClosableQDockedWidget::changeEvent(event);
}
