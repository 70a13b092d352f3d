// SPDX-License-Identifier: GPL-3.0-or-later
// What a user may change of a variable, while it is not yet in the dictionary.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"

#include <QList>
#include <QString>

class TKpVariable;

/// A plain value. The texts are as the edits show them.
struct VariableDraft {
    QString label;
    QString alias;
    QString group;
    QString tag;
    QString documentation;
    bool hidden = false;
    QList<ValueLabelElement> categories;

    static VariableDraft of(const TKpVariable& variable);
    /// Writes what differs from the variable. Names and categories are checked before, not here.
    void applyTo(TKpVariable& variable) const;
    /// The variable was before and is now: what the user did not touch follows it.
    void rebase(const VariableDraft& before, const VariableDraft& now);

    bool operator==(const VariableDraft&) const = default;
};
