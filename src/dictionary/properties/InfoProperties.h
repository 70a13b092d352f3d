// SPDX-License-Identifier: GPL-3.0-or-later
// The quick view: a dock that shows one variable or one entity, and changes nothing.
// It copies what it shows, so that it may stand on when the dictionary is rebuilt or closed.
#pragma once

#include "app/widgets/ClosableQDockedWidget.h"

class EntityInfoView;
class QStackedWidget;
class TKpEntity;
class TKpVariable;
class VariableInfoView;

class InfoProperties : public ClosableQDockedWidget {
    Q_OBJECT

public:
    explicit InfoProperties(QWidget* parent = nullptr); ///< object name "VarProperties"

    void showVariable(const TKpVariable& variable);
    void showEntity(TKpEntity* root, TKpEntity& entity);
    /// After a change of the dictionary: looks for what is shown in the mirror, by name, and shows
    /// it anew. What is not found there stays as it was.
    void refresh(TKpEntity* root);
    void clear();
    virtual void retranslate();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setSubject(const char* kind, const QString& name);

    QStackedWidget* pages_;
    VariableInfoView* variable_;
    EntityInfoView* entity_;
    const char* kind_ = nullptr; ///< source text: what the subject is; null for nothing shown
    QString name_;
    QString entityName_;
    QString variableName_; ///< empty where an entity is shown
};
