// SPDX-License-Identifier: Apache-2.0
#include "language/message_table.h"

namespace kelx::language {

namespace {

constexpr MessageEntry error(Error code, const char* name, const char* pattern,
                             const char* documentation) {
    return {Severity::Error, static_cast<int>(code), name, pattern, documentation};
}

constexpr MessageEntry warning(Warning code, const char* name, const char* pattern,
                               const char* documentation) {
    return {Severity::Warning, static_cast<int>(code), name, pattern, documentation};
}

const std::vector<MessageEntry> table = {
    error(Error::More, "KEL_E_MORE", "and %1 more",
          "Stands after the last message shown and counts those that are left out."),
    error(Error::NotUtf8, "KEL_E_NOT_UTF8",
          "The program is not valid UTF-8 here. Save it with the encoding UTF-8.",
          "Programs are UTF-8 texts; a file in another encoding is refused as a whole."),
    error(Error::ProgramTooLarge, "KEL_E_PROGRAM_TOO_LARGE",
          "The program is too long: a program may have %1 bytes.",
          "Protects against a wrong file that is opened as a program."),
    error(Error::UnterminatedString, "KEL_E_UNTERMINATED_STRING",
          "The text that begins here has no closing quote on its line.",
          "A text in double quotes ends on the line on which it begins; \"\" is a quote inside."),
    error(Error::UnterminatedComment, "KEL_E_UNTERMINATED_COMMENT",
          "The comment that begins here is never closed with */.",
          "A comment that begins with /* needs a */."),
    error(Error::UnterminatedBrace, "KEL_E_UNTERMINATED_BRACE",
          "The value that begins here is never closed with }.",
          "A value of EXECUTE stands between { and }."),
    error(Error::UnknownCharacter, "KEL_E_UNKNOWN_CHARACTER",
          "The character %1 has no meaning in a program.%2",
          "Only texts in quotes, labels and comments may hold any character."),
    error(Error::BadNumber, "KEL_E_BAD_NUMBER",
          "%1 is neither a number nor the name of a variable.",
          "A number has digits, perhaps one point, and perhaps an exponent."),
    error(Error::NumberTooLarge, "KEL_E_NUMBER_TOO_LARGE",
          "The number %1 is too large: it needs more than 64 bits.",
          "Whole numbers go from -9223372036854775808 to 9223372036854775807; write larger ones "
          "with a "
          "point."),
    error(Error::Unexpected, "KEL_E_UNEXPECTED", "Found %1, but expected %2.%3",
          "Something else should stand at this place; the message says what."),
    error(Error::TooDeep, "KEL_E_TOO_DEEP", "The expression is nested too deeply here.",
          "An expression may nest parentheses, functions and signs 200 deep."),
    error(Error::MisplacedClause, "KEL_E_MISPLACED_CLAUSE", "%1 cannot stand here: %2.",
          "The clause belongs to another command, or to none."),
    error(Error::RepeatedClause, "KEL_E_REPEATED_CLAUSE", "%1 is given twice for one command.",
          "Of two such clauses it is not clear which one is meant."),
    error(Error::BadDecimals, "KEL_E_BAD_DECIMALS", "DECIMALS takes a number from 0 to 15, not %1.",
          "The number of digits behind the decimal point that are shown."),
    error(Error::UnknownEntity, "KEL_E_UNKNOWN_ENTITY", "There is no entity %1.%2",
          "The dictionary has no entity with that name or alias."),
    error(Error::UnknownVariable, "KEL_E_UNKNOWN_VARIABLE", "There is no variable %1.%2",
          "The dictionary has no variable with that name or alias."),
    error(Error::AmbiguousName, "KEL_E_AMBIGUOUS_NAME",
          "More than one variable is called %1. Write one of %2.",
          "A variable may stand without its entity only where its name is unique."),
    error(Error::EntityNotVariable, "KEL_E_ENTITY_NOT_VARIABLE",
          "%1 is an entity, but a variable is needed here, such as %2.",
          "An entity's name alone stands for its code only in a comparison with a text."),
    error(Error::UnknownFunction, "KEL_E_UNKNOWN_FUNCTION", "There is no function %1.%2",
          "The name before a parenthesis is no function of the language."),
    error(Error::ArgumentCount, "KEL_E_ARGUMENT_COUNT", "%1 is written %2; found %3.",
          "The function has another number of arguments."),
    error(Error::ArgumentType, "KEL_E_ARGUMENT_TYPE", "Argument %1 of %2 must be %3.",
          "The argument is of another type than the function takes."),
    error(Error::OperandType, "KEL_E_OPERAND_TYPE",
          "The operands of %1 must be %2, but this is %3.",
          "Arithmetic takes numbers; AND, OR and NOT take conditions."),
    error(Error::CompareTypes, "KEL_E_COMPARE_TYPES", "%1 cannot be compared with %2.%3",
          "Both sides of a comparison must be numbers, texts, or truth values."),
    error(Error::NotACondition, "KEL_E_NOT_A_CONDITION", "%1 takes a condition, but this is %2.",
          "A filter or selection is an expression that is true or false."),
    error(Error::NotANumber, "KEL_E_NOT_A_NUMBER", "%1 takes a number, but this is %2.",
          "Weights and tallies are added up."),
    error(Error::Branches, "KEL_E_BRANCHES",
          "%1 and %2 cannot be used together: neither of them is part of the other.",
          "The entities of an expression or a table must lie one below the other."),
    error(Error::FilterBranch, "KEL_E_FILTER_BRANCH",
          "The %1 is about %2, but the table counts %3, which is neither above nor below it.",
          "A filter or selection must lie on the same branch as the records that are counted."),
    error(Error::NoCode, "KEL_E_NO_CODE",
          "%1 has no compound code: neither it nor an entity above it has a code variable.",
          "A compound code is made of the code variables from the top down."),
    error(Error::NoVariables, "KEL_E_NO_VARIABLES", "%1 has no variables.",
          "ENTITY.* takes all variables of the entity, and there are none."),
    error(Error::DataFileMissing, "KEL_E_DATA_FILE_MISSING",
          "The data of %1 are missing: there is no file %2.",
          "The variable is in the dictionary, but its file is not in the data folder."),
    error(Error::DataFileDamaged, "KEL_E_DATA_FILE_DAMAGED", "The data of %1 cannot be read: %2",
          "The variable's file is damaged or of another kind."),
    error(Error::TooManyTables, "KEL_E_TOO_MANY_TABLES",
          "The program would make more than %1 tables.",
          "Lists of variables make their product, one table each. Told once for a program."),
    error(Error::CrosstabsWithoutBy, "KEL_E_CROSSTABS_WITHOUT_BY",
          "CROSSTABS needs BY and a variable for the columns.",
          "A cross table has at least two variables; use FREQ for one."),
    error(Error::SelectionFile, "KEL_E_SELECTION_FILE", "The selection file %1 %2.",
          "The file that SELECTION names is missing or holds something else than areas."),
    error(
        Error::WeightBelow, "KEL_E_WEIGHT_BELOW",
        "The weight is about %1, but COUNT counts %2, which has many of them: take a weight of %2 "
        "or of what lies above it.",
        "A count of records is weighted by what each record has, not by what lies below it."),
    error(Error::SelfReference, "KEL_E_SELF_REFERENCE",
          "%1 is used to make itself, but there is no such variable yet.",
          "DEFINE may use the variable that it redefines, but not one that it makes anew."),
    error(
        Error::BelowEntity, "KEL_E_BELOW_ENTITY",
        "%1 must be about %2 or what lies above it, but this is about %3.%4",
        "A record has one value of its own and of each entity above it, but many of those below."),
    error(Error::NotBelow, "KEL_E_NOT_BELOW", "%1 gathers what lies below each %2, but this is %3.",
          "COUNT, SUM and the like go over the records under each record of the new variable."),
    error(Error::AggregateBranch, "KEL_E_AGGREGATE_BRANCH",
          "The filter is about %1, but %2 goes over %3, which is neither above nor below it.",
          "A filter must lie on the same branch as the records that DEFINE goes over."),
    error(Error::NumberEntity, "KEL_E_NUMBER_ENTITY",
          "NUMBER takes an entity above %1, in which each %1 has its place, but this is %2.",
          "NUMBER gives the place of a record inside its record of an entity above."),
    error(Error::MixedValues, "KEL_E_MIXED_VALUES",
          "The values of %1 must be of one type: this is %2, those before are not.",
          "A variable holds numbers, texts or truth values."),
    error(Error::TypeConversion, "KEL_E_TYPE_CONVERSION", "%1 cannot be stored as %2.%3",
          "TYPE names a type that the values cannot take."),
    error(Error::ClauseValue, "KEL_E_CLAUSE_VALUE", "%1 of %2 must be %3, but found %4.%5",
          "The value of a clause suits the type of the variable."),
    error(Error::BadAlias, "KEL_E_BAD_ALIAS", "%1 cannot be a name: it holds blanks or signs.",
          "An alias stands for the variable's name in a program."),
    error(Error::SaveExists, "KEL_E_SAVE_EXISTS",
          "There is already a file %1. Write OVERWRITE behind it to replace it.",
          "SAVE replaces the file of another variable only where it is told to."),
    error(Error::SaveTwice, "KEL_E_SAVE_TWICE", "The program saves two variables as %1.",
          "Each variable needs a file of its own."),
    error(Error::ProgramFile, "KEL_E_PROGRAM_FILE", "The program %1 %2.",
          "The file that EXECUTE names is missing or no program."),
    error(Error::ProgramCycle, "KEL_E_PROGRAM_CYCLE",
          "The program %1 cannot be called here: it is being called already.",
          "A program cannot call itself, nor one that calls it."),
    error(Error::CallsTooDeep, "KEL_E_CALLS_TOO_DEEP",
          "Programs call each other more than %1 deep here.",
          "A called program may call others in turn, but not without end."),
    error(Error::TooManyCalls, "KEL_E_TOO_MANY_CALLS",
          "The program calls more than %1 programs, or %2 bytes of them.",
          "Protects against programs that call each other again and again."),
    error(Error::UnknownValue, "KEL_E_UNKNOWN_VALUE", "EXECUTE gives no value for {%1}%3.%2",
          "Each name between braces in a called program needs a value in the EXECUTE command."),
    error(Error::BadCount, "KEL_E_BAD_COUNT", "%1 takes a whole number from %2 to %3, not %4.",
          "The number of parts, records or rows that the clause takes."),
    error(Error::NothingCounted, "KEL_E_NOTHING_COUNTED",
          "%1 needs a variable: a number alone does not tell what records to go over.",
          "A table counts the records of the lowest entity among its variables."),
    error(Error::UnknownTable, "KEL_E_UNKNOWN_TABLE", "There is no table %1 before this place.%2",
          "TABOP, TABLIST and area lists take tables that the program has made before."),
    error(Error::ColumnBelow, "KEL_E_COLUMN_BELOW",
          "%1 is about %2, but the rows are of %3, which have many of them: make a table of it, as "
          "in "
          "TABLE T FREQ %1, and name the table here.",
          "A row of a list has the values of its own record and of those above it."),
    error(Error::TableColumn, "KEL_E_TABLE_COLUMN",
          "The table %1 cannot be a column of this list: %2.",
          "A table as a column of a list has one variable, or none, and counts what lies in the "
          "rows."),
    error(Error::TableOperand, "KEL_E_TABLE_OPERAND", "The table %1 cannot be used here: %2.",
          "TABOP and TABLIST take tables that have one figure in each cell."),
    error(Error::TableOperator, "KEL_E_TABLE_OPERATOR",
          "TABOP calculates with tables, numbers, + - * / and parentheses; here stands %1.",
          "The figures of the tables are numbers, and so is the result."),
    error(Error::TableShapes, "KEL_E_TABLE_SHAPES",
          "%1 and %2 have different variables: TABOP takes tables of equal shape.",
          "The cells of the tables must correspond."),
    error(Error::TablistTable, "KEL_E_TABLIST_TABLE", "%1 cannot stand beside %2 in a TABLIST: %3.",
          "Tables side by side have the same rows."),
    error(Error::SortColumn, "KEL_E_SORT_COLUMN", "%1 has no column %2 to be sorted by.%3",
          "SORT names a variable of the table, the table itself, or one of its columns."),
    error(Error::TargetFile, "KEL_E_TARGET_FILE", "%1 cannot be written to: %2.",
          "A program writes over no file that the database or the run itself lives on."),
    error(Error::OutfileWorkbench, "KEL_E_OUTFILE_WORKBENCH",
          "%1 files are written by the workbench only; %2 can be had as CSV or JSON here.",
          "Told by kelx run before it runs; in the workbench it is no fault."),
    error(Error::WrongQuotes, "KEL_E_WRONG_QUOTES",
          "A text stands between straight double quotes, as in \"text\".",
          "Word processors replace straight quotes, and other languages use single ones."),
    error(Error::WrongSign, "KEL_E_WRONG_SIGN", "%1 is written %2 in a program.",
          "The sign of another language for a comparison."),
    error(Error::RealTooLarge, "KEL_E_REAL_TOO_LARGE",
          "The number %1 is too large: numbers with a point go to 1.79e308.",
          "Real numbers have 64 bits, with 11 of them for the exponent."),
    error(Error::ValuesTooLong, "KEL_E_VALUES_TOO_LONG",
          "With its values put in, the program %1 is too long: a program may have %2 bytes.",
          "EXECUTE gives long values to a program that uses them many times."),
    error(Error::UnknownColumn, "KEL_E_UNKNOWN_COLUMN", "There is no variable or table %1.%2",
          "A column of a list is a variable, or a table that the program has made before."),
    error(Error::TooManyColumns, "KEL_E_TOO_MANY_COLUMNS",
          "The lists of the program would have more than %1 columns.",
          "The columns of all AREALIST and VIEW commands of a program are counted together. Told "
          "once."),
    error(Error::TooManyDimensions, "KEL_E_TOO_MANY_DIMENSIONS",
          "A table may have %1 variables, and this one would have %2.",
          "Totals double the rows with each BY, so a table would be too large long before."),
    error(Error::TooMuchText, "KEL_E_TOO_MUCH_TEXT",
          "The titles, labels, files and areas that tables and variables of the program repeat "
          "need more than %1 bytes.",
          "Each table of a list keeps its command, and each LIKE the labels of its variable. Told "
          "once."),
    error(Error::WeightIsText, "KEL_E_WEIGHT_IS_TEXT",
          "%1, the automatic weight, holds texts: name another WEIGHT, or write NOWEIGHT.",
          "The dictionary names a variable as weight that is no number."),
    error(Error::AreaBreakBranch, "KEL_E_AREA_BREAK_BRANCH",
          "AREABREAK is about %1, but the table counts %2, which is neither above nor below it.",
          "The areas that break a table down must lie on the same branch as its records."),
    warning(Warning::More, "KEL_W_MORE", "and %1 more",
            "Stands after the last warning shown and counts those that are left out."),
    warning(Warning::FilterBelow, "KEL_W_FILTER_BELOW",
            "The %3 is about %1: each %2 that has at least one such %1 is kept.",
            "The filter or selection lies below the records that the table counts."),
    warning(Warning::SelectionBelow, "KEL_W_SELECTION_BELOW",
            "The selection lists %1 only: no %2 can be selected by it.",
            "Areas select the records in them, not the ones above."),
    warning(Warning::EmptyInterval, "KEL_W_EMPTY_INTERVAL",
            "The interval %1 holds no value: its lower end is above its upper end.",
            "Ends of an interval are written in ascending order."),
    warning(Warning::TableNameAgain, "KEL_W_TABLE_NAME_AGAIN", "There is already a table named %1.",
            "Two tables of a program have the same name."),
    warning(Warning::UnknownArea, "KEL_W_UNKNOWN_AREA", "No %1 has the code \"%2\" that the %4.%3",
            "A code of a selection or filter that no area has; nothing lies in it."),
    warning(Warning::OtherDictionary, "KEL_W_OTHER_DICTIONARY",
            "The program was written for the dictionary %1 and runs on the open one, %2.",
            "DICTIONARY names another file than the one that is open."),
    warning(Warning::OpenSelection, "KEL_W_OPEN_SELECTION",
            "Nothing follows this OR: it is left out.",
            "The last area of the selection has no code."),
    warning(Warning::WeightIgnored, "KEL_W_WEIGHT_IGNORED",
            "NUMBER has no use for a weight: it is left out.",
            "The place of a record does not depend on weights."),
    warning(Warning::UnusedValue, "KEL_W_UNUSED_VALUE", "The program %1 has no {%2}.%3",
            "EXECUTE gives a value that the called program does not ask for."),
    warning(Warning::NoEffect, "KEL_W_NO_EFFECT", "%1 has no effect on %2: %3.",
            "The clause is read, but changes nothing in this table."),
    warning(Warning::ColumnTwice, "KEL_W_COLUMN_TWICE",
            "%1 is a variable and a table: the variable is taken.",
            "A name in an area list can mean both; write ENTITY.VARIABLE, or rename the table."),
    warning(Warning::SortCrosstab, "KEL_W_SORT_CROSSTAB",
            "A table of several variables is not sorted%1.",
            "SORT works on tables of one variable, measures, lists and TABLIST."),
    warning(Warning::OutfileType, "KEL_W_OUTFILE_TYPE", "%1 is not written; the file will be CSV.",
            "Tables are written as CSV, XLSX, PDF and JSON."),
    warning(Warning::OutfileFormat, "KEL_W_OUTFILE_FORMAT",
            "Files are written in UTF-8, not in %1.",
            "UTF-8 holds every character; spreadsheets and editors read it."),
    warning(Warning::OutfileFolder, "KEL_W_OUTFILE_FOLDER",
            "There is no folder %1; the file goes to the folder of results.",
            "Told by the workbench; to kelx run it is a fault."),
    warning(Warning::SavedAsNumbers, "KEL_W_SAVED_AS_NUMBERS",
            "%1 is saved as the numbers 1 and 0, and %2 where it is not applicable.",
            "A file of truth values has no room for what is not applicable."),
    warning(Warning::ColumnOfOtherRun, "KEL_W_COLUMN_OF_OTHER_RUN",
            "%1 was made under another selection or universal filter than this list.",
            "Its columns count the records of its own run, and show 0 for areas outside of it."),
    warning(Warning::GivenTwice, "KEL_W_GIVEN_TWICE", "%1 is given twice: %2.",
            "A code with two labels, or a table that stands twice in a TABLIST."),
};

std::string fill(const std::string& pattern, std::initializer_list<std::string> values) {
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool marked = pattern[i] == '%' && i + 1 < pattern.size();
        const std::size_t index = marked ? static_cast<std::size_t>(pattern[i + 1] - '1') : 0;
        if (marked && index < values.size()) {
            text += values.begin()[index];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

Message make(Severity severity, int code, Position position,
             std::initializer_list<std::string> values) {
    const MessageEntry* entry = findMessage(severity, code);
    return {severity, code, position, entry == nullptr ? "" : fill(entry->pattern, values)};
}

} // namespace

const std::vector<MessageEntry>& messageTable() {
    return table;
}

const MessageEntry* findMessage(Severity severity, int code) {
    for (const MessageEntry& entry : table) {
        if (entry.severity == severity && entry.code == code)
            return &entry;
    }
    return nullptr;
}

const char* codeName(Severity severity, int code) {
    const MessageEntry* entry = findMessage(severity, code);
    return entry == nullptr ? "" : entry->name;
}

Message makeMessage(Error code, Position position, std::initializer_list<std::string> values) {
    return make(Severity::Error, static_cast<int>(code), position, values);
}

Message makeMessage(Warning code, Position position, std::initializer_list<std::string> values) {
    return make(Severity::Warning, static_cast<int>(code), position, values);
}

} // namespace kelx::language
