// SPDX-License-Identifier: Apache-2.0
// A variable of an entity: what its values mean and where they are stored.
#pragma once

#include "KelTypes.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class TKelEntity;

/// Variables that a dictionary made belong to it. A copy is detached: it keeps the values, its
/// changes do not reach the original.
class KEL_EXPORT TKelVariable {
public:
    explicit TKelVariable(TKelEntity* entity);
    TKelVariable(const TKelVariable& other);
    TKelVariable& operator=(const TKelVariable&) = delete;
    virtual ~TKelVariable();

    virtual TKelEntity* entity(bool real) const; ///< with real set, the entity that has the records
    virtual const eVarType& type() const;
    virtual void setType(const eVarType& type);
    virtual std::string typeName() const; ///< NONE, INTEGER, REAL, STRING, BOOLEAN
    virtual const std::string& name() const;
    virtual void setName(const std::string& name);
    virtual int size() const; ///< width of a value in characters
    virtual void setSize(int size);
    virtual const std::string& label() const;
    virtual void setLabel(const std::string& label);
    virtual const std::string& alias() const;
    virtual void setAlias(const std::string& alias);
    virtual const std::string& group() const;
    virtual void setGroup(const std::string& group);
    virtual const std::string& fileName() const;
    virtual void setFileName(const std::string& fileName);
    virtual const std::optional<double>& notapp() const;
    virtual void setNotapp(const std::optional<double>& code);
    virtual const std::optional<double>& missing() const;
    virtual void setMissing(const std::optional<double>& code);
    virtual eVarState state() const;
    virtual void setState(eVarState state);
    virtual bool active() const;
    virtual void setActive(bool active);
    virtual bool define() const; ///< made by a DEFINE of the running program
    virtual void setDefine(bool define);
    virtual std::string metadata() const;
    virtual void setMetadata(const std::string& metadata);
    virtual std::string documentation() const;
    virtual void setDocumentation(const std::string& documentation);
    virtual int tag() const;
    virtual void setTag(int tag);
    virtual bool local() const; ///< made by a program, not part of the original database
    virtual std::string info(); ///< one line: full name, type, label
    virtual bool addValueLabel(const std::string& value, const std::string& label);
    virtual void setValueLabels(const TKelValueLabels& labels);
    virtual std::string labelOf(const TKelVariant& value);
    virtual std::string labelOf(const std::string& value); ///< empty where the value has no label
    virtual bool isMissingValue(const double& value);
    virtual bool isNotAppValue(const double& value);
    virtual std::string asJson(); ///< the description as one JSON object, UTF-8

    // Additions of this engine.
    const std::vector<std::pair<std::string, std::string>>& valueLabels() const;
    std::optional<int> decimals() const;
    const std::vector<TKelRange>& ranges() const;
    std::optional<int> sensitive() const; ///< the number of cases below which cells are hidden
    bool hidden() const;                  ///< a mark for lists of variables; has no other effect
    void setHidden(bool hidden);

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
