// SPDX-License-Identifier: GPL-3.0-or-later
// An entity as the interface sees it: the engine's values in QStrings, with resolved paths.
// Forms, models and reports read these; only a few questions go back to the engine's entity.
#pragma once

#include "TKelEntity.h"

#include <QList>
#include <QString>

class TKpVariable;

/// Owns its children and variables. The fields hide the engine's accessors of the same names: ask
/// engineEntity for the engine's own answers, the hierarchy included.
class TKpEntity : public TKelEntity {
public:
    explicit TKpEntity(TKelDictionary* dictionary);
    ~TKpEntity() override;

    void setSelectable(const bool& value) override;
    TKelVariable* cmpCodeVar() override;
    TKelVariable* sdcVar() override;
    /// Asked of the engine's entities, on behalf of mirrors too.
    bool isMyAncestor(TKelEntity* other, bool orSelf) override;
    bool isSameBranch(TKelEntity* other) override;
    std::vector<EntityAreaCount> areaEntityCounts(const std::string& compoundCode) override;
    bool isReadOnly() override;
    std::vector<AreaCodeRecord> childAreaCodes(const std::string& parentCompoundCode,
                                               const std::string& childEntityName) override;
    std::string nameText() override;

    QString name;
    QString alias;
    QString label;
    bool selectable = false;
    QString refCode;  ///< name of the code variable
    QString refLabel; ///< name of the label variable
    int tag = -1;     ///< user's mark, negative when unset
    QString parentName;
    QString fileName; ///< relative; a virtual entity shows its parent's
    QList<TKpEntity*> children;
    QList<TKpVariable*> variables;
    int level = 0; ///< 1 for the root
    qint64 instanceCount = 0;
    bool sensitive = false; ///< a variable of it hides small cells
    bool extraFlagA = false;
    bool extraFlagB = false;
    QString extraText;
    QString documentation;
    QString weightVar; ///< ENTITY.VARIABLE
    bool isVirtual = false;
    QString fullPath; ///< with native separators
    bool fileExists = false;
    TKelEntity* engineEntity = nullptr; ///< not owned

    /// The root and virtual entities need no file of their own.
    bool isFileMissing() const { return !fileName.isEmpty() && !fileExists; }
};
