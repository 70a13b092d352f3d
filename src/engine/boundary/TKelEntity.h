// SPDX-License-Identifier: Apache-2.0
// An entity of a dictionary: a kind of record (province, household, person) and its place in the
// hierarchy.
#pragma once

#include "KelTypes.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class TKelDictionary;
class TKelVariable;

/// Entities that a dictionary made belong to it and live as long as it does. An entity built with
/// a null dictionary stands alone: it holds what its setters were given and answers hierarchy
/// questions with null, false or nothing.
class KEL_EXPORT TKelEntity {
public:
    explicit TKelEntity(TKelDictionary* dictionary);
    TKelEntity(const TKelEntity&) = delete;
    TKelEntity& operator=(const TKelEntity&) = delete;
    virtual ~TKelEntity();

    virtual TKelDictionary* dictionary() const;
    virtual TKelEntity* parent() const;
    virtual void setParent(TKelEntity* parent);
    virtual TKelVariable* codeVar() const;
    virtual void setCodeVar(TKelVariable* variable);
    virtual TKelVariable* labelVar() const;
    virtual void setLabelVar(TKelVariable* variable);
    virtual TKelVariable* weightVar() const;
    virtual void setWeightVar(TKelVariable* variable);
    virtual const std::string& fileName() const;
    virtual void setFileName(const std::string& fileName);
    virtual const std::string& name() const;
    virtual void setName(const std::string& name);
    virtual const std::string& label() const;
    virtual void setLabel(const std::string& label);
    virtual const std::string& alias() const;
    virtual void setAlias(const std::string& alias);
    virtual const std::string& documentation() const;
    virtual void setDocumentation(const std::string& documentation);
    virtual bool selectable() const;
    virtual void setSelectable(const bool& selectable);
    virtual bool isVirtual() const;
    virtual const std::vector<TKelVariable*> allVariables(); ///< with those made by a program
    virtual const std::vector<TKelVariable*> virtualVariables();
    virtual bool active() const;
    virtual void setActive(const bool& active);
    virtual std::string metadata() const;
    virtual void setMetadata(const std::string& metadata);
    virtual std::string fullFileName(); ///< fileName resolved against the data folder
    virtual TKelEntity* realEntity();   ///< the entity whose records this one shows; itself
    /// The compound code: the codes from the top down, joined without separator. Null where
    /// neither the entity nor an ancestor has a code variable.
    virtual TKelVariable* cmpCodeVar();
    virtual TKelVariable* sdcVar(); ///< disclosure control variable; null where there is none
    /// True when other stands above this entity, or is this entity and orSelf is set.
    virtual bool isMyAncestor(TKelEntity* other, bool orSelf);
    /// True when one of the two stands above the other, or they are the same.
    virtual bool isSameBranch(TKelEntity* other);
    virtual void addChild(TKelEntity* child);
    virtual void addVariable(TKelVariable* variable);

    // Data access of entities that a dictionary made.
    virtual bool openData();                 ///< opens the record structure; false where missing
    virtual void closeData();                ///< lets go of it
    virtual bool isDataOpen();               ///< true between the two
    virtual std::int64_t instanceCount(int); ///< number of records; the argument is reserved (0)
    virtual std::int64_t childRecord(std::int64_t parentRecord); ///< first record under a parent's
    /// Records of the entities below this one under the area with that compound code.
    virtual std::vector<EntityAreaCount> areaEntityCounts(const std::string& compoundCode);
    /// Elements of the entity named childEntityName under that area, in record order.
    virtual std::vector<AreaCodeRecord> childAreaCodes(const std::string& parentCompoundCode,
                                                       const std::string& childEntityName);
    virtual bool isReadOnly(); ///< true where records cannot be changed; false for a mirror
    virtual std::string nameText();

    int tag() const; ///< the user's mark, negative where there is none
    void setTag(int tag);
    /// The number of cases below which figures about the entity are hidden.
    std::optional<int> sensitive() const;
    void setSensitive(const std::optional<int>& cases);
    bool hidden() const; ///< a mark for lists of entities; has no other effect

    const std::vector<TKelVariable*>& variables() const;
    const std::vector<TKelEntity*>& children() const;
    /// The entity with that name at or below this one, in any case; with exact set, by exact case.
    TKelEntity* findEntity(const std::string& name, bool exact);

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
