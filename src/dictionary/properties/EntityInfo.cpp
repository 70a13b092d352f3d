// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/EntityInfo.h"

#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/properties/Documentation.h"

#include <QLocale>

namespace {

EntityInfo::Branch branchOf(const TKpEntity& entity) {
    EntityInfo::Branch branch{entity.name, entity.label, entity.instanceCount, {}};
    for (const TKpEntity* child : entity.children)
        branch.children.append(branchOf(*child));
    return branch;
}

} // namespace

EntityInfo EntityInfo::of(TKpEntity* root, TKpEntity& entity) {
    EntityInfo info;
    info.name = entity.name;
    info.selectable = entity.selectable;
    info.codeVar = entity.refCode;
    info.labelVar = entity.refLabel;
    info.weightVar = entity.weightVar;
    info.isVirtual = entity.isVirtual;
    info.parentName = entity.parentName;
    for (const TKpEntity* ancestor : DictionaryUtil().pathToRoot(root, &entity))
        info.ancestors.append({ancestor->name, ancestor->label});
    info.branch = branchOf(entity);
    info.documentation = Documentation::shown(entity.documentation);
    return info;
}

QList<InfoLine> EntityInfo::lines() const {
    QList<InfoLine> lines;
    if (selectable)
        lines.append({tr("Code Variable: "), codeVar});
    else
        lines.append({{}, tr("Entity cannot be selected")});
    if (labelVar.isEmpty())
        lines.append({{}, tr("Entity has not Label Variable")});
    else
        lines.append({tr("Label Variable: "), labelVar});
    if (weightVar.isEmpty())
        lines.append({{}, tr("No automatic weight")});
    else
        lines.append({{}, tr("Automatic weight variable [") + weightVar + ']'});
    if (isVirtual)
        lines.append({tr("Virtual Entity - Mother is "), parentName});
    lines.append({tr("Number of Elements: "), QLocale().toString(branch.elements)});
    return lines;
}

QList<InfoLine> EntityInfo::path() const {
    QList<InfoLine> lines;
    int number = 0;
    for (const auto& [ancestor, label] : ancestors) {
        const QString caption = QString::number(++number) + QLatin1String(". ") + ancestor;
        if (label.isEmpty())
            lines.append({caption, {}});
        else
            lines.append({caption + QLatin1String(": "), "( " + label + " )"});
    }
    return lines;
}
