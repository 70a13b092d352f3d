// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults.h"

namespace kelx::language {

const std::vector<Fault>& tableFaults() {
    static const std::vector<Fault> faults = {
        {"SUM\nTABLE x STATS BY SEX2 TITLE \"t\"\nTABLIST\nTABLE y TABOP\n AREALIST TITLE \"x\"",
         "KEL_E_UNEXPECTED 2:1 Found the reserved word TABLE, but expected a value, such as a "
         "number, a text in quotes, Entity.Variable, a function or \"(\".\nKEL_E_UNEXPECTED 2:15 "
         "Found the reserved word BY, but expected what to measure: a variable or an "
         "expression.\nKEL_E_UNEXPECTED 4:1 Found the reserved word TABLE, but expected the name "
         "of a table.\nKEL_E_UNEXPECTED 5:2 Found the reserved word AREALIST, but expected a "
         "value, such as a number, a text in quotes, Entity.Variable, a function or "
         "\"(\".\nKEL_E_UNEXPECTED 5:11 Found the reserved word TITLE, but expected the entity to "
         "list.\n"},
        {"SUM AGE OF ROOMS\nAREALIST PROVINCE BY NAME\nTABLE a FREQ SEX2\nTABOP a BY GRP",
         "KEL_E_MISPLACED_CLAUSE 1:9 OF cannot stand here: it follows the kind of the table "
         "directly.\nKEL_E_MISPLACED_CLAUSE 2:19 BY cannot stand here: a list has a row for each "
         "record; use FREQ for a table.\nKEL_E_MISPLACED_CLAUSE 4:9 BY cannot stand here: the "
         "tables that it is made of have their own variables.\n"},
        {"QUANTILE 1 OF AGE\nQUANTILE 2.5 OF AGE\nFREQ AGE SENSITIVE 1.5 FREQ AGE SENSITIVE "
         "few\nFREQ AGE SORT AGE 99999999999",
         "KEL_E_BAD_COUNT 1:10 QUANTILE takes a whole number from 2 to 1000, not "
         "1.\nKEL_E_BAD_COUNT 2:10 QUANTILE takes a whole number from 2 to 1000, not "
         "2.5.\nKEL_E_BAD_COUNT 3:20 SENSITIVE takes a whole number from 0 to 1000000000, not "
         "1.5.\nKEL_E_UNEXPECTED 3:43 Found \"few\", but expected the number of "
         "SENSITIVE.\nKEL_E_BAD_COUNT 4:19 SORT takes a whole number from 0 to 2000000000, not "
         "99999999999.\n"},
        {"FREQ AGE OUTFILE xlt \"a\"\nFREQ AGE OUTFILE \"\"\nFREQ AGE OUTFILE \"a.csv\" "
         "utf16\nFREQ AGE OUTGRAPH \"a.bmp\" cake\nFREQ AGE SAVE a\nFREQ AGE TABLESTYLE s",
         "KEL_E_UNEXPECTED 1:18 Found \"xlt\", but expected a type of file, such as XLS or CSV, or "
         "a file name in quotes. Did you mean xls?\nKEL_E_UNEXPECTED 2:18 Found an "
         "empty text, but expected the name of the file in quotes.\nKEL_E_UNEXPECTED 3:26 Found "
         "\"utf16\", but expected a clause of the table, such as BY or TITLE, or a new "
         "command.\nKEL_E_UNEXPECTED 4:27 Found \"cake\", but expected a clause of the table, such "
         "as BY or TITLE, or a new command.\nKEL_E_UNEXPECTED 5:15 Found \"a\", but expected the "
         "name of the file in quotes.\nKEL_E_UNEXPECTED 6:21 Found \"s\", but expected the name of "
         "a style file in quotes.\n"},
        {"AVERAGE GRP BY SEX2\nSTATS PROVINCE.CODE BY GRP\nSUM 3\nSUM AGE BY CAUSE\nGINI AGEE",
         "KEL_E_NOT_A_NUMBER 1:9 AVERAGE takes a number, but this is a text.\nKEL_E_NOT_A_NUMBER "
         "2:24 STATS takes a number, but this is a text.\nKEL_E_NOTHING_COUNTED 3:1 SUM needs a "
         "variable: a number alone does not tell what records to go over.\nKEL_E_BRANCHES 4:12 "
         "PERSON and DEATH cannot be used together: neither of them is part of the "
         "other.\nKEL_E_UNKNOWN_VARIABLE 5:6 There is no variable \"AGEE\". Did you mean AGE?\n"},
        {"TABLE byAge FREQ AGE TABLE bad FREQ AGEE\nAREALIST PROVINCE, byAgf, bad, NAME, bat, "
         "ROMS\nTABLIST byAgf, bad\nTABOP PERSON.byAge / bad",
         "KEL_E_UNKNOWN_VARIABLE 1:37 There is no variable \"AGEE\". Did you mean "
         "AGE?\nKEL_E_UNKNOWN_COLUMN 2:20 There is no variable or table \"byAgf\". Did you mean "
         "byAge?\nKEL_E_UNKNOWN_COLUMN 2:38 There is no variable or table "
         "\"bat\".\nKEL_E_UNKNOWN_COLUMN 2:43 There is no variable or table \"ROMS\". Did you "
         "mean ROOMS?\nKEL_E_UNKNOWN_TABLE 3:9 There is no table \"byAgf\" before this place. Did "
         "you mean byAge?\nKEL_E_UNKNOWN_TABLE 4:7 There is no table \"PERSON.byAge\" before this "
         "place. Did you mean byAge?\n"},
        {"AREALIST PROVINCE, PERSON.AGE, ROOMS, SEX\nVIEW PERSON, CAUSE, NAME, PROVINSE.*",
         "KEL_E_COLUMN_BELOW 1:20 PERSON.AGE is about PERSON, but the rows are of PROVINCE, which "
         "have many of them: make a table of it, as in TABLE T FREQ PERSON.AGE, and name the table "
         "here.\nKEL_E_COLUMN_BELOW 1:32 HOUSEHOLD.ROOMS is about HOUSEHOLD, but the rows are of "
         "PROVINCE, which have many of them: make a table of it, as in TABLE T FREQ "
         "HOUSEHOLD.ROOMS, and name the table here.\nKEL_E_AMBIGUOUS_NAME 1:39 More than one "
         "variable is called \"SEX\". Write one of PERSON.SEX, DEATH.SEX.\nKEL_E_BRANCHES 2:14 "
         "PERSON and DEATH cannot be used together: neither of them is part of the "
         "other.\nKEL_E_UNKNOWN_ENTITY 2:27 There is no entity \"PROVINSE\". Did you mean "
         "PROVINCE?\n"},
        {"TABLE a FREQ SEX2 BY GRP TABLE b FREQ ROOMS TABLE c VIEW DEATH TABLE d TABOP b\nAREALIST "
         "PERSON, a, b, c, d",
         "KEL_E_TABLE_COLUMN 2:18 The table a cannot be a column of this list: it has more than "
         "one variable.\nKEL_E_TABLE_COLUMN 2:21 The table b cannot be a column of this list: it "
         "counts HOUSEHOLD, which does not lie in PERSON.\nKEL_E_TABLE_COLUMN 2:24 The table c "
         "cannot be a column of this list: it is a list itself.\nKEL_E_TABLE_COLUMN 2:27 The table "
         "d cannot be a column of this list: it is made of other tables; take those.\n"},
        {"TABLE a FREQ SEX2 TABLE b FREQ SEX2 BY GRP TABLE c STATS AGE BY SEX2 TABLE v VIEW "
         "DEATH\nTABOP a / b\nTABOP c / v + nothing\nTABOP 3 * (2 - 1)\nTABOP a > 1\nTABOP "
         "SQRT(a)\nTABOP a + \"b\"",
         "KEL_E_TABLE_SHAPES 2:7 a and b have different variables: TABOP takes tables of equal "
         "shape.\nKEL_E_TABLE_OPERAND 3:7 The table c cannot be used here: it has several figures "
         "in each cell.\nKEL_E_TABLE_OPERAND 3:11 The table v cannot be used here: it is a "
         "list.\nKEL_E_UNKNOWN_TABLE 3:15 There is no table \"nothing\" before this "
         "place.\nKEL_E_TABLE_OPERATOR 4:7 TABOP calculates with tables, numbers, + - * / and "
         "parentheses; here stands \"3 * (2 - 1)\", which names no "
         "table.\nKEL_E_TABLE_OPERATOR 5:7 TABOP calculates "
         "with tables, numbers, + - * / and parentheses; here stands \"a > "
         "1\".\nKEL_E_TABLE_OPERATOR 6:7 TABOP calculates with tables, numbers, + - * / and "
         "parentheses; here stands \"SQRT(a)\".\nKEL_E_TABLE_OPERATOR 7:11 TABOP calculates with "
         "tables, numbers, + - * / and parentheses; here stands \"\"b\"\".\n"},
        {"TABLE a FREQ SEX2 TABLE b FREQ GRP BY SEX2 TABLE c COUNT PERSON\nTABLIST a, b, c",
         "KEL_E_TABLIST_TABLE 2:12 b cannot stand beside a in a TABLIST: its rows are of another "
         "variable.\nKEL_E_TABLIST_TABLE 2:15 c cannot stand beside a in a TABLIST: it has no "
         "variable, and so no rows.\n"},
        {"FREQ SEX2 SORT PERSON.AGE\nAREALIST PROVINCE, NAME SORT NAMEE\nVIEW PERSON, AGE SORT "
         "SEX2\nFREQ SEX2, GRP SORT PERSON.AGE FREQ SEX2, GRP SORT PERSON.GRP",
         "KEL_E_SORT_COLUMN 1:16 FREQ_1 has no column \"PERSON.AGE\" to be sorted "
         "by.\nKEL_E_SORT_COLUMN 2:30 AREALIST_1 has no column \"NAMEE\" to be sorted by. Did you "
         "mean NAME?\nKEL_E_SORT_COLUMN 3:23 VIEW_1 has no column \"SEX2\" to be sorted "
         "by.\nKEL_E_SORT_COLUMN 4:21 FREQ_3 has no column \"PERSON.AGE\" to be sorted by. Did you "
         "mean PERSON.GRP?\n"},
        {"FREQ SEX2 SORT NOWHERE\nMEDIAN AGE BY SEX2 SORT \"Sum\"\nSUM AGE BY SEX2 SORT \"sum\"",
         "KEL_E_SORT_COLUMN 1:16 FREQ_1 has no column \"NOWHERE\" to be sorted "
         "by.\nKEL_E_SORT_COLUMN 2:25 MEDIAN_1 has no column \"Sum\" to be sorted by.\n"},
        {"TABLE a FREQ SEX2\nRUNDEF FILTER AGE > 3\nTABLE b FREQ SEX2\nAREALIST PROVINCE, a, b\n"
         "RUNDEF FILTER AGE > 3\nAREALIST PROVINCE, b\nVIEW PERSON, AGE SENSITIVE 3",
         "KEL_W_FILTER_BELOW 2:15 The universal filter is about PERSON: each PROVINCE that has at "
         "least one "
         "such PERSON is kept.\nKEL_W_COLUMN_OF_OTHER_RUN 4:20 a was made under another selection "
         "or universal filter than this list.\nKEL_W_FILTER_BELOW 5:15 The universal filter is "
         "about PERSON: "
         "each PROVINCE that has at least one such PERSON is kept.\nKEL_W_NO_EFFECT 7:18 SENSITIVE "
         "has no effect on VIEW: it lists variables, and no table.\n"},
        {"RUNDEF AREABREAK DEATH\nFREQ SEX2 FREQ ROOMS COUNT PERSON",
         "KEL_E_AREA_BREAK_BRANCH 2:1 AREABREAK is about DEATH, but the table counts PERSON, which "
         "is neither above nor below it.\n"},
        {"TABLE a FREQ SEX2\nTABOP 5\nTABLIST a, A",
         "KEL_E_TABLE_OPERATOR 2:7 TABOP calculates with tables, numbers, + - * / and parentheses; "
         "here stands \"5\", which names no table.\nKEL_W_GIVEN_TWICE 3:12 \"A\" is given twice: "
         "its "
         "columns have the same names.\n"},
        {"TABLE a FREQ SEX2 TABLE NAME FREQ GRP\nTABOP a FILTER AGE > 3 WEIGHT 2 TALLY 3\nAREALIST "
         "PROVINCE, NAME WEIGHT 3 TALLY AGE\nFREQ SEX2 BY GRP SORT DESC SEX2",
         "KEL_W_NO_EFFECT 2:9 FILTER has no effect on TABOP: the tables that it is made of have "
         "their own.\nKEL_W_NO_EFFECT 2:24 WEIGHT has no effect on TABOP: the tables that it is "
         "made of have their own.\nKEL_W_NO_EFFECT 2:33 TALLY has no effect on TABOP: the tables "
         "that it is made of have their own.\nKEL_W_COLUMN_TWICE 3:20 \"NAME\" is a variable and a "
         "table: the variable is taken.\nKEL_W_NO_EFFECT 3:25 WEIGHT has no effect on AREALIST: it "
         "lists variables, and no table.\nKEL_W_NO_EFFECT 3:34 TALLY has no effect on AREALIST: it "
         "lists variables, and no table.\nKEL_W_SORT_CROSSTAB 4:18 A table of several variables is "
         "not sorted.\n"},
        {"FREQ SEX2 OUTFILE xml \"a\" UNICODE",
         "KEL_W_OUTFILE_TYPE 1:19 XML is not written; the file will be CSV.\nKEL_W_OUTFILE_FORMAT "
         "1:27 Files are written in UTF-8, not in UNICODE.\n"},
        {"TABLE a FREQ SEX2, GRP\nTABOP a / 2\nAREALIST PROVINCE, a, a_2, nobody",
         "KEL_E_UNKNOWN_TABLE 2:7 There is no table \"a\" before this place. a makes 2 tables, a_1 "
         "to a_2: name one of them.\nKEL_E_UNKNOWN_COLUMN 3:20 There is no variable or table "
         "\"a\". a makes 2 tables, a_1 to a_2: name one of them.\nKEL_E_UNKNOWN_COLUMN 3:28 There "
         "is no variable or table \"nobody\".\n"},
        {"RUNDEF SELECTION AGE > 5 COUNT HOUSEHOLD",
         "KEL_W_FILTER_BELOW 1:18 The selection is about PERSON: each HOUSEHOLD that has at least "
         "one such PERSON is kept.\n"},
        {"VIEW DEATH\n  TITEL \"x\"",
         "KEL_E_UNEXPECTED 2:3 Found \"TITEL\", but expected a clause of the table, such as BY or "
         "TITLE, or a new command. Did you mean TITLE?\n"},
    };
    return faults;
}

} // namespace kelx::language
