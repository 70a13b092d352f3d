// SPDX-License-Identifier: GPL-3.0-or-later
// Changes that a user makes to a dictionary. Each goes to the interface's object and to the
// engine's behind it, which then counts as changed. The rules of names are checked before, not
// here.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"

#include <QList>
#include <QString>

class TKelVariable;
class TKpEntity;
class TKpVariable;

/// All of them do nothing where the new value is the old one.
class DictionaryEdit {
public:
    static void setAlias(TKpEntity& entity, const QString& alias);
    static void setLabel(TKpEntity& entity, const QString& label);
    static void setTag(TKpEntity& entity, int tag); ///< as setTag of a variable
    static void setDocumentation(TKpEntity& entity, const QString& documentation);
    /// The file as the dictionary is to name it, and where it lies.
    static void setFile(TKpEntity& entity, const QString& fileName, const QString& fullPath);

    /// The entity's references to the variable (code, label, weight) follow.
    static void setName(TKpVariable& variable, const QString& name);
    static void setAlias(TKpVariable& variable, const QString& alias);
    static void setGroup(TKpVariable& variable, const QString& group);
    static void setLabel(TKpVariable& variable, const QString& label);
    /// Negative means no mark; 9999 is the largest.
    static void setTag(TKpVariable& variable, int tag);
    static void setDocumentation(TKpVariable& variable, const QString& documentation);
    static void setHidden(TKpVariable& variable, bool hidden);
    /// Elements without a value stay out of the engine's list. Copies of the variable that share
    /// its list keep the old one.
    static void setValueLabels(TKpVariable& variable, const QList<ValueLabelElement>& labels);
    static void setFile(TKpVariable& variable, const QString& fileName, const QString& path);

    /// The engine's variable that the interface's one was made from; null where it is gone.
    static TKelVariable* engineVariable(const TKpVariable& variable);
};
