// SPDX-License-Identifier: GPL-3.0-or-later
// Owns what is shown about the current entity and variable: one dock for each.
// Asks before anything typed is lost, and tells when the dictionary was changed.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class EntityPropertiesQDockWidget;
class Shell;
class TKpEntity;
class TKpVariable;
class VariablePropertiesQDockWidget;

class TfrmProperties : public QObject {
    Q_OBJECT

public:
    explicit TfrmProperties(Shell& shell, QObject* parent = nullptr);
    ~TfrmProperties() override; ///< leaves the docks empty

    /// The mirror, and each one that replaces it: what is shown is looked up again by name, and
    /// what was typed stays. The old tree must still live. Null empties the docks.
    void setRoot(const std::shared_ptr<TKpEntity>& root);

    // Null empties the dock. Unsaved edits of another one are asked about first. False where the
    // user cancels, or wants them saved and they cannot be: the other one stays, and should be
    // selected again.
    bool showEntity(TKpEntity* entity);
    bool showVariable(TKpVariable* variable);

    /// To be called before the dictionary is saved or closed. False: stay, the user
    /// wants to, or there is something to mend, as a message has told.
    bool settlePending();
    bool hasPending() const;

    QString entityDockName() const { return QStringLiteral("Entity Properties"); }
    QString variableDockName() const { return QStringLiteral("Variable Properties"); }
    /// The mark of changes that are in the dictionary, but not in its file.
    void setChanged(bool changed);

signals:
    void varchanged(bool value);
    void entchanged(bool value);

private slots:
    void onVarPropertyChanged(bool value);
    void onEntityPropertyChanged(bool value);

private:
    void makeEntityDock();
    void makeVariableDock();
    bool settleEntity();
    bool settleVariable();
    void rebindEntity();
    void rebindVariable();
    TKpEntity* findEntity(const QString& name) const;
    TKpVariable* findVariable(const QString& entityName, const QString& name) const;

    Shell& shell_;
    std::shared_ptr<TKpEntity> root_;
    // The window's; null until something is shown, and when the window deleted them.
    QPointer<EntityPropertiesQDockWidget> entityDock_;
    QPointer<VariablePropertiesQDockWidget> variableDock_;
};
