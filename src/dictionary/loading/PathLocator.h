// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the entities and variables of a mirror whose data file is missing, and gives them the files
// that the user shows.
#pragma once

#include <QList>
#include <QString>

class TKelDictionary;
class TKpEntity;
class TKpVariable;

/// The mirror and its engine's objects are changed through DictionaryEdit, so that the dictionary
/// counts as changed. Holds pointers into the mirror: use it up before that is rebuilt.
class PathLocator {
public:
    struct Item {
        TKpEntity* entity = nullptr;
        TKpVariable* variable = nullptr; ///< null for an entity's own file

        QString name() const; ///< ENTITY or ENTITY.VARIABLE
        QString path() const; ///< where the file should be
        QString bareName() const;
        bool isMissing() const;
    };

    PathLocator(TKelDictionary& dictionary, TKpEntity& root);

    /// In the tree's order, as it was at the beginning. Virtual entities follow their parents.
    const QList<Item>& items() const { return items_; }
    int missingCount() const;
    bool isChanged() const { return changed_; }

    /// True where the file can stand for the item's: it has the same name, in any case.
    static bool fits(const Item& item, const QString& file);
    /// Gives the item that file, and each other missing item the file of its name in the same
    /// folder. False, with nothing done, where the file does not fit or is none.
    bool relocate(const Item& item, const QString& file);

private:
    void setFile(const Item& item, const QString& file);
    void showToVirtualChildren(TKpEntity& entity);
    void fitTheRest(const QString& folder);

    QString dataFolder_;
    QList<Item> items_;
    bool changed_ = false;
};
