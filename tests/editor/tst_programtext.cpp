// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to a program text before it goes to the engine or to an assistant, and what its
// messages and paths become.
#include "editor/program/AssistantText.h"
#include "editor/program/DeprecatedClauses.h"
#include "editor/program/ElidedPath.h"
#include "editor/program/ErrorLines.h"
#include "editor/program/PathPreflight.h"
#include "editor/program/RundefTemplate.h"

#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontMetrics>
#include <QTemporaryDir>
#include <QTest>

class TestProgramText : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString missing(const QString& program) const { return missingFolder(program, folder_.path()); }

private slots:
    void initTestCase();
    void findsMissingFolders_data();
    void findsMissingFolders();
    void letsThroughWhatWritesNowhereElse_data();
    void letsThroughWhatWritesNowhereElse();
    void leavesRelativePathsWithoutAFolder();
    void rewritesOldClauses();
    void keepsLinesWhereItRewrites();
    void readsErrorLines_data();
    void readsErrorLines();
    void elidesPaths();
    void givesAssistantsOneLine();
    void tellsIncompleteCommands_data();
    void tellsIncompleteCommands();
    void givesTheTemplateWhole();
};

void TestProgramText::initTestCase() {
    QVERIFY(QDir(folder_.path()).mkpath("reports/2020"));
    QFile file(folder_.filePath("plain"));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TestProgramText::findsMissingFolders_data() {
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("folder"); // with a "." in front where below the given one
    QTest::addColumn<QString>("statement");
    QTest::newRow("drive") << R"(outfile csv "C:/no/such/dir/a.csv")"
                           << "C:/no/such/dir"
                           << "outfile";
    QTest::newRow("backslashes") << R"(outfile pdf "C:\no\such\a.pdf")"
                                 << "C:/no/such"
                                 << "outfile";
    QTest::newRow("any case") << R"(table t OUTFILE  Xls "/no/such/a.xls" overwrite)"
                              << "/no/such"
                              << "outfile";
    QTest::newRow("relative") << R"(outfile csv "other/a.csv")"
                              << "./other"
                              << "outfile";
    QTest::newRow("relative save") << R"(define P.X as count save "x\y.bin")"
                                   << "./x"
                                   << "save";
    QTest::newRow("a file as folder") << R"(save "plain/y.bin")"
                                      << "./plain"
                                      << "save";
    QTest::newRow("parent") << R"(save "reports/../nowhere/y.bin")"
                            << "./nowhere"
                            << "save";
    QTest::newRow("later line") << "freq P.SEX\r\n\r\n\tsave \"reports/a\"\n save \"no/a\""
                                << "./no"
                                << "save";
    QTest::newRow("second of a line") << R"(save "reports/a" save "no/b")"
                                      << "./no"
                                      << "save";
    QTest::newRow("address before") << R"(title "a // b" save "no/b")"
                                    << "./no"
                                    << "save";
    QTest::newRow("behind a comment") << "/* one\n two */ save \"no/b\""
                                      << "./no"
                                      << "save";
    QTest::newRow("quote left open") << "title \"5 inches\nfreq 5\" save \"no/b\""
                                     << "./no"
                                     << "save";
    QTest::newRow("percent") << R"(save "%2/b")"
                             << "./%2"
                             << "save";
}

void TestProgramText::findsMissingFolders() {
    QFETCH(QString, program);
    QFETCH(QString, folder);
    QFETCH(QString, statement);
    if (folder.startsWith("./"))
        folder = folder_.path() + folder.mid(1);
    const QString expected = QStringLiteral("The directory ") + folder + " used in the " +
                             statement + " statement doesn't exist";
    QCOMPARE(missing(program), expected);
}

void TestProgramText::letsThroughWhatWritesNowhereElse_data() {
    QTest::addColumn<QString>("program");
    QTest::newRow("empty") << "";
    QTest::newRow("no folder") << R"(outfile csv "a.csv")";
    QTest::newRow("folder there") << R"(outfile csv "reports\2020\a.csv" save "reports/b")";
    QTest::newRow("commented out") << R"(  //outfile csv "C:/no/such/dir/a.csv")";
    QTest::newRow("comment behind") << R"(freq P.SEX // outfile csv "no/a.csv")";
    QTest::newRow("comment of lines") << "/* freq P.SEX\n outfile csv \"no/a.csv\"\n*/ freq P.AGE";
    QTest::newRow("comment without end") << "/* outfile csv \"no/a.csv\"";
    QTest::newRow("table style") << R"(tablestyle "no/such/a.tst")";
    QTest::newRow("read, not written") << R"(execute "no/such/a.spc")";
}

void TestProgramText::letsThroughWhatWritesNowhereElse() {
    QFETCH(QString, program);
    QCOMPARE(missing(program), QString());
}

/// Nothing is open then, which the engine tells.
void TestProgramText::leavesRelativePathsWithoutAFolder() {
    QCOMPARE(missingFolder(R"(save "no/b")", {}), QString());
    QVERIFY(!missingFolder(R"(save "/no/such/b")", {}).isEmpty());
}

void TestProgramText::rewritesOldClauses() {
    const RewrittenProgram rewritten =
        rewriteDeprecated("table a OUTFILE JSON \"a.json\"\ntable b outfile\tjson \"b.json\"");
    QCOMPARE(rewritten.text, QStringLiteral("table a save \"a.json\"\ntable b save \"b.json\""));
    QCOMPARE(rewritten.suggestions, QStringList("SUGGESTION: outfile json DEPRECATED, USE: save"));
    for (const QString& program :
         {QStringLiteral("table a outfile csv \"a\""), QStringLiteral("myoutfile json"),
          QStringLiteral("outfile jsons"), QStringLiteral("outfile  json"), QString()}) {
        const RewrittenProgram same = rewriteDeprecated(program);
        QCOMPARE(same.text, program);
        QVERIFY(same.suggestions.isEmpty());
    }
}

void TestProgramText::keepsLinesWhereItRewrites() {
    QCOMPARE(rewriteDeprecated("outfile\njson \"a\"\nfreq").text,
             QStringLiteral("save\n \"a\"\nfreq"));
}

void TestProgramText::readsErrorLines_data() {
    QTest::addColumn<QString>("row");
    QTest::addColumn<bool>("marked");
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("isNotice");
    QTest::newRow("engine") << "12: KEL_E_X text" << false << 12 << false;
    QTest::newRow("another file's") << "3: KEL_E_X file.spc:7: text" << false << 3 << false;
    QTest::newRow("second field") << "file.spc:7: text" << false << 7 << false;
    QTest::newRow("second field wins") << "3: 7 : text" << false << 7 << false;
    QTest::newRow("empty fields") << "::9:: text" << false << 9 << false;
    QTest::newRow("the whole program") << "0: KEL_E_X text" << false << 0 << true;
    QTest::newRow("suggestion") << "SUGGESTION: outfile json DEPRECATED, USE: save" << false << 0
                                << true;
    QTest::newRow("suggestion in Spanish") << "Sugerencia: outfile json" << false << 0 << true;
    QTest::newRow("suggestion with number") << "SUGGESTION: 4: text" << false << 4 << false;
    QTest::newRow("unknown") << "2 errors found" << false << 0 << false;
    QTest::newRow("unknown with a drive") << "Error: C:/a" << false << 0 << false;
    QTest::newRow("too long a number") << "99999999999: text" << false << 0 << false;
    QTest::newRow("empty") << "" << false << 0 << false;
    QTest::newRow("ours") << "2 errors found" << true << 0 << true;
    QTest::newRow("ours with a number") << "Current Program: 7: x.spc" << true << 0 << true;
}

void TestProgramText::readsErrorLines() {
    QFETCH(QString, row);
    QFETCH(bool, marked);
    const ErrorLineTarget target = errorLineTarget(row, marked);
    QTEST(target.line, "line");
    QTEST(target.isNotice, "isNotice");
}

void TestProgramText::elidesPaths() {
    const QString separator = QDir::separator();
    const auto path = [&separator](const QString& parts) {
        return QString(parts).replace(u'/', separator);
    };
    const QFont font(QStringLiteral("Arial"), 10);
    const QFontMetrics metrics(font);
    const QString whole = path("/home/census/2020/programs/ages.spc");
    const auto needed = [&metrics](const QString& text) {
        return metrics.horizontalAdvance(text) * 11 / 10;
    };
    QCOMPARE(elidePath(whole, font, needed(whole) + 1), whole);
    const QString three = path("/home/census/.../ages.spc");
    QCOMPARE(elidePath(whole, font, needed(three) + 1), three);
    QCOMPARE(elidePath(whole, font, needed(three)), path("/home/.../ages.spc"));
    QCOMPARE(elidePath(whole, font, needed(whole)), path("/home/census/2020/.../ages.spc"));
    QCOMPARE(elidePath(whole, font, 0), path("/.../ages.spc"));
    for (const char* shown : {"", "ages.spc", "programs/ages.spc", "/ages.spc"})
        QCOMPARE(elidePath(path(shown), font, 0), path(shown));
}

void TestProgramText::givesAssistantsOneLine() {
    QString text = "\n\tdefine  PERSON.X\r\n\tas   count ";
    QVERIFY(simplifyForAssistant(Assistant::Define, text));
    QCOMPARE(text, QStringLiteral("define PERSON.X as count"));
}

void TestProgramText::tellsIncompleteCommands_data() {
    QTest::addColumn<Assistant>("assistant");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("complete");
    QTest::newRow("nothing") << Assistant::Define << "" << true;
    QTest::newRow("blanks") << Assistant::Table << " \n" << true;
    QTest::newRow("define alone") << Assistant::Define << "define" << false;
    QTest::newRow("define and a blank") << Assistant::Define << " Define \n" << false;
    QTest::newRow("define a name") << Assistant::Define << "DEFINE\nPERSON.X" << true;
    QTest::newRow("command last") << Assistant::Table << "define P.X table" << false;
    QTest::newRow("command later") << Assistant::Table << "define P.X table t" << true;
    QTest::newRow("another's") << Assistant::Rundef << "table t" << false;
    QTest::newRow("part of a word") << Assistant::Table << "tablestyle \"a\"" << false;
    QTest::newRow("execute") << Assistant::Execute << "execute \"a.spc\"" << true;
}

void TestProgramText::tellsIncompleteCommands() {
    QFETCH(Assistant, assistant);
    QFETCH(QString, text);
    QTEST(simplifyForAssistant(assistant, text), "complete");
    QCOMPARE(incompleteCodeMessage(Assistant::Rundef),
             QStringLiteral("The typed code is incomplete to show a rundef assistant window"));
}

void TestProgramText::givesTheTemplateWhole() {
    const QStringList lines = rundefTemplate().split(u'\n');
    QStringList words;
    for (const QString& line : lines) {
        words += line.section(u' ', 0, 0);
        if (line.startsWith(u'\t'))
            QVERIFY2(line.contains(QStringLiteral(" \t//optional, ")), qPrintable(line));
    }
    QCOMPARE(words.join(','),
             QStringLiteral(",RUNDEF,\tprogram_name,\tAREABREAK,\tAUTOWEIGHT,\tDECIMALS,"
                            "\tDICTIONARY,\tFILTER,\tFILTERLABEL,\tGRAPHSTYLE,\tMAPSTYLE,"
                            "\tNOWEIGHT,\tSELECTION,\tSELECTION,\tSELECTIONLABEL,\tTABLESTYLE,"
                            "\tTITLE,"));
}

QTEST_MAIN(TestProgramText)
#include "tst_programtext.moc"
