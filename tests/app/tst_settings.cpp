// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFolder.h"
#include "app/settings/KelSystem.h"

#include <QJsonArray>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

namespace {

/// A setting as a user of the store sees it, and where a hand would look for it in the file.
struct Setting {
    const char* path;
    QJsonValue inFile;
    std::function<void(KelSystem&)> set;
    std::function<bool(const KelSystem&)> isSet;
};

template <class Value, class Parameter>
Setting setting(const char* path, Value (KelSystem::*get)() const,
                void (KelSystem::*set)(Parameter), Value value, const QJsonValue& inFile) {
    return {path, inFile, [set, value](KelSystem& system) { (system.*set)(value); },
            [get, value](const KelSystem& system) { return (system.*get)() == value; }};
}

Setting text(const char* path, QString (KelSystem::*get)() const,
             void (KelSystem::*set)(const QString&), const QString& value) {
    return setting(path, get, set, value, value);
}

Setting flag(const char* path, bool (KelSystem::*get)() const, void (KelSystem::*set)(bool)) {
    return setting(path, get, set, false, false);
}

Setting number(const char* path, int (KelSystem::*get)() const, void (KelSystem::*set)(int),
               int value) {
    return setting(path, get, set, value, value);
}

Setting font(const char* path, QFont (KelSystem::*get)() const,
             void (KelSystem::*set)(const QFont&)) {
    QFont value("Georgia", 17);
    value.setBold(true);
    value.setUnderline(true);
    return setting(path, get, set, value,
                   QJsonObject{{"name", "Georgia"},
                               {"size", 17},
                               {"attrib", QJsonObject{{"fsBold", true},
                                                      {"fsItalic", false},
                                                      {"fsUnderline", true},
                                                      {"fsStrikeOut", false},
                                                      {"color", ""},
                                                      {"background", ""}}}});
}

QJsonObject position(int left, int top, int width, int height) {
    return {{"docked", false}, {"left", left},     {"top", top},
            {"width", width},  {"height", height}, {"state", "state"}};
}

Setting size(const char* path, QSize (KelSystem::*get)() const,
             void (KelSystem::*set)(const QSize&)) {
    return setting(path, get, set, QSize(321, 654), position(0, 0, 321, 654));
}

Setting folder(const char* path, const QString& kind) {
    return {
        path, "/data/census",
        [kind](KelSystem& system) { system.setDirectoryFor(kind, "/data/census"); },
        [kind](const KelSystem& system) { return system.directoryFor(kind) == "/data/census"; }};
}

const std::vector<Setting>& settings() {
    using K = KelSystem;
    static const std::vector<Setting> all{
        font("kelSystem/kelScreen/font", &K::screenFont, &K::setScreenFont),
        text("kelSystem/kelScreen/background", &K::screenBackground, &K::setScreenBackground, "b"),
        text("kelSystem/kelScreen/color", &K::screenColor, &K::setScreenColor, "c"),
        font("kelSystem/kelPrint", &K::printFont, &K::setPrintFont),
        font("kelSystem/kelPrintHeader", &K::printHeaderFont, &K::setPrintHeaderFont),
        font("kelSystem/kelPrintFoot", &K::printFootFont, &K::setPrintFootFont),
        font("kelSystem/kelFixed", &K::fixedFont, &K::setFixedFont),
        font("kelSystem/kelEdit", &K::editFont, &K::setEditFont),
        flag("kelSystem/autoWeight", &K::autoWeight, &K::setAutoWeight),
        number("kelSystem/menuColor", &K::menuColor, &K::setMenuColor, 3),
        flag("kelSystem/showSplash", &K::showSplash, &K::setShowSplash),
        flag("kelSystem/tipOfTheDay", &K::tipOfTheDay, &K::setTipOfTheDay),
        text("kelSystem/lastOpened", &K::lastOpened, &K::setLastOpened, "/data/a.kxdb"),
        flag("kelSystem/loadLast", &K::loadLast, &K::setLoadLast),
        text("kelSystem/language", &K::language, &K::setLanguage, "Process_pt"),
        number("kelSystem/decimals", &K::decimals, &K::setDecimals, 5),
        number("kelSystem/maxLastFiles", &K::maxLastFiles, &K::setMaxLastFiles, 7),
        number("kelSystem/tableSeparator", &K::tableSeparator, &K::setTableSeparator, 2),
        text("kelSystem/csvDelimiter", &K::csvDelimiter, &K::setCsvDelimiter, "\t"),
        text("kelSystem/csvEncoding", &K::csvEncoding, &K::setCsvEncoding, "UTF-16"),
        flag("kelSystem/csvShowHeader", &K::csvShowHeader, &K::setCsvShowHeader),
        text("kelSystem/csvArealistHeaderVariable", &K::csvArealistHeaderVariable,
             &K::setCsvArealistHeaderVariable, "Alias"),
        text("kelSystem/csvTablistHeaderVariable", &K::csvTablistHeaderVariable,
             &K::setCsvTablistHeaderVariable, "Label"),
        text("kelSystem/tablistHeaderVariable", &K::tablistHeaderVariable,
             &K::setTablistHeaderVariable, "NameAndLabel"),
        text("kelSystem/freqTitle", &K::freqTitle, &K::setFreqTitle, "Caption"),
        folder("kelSystem/lastDirectories/dictionary", "DICTIONARY"),
        folder("kelSystem/lastDirectories/datadictionary", "DATADICTIONARY"),
        folder("kelSystem/lastDirectories/map", "MAP"),
        folder("kelSystem/lastDirectories/outputGraph", "GRAPH"),
        folder("kelSystem/lastDirectories/outputTable", "TABLE"),
        folder("kelSystem/lastDirectories/selection", "SELECTION"),
        folder("kelSystem/lastDirectories/program", "PROGRAM"),
        folder("kelSystem/lastDirectories/project", "PROJECT"),
        size("dictionary/position", &K::dictionarySize, &K::setDictionarySize),
        size("datasetProperties/position", &K::datasetPropertiesSize, &K::setDatasetPropertiesSize),
        size("entProperties/position", &K::entPropertiesSize, &K::setEntPropertiesSize),
        size("varProperties/position", &K::varPropertiesSize, &K::setVarPropertiesSize),
        setting("cmdEditor/position", &K::cmdEditorGeometry, &K::setCmdEditorGeometry,
                QRect(-40, 30, 900, 500), position(-40, 30, 900, 500)),
        flag("cmdEditor/toolbar", &K::cmdEditorToolbar, &K::setCmdEditorToolbar),
        number("cmdEditor/editorColorScheme", &K::editorColorScheme, &K::setEditorColorScheme, 4),
        flag("cmdEditor/gutterVisible", &K::gutterVisible, &K::setGutterVisible),
        flag("cmdEditor/showGutterLineNumbers", &K::showGutterLineNumbers,
             &K::setShowGutterLineNumbers),
        number("cmdEditor/tabIndentSpaces", &K::tabIndentSpaces, &K::setTabIndentSpaces, 8)};
    return all;
}

/// Later starts read the file; a first one does not.
const QByteArray laterStart = R"({"kelSystem": {"ftu": false}})";

} // namespace

