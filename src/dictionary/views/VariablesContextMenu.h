// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of the selected variables in the table.
#pragma once

#include <QList>
#include <QMenu>

#include <memory>

class TKpEntity;
class TKpVariable;

/// Deletes itself when it closes. Shares the mirror that its variables belong to.
class VariablesContextMenu : public QMenu {
    Q_OBJECT

public:
    /// current: the variable that was pointed at, one of those selected.
    VariablesContextMenu(std::shared_ptr<TKpEntity> root, QList<TKpVariable*> selected,
                         TKpVariable* current, QWidget* parent = nullptr);

signals:
    void signalQuickView();
    void signalShowProperties();
    void signalRename();
    void signalDelete(); ///< after the user has agreed
    void signalSelectAll();
    void executeProgram(const QString& program);

private slots:
    void onDeleteVar();
    void onFrequency();

private:
    void addView();
    void addEdit(const TKpVariable& current);
    void addStatistics();
    void addMarks();
    void addGroup(const QString& group);
    void addUnfinished(QMenu& menu, const QString& name, const QString& text,
                       const QString& message);

    std::shared_ptr<TKpEntity> root_;
    QList<TKpVariable*> selected_;
};

/// Asks whether the variables are to be deleted.
bool confirmVariableDeletion();
/// Why variables that are not local stay.
QString variableNotDeletable();
