// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messages/Messages.h"
#include "dictionary/loading/DictionaryLoader.h"
#include "dictionary/mirror/TKpEntity.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace {

void typePassword(const QString& password) {
    answerNextDialog([password](QDialog& dialog) {
        auto* line = dialog.findChild<QLineEdit*>("password");
        QVERIFY(line != nullptr);
        QTest::keyClicks(line, password);
        QTest::keyClick(line, Qt::Key_Return);
    });
}

} // namespace

/// A load, and everything that it reported.
struct Load {
    explicit Load(const QUrl& schema) : loader(schema) {}

    DictionaryLoader loader;
    QSignalSpy begun{&loader, &DictionaryLoader::loading};
    QSignalSpy loaded{&loader, &DictionaryLoader::loaded};
    QSignalSpy invalid{&loader, &DictionaryLoader::invalid};
    QSignalSpy refused{&loader, &DictionaryLoader::refused};
    QSignalSpy failed{&loader, &DictionaryLoader::failed};
    QSignalSpy abandoned{&loader, &DictionaryLoader::abandoned};

    /// Letters for what was reported after the beginning.
    QString outcome() const {
        return QString("L").repeated(loaded.size()) + QString("I").repeated(invalid.size()) +
               QString("R").repeated(refused.size()) + QString("F").repeated(failed.size()) +
               QString("A").repeated(abandoned.size());
    }

    bool run(const QString& path) {
        if (!loader.start(path) || begun.size() != 1)
            return false;
        return QTest::qWaitFor([this] { return !loader.isRunning(); }, 20000) &&
               QTest::qWaitFor([this] { return !outcome().isEmpty(); }, 20000);
    }
};

