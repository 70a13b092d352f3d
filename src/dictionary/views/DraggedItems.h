// SPDX-License-Identifier: GPL-3.0-or-later
// What is dragged out of the dictionary: entities and variables as texts of JSON objects, written
// for every form that takes them and read back by it.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"

#include <QList>
#include <QString>

class QMimeData;
class TKpEntity;
class TKpVariable;

/// "application/vnd.text.list"
QString draggedItemsType();

/// New, the caller's. Also holds the full names as plain text, for editors.
QMimeData* dragData(const QList<TKpEntity*>& entities);
QMimeData* dragData(const QList<TKpVariable*>& variables);

/// One dragged item. The names tell where to look it up; the rest is what it was when dragged.
struct DraggedItem {
    bool isEntity = false;
    QString entity; ///< the variable's entity; of an entity its own name
    QString name;
    QString fullName; ///< ENTITY.VARIABLE; of an entity its name
    QString label;
    int level = 0; ///< of the entity, 1 for the root
    // Of variables only.
    QString group;
    QString alias;
    QString type;
    QString path;
    QString documentation;
    int tag = -1;
    int size = 0;
    int position = 0;
    int decimals = 0;
    int missing = 0;
    int notApp = 0;
    bool local = false;
    QList<ValueLabelElement> valueLabels;
};

/// In the order of the drag. Anything else than such a drag gives nothing, an item that is no
/// object with a name is left out.
QList<DraggedItem> readDraggedItems(const QMimeData* data);
