// SPDX-License-Identifier: GPL-3.0-or-later
// The data file of an entity, to be seen and chosen anew. Who shows the form stores the choice.
#pragma once

#include "dictionary/properties/DataFileForm.h"

class TKpEntity;

class EntityDetails : public DataFileForm {
    Q_OBJECT

public:
    explicit EntityDetails(const TKpEntity& entity, QWidget* parent = nullptr);
};
