// SPDX-License-Identifier: GPL-3.0-or-later
// What the quick view tells about an entity: a copy, so that it may outlive the dictionary.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class TKpEntity;

/// A caption and what it is about; without a caption, a statement.
struct InfoLine {
    QString caption;
    QString text;
    bool operator==(const InfoLine&) const = default;
};

class EntityInfo {
    Q_DECLARE_TR_FUNCTIONS(EntityInfo)

public:
    /// An entity, how many elements it has, and the entities below it.
    struct Branch {
        QString name;
        QString label;
        qint64 elements = 0;
        QList<Branch> children;
    };

    static EntityInfo of(TKpEntity* root, TKpEntity& entity);

    QList<InfoLine> lines() const; ///< in the language of now
    QList<InfoLine> path() const;  ///< "1. NAME: " and " ( label )", from the root down

    QString name;
    bool selectable = false;
    QString codeVar;
    QString labelVar;
    QString weightVar;
    bool isVirtual = false;
    QString parentName;
    QList<QPair<QString, QString>> ancestors; ///< name and label, itself the last
    Branch branch;
    QString documentation; ///< with line breaks
};
