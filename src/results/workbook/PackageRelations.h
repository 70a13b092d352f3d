// SPDX-License-Identifier: GPL-3.0-or-later
// How the parts of a workbook file find each other.
#pragma once

#include <QString>

class XmlPart;
class ZipPackage;

/// Of the parts that are read as a whole; real ones have some megabytes at most.
inline constexpr qint64 maxPartSize = 64 * 1024 * 1024;

inline const QString contentTypes = QStringLiteral("[Content_Types].xml");
inline const QString relationTypes =
    QStringLiteral("http://schemas.openxmlformats.org/officeDocument/2006/relationships");

/// With the slash; empty at the top.
QString folderOf(const QString& part);
/// The part that lists the relations of another.
QString relationsOf(const QString& part);
/// The target of the first relation of a type, from the part that has the relations; empty where
/// there is none.
QString targetOf(const XmlPart& relations, const QString& type, const QString& part);
/// Throws WorkbookError where there is none that sheets can be added to.
QString workbookPart(const ZipPackage& package);
