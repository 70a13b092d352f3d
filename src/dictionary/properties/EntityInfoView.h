// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the quick view about an entity.
#pragma once

#include "dictionary/properties/InfoView.h"

class QTreeWidget;

class EntityInfoView : public InfoView {
    Q_OBJECT

public:
    explicit EntityInfoView(QWidget* parent = nullptr);

    void setInfo(const EntityInfo& info);
    void retranslate();

protected:
    void changeEvent(QEvent* event) override;

private:
    void fillTree();
    void fitTree();

    EntityInfo info_;
    QLabel* selected_;
    QFormLayout* path_;
    QLabel* properties_;
    QFormLayout* lines_;
    QLabel* expand_;
    QTreeWidget* tree_;
    QLabel* documentationCaption_;
    QPlainTextEdit* documentation_;
};
