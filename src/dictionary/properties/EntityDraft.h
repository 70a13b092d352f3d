// SPDX-License-Identifier: GPL-3.0-or-later
// What a user may change of an entity, while it is not yet in the dictionary.
#pragma once

#include <QString>

class TKpEntity;

/// A plain value. The texts are as the edits show them.
struct EntityDraft {
    QString label;
    QString alias;
    QString tag;
    QString documentation;
    // Carried along: the interface gives them no control.
    bool extraFlagA = false;
    bool extraFlagB = false;
    QString extraText;

    static EntityDraft of(const TKpEntity& entity);
    /// Writes what differs from the entity. The rules of names are checked before, not here.
    void applyTo(TKpEntity& entity) const;
    /// The entity was before and is now: what the user did not touch follows it.
    void rebase(const EntityDraft& before, const EntityDraft& now);

    bool operator==(const EntityDraft&) const = default;
};
