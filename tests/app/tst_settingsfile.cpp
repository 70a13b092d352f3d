// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that outlive a start: recent files, languages, and files that someone damaged.
#include "SettingsFolder.h"
#include "app/settings/JsonFile.h"
#include "app/settings/KelSystem.h"
#include "app/settings/XmlSettings.h"

#include <QLocale>
#include <QTest>

class TestSettingsFile : public QObject {
    Q_OBJECT

    static QString makeFile(const SettingsFolder& folder, const QString& name) {
        QFile file(folder.base() + '/' + name);
        return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
    }

    static QString languageWord() {
        return QCoreApplication::translate("SelectorLanguageDlg", "Language");
    }

private slots:
    void damagedFilesAreToldOnceAndKept_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("kept");
        const QString noDocument = "Failed to create JSON doc.";
        QTest::newRow("no byte") << QByteArray("") << "" << false;
        QTest::newRow("cut off") << QByteArray("{\"kelSystem\": {\"ftu\": fal") << noDocument
                                 << true;
        QTest::newRow("binary") << QByteArray("\0\xff\xfe{}", 5) << noDocument << true;
        QTest::newRow("a bare word") << QByteArray("null") << noDocument << true;
        QTest::newRow("a list") << QByteArray("[{\"kelSystem\": 1}]") << "JSON is not an object."
                                << true;
        QTest::newRow("no key") << QByteArray("{}") << "JSON object is empty." << false;
        QTest::newRow("far too deep")
            << QByteArray(R"({"a":)").repeated(100000) << noDocument << true;
    }

    void damagedFilesAreToldOnceAndKept() {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        QFETCH(bool, kept);
        const SettingsFolder folder;
        folder.write(text);
        KelSystem system(folder.base());
        QVariant value;
        system.readValue(value, "language", "kelSystem", "Process_fr");
        QCOMPARE(value.toString(), "Process_fr");
        QCOMPARE(folder.messages, message.isEmpty() ? QStringList() : QStringList(message));
        QVERIFY(system.firstUse());
        system.setFirstUse(false);
        QCOMPARE(folder.valueAt("kelSystem/ftu"), false);
        QCOMPARE(QFile::exists(folder.path("KelProcess.json.broken")), kept);
        QCOMPARE(folder.read("KelProcess.json.broken"), kept ? text : QByteArray());
    }

    void anOlderCopyOfADamagedFileStays() {
        const SettingsFolder folder;
        for (const QByteArray text : {"first", "second", "third"}) {
            folder.write(text);
            KelSystem(folder.base()).save();
        }
        QCOMPARE(folder.read("KelProcess.json.broken"), "first");
        QCOMPARE(folder.read("KelProcess.json.broken2"), "second");
        QCOMPARE(folder.read("KelProcess.json.broken3"), "third");
    }

    void aHugeFileIsNotRead() {
        const SettingsFolder folder;
        folder.write("{");
        QVERIFY(QFile::resize(folder.path(), largestJsonFile + 1));
        const KelSystem system(folder.base());
        QCOMPARE(folder.messages,
                 QStringList("The file " + folder.path() + " is too large to be read."));
        QVERIFY(system.save());
        QCOMPARE(folder.valueAt("kelSystem/ftu"), true);
    }

    void wrongTypesAndFiguresGiveTheDefaultOfThatKeyOnly_data() {
        QTest::addColumn<QByteArray>("member");
        QTest::newRow("text for a number") << QByteArray(R"("decimals": "three")");
        QTest::newRow("a broken number") << QByteArray(R"("decimals": 2.5)");
        QTest::newRow("negative") << QByteArray(R"("decimals": -1)");
        QTest::newRow("beyond any integer") << QByteArray(R"("decimals": 1e300)");
        QTest::newRow("null") << QByteArray(R"("decimals": null)");
        QTest::newRow("no room for files") << QByteArray(R"("maxLastFiles": 0)");
        QTest::newRow("a number for a flag") << QByteArray(R"("loadLast": 0)");
        QTest::newRow("an object for a text") << QByteArray(R"("csvDelimiter": {"a": ";"})");
        QTest::newRow("a text for a list") << QByteArray(R"("lastFiles": "/a.prj.json")");
        QTest::newRow("a text for a font") << QByteArray(R"("kelFixed": "Arial")");
        QTest::newRow("a font of no size") << QByteArray(R"("kelFixed": {"name": "", "size": -3})");
    }

    void wrongTypesAndFiguresGiveTheDefaultOfThatKeyOnly() {
        QFETCH(QByteArray, member);
        const SettingsFolder folder;
        folder.write(R"({"kelSystem": {"ftu": false, "menuColor": 2, )" + member + "}}");
        const KelSystem system(folder.base());
        QCOMPARE(folder.messages, QStringList());
        QCOMPARE(system.menuColor(), 2);
        QCOMPARE(system.decimals(), 2);
        QCOMPARE(system.maxLastFiles(), 10);
        QCOMPARE(system.csvDelimiter(), ",");
        QVERIFY(system.loadLast());
        QCOMPARE(system.recentProjects(), QStringList());
        QCOMPARE(system.fixedFont(), QFont("Courier New", 8));
    }

    void windowsOfNoUseAreNotTaken() {
        const SettingsFolder folder;
        folder.write(R"({"kelSystem": {"ftu": false},
            "dictionary": {"position": {"width": -5, "height": 700}},
            "varProperties": {"position": [1, 2]},
            "cmdEditor": {"position": {"left": 1e9, "top": -20, "width": 0, "height": 99999}}})");
        const KelSystem system(folder.base());
        QCOMPARE(system.dictionarySize(), QSize(250, 700));
        QCOMPARE(system.varPropertiesSize(), QSize(640, 480));
        QCOMPARE(system.cmdEditorGeometry(), QRect(0, -20, 1460, 795));
    }

    void recentFilesStandOnceAndNewestFirst() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.setFirstUse(false);
        const QString census = makeFile(folder, "census.kxdb");
        const QString trial = makeFile(folder, "trial.kxdb");
        system.addRecentDictionary(census.toUpper());
        system.addRecentDictionary(trial);
        system.addRecentDictionary(census);
        QCOMPARE(system.recentDictionaries(), QStringList({census, trial}));
        QCOMPARE(system.directoryFor("DICTIONARY"), folder.base());
        QCOMPARE(KelSystem(folder.base()).recentDictionaries(), QStringList({census, trial}));
        system.removeRecentDictionary(census);
        QCOMPARE(KelSystem(folder.base()).recentDictionaries(), QStringList(trial));
        QCOMPARE(KelSystem(folder.base()).directoryFor("DICTIONARY"), folder.base());
    }

    void recentListsNeverGrowPastTheirLimit() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.setFirstUse(false);
        system.setMaxLastFiles(3);
        for (const char* name : {"a", "b", "c", "d"})
            system.addRecentProject(QString("/p/%1.prj.json").arg(name));
        const QStringList newest{"/p/d.prj.json", "/p/c.prj.json", "/p/b.prj.json"};
        QCOMPARE(system.recentProjects(), newest);
        QCOMPARE(KelSystem(folder.base()).recentProjects(), newest);
        system.setMaxLastFiles(1);
        QCOMPARE(system.recentProjects(), QStringList("/p/d.prj.json"));
        system.setMaxLastFiles(3); // lowered by mistake: nothing is gone yet
        QCOMPARE(system.recentProjects(), newest);
    }

    void goneDictionariesAreDroppedAtTheStartAndProjectsAreNot() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.setFirstUse(false);
        const QString kept = makeFile(folder, "kept.kxdb");
        const QString gone = makeFile(folder, "gone.kxdb");
        system.addRecentDictionary(kept);
        system.addRecentDictionary(gone);
        system.addRecentProject(gone);
        QVERIFY(QFile::remove(gone));
        QCOMPARE(system.recentDictionaries(), QStringList({gone, kept}));
        const KelSystem again(folder.base());
        QCOMPARE(again.recentDictionaries(), QStringList(kept));
        QCOMPARE(again.recentProjects(), QStringList(gone));
    }

    void eitherSlashRemovesAProject() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.setFirstUse(false);
        system.addRecentProject("C:/work/a.prj.json");
        system.addRecentProject("C:\\work\\b.prj.json");
        system.removeRecentProject("C:\\work\\a.prj.json");
        system.removeRecentProject("C:/work/b.prj.json");
        QCOMPARE(KelSystem(folder.base()).recentProjects(), QStringList());
    }

    void languagesReachTextsToolkitAndNumbers() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        system.selectLanguage([] { return QString("Process_es"); });
        QCOMPARE(folder.valueAt("kelSystem/language"), "Process_es");
        QCOMPARE(system.shortLanguage(), "es");
        QCOMPARE(languageWord(), "Idioma");
        QCOMPARE(QLocale().toString(12345.5, 'f', 1), "12.345,5");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
        QVERIFY(system.installTranslator("Process_en"));
        QCOMPARE(languageWord(), "Language");
        QCOMPARE(QLocale().toString(12345.5, 'f', 1), "12,345.5");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
    }

    void anUnknownLanguageLeavesTheSourceTexts() {
        const SettingsFolder folder;
        KelSystem system(folder.base());
        QVERIFY(system.installTranslator("Process_fr"));
        QCOMPARE(languageWord(), "Langue");
        QVERIFY(!system.installTranslator("Process_xx"));
        QCOMPARE(languageWord(), "Language");
        QCOMPARE(QLocale().toString(12345.5, 'f', 1), "12,345.5");
        for (const char* key : {"Process_xx", "es", "", "Other_es"}) {
            system.setLanguage(key);
            QCOMPARE(system.shortLanguage(), "en");
        }
    }

    void jsonFilesGoBothWays() {
        const SettingsFolder folder;
        const QString path = folder.base() + "/a.json";
        const QJsonObject object{{"name", QString::fromUtf8("Ñandú \"x\"")}, {"count", 3}};
        QVERIFY(writeJsonFile(path, object));
        QCOMPARE(readJsonFile(path), object);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("\n    \"count\": 3")); // indented
        folder.write("\xEF\xBB\xBF" + text);
        QCOMPARE(readJsonFile(folder.path()), object);
        QCOMPARE(folder.messages, QStringList());
    }

    void jsonFilesThatFailSayWhy() {
        SettingsFolder folder;
        QVERIFY(readJsonFile(folder.base() + "/absent").isEmpty());
        QVERIFY(readJsonFile(folder.base()).isEmpty());
        QVERIFY(readJsonFile("/dev/null").isEmpty());
        QCOMPARE(folder.messages, QStringList(3, "Failed to create JSON doc."));
        folder.messages.clear();
        QVERIFY(!writeJsonFile(folder.base() + "/absent/a.json", {{"a", 1}}));
        QCOMPARE(folder.messages.size(), 1);
        QVERIFY(folder.messages.first().startsWith("Error "));
        QVERIFY(folder.messages.first().endsWith(" sending event"));
        QVERIFY(!folder.messages.first().contains("%s"));
    }

    void aFullDiskLeavesTheOldFile() {
        const SettingsFolder folder;
        const QString path = folder.base() + "/a.json";
        const QJsonObject old{{"a", 1}};
        QVERIFY(writeJsonFile(path, old));
        for (const int length : {6000, 60000}) { // less and more than one buffer
            const FileSizeLimit limit(2000);
            QVERIFY(!writeJsonFile(path, {{"a", QString(length, 'x')}}));
        }
        QCOMPARE(folder.messages.size(), 2);
        QCOMPARE(readJsonFile(path), old);
        QCOMPARE(QDir(folder.base()).entryList(QDir::Files), QStringList("a.json"));
    }

    void theXmlFormGoesBothWays() {
        const SettingsFolder folder;
        const QString path = folder.base() + "/old.xml";
        const QMap<QString, QString> values{{"editor/font/name", "Arial <&>"},
                                            {"editor/font/size", "8"},
                                            {"editor", "on"},
                                            {"editor-2/x", "y"},
                                            {"last", "a b"}};
        {
            QSettings settings(path, xmlSettingsFormat());
            for (auto value = values.begin(); value != values.end(); ++value)
                settings.setValue(value.key(), value.value());
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<kelxAllModules_RCF>"));
        QVERIFY(file.copy(folder.base() + "/copy.xml")); // another name, nothing is cached
        const QSettings settings(folder.base() + "/copy.xml", xmlSettingsFormat());
        QCOMPARE(settings.status(), QSettings::NoError);
        QCOMPARE(settings.allKeys().size(), values.size());
        for (auto value = values.begin(); value != values.end(); ++value)
            QCOMPARE(settings.value(value.key()).toString().trimmed(), value.value());
    }

    void brokenXmlIsNoSettings_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("cut off") << QByteArray("<kelxAllModules_RCF><a>1</a>");
        QTest::newRow("another root") << QByteArray("<other><a>1</a></other>");
        QTest::newRow("far too deep")
            << "<kelxAllModules_RCF>" + QByteArray("<a>").repeated(50000) + "1" +
                   QByteArray("</a>").repeated(50000) + "</kelxAllModules_RCF>";
    }

    void brokenXmlIsNoSettings() {
        QFETCH(QByteArray, text);
        const SettingsFolder folder;
        folder.write(text);
        const QSettings settings(folder.path(), xmlSettingsFormat());
        QCOMPARE(settings.status(), QSettings::FormatError);
        QCOMPARE(settings.allKeys(), QStringList());
    }
};

QTEST_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
