// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the dialog about an entity.
#pragma once

#include "dictionary/properties/EntityDraft.h"
#include "dictionary/properties/VariableTabs.h"

class EntityDetails;

/// Label, alias, tag and the data file.
class GeneralEntityTab : public BaseTab {
    Q_OBJECT

public:
    GeneralEntityTab(EntityDraft& draft, EntityDetails* details, QWidget* parent = nullptr);
    QString title() const override { return tr("General"); }
};
