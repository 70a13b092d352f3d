// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the program itself, in a home of its own, and reads what it logs.
#include "support/SmallDatabase.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TestStartup : public QObject {
    Q_OBJECT

    QTemporaryDir home_;

    QString settingsPath() const { return home_.filePath("data/Ovantis/KelvoraX/KelProcess.json"); }

    QJsonObject settings() const {
        QFile file(settingsPath());
        return file.open(QIODevice::ReadOnly)
                   ? QJsonDocument::fromJson(file.readAll())["kelSystem"].toObject()
                   : QJsonObject();
    }

    void writeSettings(const QJsonObject& values) const {
        QDir().mkpath(home_.filePath("data/Ovantis/KelvoraX"));
        QFile file(settingsPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QJsonDocument(QJsonObject{{"kelSystem", values}}).toJson());
    }

    /// The log lines up to the one that holds last, as "category: message".
    QStringList start(const QStringList& arguments, const QString& last) const {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home_.path());
        environment.insert("XDG_DATA_HOME", home_.filePath("data"));
        environment.insert("QT_MESSAGE_PATTERN", "%{category}: %{message}");
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(KELVORAX_PROGRAM, arguments);
        QByteArray log;
        while (!log.contains(last.toUtf8()) && program.waitForReadyRead(30000))
            log += program.readAll();
        program.kill();
        program.waitForFinished();
        return QString::fromUtf8(log).split('\n', Qt::SkipEmptyParts);
    }

    static QStringList toldLines() {
        return {"default: Starting...",
                "default: Engine Starting",
                "default: Loading the initial setup",
                "default: Preparing the main screen",
                "KelvoraX: Defining the work Area",
                "KelvoraX: Getting the current Languague",
                "KelvoraX: Initializing the MainController",
                "KelvoraX: Setup the toolbar",
                "KelvoraX: Setup InfoProperties",
                "KelvoraX: Setup the StatusBar",
                "KelvoraX: MainWindow processed successfully",
                "default: Loading the main screen settings",
                "default: Checking for new updates",
                "default: Kelvora X is now running"};
    }

    static QStringList onlyTold(const QStringList& lines) {
        QStringList result;
        for (const QString& line : lines)
            if (toldLines().contains(line))
                result += line;
        return result;
    }

private slots:
    void cleanup() { QDir(home_.filePath("data")).removeRecursively(); }

    void argumentsAreIgnored() {
        writeSettings({{"ftu", false}});
        QCOMPARE(onlyTold(start({"--no-such-option", "nothing.kxdb", "-x"}, "is now running")),
                 toldLines());
    }

    void unknownLanguageStillStarts() {
        writeSettings({{"ftu", false}, {"language", "Process_xx"}});
        QCOMPARE(onlyTold(start({}, "is now running")), toldLines());
        QCOMPARE(settings()["language"].toString(), "Process_xx");
    }

    void lastDictionaryIsReopened() {
        writeSmallDatabase(home_.path());
        const QString path = home_.filePath("small.kxdb");
        writeSettings({{"ftu", false}, {"lastOpened", path}});
        QVERIFY(start({}, "Opening project: ").contains("KelvoraX: Opening project: " + path));
        writeSettings({{"ftu", false}, {"lastOpened", path}, {"loadLast", false}});
        QCOMPARE(onlyTold(start({}, "is now running")), toldLines());
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
