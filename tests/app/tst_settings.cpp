// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/KelSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

class TestSettings : public QObject {
    Q_OBJECT

    static void write(const QByteArray& text) {
        const QString path = KelSystem::instance().filePath();
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

private slots:
    void initTestCase() {
        QFile::remove(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      "/Ovantis/KelvoraX/KelProcess.json");
    }

    void firstUseIsSetWithoutAFile() {
        QVERIFY(KelSystem::instance().firstUse());
        QCOMPARE(KelSystem::instance().language(), "Process_en");
        QVERIFY(!QFile::exists(KelSystem::instance().filePath()));
    }

    void savedValuesComeBack() {
        KelSystem& system = KelSystem::instance();
        system.setFirstUse(false);
        system.setLastOpened("/data/small.kxdb");
        QCOMPARE(system.readValue("ftu", "kelSystem", true).toBool(), false);
        QCOMPARE(system.readValue("lastOpened", "kelSystem", "").toString(), "/data/small.kxdb");
        QCOMPARE(system.readValue("language", "kelSystem", "").toString(), "Process_en");
    }

    void foldersAreRememberedByKind() {
        KelSystem& system = KelSystem::instance();
        const QString byDefault = system.directoryFor("NOTHING");
        QVERIFY(byDefault.endsWith("/kelx"));
        QCOMPARE(system.directoryFor("DICTIONARY"), byDefault);
        system.setDirectoryFor("DICTIONARY", "/data/census");
        system.setDirectoryFor("NOTHING", "/lost");
        QCOMPARE(system.directoryFor("DICTIONARY"), "/data/census");
        QCOMPARE(system.directoryFor("MAP"), byDefault);
        QCOMPARE(system.directoryFor("NOTHING"), byDefault);
        QVERIFY(system.save());
        QCOMPARE(system.readValue("lastDirectories", "kelSystem", {})
                     .toMap()
                     .value("dictionary")
                     .toString(),
                 "/data/census");
    }

    void unreadableFilesGiveTheDefault() {
        const KelSystem& system = KelSystem::instance();
        write("{ not json");
        QCOMPARE(system.readValue("language", "kelSystem", "Process_fr").toString(), "Process_fr");
        write("{\"kelSystem\": {}}");
        QCOMPARE(system.readValue("language", "kelSystem", "Process_fr").toString(), "Process_fr");
        write("{\"kelSystem\": {\"ftu\": false}}");
        QCOMPARE(system.readValue("language", "kelSystem", "Process_fr").toString(), "Process_fr");
        QCOMPARE(system.readValue("ftu", "kelSystem", true).toBool(), false);
    }

    void unknownLanguageChangesNothing() {
        QVERIFY(!KelSystem::instance().installTranslator("Process_xx"));
        QCOMPARE(KelSystem::instance().language(), "Process_en");
    }

    void languageReachesTheToolkitAndNumbers() {
        KelSystem& system = KelSystem::instance();
        system.selectLanguage([] { return QString("Process_es"); });
        QCOMPARE(system.readValue("language", "kelSystem", "").toString(), "Process_es");
        QCOMPARE(QLocale().toString(12345.5, 'f', 1), "12.345,5");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
        QVERIFY(system.installTranslator("Process_en"));
        QCOMPARE(QLocale().toString(12345.5, 'f', 1), "12,345.5");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
    }
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