class TestLoading : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QUrl schema_;
    QStringList shown_;

    QString path(const QString& name) const { return folder_.filePath(name); }

    void write(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

private slots:
    void initTestCase() {
        kel::init(std::make_shared<TKelConfigImpl>());
        UIInvoker::instance();
        writeSmallDatabase(folder_.path());
        QVERIFY(QDir(folder_.path()).mkpath("protected"));
        writeSmallDatabase(path("protected"), "s3cret");
        write("schema.xsd", "<schema/>");
        schema_ = QUrl::fromLocalFile(path("schema.xsd"));
    }

    void init() {
        shown_.clear();
        answerMessages([this](MessageKind, const QString& text) {
            shown_ += text;
            return Choice::No;
        });
        TfrmProject::instance().close();
    }

    void cleanup() { answerMessages({}); }

    void cleanupTestCase() {
        TfrmProject::instance().close();
        kel::destroy();
    }

    void bothFormsLoad_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<DictionaryKind>("kind");
        QTest::newRow("binary") << "small.kxdb" << DictionaryKind::Kxdb;
        QTest::newRow("xml") << "small.dicx" << DictionaryKind::Dicx;
        QTest::newRow("capitals and dots") << "census.2010.DICX" << DictionaryKind::Dicx;
    }

    void bothFormsLoad() {
        QFETCH(QString, name);
        QFETCH(DictionaryKind, kind);
        if (!QFile::exists(path(name)))
            QVERIFY(QFile::copy(path("small.dicx"), path(name)));
        Load load(schema_);
        QVERIFY(load.run(path(name)));
        QCOMPARE(load.outcome(), "L");
        QCOMPARE(load.loaded[0][0].toStringList(), QStringList());
        QCOMPARE(load.loaded[0][1].toBool(), true);
        const TfrmProject& project = TfrmProject::instance();
        QCOMPARE(project.dictionaryKind(), kind);
        QCOMPARE(project.dictionaryPath(), path(name));
        QCOMPARE(project.root()->name, "COUNTRY");
        QVERIFY(project.allPathsFound());
        QVERIFY(!project.dictionary()->isDirty());
        QCOMPARE(shown_, QStringList());
    }

    void projectKeepsItsKind() {
        Load load(schema_);
        QVERIFY(load.loader.start(path("small.dicx"), DictionaryKind::Project));
        QVERIFY(!load.loader.start(path("small.kxdb"))); // one at a time
        QTRY_COMPARE(load.outcome(), "L");
        QCOMPARE(TfrmProject::instance().dictionaryKind(), DictionaryKind::Project);
    }

    void otherEndingsBeginNothing() {
        Load load(schema_);
        for (const char* name : {"small.txt", "kxdb", "small.kxdb.zip", ""})
            QVERIFY(!load.loader.start(name));
        QVERIFY(load.begun.isEmpty());
        QVERIFY(!load.loader.isRunning());
    }

    void missingDataFilesAreReported() {
        QVERIFY(QFile::rename(path("PERSON_AGE.kbf"), path("away")));
        Load load(schema_);
        QVERIFY(load.run(path("small.kxdb")));
        QCOMPARE(load.outcome(), "L");
        QCOMPARE(load.loaded[0][0].toStringList(), QStringList("PERSON.AGE"));
        QVERIFY(!TfrmProject::instance().allPathsFound());
        // AGE is not the last of the file's items, so that it may stay missing.
        Load again(schema_);
        QVERIFY(again.run(path("small.dicx")));
        QCOMPARE(again.outcome(), "L");
        QCOMPARE(shown_.size(), 1);
        QVERIFY(QFile::rename(path("away"), path("PERSON_AGE.kbf")));
    }

    // While the user is asked nothing is busy; afterwards the load goes on.
    void questionsStandBetweenTwoSignals_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << ""
                              << "loading loaded";
        QTest::newRow("one") << "PERSON_AGE.kbf"
                             << "loading asking question resumed loaded";
        QTest::newRow("refused") << "PERSON_INCOME.kbf"
                                 << "loading asking question error refused";
    }

    void questionsStandBetweenTwoSignals() {
        QFETCH(QString, file);
        QFETCH(QString, expected);
        if (!file.isEmpty())
            QVERIFY(QFile::rename(path(file), path("away")));
        QStringList told;
        answerMessages([&](MessageKind kind, const QString&) {
            told += kind == MessageKind::Question ? "question" : "error";
            return Choice::No;
        });
        Load load(schema_);
        const auto note = [&](auto signal, const char* name) {
            connect(&load.loader, signal, this, [&told, name] { told += name; });
        };
        note(&DictionaryLoader::loading, "loading");
        note(&DictionaryLoader::asking, "asking");
        note(&DictionaryLoader::resumed, "resumed");
        note(&DictionaryLoader::loaded, "loaded");
        note(&DictionaryLoader::refused, "refused");
        QVERIFY(load.run(path("small.dicx")));
        if (!file.isEmpty())
            QVERIFY(QFile::rename(path("away"), path(file)));
        QCOMPARE(told.join(' '), expected);
    }

    void lackingFilesEndInOneMessage() {
        QVERIFY(QFile::rename(path("PERSON_INCOME.kbf"), path("away")));
        Load load(schema_);
        QVERIFY(load.run(path("small.dicx")));
        QCOMPARE(load.outcome(), "R");
        QCOMPARE(shown_.size(), 2);
        QVERIFY(shown_[1].startsWith("Error opening dictionary ["));
        QVERIFY(!TfrmProject::instance().isOpen());
        QVERIFY(QFile::rename(path("away"), path("PERSON_INCOME.kbf")));
    }

    void brokenFilesLeaveNothingOpen_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("malformed dicx") << "bad.dicx" << QByteArray("<a><b>") << "I";
        QTest::newRow("empty dicx") << "empty.dicx" << QByteArray() << "I";
        QTest::newRow("other XML") << "other.dicx" << QByteArray("<a/>") << "F";
        QTest::newRow("empty kxdb") << "empty.kxdb" << QByteArray() << "F";
        QTest::newRow("text as kxdb") << "text.kxdb" << QByteArray(4000, 'x') << "F";
    }

    void brokenFilesLeaveNothingOpen() {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, outcome);
        write(name, content);
        Load load(schema_);
        QVERIFY(load.run(path(name)));
        QCOMPARE(load.outcome(), outcome);
        QCOMPARE(shown_, QStringList());
        QVERIFY(!TfrmProject::instance().isOpen());
        if (!load.failed.isEmpty())
            QVERIFY(!load.failed[0][0].toString().isEmpty());
        Load next(schema_);
        QVERIFY(next.run(path("small.kxdb")));
        QCOMPARE(next.outcome(), "L");
    }

    void folderAsDictionaryIsTold() {
        QVERIFY(QDir(folder_.path()).mkpath("folder.dicx"));
        QVERIFY(QDir(folder_.path()).mkpath("folder.kxdb"));
        Load xml(schema_);
        QVERIFY(xml.run(path("folder.dicx")));
        QCOMPARE(xml.outcome(), "R");
        QCOMPARE(shown_, QStringList("Error by opening the dictionary file"));
        Load binary(schema_);
        QVERIFY(binary.run(path("folder.kxdb")));
        QCOMPARE(binary.outcome(), "F");
    }

    void wrongPasswordThreeTimes() {
        const QString file = path("protected/small.kxdb");
        for (int i = 0; i < 3; ++i) {
            Load load(schema_);
            typePassword("wrong");
            QVERIFY(load.run(file));
            QCOMPARE(load.outcome(), "F");
            QVERIFY(load.failed[0][0].toString().contains("password", Qt::CaseInsensitive));
            QVERIFY(!TfrmProject::instance().isOpen());
        }
        Load refused(schema_);
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        QVERIFY(refused.run(file));
        QCOMPARE(refused.failed[0][0].toString(), "Missing password.");
        Load load(schema_);
        typePassword("s3cret");
        QVERIFY(load.run(file));
        QCOMPARE(load.outcome(), "L");
    }

    void dataFolderThatWasPickedIsUsed() {
        QVERIFY(QDir(folder_.path()).mkpath("alone"));
        QVERIFY(QFile::copy(path("small.kxdb"), path("alone/small.kxdb")));
        Load load(schema_);
        answerNextDialog([this](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            name->setText(folder_.path());
            QTest::keyClick(name, Qt::Key_Return);
        });
        QVERIFY(load.run(path("alone/small.kxdb")));
        QCOMPARE(load.outcome(), "L");
        QCOMPARE(load.loaded[0][0].toStringList(), QStringList());
        QCOMPARE(TfrmProject::instance().root()->children[0]->fullPath, path("DISTRICT.kpt"));
    }

    void abandonedLoadsReportOnlyThat_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("read") << "small.kxdb";
        QTest::newRow("scan") << "small.dicx";
    }

    void abandonedLoadsReportOnlyThat() {
        QFETCH(QString, name);
        Load load(schema_);
        QVERIFY(load.loader.abandon()); // nothing runs
        QVERIFY(load.loader.start(path(name)));
        QVERIFY(!load.loader.abandon());
        QTRY_COMPARE(load.outcome(), "A");
        QVERIFY(!load.loader.isRunning());
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    void abandoningClosesTheQuestion() {
        QVERIFY(QFile::rename(path("PERSON_AGE.kbf"), path("away")));
        answerMessages({});
        Load load(schema_);
        QVERIFY(load.loader.start(path("small.dicx")));
        bool asked = false;
        answerNextDialog([&](QDialog& dialog) {
            asked = qobject_cast<QMessageBox*>(&dialog) != nullptr;
            QVERIFY(!load.loader.abandon());
        });
        QTRY_COMPARE(load.outcome(), "A");
        QVERIFY(asked);
        QVERIFY(QFile::rename(path("away"), path("PERSON_AGE.kbf")));
    }

    void finishWaitsForAnyStage() {
        for (const char* name : {"small.kxdb", "small.dicx"}) {
            Load load(schema_);
            QVERIFY(load.loader.start(path(name)));
            load.loader.finish();
            QVERIFY(!load.loader.isRunning());
            QCoreApplication::processEvents();
            QCOMPARE(load.outcome(), "");
            QVERIFY(!TfrmProject::instance().isOpen());
        }
    }

    void windowStaysAliveDuringALargeFile() {
        QByteArray large = "<kelDictionary_XML><general/><root><name>T</name>";
        while (large.size() < 100'000'000)
            large += "<variable><name>V" + QByteArray::number(large.size()) + "</name><label>" +
                     QByteArray(2000, 'x') + "</label></variable>";
        write("large.dicx", large + "</root></kelDictionary_XML>");
        Load load(schema_);
        QElapsedTimer gap;
        qint64 longest = 0;
        gap.start();
        QTimer beat;
        int beats = 0;
        connect(&beat, &QTimer::timeout, this, [&] {
            ++beats;
            longest = std::max(longest, gap.restart());
        });
        beat.start(5);
        QVERIFY(load.loader.start(path("large.dicx")));
        QTRY_VERIFY(beats >= 30); // well into the scan
        QVERIFY(load.loader.isRunning());
        QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
        QElapsedTimer stop;
        stop.start();
        load.loader.finish();
        QVERIFY2(stop.elapsed() < 2000, qPrintable(QString::number(stop.elapsed())));
        QVERIFY(QFile::remove(path("large.dicx")));
    }
};

QTEST_MAIN(TestLoading)
#include "tst_loading.moc"
