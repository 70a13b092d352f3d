// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog about an entity, for whoever wants more than the dock beside the dictionary.
#pragma once

#include "dictionary/properties/AppProperties.h"
#include "dictionary/properties/EntityDraft.h"

#include <memory>

class EntityDetails;
class TKpEntity;

class DialogEntityProperties : public AppProperties {
    Q_OBJECT

public:
    /// The entity is one of the tree.
    DialogEntityProperties(std::shared_ptr<TKpEntity> root, TKpEntity& entity,
                           QWidget* parent = nullptr);

signals:
    void entitychanged(bool value); ///< the dictionary was changed

protected:
    bool isModified() const override;
    QString question() const override;
    bool store() override;

private:
    std::shared_ptr<TKpEntity> root_; ///< keeps the entity alive
    TKpEntity& entity_;
    EntityDraft stored_;
    EntityDraft pending_;
    EntityDetails* details_;
};
