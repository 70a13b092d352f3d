// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VariableDraft.h"

#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/CategoryEdits.h"
#include "dictionary/properties/Documentation.h"
#include "dictionary/properties/TagText.h"

namespace {

template <class Field>
void follow(VariableDraft& draft, Field VariableDraft::*field, const VariableDraft& before,
            const VariableDraft& now) {
    if (draft.*field == before.*field)
        draft.*field = now.*field;
}

} // namespace

VariableDraft VariableDraft::of(const TKpVariable& variable) {
    VariableDraft draft;
    draft.label = variable.label;
    draft.alias = variable.alias;
    draft.group = variable.group;
    draft.tag = TagText::of(variable.tag);
    draft.documentation = Documentation::shown(variable.documentation);
    draft.hidden = variable.hidden;
    if (variable.valueLabels)
        draft.categories = *variable.valueLabels;
    return draft;
}

void VariableDraft::applyTo(TKpVariable& variable) const {
    const VariableDraft before = of(variable);
    DictionaryEdit::setLabel(variable, label);
    DictionaryEdit::setAlias(variable, alias);
    DictionaryEdit::setGroup(variable, group);
    DictionaryEdit::setTag(variable, TagText::parse(tag));
    DictionaryEdit::setHidden(variable, hidden);
    if (documentation != before.documentation)
        DictionaryEdit::setDocumentation(variable, Documentation::stored(documentation));
    if (categories != before.categories)
        DictionaryEdit::setValueLabels(variable, Categories::withoutEmptyRows(categories));
}

void VariableDraft::rebase(const VariableDraft& before, const VariableDraft& now) {
    for (QString VariableDraft::*field :
         {&VariableDraft::label, &VariableDraft::alias, &VariableDraft::group, &VariableDraft::tag,
          &VariableDraft::documentation})
        follow(*this, field, before, now);
    follow(*this, &VariableDraft::hidden, before, now);
    follow(*this, &VariableDraft::categories, before, now);
}
