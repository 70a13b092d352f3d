// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/TabDialogVariableProperties.h"

#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/DataFileForm.h"
#include "dictionary/properties/VariableTabs.h"
#include "dictionary/views/Validate.h"

TabDialogVariableProperties::TabDialogVariableProperties(std::shared_ptr<TKpEntity> root,
                                                         TKpVariable& variable, QWidget* parent)
    : AppProperties(parent), root_(std::move(root)), variable_(variable),
      stored_(VariableDraft::of(variable)), pending_(stored_),
      source_(new DataSourceVariableTab(variable)) {
    setWindowTitle(tr("Properties of %1").arg(variable.fullName));
    addPage(new GeneralVariablelTab(pending_));
    addPage(new TecnicalVariableTab(variable));
    addPage(source_);
    addPage(new DocumentationVariableTab(pending_.documentation));
}

bool TabDialogVariableProperties::isModified() const {
    return pending_ != stored_ || source_->path() != variable_.path;
}

QString TabDialogVariableProperties::question() const {
    return tr("Variable definition has been modified. Save changes?\n");
}

bool TabDialogVariableProperties::store() {
    const auto check = [this](Validate::Field field, const QString& text, const QString& before) {
        const NameVerdict verdict =
            text == before ? NameVerdict() : Validate::check(root_.get(), variable_, field, text);
        if (!verdict.isFine())
            Validate::showMessage(verdict.code, verdict.name);
        return verdict.isFine();
    };
    if (!check(Validate::Field::Alias, pending_.alias, stored_.alias) ||
        !check(Validate::Field::Group, pending_.group, stored_.group))
        return false;
    pending_.applyTo(variable_);
    const QString path = source_->path();
    if (path != variable_.path)
        DictionaryEdit::setFile(variable_, DataFileForm::storedName(path, variable_.engineEntity),
                                path);
    stored_ = VariableDraft::of(variable_);
    pending_ = stored_;
    emit variablechanged(true);
    return true;
}
