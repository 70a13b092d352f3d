// SPDX-License-Identifier: GPL-3.0-or-later
// A variable as the interface sees it: the engine's values in QStrings, with its file resolved.
#pragma once

#include "TKelVariable.h"
#include "dictionary/mirror/ValueLabelElement.h"

#include <QList>
#include <QString>

#include <memory>

class TKpEntity;

/// The fields hide the engine's accessors of the same names. The lists are shared by copies.
class TKpVariable : public TKelVariable {
public:
    explicit TKpVariable(TKelEntity* entity);
    /// Begins as a detached copy of the engine's variable; the fields are still empty.
    explicit TKpVariable(const TKelVariable& engineVariable);
    TKpVariable(const TKpVariable& other);
    TKpVariable& operator=(const TKpVariable&) = delete;
    ~TKpVariable() override;

    void setSize(int value) override;
    void setTag(int value) override;
    bool addValueLabel(const std::string& value, const std::string& text) override;
    void setValueLabels(const TKelValueLabels& labels) override;
    std::string labelOf(const TKelVariant& value) override;
    std::string labelOf(const std::string& value) override;

    QString entityName;
    TKpEntity* owner = nullptr;         ///< not owned
    TKelEntity* engineEntity = nullptr; ///< not owned
    QString path;                       ///< full path of the data file
    QString fullName;                   ///< ENTITY.VARIABLE
    QString name;
    QString alias;
    QString label;
    QString group;
    QString typeName; ///< NONE, INTEGER, REAL, STRING, BOOLEAN
    QString documentation;
    int tag = -1;
    int notApp = 0;
    int missing = 0;
    int decimals = 0;
    int size = 0;
    int position = 0;
    QString fileName;
    std::shared_ptr<QList<TKelRange>> ranges;
    std::shared_ptr<QList<ValueLabelElement>> valueLabels; ///< null until a label is added
    int stateFlag = 1;
    bool local = false;  ///< made by a program, not part of the database
    bool hidden = false; ///< marked so by the user
    bool fileExists = false;

    /// A variable that names no file needs none.
    bool isFileMissing() const { return !fileName.isEmpty() && !fileExists; }
};