class TestSettings : public QObject {
    Q_OBJECT

private slots:
    void theProgramsStoreLiesInTheUsersDataFolder() {
        const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                             "/Ovantis/KelvoraX/KelProcess.json";
        QFile::remove(path);
        KelSystem& system = KelSystem::instance();
        QVERIFY(system.firstUse());
        QVERIFY(!QFile::exists(path));
        system.setFirstUse(false);
        QVERIFY(QFile::exists(path));
        QVERIFY(!QFile::exists(
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Ovantis"));
        QVERIFY(!KelSystem(QFileInfo(path).absolutePath() + "/../..").firstUse());
    }

    void eachSettingComesBack_data() {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < settings().size(); ++i)
            QTest::newRow(settings().at(i).path) << static_cast<int>(i);
    }

    void eachSettingComesBack() {
        QFETCH(int, index);
        const Setting& changed = settings().at(static_cast<std::size_t>(index));
        const SettingsFolder folder;
        folder.write(laterStart);
        KelSystem system(folder.base());
        QVERIFY(!changed.isSet(system));
        changed.set(system);
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt(changed.path), changed.inFile);
        const KelSystem again(folder.base());
        QVERIFY(!again.firstUse());
        for (const Setting& other : settings())
            QVERIFY2(other.isSet(again) == (&other == &changed), other.path);
    }

