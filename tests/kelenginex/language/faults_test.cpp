// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults.h"
#include "fixture.h"
#include "language/message_table.h"

#include <gtest/gtest.h>
#include <set>

namespace kelx::language {

const std::vector<Fault> faults = {
    // Characters and words.
    {"FREQ SEX2\nTITLE \"n\xf1o\"",
     "KEL_E_NOT_UTF8 2:9 The program is not valid UTF-8 here. Save it "
     "with the encoding UTF-8.\n"},
    {"FREQ SEX2 TITLE \"a\n  FILTER AGE > 5", "KEL_E_UNTERMINATED_STRING 1:17 The text that begins "
                                              "here has no closing quote on its line.\n"},
    {"FREQ \"abc\nFREQ AGE", "KEL_E_UNTERMINATED_STRING 1:6 The text that begins here has no "
                             "closing quote on its line.\n"},
    {"FREQ SEX2 FILTER AGE > 3 && SEX2 = 1 || SEX2 = 2;\nFREQ AGE",
     "KEL_E_WRONG_SIGN 1:26 \"&&\" is written AND in a program.\n"
     "KEL_E_WRONG_SIGN 1:38 \"||\" is written OR in a program.\n"
     "KEL_E_UNKNOWN_CHARACTER 1:49 The character \";\" has no meaning in a program. Commands need "
     "no sign between them.\n"},
    {"MEAN AGE\nFREQ SEX2 WHERE AGE > 3\nFREQ SEX2 FILTER AGE Between 3 AND 5\n"
     "DEFINE PERSON.OLD AS AGE NOT BETWEEN 3 AND 5\nFREQ OLD",
     "KEL_E_UNEXPECTED 1:1 Found \"MEAN\", but expected a command, such as RUNDEF, TABLE or FREQ. "
     "Did you mean AVERAGE?\n"
     "KEL_E_UNEXPECTED 2:11 Found \"WHERE\", but expected a clause of the table, such as BY or "
     "TITLE, or a new command. Did you mean FILTER?\n"
     "KEL_E_UNEXPECTED 3:22 Found \"Between\", but expected an operator, such as = or IN. Did you "
     "mean IN (low : high)?\n"
     "KEL_E_UNEXPECTED 4:30 Found \"BETWEEN\", but expected an operator, such as = or IN. Did you "
     "mean IN (low : high)?\n"},
    {"FREQ AGE TABLE FREQ", "KEL_E_UNEXPECTED 1:16 Found the reserved word FREQ, but expected the "
                            "name of the table.\n"},
    {"RUNDEF title\nTITLE \"T\" TITLE \"U\"",
     "KEL_E_UNEXPECTED 2:1 Found the reserved word TITLE, but expected the title in quotes.\n"
     "KEL_E_REPEATED_CLAUSE 2:11 TITLE is given twice for one command.\n"},
    {"DEFINE PERSON.A AS RECODE SEX2 (1 : 2 = 1) VALUELABELS 1 \"F\" 2 \"M\" 1 \"G\"\n"
     "DEFINE PERSON.B AS A LIKE A VALUELABELS 1 \"H\"",
     "KEL_W_GIVEN_TWICE 1:68 The label of 1 is given twice: the last one is taken.\n"},
    {"FREQ SEX2 /* x\n*", "KEL_E_UNTERMINATED_COMMENT 1:11 The comment that begins here is never "
                          "closed with */.\n"},
    {"EXECUTE \"a.spc\" x = {3",
     "KEL_E_UNTERMINATED_BRACE 1:21 The value that begins here is never closed with }.\n"},
    {"EXECUTE a.spc\nEXECUTE \"a.spc\" x = 3 EXECUTE \"b.spc\" x = {1}, EXECUTE \"c.spc\" x = {1}, "
     "X = "
     "{2}",
     "KEL_E_UNEXPECTED 1:9 Found \"a\", but expected the file name of a program in quotes.\n"
     "KEL_E_UNEXPECTED 2:21 Found the number 3, but expected the value of x between braces, as in "
     "name = {value}.\n"
     "KEL_E_UNEXPECTED 2:48 Found the reserved word EXECUTE, but expected a name and its value "
     "between braces, as in name = {value}.\n"
     "KEL_E_PROGRAM_FILE 2:56 The program \"c.spc\" does not exist.\n"
     "KEL_E_REPEATED_CLAUSE 2:73 X is given twice for one command.\n"},
    {"FREQ SEX2 TITLE \"\xc3\xb1\" FILTER \xc3\xb1 # 5",
     "KEL_E_UNKNOWN_VARIABLE 1:28 There is no variable \"\xc3\xb1\".\n"
     "KEL_E_UNKNOWN_CHARACTER 1:30 The character \"#\" has no meaning in a program.\n"},
    {"FREQ SEX2 FILTER AGE > \x01",
     "KEL_E_UNKNOWN_CHARACTER 1:24 The character U+0001 has no meaning "
     "in a program.\n"},
    {"FREQ SEX2 FILTER AGE > 12ab",
     "KEL_E_BAD_NUMBER 1:24 \"12ab\" is neither a number nor the name of a variable.\n"},
    {"FREQ SEX2 FILTER AGE > 9223372036854775808",
     "KEL_E_NUMBER_TOO_LARGE 1:24 The number \"9223372036854775808\" is too large: it needs more "
     "than 64 bits.\n"},

    {"FREQ SEX2 FILTER AGE > 1e999 OR AGE IN (-1e400) OR AGE < 1e-999 OR AGE > "
     "-9223372036854775809",
     "KEL_E_REAL_TOO_LARGE 1:24 The number \"1e999\" is too large: numbers with a point go to "
     "1.79e308.\n"},
    {"FREQ SEX2 FILTER AGE > -9223372036854775809 FREQ SEX2 DECIMALS 5.",
     "KEL_E_NUMBER_TOO_LARGE 1:25 The number \"-9223372036854775809\" is too large: it needs more "
     "than 64 bits.\n"
     "KEL_E_BAD_DECIMALS 1:64 DECIMALS takes a number from 0 to 15, not the number 5..\n"},

    // What other languages write is told once, and read as it is meant.
    {"FREQ SEX2 FILTER AGE != 5 AND AGE \xe2\x89\xa4 7 AND AGE => 1 AND NOBODY = 1",
     "KEL_E_WRONG_SIGN 1:22 \"!=\" is written <> in a program.\n"
     "KEL_E_WRONG_SIGN 1:35 \"\xe2\x89\xa4\" is written <= in a program.\n"
     "KEL_E_WRONG_SIGN 1:47 \"=>\" is written >= in a program.\n"
     "KEL_E_UNKNOWN_VARIABLE 1:56 There is no variable \"NOBODY\".\n"},
    {"FREQ SEX2 TITLE 'it is' FILTER GRP = \xe2\x80\x9c"
     "a\xe2\x80\x9d OR AGE = \xc2\xab"
     "b\xc2\xbb",
     "KEL_E_WRONG_QUOTES 1:17 A text stands between straight double quotes, as in \"text\".\n"
     "KEL_E_WRONG_QUOTES 1:38 A text stands between straight double quotes, as in \"text\".\n"
     "KEL_E_WRONG_QUOTES 1:51 A text stands between straight double quotes, as in \"text\".\n"
     "KEL_E_COMPARE_TYPES 1:51 A number cannot be compared with a text. Leave out the quotes.\n"},
    {"FREQ SEX2 TITLE 'not closed BY AGE\nFREQ AGE",
     "KEL_E_WRONG_QUOTES 1:17 A text stands between straight double quotes, as in \"text\".\n"},
    {"FREQ\xe2\x80\x8b SEX2 BY A\xe2\x80\x8bG\xc2\xad"
     "E\nFREQ AGE",
     "KEL_E_UNKNOWN_CHARACTER 1:5 The character U+200B has no meaning in a program. It is "
     "invisible: delete it.\n"
     "KEL_E_UNKNOWN_CHARACTER 1:16 The character U+200B has no meaning in a program. It is "
     "invisible: delete it.\n"},

    // Structure.
    {"FREQ SELECTION \"x\" FREQ AGE",
     "KEL_E_UNEXPECTED 1:6 Found the reserved word SELECTION, but expected a variable, such as "
     "Entity.Variable, or Entity.* for all of them.\n"},
    {"TITLE \"x\" BY AGE FILTER AGE > 5\nFREQ SEX2",
     "KEL_E_MISPLACED_CLAUSE 1:1 TITLE cannot stand here: it must follow the command that it "
     "belongs to.\n"},
    {"EXECUTE \"\"\nFREQ AGE OUTFILE \"\"",
     "KEL_E_UNEXPECTED 1:9 Found an empty text, but expected the file name of a program in "
     "quotes.\nKEL_E_UNEXPECTED 2:18 Found an empty text, but expected the name of the file in "
     "quotes.\n"},
    {"FRQ SEX2\nFREQ SEX2", "KEL_E_UNEXPECTED 1:1 Found \"FRQ\", but expected a command, such as "
                            "RUNDEF, TABLE or FREQ. Did you mean FREQ?\n"},
    {"FREQ SEX2\n  TITEL \"x\"\nFREQ AGE BY",
     "KEL_E_UNEXPECTED 2:3 Found \"TITEL\", but expected a clause of the table, such as BY or "
     "TITLE, or a new command. Did you mean TITLE?\n"
     "KEL_E_UNEXPECTED 3:12 Found the end of the program, but expected a variable, such as "
     "Entity.Variable, or Entity.* for all of them.\n"},
    {"FREQ TITLE \"x\"",
     "KEL_E_UNEXPECTED 1:6 Found the reserved word TITLE, but expected a variable, "
     "such as Entity.Variable, or Entity.* for all of them.\n"},
    {"FREQ LINE",
     "KEL_E_UNEXPECTED 1:6 Found the reserved word LINE, but expected a variable, such as "
     "Entity.Variable, or Entity.* for all of them (a variable of this name is written "
     "Entity.LINE).\n"},
    {"FREQ PERSON.\"x\"", "KEL_E_UNEXPECTED 1:13 Found the text \"x\", but expected the name of a "
                          "variable or *.\n"},
    {"FREQ SEX2 FILTER AGE >\nFREQ AGE",
     "KEL_E_UNEXPECTED 2:1 Found the reserved word FREQ, but expected a value, such as a number, a "
     "text in quotes, Entity.Variable, a function or \"(\".\n"},
    {"FREQ SEX2 FILTER (AGE > 5 TITLE \"x\"",
     "KEL_E_UNEXPECTED 1:27 Found the reserved word TITLE, but expected an operator or \")\".\n"},
    {"FREQ SEX2 FILTER AGE IN 5",
     "KEL_E_UNEXPECTED 1:25 Found the number 5, but expected \"(\" and the "
     "values of IN, as in IN (1:5, 9).\n"},
    {"FREQ SEX2 FILTER AGE IN (1:)",
     "KEL_E_UNEXPECTED 1:28 Found \")\", but expected a number or a text "
     "in quotes.\n"},
    {"FREQ SEX2 FILTER AGE IN (LOWEST)",
     "KEL_E_UNEXPECTED 1:32 Found \")\", but expected \":\" and the "
     "other end of the interval.\n"},
    {"TABLE t PERSON.SEX FREQ AGE",
     "KEL_E_UNEXPECTED 1:9 Found \"PERSON\", but expected AS and the kind "
     "of the table, such as FREQ.\n"},
    {"TABLE FREQ SEX2",
     "KEL_E_UNEXPECTED 1:7 Found the reserved word FREQ, but expected the name of the "
     "table.\n"},
    {"RUNDEF r my TITEL \"x\"",
     "KEL_E_UNEXPECTED 1:10 Found \"my\", but expected a clause of RUNDEF, such as SELECTION or "
     "FILTER, or a command.\n"},
    {"RUNDEF r NOWIEGHT\nFREQ AGE",
     "KEL_E_UNEXPECTED 1:10 Found \"NOWIEGHT\", but expected a clause of RUNDEF, such as SELECTION "
     "or FILTER, or a command. Did you mean NOWEIGHT?\n"},
    {"RUNDEF FILTERLABEL\nFREQ SEX2",
     "KEL_E_UNEXPECTED 2:1 Found the reserved word FREQ, but expected "
     "a label.\n"},
    {"COUNT PERSON.SEX",
     "KEL_E_UNEXPECTED 1:7 Found a variable, but expected the entity to count.\n"},
    {"FREQ SEX2 SELECTION \"x\" TITLE \"y\"",
     "KEL_E_MISPLACED_CLAUSE 1:11 SELECTION cannot stand here: it belongs to RUNDEF, before the "
     "tables.\n"},
    {"RUNDEF TALLY AGE",
     "KEL_E_MISPLACED_CLAUSE 1:8 TALLY cannot stand here: it belongs to a table, "
     "not to RUNDEF.\n"},
    {"TITLE \"x\" FREQ SEX2",
     "KEL_E_MISPLACED_CLAUSE 1:1 TITLE cannot stand here: it must follow the "
     "command that it belongs to.\n"},
    {"COUNT PERSON BY SEX2",
     "KEL_E_MISPLACED_CLAUSE 1:14 BY cannot stand here: COUNT counts the records "
     "of an entity; use FREQ for a table.\n"},
    {"RUNDEF NOWEIGHT WEIGHT 1", "KEL_E_MISPLACED_CLAUSE 1:17 WEIGHT cannot stand here: WEIGHT, "
                                 "AUTOWEIGHT and NOWEIGHT exclude each other.\n"},
    {"FREQ SEX2 TITLE \"a\" BY AGE TITLE \"b\"",
     "KEL_E_REPEATED_CLAUSE 1:28 TITLE is given twice for one command.\n"},
    {"FREQ SEX2 DECIMALS 16 FREQ AGE DECIMALS \"2\"",
     "KEL_E_BAD_DECIMALS 1:20 DECIMALS takes a number from 0 to 15, not the number 16.\n"
     "KEL_E_BAD_DECIMALS 1:41 DECIMALS takes a number from 0 to 15, not the text \"2\".\n"},
    {"CROSSTABS SEX2", "KEL_E_CROSSTABS_WITHOUT_BY 1:1 CROSSTABS needs BY and a variable for the "
                       "columns.\n"},

    // Names.
    {"FREQ PERSONS.SEX", "KEL_E_UNKNOWN_ENTITY 1:6 There is no entity \"PERSONS\". Did you mean "
                         "PERSON?\n"},
    {"FREQ HOUSEHOLD.ROMS",
     "KEL_E_UNKNOWN_VARIABLE 1:16 There is no variable \"ROMS\" in HOUSEHOLD. Did "
     "you mean HOUSEHOLD.ROOMS?\n"},
    {"FREQ HOUSEHOLD.AGE",
     "KEL_E_UNKNOWN_VARIABLE 1:16 There is no variable \"AGE\" in HOUSEHOLD. Did "
     "you mean PERSON.AGE?\n"},
    {"FREQ ROMS",
     "KEL_E_UNKNOWN_VARIABLE 1:6 There is no variable \"ROMS\". Did you mean ROOMS?\n"},
    {"COUNT HOUSES", "KEL_E_UNKNOWN_ENTITY 1:7 There is no entity \"HOUSES\".\n"},
    {"FREQ SEX", "KEL_E_AMBIGUOUS_NAME 1:6 More than one variable is called \"SEX\". Write one of "
                 "PERSON.SEX, DEATH.SEX.\n"},
    {"FREQ PROVINCE",
     "KEL_E_ENTITY_NOT_VARIABLE 1:6 PROVINCE is an entity, but a variable is needed "
     "here, such as PROVINCE.CODE.\n"},
    {"FREQ NATION.*", "KEL_E_NO_VARIABLES 1:6 NATION has no variables.\n"},
    {"FREQ SEX2 FILTER NATION = \"0\"",
     "KEL_E_NO_CODE 1:18 NATION has no compound code: neither it nor "
     "an entity above it has a code variable.\n"},

    // Types.
    {"FREQ SEX2 FILTER LENGHT(GRP) = 1",
     "KEL_E_UNKNOWN_FUNCTION 1:18 There is no function \"LENGHT\". "
     "Did you mean LENGTH?\n"},
    {"FREQ SEX2 FILTER LEFT(GRP) = \"a\"",
     "KEL_E_ARGUMENT_COUNT 1:18 LEFT is written LEFT(text, size); "
     "found 1 argument.\n"},
    {"FREQ SEX2 FILTER FOO(GRP) = 1 OR LOH(AGE) = 1",
     "KEL_E_UNKNOWN_FUNCTION 1:18 There is no function \"FOO\".\n"
     "KEL_E_UNKNOWN_FUNCTION 1:34 There is no function \"LOH\". Did you mean LOG?\n"},
    {"FREQ SEX2 FILTER LEFT(AGE, 1.5) = \"a\" OR MISSING(AGE + 1) OR CMPCODE(AGE + 1) = \"\"",
     "KEL_E_ARGUMENT_TYPE 1:23 Argument 1 of LEFT must be a text.\n"
     "KEL_E_ARGUMENT_TYPE 1:28 Argument 2 of LEFT must be a whole number.\n"
     "KEL_E_ARGUMENT_TYPE 1:50 Argument 1 of MISSING must be a variable.\n"
     "KEL_E_ARGUMENT_TYPE 1:70 Argument 1 of CMPCODE must be an entity.\n"},
    {"FREQ SEX2 FILTER AGE AND NOT \"x\" OR GRP + 1 > -WORKS",
     "KEL_E_OPERAND_TYPE 1:18 The operands of AND must be conditions, but this is a number.\n"
     "KEL_E_OPERAND_TYPE 1:30 The operands of NOT must be conditions, but this is a text.\n"
     "KEL_E_OPERAND_TYPE 1:37 The operands of \"+\" must be numbers, but this is a text.\n"
     "KEL_E_OPERAND_TYPE 1:48 The operands of \"-\" must be numbers, but this is a condition.\n"},
    {"FREQ SEX2 FILTER AGE = \"5\" OR GRP = 5 OR PROVINCE = 3 OR WORKS > FALSE OR (AGE > 3) = 1",
     "KEL_E_COMPARE_TYPES 1:24 A number cannot be compared with a text. Leave out the quotes.\n"
     "KEL_E_COMPARE_TYPES 1:37 A text cannot be compared with a number. Put the number in quotes.\n"
     "KEL_E_COMPARE_TYPES 1:53 A text cannot be compared with a number. Put the code in quotes.\n"
     "KEL_E_COMPARE_TYPES 1:66 A condition cannot be compared with another by >. Use = or <>, or "
     "compare a variable with 0 or 1.\n"
     "KEL_E_COMPARE_TYPES 1:87 A condition cannot be compared with a number.\n"},
    // Quotes can only be set or left out where a constant stands.
    {"FREQ SEX2 FILTER AGE = GRP OR GRP = AGE OR PROVINCE = AGE OR \"5\" = AGE OR 5 = GRP OR "
     "GRP IN (1) OR PROVINCE IN (1)",
     "KEL_E_COMPARE_TYPES 1:24 A number cannot be compared with a text.\n"
     "KEL_E_COMPARE_TYPES 1:37 A text cannot be compared with a number.\n"
     "KEL_E_COMPARE_TYPES 1:55 A text cannot be compared with a number.\n"
     "KEL_E_COMPARE_TYPES 1:68 A text cannot be compared with a number. Leave out the quotes.\n"
     "KEL_E_COMPARE_TYPES 1:79 A number cannot be compared with a text. Put the number in quotes.\n"
     "KEL_E_COMPARE_TYPES 1:94 A text cannot be compared with a number. Put the number in quotes.\n"
     "KEL_E_COMPARE_TYPES 1:113 A text cannot be compared with a number. Put the code in "
     "quotes.\n"},
    {"FREQ SEX2 FILTER AGE IN (1:5, \"6\")",
     "KEL_E_COMPARE_TYPES 1:31 A number cannot be compared with a text. Leave out the quotes.\n"},
    {"FREQ SEX2 FILTER AGE", "KEL_E_NOT_A_CONDITION 1:18 FILTER takes a condition, but this is a "
                             "number.\n"},
    {"WEIGHT GRP FREQ SEX2 TALLY AGE > 3",
     "KEL_E_NOT_A_NUMBER 1:8 WEIGHT takes a number, but this is a "
     "text.\n"
     "KEL_E_NOT_A_NUMBER 1:28 TALLY takes a number, but this is a "
     "condition.\n"},

    // Entities.
    {"FREQ PERSON.SEX BY DEATH.SEX",
     "KEL_E_BRANCHES 1:20 PERSON and DEATH cannot be used together: "
     "neither of them is part of the other.\n"},
    {"FREQ ROOMS FILTER AGE > 3 AND CAUSE = 1",
     "KEL_E_BRANCHES 1:31 PERSON and DEATH cannot be used together: neither of them is part of the "
     "other.\n"},
    {"FREQ AGE\n FILTER CAUSE = 3",
     "KEL_E_FILTER_BRANCH 2:9 The filter is about DEATH, but the table "
     "counts PERSON, which is neither above nor below it.\n"},
    {"RUNDEF WEIGHT WEIGHT2 FREQ CAUSE",
     "KEL_E_BRANCHES 1:23 DEATH and PERSON cannot be used together: "
     "neither of them is part of the other.\n"},

    {"COUNT HOUSEHOLD WEIGHT PERSON.WEIGHT2\nCOUNT HOUSEHOLD WEIGHT HOUSEHOLD.WEIGHT\n"
     "RUNDEF WEIGHT AGE COUNT PROVINCE",
     "KEL_E_WEIGHT_BELOW 1:24 The weight is about PERSON, but COUNT counts HOUSEHOLD, which has "
     "many of them: take a weight of HOUSEHOLD or of what lies above it.\n"
     "KEL_E_WEIGHT_BELOW 3:19 The weight is about PERSON, but COUNT counts PROVINCE, which has "
     "many of them: take a weight of PROVINCE or of what lies above it.\n"},

    // DEFINE and RUNDEF's other clauses.
    {"DEFINE", "KEL_E_UNEXPECTED 1:7 Found the end of the program, but expected the name of the "
               "new variable, as in Entity.Name.\n"},
    {"DEFINE FREQ AGE", "KEL_E_UNEXPECTED 1:8 Found the reserved word FREQ, but expected the name "
                        "of the new variable, as in Entity.Name.\n"},
    {"DEFINE X AS COUNT PERSON FREQ X", "KEL_E_UNEXPECTED 1:8 Found \"X\", but expected the name "
                                        "of the new variable, as in Entity.Name.\n"},
    {"DEFINE PERSON.X", "KEL_E_UNEXPECTED 1:16 Found the end of the program, but expected an "
                        "expression, or how the variable is made, such as COUNT or RECODE.\n"},
    {"DEFINE PERSON.X AS SUMM AGE",
     "KEL_E_UNEXPECTED 1:20 Found \"SUMM\", but expected an expression, or how the variable is "
     "made, such as COUNT or RECODE. Did you mean SUM?\n"},
    {"DEFINE PERSON.X AS AGE VARLABL \"x\"",
     "KEL_E_UNEXPECTED 1:24 Found \"VARLABL\", but expected a clause of DEFINE, such as TYPE or "
     "VARLABEL, or a new command. Did you mean VARLABEL?\n"},
    {"DEFINE PERSON.X AS AGE TITLE \"x\" SELECTION \"f\"",
     "KEL_E_MISPLACED_CLAUSE 1:24 TITLE cannot stand here: it belongs to a table.\n"
     "KEL_E_MISPLACED_CLAUSE 1:34 SELECTION cannot stand here: it belongs to RUNDEF.\n"},
    {"DEFINE PERSON.X AS AGE TYPE INTEGR",
     "KEL_E_UNEXPECTED 1:29 Found \"INTEGR\", but expected INTEGER, REAL, STRING or BOOL. Did you "
     "mean INTEGER?\n"},
    {"DEFINE PERSON.X AS AGE ELSE 3",
     "KEL_E_MISPLACED_CLAUSE 1:24 ELSE cannot stand here: it belongs to RECODE and SWITCH; DEFAULT "
     "sets the value that stands where there is no other.\n"},
    {"DEFINE PERSON.X AS AGE WEIGHT 3", "KEL_E_MISPLACED_CLAUSE 1:24 WEIGHT cannot stand here: it "
                                        "belongs to what gathers records, such as COUNT or SUM.\n"},
    {"DEFINE PERSON.X AS NUMBER HOUSEHOLD WEIGHT 3",
     "KEL_W_WEIGHT_IGNORED 1:37 NUMBER has no use for a weight: it is left out.\n"},
    {"DEFINE PERSON.X AS X + PERSON.X", "KEL_E_SELF_REFERENCE 1:20 \"X\" is used to make itself, "
                                        "but there is no such variable yet.\n"},
    {"DEFINE HOUSEHOLD.X AS AGE + 1",
     "KEL_E_BELOW_ENTITY 1:23 The expression must be about HOUSEHOLD or what lies above it, but "
     "this is about PERSON. COUNT, SUM and the like gather what lies below.\n"},
    {"DEFINE PERSON.X AS CAUSE", "KEL_E_BRANCHES 1:20 PERSON and DEATH cannot be used together: "
                                 "neither of them is part of the other.\n"},
    {"DEFINE HOUSEHOLD.X AS ROOMS FILTER AGE > 3 DEFINE PERSON.X AS AGE FILTER CAUSE = 1",
     "KEL_W_FILTER_BELOW 1:36 The filter is about PERSON: each HOUSEHOLD that has at least one "
     "such "
     "PERSON is kept.\n"
     "KEL_E_BRANCHES 1:74 PERSON and DEATH cannot be used together: neither of them is part of the "
     "other.\n"},
    {"DEFINE PERSON.X AS COUNT HOUSEHOLD", "KEL_E_NOT_BELOW 1:26 COUNT gathers what lies below "
                                           "each PERSON, but this is about HOUSEHOLD.\n"},
    {"DEFINE PERSON.X AS COUNT PERSON",
     "KEL_E_NOT_BELOW 1:26 COUNT gathers what lies below each PERSON, but this is about PERSON.\n"},
    {"DEFINE HOUSEHOLD.X AS SUM 3", "KEL_E_NOT_BELOW 1:27 SUM gathers what lies below each "
                                    "HOUSEHOLD, but this is the same for all records.\n"},
    {"DEFINE HOUSEHOLD.X AS SUM ROOMS", "KEL_E_NOT_BELOW 1:27 SUM gathers what lies below each "
                                        "HOUSEHOLD, but this is about HOUSEHOLD.\n"},
    {"DEFINE DISTRICT.X AS SUM ROOMS WEIGHT AGE",
     "KEL_E_BELOW_ENTITY 1:39 WEIGHT must be about HOUSEHOLD or what lies above it, but this is "
     "about PERSON.\n"},
    {"DEFINE DISTRICT.X AS COUNT PERSON FILTER CAUSE = 1",
     "KEL_E_AGGREGATE_BRANCH 1:42 The filter is about DEATH, but COUNT goes over PERSON, which is "
     "neither above nor below it.\n"},
    {"DEFINE DISTRICT.X AS COUNT HOUSEHOLD FILTER AGE > 60",
     "KEL_W_FILTER_BELOW 1:45 The filter is about PERSON: each HOUSEHOLD that has at least one "
     "such PERSON is kept.\n"},
    {"DEFINE PERSON.X AS NUMBER PERSON",
     "KEL_E_NUMBER_ENTITY 1:27 NUMBER takes an entity above PERSON, in which each PERSON has its "
     "place, but this is PERSON.\n"},
    {"DEFINE PERSON.X AS NUMBER DEATH",
     "KEL_E_NUMBER_ENTITY 1:27 NUMBER takes an entity above PERSON, in which each PERSON has its "
     "place, but this is DEATH.\n"},
    {"DEFINE PERSON.X AS RECODE AGE (1:2 = 1) (3:4 = \"b\")",
     "KEL_E_MIXED_VALUES 1:48 The values of RECODE must be of one type: this is a text, those "
     "before are not.\n"},
    {"DEFINE PERSON.X AS SWITCH CASE AGE ASSIGN 1 CASE WORKS ASSIGN 2 ELSE WORKS",
     "KEL_E_NOT_A_CONDITION 1:32 CASE takes a condition, but this is a number.\n"
     "KEL_E_MIXED_VALUES 1:70 The values of SWITCH must be of one type: this is a condition, those "
     "before are not.\n"},
    {"DEFINE PERSON.X AS GRP TYPE INTEGER", "KEL_E_TYPE_CONVERSION 1:24 A text cannot be stored as "
                                            "INTEGER. VAL reads the number in a text.\n"},
    {"DEFINE PERSON.X AS AGE > 3 TYPE STRING",
     "KEL_E_TYPE_CONVERSION 1:28 A condition cannot be stored as STRING.\n"},
    {"DEFINE PERSON.X AS AGE DEFAULT \"5\" MISSING \"a\" RANGE (\"a\" : \"b\") VALUELABELS x "
     "\"label\"",
     "KEL_E_CLAUSE_VALUE 1:32 DEFAULT of PERSON.X must be a number, but found the text \"5\". "
     "Leave out the quotes.\n"
     "KEL_E_CLAUSE_VALUE 1:44 MISSING of PERSON.X must be a number, but found \"a\".\n"
     "KEL_E_CLAUSE_VALUE 1:55 RANGE of PERSON.X must be numbers, but found a text.\n"
     "KEL_E_CLAUSE_VALUE 1:78 VALUELABELS of PERSON.X must be a number, but found the text "
     "\"x\".\n"},
    {"DEFINE PERSON.X AS GRP RANGE (1:2) DEFAULT abc MISSING TRUE",
     "KEL_E_MISPLACED_CLAUSE 1:31 RANGE cannot stand here: texts have no ranges.\n"
     "KEL_E_CLAUSE_VALUE 1:56 MISSING of PERSON.X must be a number, but found \"TRUE\". A "
     "dictionary keeps these codes as numbers, also for texts: 9 stands for \"9\" and \"09\".\n"},
    {"DEFINE PERSON.X AS AGE > 3 DEFAULT 7",
     "KEL_E_CLAUSE_VALUE 1:36 DEFAULT of PERSON.X must be TRUE, FALSE, 1 or 0, but found 7.\n"},
    {"DEFINE PERSON.X AS AGE ALIAS \"a b\" GROUP",
     "KEL_E_BAD_ALIAS 1:30 \"a b\" cannot be a name: it holds blanks or signs.\n"
     "KEL_E_UNEXPECTED 1:41 Found the end of the program, but expected the name of a group.\n"},
    {"DEFINE PERSON.X AS RECODE AGE ELSE 3",
     "KEL_E_UNEXPECTED 1:31 Found the reserved word ELSE, but expected an interval and its new "
     "value, as in (1 : 9 = 2).\n"},
    {"DEFINE PERSON.X AS RECODE AGE (1 : 2) VARLABEL \"x\"",
     "KEL_E_UNEXPECTED 1:37 Found \")\", but expected \"=\" and the new value.\n"},
    {"DEFINE PERSON.X AS RECODE AGE (\"a\" : \"b\" = 2)",
     "KEL_E_COMPARE_TYPES 1:32 A number cannot be compared with a text. Leave out the quotes.\n"},
    {"DEFINE PERSON.X AS SAMPLE RANDM 3", "KEL_E_UNEXPECTED 1:27 Found \"RANDM\", but expected "
                                          "RANDOM or SYSTEMATIC. Did you mean RANDOM?\n"},
    {"DEFINE PERSON.X AS SAMPLE RANDOM 0",
     "KEL_E_BAD_COUNT 1:34 SAMPLE takes a whole number from 1 to 2147483647, not 0.\n"},
    {"DEFINE DISTRICT.X AS RATIO AGE", "KEL_E_UNEXPECTED 1:31 Found the end of the program, but "
                                       "expected the values that count, as in (1 : 3) (5 : 5).\n"},
    {"DEFINE DISTRICT.X AS FRACTION NUM AGE (1:3) DENOMINATOR SEX2 (1)",
     "KEL_E_UNEXPECTED 1:45 Found \"DENOMINATOR\", but expected DENOM, a variable and its "
     "values.\n"},
    {"DEFINE DISTRICT.X AS INDICATOR NUM AGE DENOM GRP",
     "KEL_E_NOT_A_NUMBER 1:46 DENOM takes a number, but this is a text.\n"},
    {"DEFINE PERSON.X AS SWITCH WHEN AGE > 3 ASSIGN 2",
     "KEL_E_UNEXPECTED 1:27 Found \"WHEN\", but expected CASE and a condition.\n"},
    {"DEFINE PERSON.X AS AGE VALUELABELS 1 2 \"b\"",
     "KEL_E_UNEXPECTED 1:38 Found the number 2, but expected the label of 1 in quotes.\n"},
    {"DEFINE PERSON.X AS AGE SENSITIVE \"3\"",
     "KEL_E_UNEXPECTED 1:34 Found the text \"3\", but expected the number of SENSITIVE.\n"},
    {"DEFINE PERSON.X AS AGE SAVE f LIKE 3",
     "KEL_E_UNEXPECTED 1:29 Found \"f\", but expected the name of a file in quotes.\n"
     "KEL_E_UNEXPECTED 1:36 Found the number 3, but expected the variable whose labels and codes "
     "to take over.\n"},
    {"RUNDEF AREABREAK NATION AREABREAK PROVINCE.CODE TABLESTYLE f",
     "KEL_E_NO_CODE 1:18 NATION has no compound code: neither it nor an entity above it has a code "
     "variable.\n"
     "KEL_E_REPEATED_CLAUSE 1:25 AREABREAK is given twice for one command.\n"
     "KEL_E_UNEXPECTED 1:60 Found \"f\", but expected the name of a style file in quotes.\n"},
    {"RUNDEF AREABREAK PROVINCE.CODE",
     "KEL_E_UNEXPECTED 1:18 Found a variable, but expected an entity.\n"},
    {"RUNDEF r VARLABEL \"x\" FREQ AGE RANGE (1:2)",
     "KEL_E_UNEXPECTED 1:10 Found the reserved word VARLABEL, but expected a clause of RUNDEF, "
     "such as SELECTION or FILTER, or a command.\n"
     "KEL_E_UNEXPECTED 1:32 Found the reserved word RANGE, but expected a clause of the table, "
     "such as BY or TITLE, or a new command.\n"},
    {"VARLABEL \"x\"", "KEL_E_UNEXPECTED 1:1 Found the reserved word VARLABEL, but expected a "
                       "command, such as RUNDEF, TABLE or FREQ.\n"},
    {"FREQ GROUP", "KEL_E_UNEXPECTED 1:6 Found the reserved word GROUP, but expected a variable, "
                   "such as Entity.Variable, or Entity.* for all of them (a variable of this name "
                   "is written Entity.GROUP).\n"},
    {"DEFINE PERSON.X AS AGE LIKE PERSON.NOTHING",
     "KEL_E_UNKNOWN_VARIABLE 1:36 There is no variable \"NOTHING\" in PERSON.\n"},
    {"DEFINE PERSON.X AS MISSING(AGE) MISSING 9 FREQ SEX2 FILTER AGE > > 3 AND MISSING(AGE)",
     "KEL_E_UNEXPECTED 1:66 Found \">\", but expected a value, such as a number, a text in quotes, "
     "Entity.Variable, a function or \"(\".\n"},
    {"DEFINE PERSON.X AS RECODE AGE (5 : 1 = 2)",
     "KEL_W_EMPTY_INTERVAL 1:32 The interval 5 : 1 holds no value: its lower end is above its "
     "upper end.\n"},
    {"DEFINE DISTRICT.X AS SUM PERSON.GRP",
     "KEL_E_NOT_A_NUMBER 1:26 SUM takes a number, but this is a text.\n"},
    {"DEFINE DISTRICT.X AS RATIO GRP (1:3)", "KEL_E_COMPARE_TYPES 1:33 A text cannot be compared "
                                             "with a number. Put the number in quotes.\n"},
    {"RUNDEF SELECTION PROVINCE = \"01\" OR",
     "KEL_W_OPEN_SELECTION 1:34 Nothing follows this OR: it is left out.\n"},

    // Warnings.
    {"RUNDEF r DICTIONARY \"D:\\data\\other.kxdb\" FREQ AGE RUNDEF DICTIONARY \"sub/X.kxdb\" FREQ "
     "AGE",
     "KEL_W_OTHER_DICTIONARY 1:21 The program was written for the dictionary "
     "\"D:\\data\\other.kxdb\" and runs on the open one, \"x.kxdb\".\n"},
    {"RUNDEF FILTER AGE > 60 FREQ ROOMS, RENT, AGE",
     "KEL_W_FILTER_BELOW 1:15 The universal filter is about PERSON: each HOUSEHOLD that has at "
     "least one "
     "such "
     "PERSON is kept.\n"},
    {"FREQ AGE FILTER AGE IN (5 : 1)",
     "KEL_W_EMPTY_INTERVAL 1:25 The interval 5 : 1 holds no value: its "
     "lower end is above its upper end.\n"},
    {"TABLE t FREQ AGE\nTABLE T FREQ ROOMS",
     "KEL_W_TABLE_NAME_AGAIN 2:1 There is already a table named "
     "T.\n"},
};

class Faults : public ::testing::TestWithParam<Fault> {};

TEST_P(Faults, AreToldWhereTheyAre) {
    Census census;
    census.compile(GetParam().program);
    EXPECT_EQ(told(census.messages), GetParam().messages) << GetParam().program;
}

INSTANTIATE_TEST_SUITE_P(Each, Faults, ::testing::ValuesIn(faults));
INSTANTIATE_TEST_SUITE_P(OfTables, Faults, ::testing::ValuesIn(tableFaults()));

TEST(DataFiles, MustBeThere) {
    Census census;
    const std::string file = census.variable("PERSON", "LOST").filePath().string();
    census.compile("FREQ SEX2\nFREQ PERSON.LOST, AGE BY LOST");
    EXPECT_EQ(told(census.messages),
              "KEL_E_DATA_FILE_MISSING 2:6 The data of PERSON.LOST are missing: "
              "there is no file " +
                  file + ".\n");
    std::filesystem::remove(census.variable("HOUSEHOLD", "WEIGHT").filePath());
    std::filesystem::remove(census.variable("PROVINCE", "CODE").filePath());
    census.compile("FREQ SEX2\nRUNDEF NOWEIGHT FREQ SEX2 FILTER DISTRICT = \"1\"");
    EXPECT_EQ(located(census.messages),
              "KEL_E_DATA_FILE_MISSING 1:1\nKEL_E_DATA_FILE_MISSING 2:34\n");
    census.add("PERSON", "BROKEN", ValueType::None);
    census.compile("RUNDEF NOWEIGHT FREQ BROKEN");
    EXPECT_EQ(located(census.messages), "KEL_E_DATA_FILE_DAMAGED 1:22\n");
}

TEST(MessageTable, IsTestedAsAWhole) {
    std::set<std::string> seen = {
        "KEL_E_MORE", "KEL_W_MORE", "KEL_E_DATA_FILE_MISSING",
        // Of programs without bounds.
        "KEL_E_VALUES_TOO_LONG", "KEL_E_TOO_MANY_COLUMNS", "KEL_E_TOO_MANY_DIMENSIONS",
        "KEL_E_TOO_MUCH_TEXT", "KEL_E_TOO_DEEP", "KEL_E_PROGRAM_TOO_LARGE", "KEL_E_TOO_MANY_TABLES",
        "KEL_E_DATA_FILE_DAMAGED", "KEL_E_SELECTION_FILE", "KEL_W_SELECTION_BELOW",
        "KEL_W_UNKNOWN_AREA",      // told by the plan
        "KEL_E_OUTFILE_WORKBENCH", // told by kelx run
        "KEL_E_SAVE_EXISTS", "KEL_E_SAVE_TWICE", "KEL_E_TARGET_FILE",
        "KEL_W_OUTFILE_FOLDER",   // told in the workbench
        "KEL_W_SAVED_AS_NUMBERS", // told by the run
        "KEL_E_WEIGHT_IS_TEXT",   // tested where weights are
        // Of EXECUTE, which needs files.
        "KEL_E_PROGRAM_CYCLE", "KEL_E_CALLS_TOO_DEEP", "KEL_E_TOO_MANY_CALLS",
        "KEL_E_UNKNOWN_VALUE", "KEL_W_UNUSED_VALUE"};
    std::vector<Fault> all = faults;
    all.insert(all.end(), tableFaults().begin(), tableFaults().end());
    for (const Fault& fault : all) {
        Census census;
        census.compile(fault.program);
        for (const Message& message : census.messages.all())
            seen.insert(codeName(message.severity, message.code));
    }
    for (const MessageEntry& entry : messageTable())
        EXPECT_TRUE(seen.contains(entry.name)) << entry.name << " has no test";
}

} // namespace kelx::language
