// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityTabs.h"

#include "dictionary/properties/EntityDetails.h"
#include "dictionary/properties/NameEdit.h"

#include <QFormLayout>
#include <QLineEdit>

GeneralEntityTab::GeneralEntityTab(EntityDraft& draft, EntityDetails* details, QWidget* parent)
    : BaseTab(parent) {
    QLineEdit* alias = NameEdit::bound("leAlias", draft.alias);
    QLineEdit* tag = NameEdit::bound("leTag", draft.tag);
    NameEdit::acceptNames(alias);
    NameEdit::acceptDigits(tag);
    form_->addRow(tr("Label:"), NameEdit::bound("leLabel", draft.label));
    form_->addRow(tr("Alias:"), alias);
    form_->addRow(tr("Tag:"), tag);
    form_->addRow(details);
}
