// SPDX-License-Identifier: GPL-3.0-or-later
// The line that names a table style in a program: where it goes, and what becomes of the rest.
#include "app/SettingsFolder.h"
#include "results/styles/ProgramStyle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

class TestProgramStyle : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("program.spc"));

    void write(const QByteArray& bytes) const {
        QFile file(path_);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray read() const {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void insertion_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* name, const QByteArray& before, const QByteArray& after) {
            QTest::newRow(name) << before << after;
        };
        row("nowhere", "RUNDEF a\nFREQ P.SEX\n",
            "DEFINE\n    TABLESTYLE \"/s.json\"\n\nRUNDEF a\nFREQ P.SEX\n");
        row("an empty program", "", "DEFINE\n    TABLESTYLE \"/s.json\"\n\n");
        row("behind DEFINE", "// x\n\tdefine  \nFREQ P.SEX",
            "// x\n\tdefine  \n    TABLESTYLE \"/s.json\"\nFREQ P.SEX");
        row("behind the first", "DEFINE\nDEFINE\n", "DEFINE\n    TABLESTYLE \"/s.json\"\nDEFINE\n");
        row("DEFINE at the end", "FREQ P.SEX\nDEFINE",
            "    TABLESTYLE \"/s.json\"\nFREQ P.SEX\nDEFINE");
        row("DEFINE of a variable", "DEFINE P.X AS 1\n",
            "DEFINE\n    TABLESTYLE \"/s.json\"\n\nDEFINE P.X AS 1\n");
        row("in place of another", "DEFINE\n\ttablestyle\t\"old.json\" \nFREQ P.SEX\n",
            "DEFINE\n    TABLESTYLE \"/s.json\"\nFREQ P.SEX\n");
        row("of two", "TABLESTYLE \"a\"\n//\n  TableStyle \"\"",
            "    TABLESTYLE \"/s.json\"\n//\n    TABLESTYLE \"/s.json\"");
        row("of one with a quote", "DEFINE\nTABLESTYLE \"/a\"\"b\"\"\"\nFREQ P.SEX\n",
            "DEFINE\n    TABLESTYLE \"/s.json\"\nFREQ P.SEX\n");
        row("not of a comment", "DEFINE\n// TABLESTYLE \"a\"\nTABLESTYLE \"a\" // b\n",
            "DEFINE\n    TABLESTYLE \"/s.json\"\n// TABLESTYLE \"a\"\nTABLESTYLE \"a\" // b\n");
        row("CRLF nowhere", "FREQ P.SEX\r\n",
            "DEFINE\r\n    TABLESTYLE \"/s.json\"\r\n\r\nFREQ P.SEX\r\n");
        row("CRLF behind DEFINE", "DEFINE\r\nFREQ P.SEX\r\n",
            "DEFINE\r\n    TABLESTYLE \"/s.json\"\r\nFREQ P.SEX\r\n");
        row("CRLF in place", "a\r\n TABLESTYLE \"b\"\r\nc\r\n",
            "a\r\n    TABLESTYLE \"/s.json\"\r\nc\r\n");
        row("mixed ends", "a\nDEFINE\r\nb\nc\r",
            "a\nDEFINE\r\n    TABLESTYLE \"/s.json\"\r\nb\nc\r");
        row("a byte order mark",
            "\xEF\xBB\xBF"
            "DEFINE\nTITLE \"a\xC3\xB1o\"\n",
            "\xEF\xBB\xBF"
            "DEFINE\n    TABLESTYLE \"/s.json\"\nTITLE \"a\xC3\xB1o\"\n");
    }
    void insertion() {
        QFETCH(QByteArray, before);
        write(before);
        QVERIFY(programstyle::insertInto(path_, "/s.json"));
        QTEST(read(), "after");
    }

    void pathsAreTakenAsTheyAre_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("line");
        QTest::newRow("drive") << R"(C:\1\0\styles\$1.json)"
                               << R"(    TABLESTYLE "C:\1\0\styles\$1.json")";
        QTest::newRow("place marks") << "/a/%1 %2.json"
                                     << "    TABLESTYLE \"/a/%1 %2.json\"";
        QTest::newRow("letters") << u"/años/表.json"_qs << u"    TABLESTYLE \"/años/表.json\""_qs;
        QTest::newRow("a quote") << "/a\"b.json"
                                 << "    TABLESTYLE \"/a\"\"b.json\"";
    }
    void pathsAreTakenAsTheyAre() {
        QFETCH(QString, style);
        QFETCH(QString, line);
        QCOMPARE(programstyle::inserted("DEFINE\n", style), "DEFINE\n" + line + '\n');
        QCOMPARE(programstyle::inserted("TABLESTYLE \"x\"\nb", style), line + "\nb");
        QCOMPARE(programstyle::inserted(line + "\nb", style), line + "\nb");
    }

    void filesThatAreNoProgramStayAsTheyAre() {
        const QByteArray latin = "DEFINE\nTITLE \"a\xF1o\"\n";
        write(latin);
        QVERIFY(!programstyle::insertInto(path_, "/s.json"));
        QCOMPARE(read(), latin);
        QVERIFY(!programstyle::insertInto(folder_.filePath("none.spc"), "/s.json"));
        QVERIFY(!QFile::exists(folder_.filePath("none.spc")));
        QVERIFY(!programstyle::insertInto(folder_.path(), "/s.json"));
    }

    void aFullDiskLeavesTheProgram() {
        const QByteArray program = "DEFINE\n// " + QByteArray(5000, 'x');
        write(program);
        {
            const FileSizeLimit full(1000);
            QVERIFY(!programstyle::insertInto(path_, "/s.json"));
        }
        QCOMPARE(read(), program);
        QCOMPARE(QDir(folder_.path()).entryList(QDir::Files), QStringList("program.spc"));
    }

    void aLinkAndPermissionsStay() {
        write("DEFINE\n");
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(path_, permissions));
        const QString link = folder_.filePath("link.spc");
        QVERIFY(QFile::link(path_, link));
        QVERIFY(programstyle::insertInto(link, "/s.json"));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(read(), "DEFINE\n    TABLESTYLE \"/s.json\"\n");
        QVERIFY(QFile::permissions(path_).testFlags(permissions));
        QVERIFY(!QFile::permissions(path_).testFlag(QFile::ReadOther));
    }
};

QTEST_MAIN(TestProgramStyle)
#include "tst_programstyle.moc"
