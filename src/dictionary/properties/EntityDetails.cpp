// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityDetails.h"

#include "dictionary/mirror/TKpEntity.h"

EntityDetails::EntityDetails(const TKpEntity& entity, QWidget* parent) : DataFileForm(parent) {
    setPath(entity.fullPath);
}
