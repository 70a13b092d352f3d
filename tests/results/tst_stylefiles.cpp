// SPDX-License-Identifier: GPL-3.0-or-later
// Files of table styles: what tables take from them, what the editor takes and writes, and what
// becomes of damaged ones.
#include "app/SettingsFolder.h"
#include "results/styles/TableStyleData.h"
#include "results/tables/TableViewConfig.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class TestStyleFiles : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    TablePreferences preferences_;

    QString path(const QString& name = QStringLiteral("style.json")) const {
        return folder_.filePath(name);
    }
    QString write(const QByteArray& text) const {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("no style file");
        return path();
    }
    QByteArray read() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    TableViewConfig config(const QByteArray& text) const {
        return TableViewConfig(write(text), preferences_);
    }
    static void expectWarning(const char* pattern) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(pattern)));
    }

private slots:
    void init() {
        QFile::remove(path());
        preferences_.decimals = 4;
        preferences_.thousandSep = "'";
    }

    void sectionsSetWhatTablesShow() {
        const TableViewConfig style = config(R"({"version": "1.0",
            "general": {"name": "n", "label": "l", "decimals": 0, "thousandSep": "."},
            "frequency1Var": {"showPercent": false, "showCumulPercent": false, "showTotal": false,
                              "showNa": false, "showMv": true, "rowsOrder": "descending"},
            "frequencyMultiVar": {"showNa": true, "showMv": false,
                                  "threeVarLayout": "matrixByFirstVar"}})");
        QCOMPARE(style.decimals, 0);
        QCOMPARE(style.thousandSep, ".");
        QVERIFY(!style.showPercent && !style.showCumulPercent);
        QVERIFY(style.hideTotal);
        QVERIFY(!style.showNaOneVariable && style.showMvOneVariable);
        QVERIFY(style.showNaSeveralVariables && !style.showMvSeveralVariables);
        QCOMPARE(style.rowsOrder, 2);
        QCOMPARE(style.threeVarLayout, "matrixByFirstVar");
        // Those of the options are not meant.
        QVERIFY(!style.hideNa && !style.hideMv && !style.showTotalsRow);
    }

    void oneVariableAloneSpeaksForSeveral() {
        TableViewConfig style = config(
            R"({"frequency1Var": {"showNa": false, "showMv": false, "rowsOrder": "ascending"}})");
        QVERIFY(!style.showNaOneVariable && !style.showMvOneVariable);
        QVERIFY(!style.showNaSeveralVariables && !style.showMvSeveralVariables);
        QCOMPARE(style.rowsOrder, 1);
        // The figures that it lacks are as preferred.
        QCOMPARE(style.decimals, 4);
        QCOMPARE(style.thousandSep, "'");
        style = config(R"({"frequency1Var": {"showNa": false, "rowsOrder": "ASCENDING"},
                           "frequencyMultiVar": {}})");
        QVERIFY(!style.showNaOneVariable && style.showNaSeveralVariables);
        QCOMPARE(style.rowsOrder, 0);
    }

    void flatKeysAreReadAsWell() {
        TableViewConfig style = config(R"({"hideNa": true, "hideMv": true, "hideTotal": true,
            "showTotalsRow": true, "showPercent": false, "decimals": 1, "thousandSep": "",
            "rowsOrder": "ascending"})");
        QVERIFY(style.hideNa && style.hideMv && style.hideTotal && style.showTotalsRow);
        QVERIFY(!style.showNaOneVariable && !style.showNaSeveralVariables);
        QVERIFY(!style.showMvOneVariable && !style.showMvSeveralVariables);
        QVERIFY(!style.showPercent && style.showCumulPercent);
        QCOMPARE(style.decimals, 1);
        QCOMPARE(style.thousandSep, "");
        QCOMPARE(style.rowsOrder, 1);
        style = config("\xEF\xBB\xBF{\"hideMv\": true, \"rowsOrder\": 2}");
        QVERIFY(style.hideMv && !style.showMvOneVariable && style.showNaOneVariable);
        QCOMPARE(style.rowsOrder, 2);
        // With a section, keys at the top do not count.
        style = config(R"({"general": {}, "hideNa": true, "decimals": 9})");
        QVERIFY(!style.hideNa);
        QCOMPARE(style.decimals, 4);
    }

    void valuesStayInBounds_data() {
        QTest::addColumn<QByteArray>("general");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("separator");
        const auto row = [](const char* name, const QByteArray& general, int decimals,
                            const QString& separator) {
            QTest::newRow(name) << general << decimals << separator;
        };
        row("told", R"({"decimals": 15, "thousandSep": " "})", 15, " ");
        row("a hard blank", R"({"thousandSep": "\u00a0"})", 4, QString(QChar::Nbsp));
        row("below", R"({"decimals": -3})", 0, "'");
        row("above", R"({"decimals": 1000000})", 15, "'");
        row("a fraction", R"({"decimals": 2.5})", 4, "'");
        row("beyond an integer", R"({"decimals": 1e300})", 4, "'");
        row("texts and lists", R"({"decimals": "3", "thousandSep": [","]})", 4, "'");
        row("a digit", R"({"thousandSep": "0"})", 4, "'");
        row("a sign", R"({"thousandSep": "-"})", 4, "'");
        row("a line feed", R"({"thousandSep": "\n"})", 4, "'");
        row("several", R"({"thousandSep": ",,"})", 4, "'");
        row("half a character", R"({"thousandSep": "\ud83d"})", 4, "'");
        row("very many", "{\"thousandSep\": \"" + QByteArray(500000, ',') + "\"}", 4, "'");
        row("no object", R"("decimals")", 4, "'");
    }
    void valuesStayInBounds() {
        QFETCH(QByteArray, general);
        const TableViewConfig style = config("{\"general\": " + general + "}");
        QTEST(style.decimals, "decimals");
        QTEST(style.thousandSep, "separator");
    }

    void wrongTypesLeaveWhatIsUsual() {
        const TableViewConfig style = config(R"({"general": null, "frequency1Var": {"showNa": 0,
            "showTotal": "no", "rowsOrder": {}}, "frequencyMultiVar": {"threeVarLayout": 3}})");
        QVERIFY(style.showNaOneVariable && !style.hideTotal);
        QCOMPARE(style.rowsOrder, 0);
        QCOMPARE(style.threeVarLayout, "default");
    }

    void damagedFilesWarnAndChangeNothing_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray(R"({"general": {"decimals": 0)");
        QTest::newRow("a list") << QByteArray(R"([{"general": {"decimals": 0}}])");
        QTest::newRow("binary") << QByteArray("\0\xff\xfe{", 4);
        QTest::newRow("deep") << "{\"general\":" + QByteArray(100000, '[');
    }
    void damagedFilesWarnAndChangeNothing() {
        QFETCH(QByteArray, text);
        expectWarning("^TableViewConfig: JSON parse error in .*style.json.* : ");
        const TableViewConfig style = config(text);
        QCOMPARE(style.decimals, 4);
        QCOMPARE(style.thousandSep, "'");
        QVERIFY(!style.hideTotal && style.showNaOneVariable);
        expectWarning("^TableStyleData: JSON parse error: ");
        TableStyleData data;
        data.decimals = 9;
        QVERIFY(!data.load(path()));
        QCOMPARE(data, TableStyleData());
    }

    void filesThatCannotBeReadWarn() {
        const QByteArray name = path("pipe").toLocal8Bit();
        QCOMPARE(mkfifo(name.constData(), 0600), 0); // would never end
        write(R"({"general": {"decimals": 0}})" + QByteArray(2 * 1024 * 1024, ' '));
        for (const QString& file : {path("none.json"), folder_.path(), path("pipe"), path()}) {
            expectWarning("^TableViewConfig: cannot open style file: ");
            QCOMPARE(TableViewConfig(file, preferences_).decimals, 4);
            expectWarning("^TableStyleData: cannot open ");
            QVERIFY(!TableStyleData().load(file));
        }
    }

    void whatTheEditorWritesTablesRead() {
        TableStyleData data;
        data.name = "Année \"2024\"\\";
        data.thousandSep.clear();
        data.decimals = 0;
        data.showTotal = false;
        data.showMvMulti = false;
        data.rowsOrder = "descending";
        data.threeVarLayout = "matrixByFirstVar";
        QVERIFY(data.save(path()));
        const QJsonObject file = QJsonDocument::fromJson(read()).object();
        QCOMPARE(file.keys(),
                 QStringList({"frequency1Var", "frequencyMultiVar", "general", "version"}));
        QCOMPARE(file["version"].toString(), "1.0");
        QVERIFY(read().startsWith("{\n    \"frequency1Var\": {\n")); // indented
        TableStyleData again;
        QVERIFY(again.load(path()));
        again.file = {};
        QCOMPARE(again, data);
        const TableViewConfig style(path(), preferences_);
        QCOMPARE(style.decimals, 0);
        QCOMPARE(style.thousandSep, "");
        QVERIFY(style.hideTotal && !style.showMvSeveralVariables && style.showMvOneVariable);
        QCOMPARE(style.rowsOrder, 2);
        QCOMPARE(style.threeVarLayout, "matrixByFirstVar");
    }

    void whatIsNotKnownIsSavedAgain() {
        write(R"({"colors": {"head": [1, 2]}, "general": {"decimals": 1, "font": "Tahoma"},
                  "frequencyMultiVar": {"wide": true}})");
        TableStyleData data;
        QVERIFY(data.load(path()));
        QVERIFY(!data.isOlderForm());
        QCOMPARE(data.decimals, 1);
        QCOMPARE(data.name, "Default");
        data.decimals = 3;
        QVERIFY(data.save(path()));
        const QJsonObject file = QJsonDocument::fromJson(read()).object();
        QCOMPARE(file["colors"].toObject()["head"].toArray().size(), 2);
        QCOMPARE(file["general"].toObject()["font"].toString(), "Tahoma");
        QCOMPARE(file["general"].toObject()["decimals"].toInt(), 3);
        QVERIFY(file["frequencyMultiVar"].toObject()["wide"].toBool());
        write(R"({"hideNa": true})");
        QVERIFY(data.load(path()));
        QVERIFY(data.isOlderForm());
    }

    void failedWritesWarnAndKeepTheFile() {
        for (const QString& file : {folder_.filePath("none/style.json"), folder_.path()}) {
            expectWarning("^TableStyleData: cannot write to ");
            QVERIFY(!TableStyleData().save(file));
        }
        QVERIFY(QFileInfo(folder_.path()).isDir());
        QVERIFY(TableStyleData().save(path()));
        const QByteArray before = read();
        TableStyleData longer;
        longer.label = QString(5000, 'x');
        {
            const FileSizeLimit full(1000);
            expectWarning("^TableStyleData: cannot write to ");
            QVERIFY(!longer.save(path()));
        }
        QCOMPARE(read(), before);
    }
};

QTEST_MAIN(TestStyleFiles)
#include "tst_stylefiles.moc"
