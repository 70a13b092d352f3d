// SPDX-License-Identifier: GPL-3.0-or-later
// The rules that names in a dictionary follow, and the messages about those that do not.
#pragma once

#include <QCoreApplication>
#include <QString>

class TKpEntity;
class TKpVariable;

/// What a text was found to be, and whose name it meets.
struct NameVerdict {
    int code = 0; ///< of Validate::Code
    QString name; ///< what the message ends with
    bool isFine() const { return code == 0; }
    bool operator==(const NameVerdict&) const = default;
};

/// The checks ask nobody and show nothing; showMessage() is apart. Uniqueness is looked for in the
/// whole dictionary and in any case, as the language reads names.
class Validate {
    Q_DECLARE_TR_FUNCTIONS(Validate)

public:
    enum Code {
        Fine = 0,
        TooLong = 1,
        IsGroup = 2,
        IsEntityName = 3,
        IsEntityAlias = 4,
        IsVariableName = 5,
        IsVariableAlias = 6,
        Empty = 7,
        Reserved = 8,
        Blanks = 9,
        InvalidCharacters = 10,
        NotLocal = 11
    };
    /// The text of a variable that a name is meant for.
    enum class Field { Name, Alias, Group };

    static constexpr int longestName = 50;

    /// Reserved words, blanks, characters and nothing else. An empty text is fine.
    static NameVerdict checkName(const QString& text);
    /// All rules for a text of the variable. Only a variable that a program made changes its name;
    /// only alias and group may be empty.
    static NameVerdict check(TKpEntity* root, const TKpVariable& variable, Field field,
                             const QString& text);
    /// All rules for the alias of the entity; it may be empty.
    static NameVerdict checkAlias(TKpEntity* root, const TKpEntity& entity, const QString& text);

    /// What is wrong, ending with the name; empty for Fine.
    static QString message(int code, const QString& name);
    /// In a box: an error, or an information where there is only nothing or no right to change.
    static void showMessage(int code, const QString& name);
};
