// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/DialogEntityProperties.h"

#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/properties/EntityDetails.h"
#include "dictionary/properties/EntityTabs.h"
#include "dictionary/views/Validate.h"

DialogEntityProperties::DialogEntityProperties(std::shared_ptr<TKpEntity> root, TKpEntity& entity,
                                               QWidget* parent)
    : AppProperties(parent), root_(std::move(root)), entity_(entity),
      stored_(EntityDraft::of(entity)), pending_(stored_), details_(new EntityDetails(entity)) {
    setWindowTitle(tr("Properties of %1").arg(entity.name));
    addPage(new GeneralEntityTab(pending_, details_));
    addPage(new DocumentationVariableTab(pending_.documentation));
}

bool DialogEntityProperties::isModified() const {
    return pending_ != stored_ || details_->path() != entity_.fullPath;
}

QString DialogEntityProperties::question() const {
    return tr("Entity definition has been modified. Save changes?");
}

bool DialogEntityProperties::store() {
    const NameVerdict verdict = pending_.alias == stored_.alias
                                    ? NameVerdict()
                                    : Validate::checkAlias(root_.get(), entity_, pending_.alias);
    if (!verdict.isFine()) {
        Validate::showMessage(verdict.code, verdict.name);
        return false;
    }
    pending_.applyTo(entity_);
    const QString path = details_->path();
    if (path != entity_.fullPath)
        DictionaryEdit::setFile(entity_, DataFileForm::storedName(path, entity_.engineEntity),
                                path);
    stored_ = EntityDraft::of(entity_);
    pending_ = stored_;
    emit entitychanged(true);
    return true;
}