    void anEmptyFileGivesTheDefaults_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("only the mark of a later start") << laterStart;
        QTest::newRow("groups without keys")
            << QByteArray(R"({"kelSystem": {"ftu": false}, "dictionary": {}, "cmdEditor": {}})");
    }

    void anEmptyFileGivesTheDefaults() {
        QFETCH(QByteArray, text);
        const SettingsFolder folder;
        if (!text.isEmpty())
            folder.write(text);
        const KelSystem system(folder.base());
        QCOMPARE(folder.messages, QStringList());
        QCOMPARE(system.firstUse(), text.isEmpty());
        QCOMPARE(system.language(), "Process_en");
        QCOMPARE(system.screenFont(), QFont("Arial", 9));
        QCOMPARE(system.fixedFont(), QFont("Courier New", 8));
        QCOMPARE(system.editFont(), QFont("Arial", 9));
        QCOMPARE(system.printFont(), QFont("Tahoma", 12));
        QCOMPARE(system.printHeaderFont(), QFont("Arial", 12));
        QCOMPARE(system.printFootFont(), QFont("Arial", 8));
        QCOMPARE(system.menuColor(), 0);
        QCOMPARE(system.decimals(), 2);
        QCOMPARE(system.maxLastFiles(), 10);
        QCOMPARE(system.csvDelimiter(), ",");
        QCOMPARE(system.freqTitle(), "NameAndLabel");
        QCOMPARE(system.tablistHeaderVariable(), "Name");
        QVERIFY(system.autoWeight() && system.showSplash() && system.tipOfTheDay());
        QVERIFY(system.loadLast() && system.csvShowHeader() && system.gutterVisible());
        QCOMPARE(system.dictionarySize(), QSize(250, 800));
        QCOMPARE(system.entitySize(), QSize(390, 385));
        QCOMPARE(system.varPropertiesSize(), QSize(640, 480));
        QCOMPARE(system.cmdEditorGeometry(), QRect(0, 0, 1460, 795));
        QCOMPARE(system.tabIndentSpaces(), 12);
        QVERIFY(system.directoryFor("MAP").endsWith("/kelx"));
        QVERIFY(QFileInfo(system.directoryFor("MAP")).isDir());
    }

    void aSaveWritesEveryObject() {
        const SettingsFolder folder;
        QVERIFY(KelSystem(folder.base()).save());
        QStringList groups = folder.document().keys();
        QStringList expected{
            "kelSystem",         "dictionary",        "mainForm",        "progressForm",
            "reportForm",        "graphForm",         "mapForm",         "projectForm",
            "cmdEditor",         "selEditor",         "outputIndex",     "exprBlder",
            "mapProperties",     "datasetProperties", "entProperties",   "varProperties",
            "lookupProperties",  "easyTab",           "browser",         "quickView",
            "cmdAssist",         "displayText",       "easyIndic",       "XF1",
            "chooseFile",        "sampleError",       "miniPreferences", "processChoice",
            "tablePresentation", "tableOmission"};
        groups.sort();
        expected.sort();
        QCOMPARE(groups, expected);
        QCOMPARE(folder.valueAt("kelSystem").toObject().size(), 55);
        QCOMPARE(folder.valueAt("kelSystem/graph").toObject().size(), 21);
        QCOMPARE(folder.valueAt("dictionary").toObject().size(), 24);
    }

    void constantsAreThoseOfTheFormat_data() {
        QTest::addColumn<QJsonValue>("value");
        const auto row = [](const char* path, const QJsonValue& value) {
            QTest::newRow(path) << value;
        };
        row("kelSystem/sensitiveCharacter", "x");
        row("kelSystem/maxLookupEntries", 15000);
        row("kelSystem/safety", true);
        row("kelSystem/maximumMessages", 30);
        row("kelSystem/ftu", true);
        row("kelSystem/menuColor", 0);
        row("kelSystem/position", position(0, 0, 0, 0));
        row("kelSystem/lastFiles", QJsonArray());
        row("kelSystem/graph/graphColorMin", "255.255.128");
        row("kelSystem/graph/graphColorOuterBground", "240.240.240");
        row("kelSystem/graph/graphBarWidthPct", 70);
        row("dictionary/presentation", "VERTICAL");
        row("dictionary/colWidth1", 291);
        row("dictionary/colWidthAlt3", 250);
        row("dictionary/dictFind/accent", false);
        row("dictionary/dictFind/origin", 0);
        row("dictionary/sortOrderAlt", true);
        row("projectForm/tableStyleColWidth", 0);
        row("cmdEditor/errorListHeight", 47);
        row("cmdEditor/tabIndentSpaces", 12);
        row("selEditor/labelsColWidth", 51);
        row("outputIndex/treeViewWidth", 211);
        row("exprBlder/lb2", 146);
        row("mapProperties/mapScaleBar/alternateColor", "200.200.200");
        row("mapProperties/mapLeyend/positionCoodinates", "");
        row("mapProperties/mapText", QJsonObject());
        row("datasetProperties/sortColumn", 0);
        row("XF1", position(0, 0, 0, 0));
        row("sampleError/showCV", true);
        row("processChoice/tipOfTheDayLast", true);
        row("tablePresentation/limitSIDRAInMemory", 100);
        row("tableOmission/omitTitle", false);
    }

    void constantsAreThoseOfTheFormat() {
        QFETCH(QJsonValue, value);
        const SettingsFolder folder;
        QVERIFY(KelSystem(folder.base()).save());
        QCOMPARE(folder.valueAt(QTest::currentDataTag()), value);
    }

    void aFirstStartReadsNothingElse() {
        const SettingsFolder folder;
        folder.write(R"({"kelSystem": {"ftu": true, "menuColor": 3, "language": "Process_fr"}})");
        const KelSystem system(folder.base());
        QVERIFY(system.firstUse());
        QCOMPARE(system.menuColor(), 0);
        QCOMPARE(system.language(), "Process_en");
    }

    void keysAddedByHandDisappearAtTheNextSave() {
        const SettingsFolder folder;
        folder.write(R"({"kelSystem": {"ftu": false, "mine": 1, "decimals": 4}, "own": {"a": 1}})");
        const KelSystem system(folder.base());
        QVERIFY(system.writeValue("other", "text", "own"));
        QVERIFY(folder.valueAt("own").isUndefined());
        QVERIFY(folder.valueAt("kelSystem/mine").isUndefined());
        QCOMPARE(folder.valueAt("kelSystem/decimals"), 4);
    }

    void theStatusBarOfTheEditorAlwaysComesBack() {
        const SettingsFolder folder;
        folder.write(laterStart);
        KelSystem system(folder.base());
        system.setCmdEditorStatusBar(false);
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt("cmdEditor/statusbar"), false);
        QVERIFY(folder.valueAt("cmdEditor/statusBar").isUndefined());
        QVERIFY(KelSystem(folder.base()).cmdEditorStatusBar());
        folder.write(R"({"kelSystem": {"ftu": false}, "cmdEditor": {"statusBar": false}})");
        QVERIFY(!KelSystem(folder.base()).cmdEditorStatusBar());
    }

    void theEditorsFontIsWrittenFromTheFixedOne() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.setFixedFont(QFont("Georgia", 21));
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt("cmdEditor/font/name"), "Georgia");
        QCOMPARE(folder.valueAt("cmdEditor/font/size"), 21);
    }

    void directReadsFollowTheFile() {
        const SettingsFolder folder;
        folder.write(R"({"a": {"key": 7, "list": [{"location": "x"}, {"other": "y"}, 3,
            {"location": "z"}], "inner": {"font": {"name": "Georgia", "size": "big",
            "attrib": {"fsItalic": true}}}}, "empty": {}})");
        const KelSystem system(folder.base());
        QVariant value;
        system.readValue(value, "key", "a", 1);
        QCOMPARE(value.toInt(), 7);
        system.readValue(value, "absent", "a", 1);
        QCOMPARE(value.toInt(), 1);
        system.readValue(value, "key", "empty", 2);
        QCOMPARE(value.toInt(), 2);
        QStringList list{"old"};
        system.readList(list, "location", "list", "a");
        QCOMPARE(list, QStringList({"x", "z"}));
        QFont font;
        QFont expected("Georgia", 11);
        expected.setItalic(true);
        system.readFont(font, "font", "a/inner", QFont("Arial", 11));
        QCOMPARE(font, expected);
        folder.write(R"({"a": {"key": 8}})");
        system.readValue(value, "key", "a", 1);
        QCOMPARE(value.toInt(), 8);
    }

    void recentProgramsAreRememberedWhileTheyExist() {
        const SettingsFolder folder;
        folder.write(laterStart);
        KelSystem system(folder.base());
        const QTemporaryDir programs;
        for (const char* name : {"a.spc", "b.spc", "c.spc"}) {
            QFile file(programs.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            system.addRecentProgram(file.fileName(), false);
        }
        system.addRecentProgram(programs.filePath("a.spc"), true);
        system.addRecentProgram(programs.filePath("b.spc"), false); // again
        QVERIFY(QFile::remove(programs.filePath("c.spc")));
        const KelSystem next(folder.base());
        QCOMPARE(next.recentPrograms(false),
                 QStringList({programs.filePath("b.spc"), programs.filePath("a.spc")}));
        QCOMPARE(next.recentPrograms(true), QStringList(programs.filePath("a.spc")));
    }

    void resettingGivesTheInstalledDefaults() {
        const SettingsFolder folder;
        folder.write(laterStart);
        KelSystem system(folder.base());
        for (const Setting& each : settings())
            each.set(system);
        system.addRecentDictionary("/data/a.kxdb");
        system.addRecentProject("/data/a.prj.json");
        system.addRecentProgram(folder.base(), false);
        system.resetToDefaults();
        QVERIFY(!system.firstUse());
        for (const Setting& each : settings())
            QVERIFY2(!each.isSet(system), each.path);
        QCOMPARE(system.recentDictionaries(), QStringList());
        QCOMPARE(system.recentProjects(), QStringList());
        QCOMPARE(system.recentPrograms(false), QStringList());
        QCOMPARE(system.lastOpened(), "");
        QCOMPARE(system.screenFont(), QFont("Arial", 9));
        QCOMPARE(system.fixedFont(), QFont("Courier New", 10));
        QCOMPARE(system.printFont(), QFont("Arial", 12));
        QCOMPARE(system.tableFont(), QFont("Tahoma", 9));
        QCOMPARE(system.smallFont(), QFont("Courier New", 8));
    }

    void savesReplaceTheFileWhole() {
        const SettingsFolder folder;
        folder.write(laterStart);
        KelSystem system(folder.base());
        QVERIFY(system.save());
        const QByteArray before = folder.read();
        const std::filesystem::path other = folder.path("other").toStdString();
        std::filesystem::create_hard_link(folder.path().toStdString(), other);
        system.setDecimals(9);
        {
            const FileSizeLimit limit(static_cast<rlim_t>(before.size() / 2));
            QVERIFY(!system.save());
        }
        QCOMPARE(folder.read(), before);
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt("kelSystem/decimals"), 9);
        QCOMPARE(folder.read("other"), before); // not written over in place
        std::filesystem::remove(other);
        QCOMPARE(QDir(QFileInfo(folder.path()).absolutePath()).entryList(QDir::Files),
                 QStringList("KelProcess.json"));
    }

    void aPlaceThatCannotBeWrittenFailsTheSave() {
        const SettingsFolder folder;
        QVERIFY(QDir().mkpath(folder.path() + "/full"));
        KelSystem system(folder.base());
        QCOMPARE(folder.messages, QStringList("Failed to create JSON doc."));
        QVERIFY(system.firstUse());
        QVERIFY(!system.save());
        QVERIFY(QFileInfo(folder.path() + "/full").isDir());
        QVERIFY(QDir(folder.path()).removeRecursively());
        QVERIFY(system.save());
    }

    void unknownFoldersAreTheDefaultOne() {
        const SettingsFolder folder;
        folder.write(R"({"kelSystem": {"ftu": false, "lastDirectories": {"map": ""}}})");
        KelSystem system(folder.base());
        const QString byDefault = system.directoryFor("NOTHING");
        QVERIFY(byDefault.endsWith("/kelx"));
        QCOMPARE(system.directoryFor("MAP"), byDefault);
        system.setDirectoryFor("NOTHING", "/lost");
        QCOMPARE(system.directoryFor("NOTHING"), byDefault);
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt("kelSystem/lastDirectories/default"), byDefault);
        QCOMPARE(folder.valueAt("kelSystem/lastDirectories").toObject().size(), 9);
    }
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
