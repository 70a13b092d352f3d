// SPDX-License-Identifier: Apache-2.0
// An open database: its description and the way to its records.
#pragma once

#include "KelTypes.h"

#include <memory>
#include <string>

class TKelEntity;

/// Made by kel::readDictionary. Used by one thread at a time.
class KEL_EXPORT TKelDictionary {
public:
    TKelDictionary();
    TKelDictionary(const TKelDictionary&) = delete;
    TKelDictionary& operator=(const TKelDictionary&) = delete;
    virtual ~TKelDictionary();

    virtual std::shared_ptr<TKelEntity> root();
    virtual void setDataPath(const std::string& folder); ///< relative file names resolve against it
    virtual std::string name();
    virtual std::string label();
    virtual std::string fileName(); ///< path of the dictionary file
    virtual std::string typeType();
    virtual std::string author();
    virtual std::string created(); ///< ISO 8601 date and time
    virtual std::string updated();
    virtual bool isDirty(); ///< true when there are unsaved changes
    virtual void setDirty(bool dirty);

    /// The entity with that name, in any case; null where there is none.
    TKelEntity* findEntity(const std::string& name);

    // Additions of this engine.
    std::string dataPath() const; ///< where the data lie: the dictionary's folder unless told
    /// Takes over the names, labels and structure of another tree that began as a copy of this one.
    void setRoot(const std::shared_ptr<TKelEntity>& root);

private:
    friend struct KelBoundaryAccess;
    struct Data;
    std::unique_ptr<Data> d;
};
