// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/Validate.h"

#include "app/messages/Messages.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "kel.h"

#include <QRegularExpression>

namespace {

bool same(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Words, blanks, characters, length: all that can be told from the text alone.
NameVerdict checkText(const QString& text) {
    NameVerdict verdict = Validate::checkName(text);
    if (!verdict.isFine())
        return verdict;
    return text.size() > Validate::longestName ? NameVerdict{Validate::TooLong, text}
                                               : NameVerdict{};
}

/// Who else in the dictionary goes by that text. The numbers for a variable's alias and name are
/// the ones that users know, although each text fits the other better. The object's own alias is no
/// obstacle to itself.
NameVerdict checkUnique(TKpEntity* root, const QString& text, const void* ownAlias) {
    const DictionaryUtil util;
    const QList<TKpVariable*> variables = util.allVariables(root);
    const QList<TKpEntity*> entities = util.entities(root);
    for (const TKpVariable* other : variables)
        if (other != ownAlias && same(other->alias, text))
            return {Validate::IsVariableName, other->fullName};
    for (const TKpVariable* other : variables)
        if (same(other->name, text))
            return {Validate::IsVariableAlias, other->fullName};
    for (const TKpEntity* other : entities)
        if (same(other->name, text))
            return {Validate::IsEntityName, other->name};
    for (const TKpEntity* other : entities)
        if (other != ownAlias && same(other->alias, text))
            return {Validate::IsEntityAlias, other->name};
    return {};
}

} // namespace

NameVerdict Validate::checkName(const QString& text) {
    static const QRegularExpression blank(QStringLiteral("\\s"));
    static const QRegularExpression allowed(QStringLiteral("\\A[a-zA-Z0-9_-]*\\z"));
    if (kel::isReserved(text.toStdString()))
        return {Reserved, text};
    if (text.contains(blank))
        return {Blanks, text};
    if (!allowed.match(text).hasMatch())
        return {InvalidCharacters, text};
    return {};
}

NameVerdict Validate::check(TKpEntity* root, const TKpVariable& variable, Field field,
                            const QString& text) {
    if (field == Field::Name && !variable.local)
        return {NotLocal, variable.fullName};
    if (text.isEmpty())
        return field == Field::Name ? NameVerdict{Empty, variable.fullName} : NameVerdict{};
    NameVerdict verdict = checkText(text);
    if (!verdict.isFine() || same(text.trimmed(), variable.name))
        return verdict;
    return checkUnique(root, text, field == Field::Alias ? &variable : nullptr);
}

NameVerdict Validate::checkAlias(TKpEntity* root, const TKpEntity& entity, const QString& text) {
    if (text.isEmpty())
        return {};
    NameVerdict verdict = checkText(text);
    if (!verdict.isFine() || same(text.trimmed(), entity.name))
        return verdict;
    return checkUnique(root, text, &entity);
}

QString Validate::message(int code, const QString& name) {
    switch (code) {
    case TooLong:
        return tr("The typed character string has a length greater than 50") + ": " + name;
    case IsGroup:
        return tr("The typed character string already exists as a group name of ") + name;
    case IsEntityName:
        return tr("The typed character string already exists and it is the entity ") + name;
    case IsEntityAlias:
        return tr("The typed character string already exists as entity alias of ") + name;
    case IsVariableName:
        return tr("The typed character string already exists as a variable name: ") + name;
    case IsVariableAlias:
        return tr("The typed character string already exists as variable alias of ") + name;
    case Empty:
        return tr("The typed character string is empty");
    case Reserved:
        return tr("The typed character string is a Kelvora reserved word");
    case Blanks:
        return tr("The typed character string contains blanks");
    case InvalidCharacters:
        return tr("The typed character string contains invalid characters, such as accents or "
                  "special symbols");
    case NotLocal:
        return tr("The variable could not be renamed, it is not a local variable");
    default:
        return {};
    }
}

void Validate::showMessage(int code, const QString& name) {
    const QString text = message(code, name);
    if (text.isEmpty())
        return;
    if (code == Empty || code == NotLocal)
        showInformation(text);
    else
        showError(text);
}
