// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/SafeFileNames.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_SafeFileNames : public QObject {
    Q_OBJECT

private slots:
    void namesAreSafe_data();
    void namesAreSafe();
    void longNamesAreCutBetweenCharacters();
    void sameNamesGetNumbers();
    void namesCanBeMade();
};

void tst_SafeFileNames::namesAreSafe_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << "FREQ_1"
                           << "FREQ_1";
    QTest::newRow("accents and blanks")
        << QStringLiteral("Población 2") << QStringLiteral("Población 2");
    QTest::newRow("folders") << "../../etc/passwd"
                             << "_._.._etc_passwd";
    QTest::newRow("reserved") << R"(a\b:c*d?e"f<g>h|i)"
                              << "a_b_c_d_e_f_g_h_i";
    QTest::newRow("control characters") << "a\tb\nc\x7f"
                                        << "a_b_c_";
    QTest::newRow("empty") << ""
                           << "_";
    QTest::newRow("blanks") << "   "
                            << "_";
    QTest::newRow("itself") << "."
                            << "_";
    QTest::newRow("the folder above") << ".."
                                      << "__";
    QTest::newRow("hidden") << ".profile"
                            << "_profile";
    QTest::newRow("point at the end") << "Table 1."
                                      << "Table 1_";
    QTest::newRow("blanks around") << " a "
                                   << "a";
    QTest::newRow("device") << "CON"
                            << "_CON";
    QTest::newRow("device with more") << "lpt1.x"
                                      << "_lpt1.x";
    QTest::newRow("device's name within") << "CONTROL"
                                          << "CONTROL";
    QTest::newRow("writing to the left") << QStringLiteral("a\u202Eb") << "a_b";
    QTest::newRow("half a character") << QStringLiteral("a") + QChar(0xD83D) << "a_";
}

void tst_SafeFileNames::namesAreSafe() {
    QFETCH(QString, name);
    QFETCH(QString, file);
    QCOMPARE(SafeFileNames::safe(name), file);
}

void tst_SafeFileNames::longNamesAreCutBetweenCharacters() {
    const QString accents = QString(300, QChar(0xE9));
    const QString file = SafeFileNames::safe(accents);
    QVERIFY(accents.startsWith(file));
    QCOMPARE(file.toUtf8().size(), 200);

    // One character of four bytes and two of text, which no cut may divide.
    const QString faces = QString::fromUtf8("\U0001F600").repeated(60);
    QCOMPARE(SafeFileNames::safe("a" + faces), "a" + QString::fromUtf8("\U0001F600").repeated(49));
}

void tst_SafeFileNames::sameNamesGetNumbers() {
    SafeFileNames names;
    QCOMPARE(names.take("FREQ_1", ".csv"), "FREQ_1.csv");
    QCOMPARE(names.take("FREQ_1", ".csv"), "FREQ_1 (2).csv");
    QCOMPARE(names.take("freq_1", ".csv"), "freq_1 (3).csv");
    QCOMPARE(names.take("FREQ_1", ".pdf"), "FREQ_1.pdf");
    QCOMPARE(names.take("A/B", ".csv"), "A_B.csv");
    QCOMPARE(names.take("A:B", ".csv"), "A_B (2).csv");
    // A table may be called what a number makes of another.
    QCOMPARE(names.take("X (2)", ".csv"), "X (2).csv");
    QCOMPARE(names.take("X", ".csv"), "X.csv");
    QCOMPARE(names.take("X", ".csv"), "X (3).csv");
    // The same letter written in one sign and in two.
    QCOMPARE(names.take(QStringLiteral("caf\u00E9"), ".csv"), QStringLiteral("caf\u00E9.csv"));
    QCOMPARE(names.take(QStringLiteral("cafe\u0301"), ".csv"),
             QStringLiteral("cafe\u0301 (2).csv"));
    QCOMPARE(SafeFileNames().take("FREQ_1", ".csv"), "FREQ_1.csv");
}

void tst_SafeFileNames::namesCanBeMade() {
    const QTemporaryDir folder;
    SafeFileNames names;
    const QString hostile = QString(400, QChar(0x20AC)) + QLatin1String("/\\:.. ");
    for (const QString& name : {hostile, hostile, QString(), QStringLiteral("..")}) {
        QFile file(folder.filePath(names.take(name, ".json")));
        QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::NewOnly),
                 qPrintable(file.errorString()));
    }
}

QTEST_GUILESS_MAIN(tst_SafeFileNames)
#include "tst_safefilenames.moc"
