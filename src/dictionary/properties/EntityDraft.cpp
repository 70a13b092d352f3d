// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityDraft.h"

#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/properties/Documentation.h"
#include "dictionary/properties/TagText.h"

EntityDraft EntityDraft::of(const TKpEntity& entity) {
    return {entity.label,
            entity.alias,
            TagText::of(entity.tag),
            Documentation::shown(entity.documentation),
            entity.extraFlagA,
            entity.extraFlagB,
            entity.extraText};
}

void EntityDraft::applyTo(TKpEntity& entity) const {
    const EntityDraft before = of(entity);
    DictionaryEdit::setLabel(entity, label);
    DictionaryEdit::setAlias(entity, alias);
    DictionaryEdit::setTag(entity, TagText::parse(tag));
    if (documentation != before.documentation)
        DictionaryEdit::setDocumentation(entity, Documentation::stored(documentation));
    entity.extraFlagA = extraFlagA;
    entity.extraFlagB = extraFlagB;
    entity.extraText = extraText;
}

void EntityDraft::rebase(const EntityDraft& before, const EntityDraft& now) {
    for (QString EntityDraft::*field :
         {&EntityDraft::label, &EntityDraft::alias, &EntityDraft::tag, &EntityDraft::documentation})
        if (this->*field == before.*field)
            this->*field = now.*field;
}
