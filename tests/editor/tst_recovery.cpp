// SPDX-License-Identifier: GPL-3.0-or-later
// Unsaved text through crashes: typed in a program of its own that is killed, and in editors here.
#include "RecoveryFolder.h"
#include "app/SettingsFolder.h"
#include "app/settings/KelSystem.h"
#include "editor/files/RecoveryWriter.h"
#include "editor/files/TextFile.h"
#include "support/OwnSettings.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <utime.h>

using namespace std::chrono_literals;

namespace {

/// What the killed program runs: a user who opens a file, types, and stops.
int type(const QString& folder, const QString& file, const QString& keys) {
    RecoveryStore store(folder);
    QPlainTextEdit editor;
    RecoveryWriter writer(store, editor, true);
    writer.setOrigin(file, "crashed.spc");
    editor.setPlainText(readTextFile(file).text);
    writer.written();
    editor.show();
    QTest::keyClicks(&editor, keys);
    return QApplication::exec();
}

class Typist {
public:
    Typist(const QString& folder, const QString& file, const QString& keys) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), {"--type", folder, file, keys});
        process_.waitForStarted();
    }
    ~Typist() { kill(); }
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;
    void kill() {
        process_.kill(); // SIGKILL
        process_.waitForFinished();
    }

private:
    QProcess process_;
};

/// A document as a program window keeps it, with delays that a test can wait for.
struct Document {
    explicit Document(RecoveryStore& store) : writer(new RecoveryWriter(store, editor, false)) {
        writer->setDelays(20ms, 60s);
        editor.show();
    }
    void type(const QString& keys) { QTest::keyClicks(&editor, keys); }

    QPlainTextEdit editor;
    RecoveryWriter* writer;
};

} // namespace

class TestRecovery : public QObject {
    Q_OBJECT

private slots:
    void aKilledProgramLeavesItsTextToTheNextOne() {
        const RecoveryFolder folder;
        const QString file = folder.write("crashed.spc", "define x\n");
        const QDateTime before = QFileInfo(file).lastModified();
        Typist typist(folder.path(), file, "freq PERSON.SEX ");
        QTRY_COMPARE_WITH_TIMEOUT(folder.text(), "freq PERSON.SEX define x\n", 20000);
        {
            // Even a program that has run for long keeps its own.
            const QString lock = folder.path() + '/' + folder.locks().constFirst();
            const utimbuf old{1000000000, 1000000000};
            QCOMPARE(utime(qPrintable(lock), &old), 0);
            RecoveryStore second(folder.path());
            QVERIFY(second.abandoned().isEmpty());
        }
        typist.kill();

        RecoveryStore next(folder.path());
        const QList<RecoveryCopy> copies = next.abandoned();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies[0].text, "freq PERSON.SEX define x\n");
        QCOMPARE(copies[0].filePath, file);
        QCOMPARE(copies[0].name, "crashed.spc");
        QVERIFY(copies[0].executeMode);
        QVERIFY(qAbs(copies[0].written.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        QCOMPARE(RecoveryFolder::read(file), "define x\n");
        QCOMPARE(QFileInfo(file).lastModified(), before);
        QVERIFY2(RecoveryStore(folder.path()).abandoned().isEmpty(), "offered by two programs");
    }

    void aRestoredTextSurvivesTheNextCrashToo() {
        const RecoveryFolder folder;
        const QString id = folder.leaveBehind("first");
        {
            RecoveryStore store(folder.path());
            QCOMPARE(store.abandoned().size(), 1);
            Document document(store);
            document.editor.setPlainText("first");
            document.editor.document()->setModified(true);
            document.writer->adopt(id);
            QVERIFY2(store.abandoned().isEmpty(), "offered again where it is open");
            document.type("at ");
            QTRY_COMPARE(folder.text(), "at first");
        }
        RecoveryStore store(folder.path());
        const QList<RecoveryCopy> copies = store.abandoned();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies[0].id, id);
        QCOMPARE(copies[0].text, "at first");
    }

    void theCopyGoesOnceTheTextIsSafe() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document document(store);
        document.type("freq");
        QTRY_COMPARE(folder.text(), "freq");
        document.writer->written();
        document.editor.document()->setModified(false);
        QTRY_COMPARE(folder.names(), QStringList());
        document.type(" more");
        QTRY_COMPARE(folder.text(), "freq more");
        document.editor.undo();
        QVERIFY(!document.editor.document()->isModified());
        QTRY_COMPARE(folder.names(), QStringList());
        document.editor.redo();
        QTRY_COMPARE(folder.text(), "freq more");
        document.writer->discard();
        QTRY_COMPARE(folder.names(), QStringList());
    }

    /// Another program has removed or replaced it.
    void aTextThatItsFileHasLostIsKept() {
        const RecoveryFolder folder;
        {
            RecoveryStore store(folder.path());
            Document document(store);
            document.writer->setOrigin("/data/a.spc", "a.spc");
            document.editor.setPlainText("freq");
            document.writer->written("as it was");
            document.editor.document()->setModified(true);
            document.writer->lostFile("theirs \xff");
            QTRY_COMPARE(folder.text(), "freq");
            document.writer->lostFile("theirs again \xff");
            document.writer->flush();
        }
        RecoveryStore store(folder.path());
        QCOMPARE(store.abandoned().value(0).basis, QByteArray("theirs again \xff"));
    }

    void aRestoredTextRemembersWhatItStemsFrom() {
        const RecoveryFolder folder;
        const QString id = folder.leaveBehind("first", "/data/a.spc", "a.spc");
        {
            RecoveryStore store(folder.path());
            Document document(store);
            document.writer->setOrigin("/data/a.spc", "a.spc");
            document.writer->adopt(id, "read");
            document.type("more");
            QTRY_COMPARE(folder.text(), "more");
            document.writer->setOrigin("/data/b.spc", "b.spc");
            document.writer->flush();
        }
        RecoveryStore store(folder.path());
        QVERIFY2(store.abandoned().value(0).basis.isEmpty(), "of another file");
    }

    void aSaveThatFailedKeepsTheCopy() {
        const RecoveryFolder folder;
        {
            RecoveryStore store(folder.path());
            Document document(store);
            document.type("freq");
            QTRY_COMPARE(folder.text(), "freq");
            document.type(" last");
            document.editor.document()->setModified(false); // as the window does, and closes
        }
        RecoveryStore store(folder.path());
        const QList<RecoveryCopy> copies = store.abandoned();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies[0].text, "freq last");
    }

    void steadyTypingIsKeptMeanwhile() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document document(store);
        document.writer->setDelays(60s, 100ms);
        while (folder.text().isEmpty() && document.editor.toPlainText().size() < 1000) {
            document.type("x");
            QTest::qWait(5);
        }
        QVERIFY(folder.text().startsWith('x'));
    }

    void whatIsNotModifiedHasNoCopy() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document opened(store);
        opened.editor.setPlainText("from a file");
        opened.writer->written();
        Document emptied(store);
        emptied.type("x");
        QTest::keyClick(&emptied.editor, Qt::Key_Backspace);
        Document other(store);
        other.type("other");
        QTRY_COMPARE(folder.text(), "other");
    }

    /// As before a run, which is not to wait for a slow disk.
    void hurryingBeginsAtOnceAndWaitsBriefly() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document document(store);
        document.writer->setDelays(60s, 60s);
        document.type("unsaved");
        document.writer->hurry();
        store.waitBriefly(60s);
        QCOMPARE(folder.text(), "unsaved");
        document.editor.selectAll();
        document.editor.insertPlainText(QString("freq PERSON.SEX\n").repeated(650000));
        document.writer->hurry();
        store.waitBriefly(1ms);
        QVERIFY2(folder.text() == "unsaved", "it has waited for 10 MB");
        QTRY_COMPARE(folder.text().size(), 10400000);
    }

    void theLastStateLands() {
        const RecoveryFolder folder;
        {
            RecoveryStore store(folder.path());
            const QString id = store.newId();
            const QString big(5000000, 'x');
            for (const char* end : {"1", "2", "3"})
                store.keepSoon({id, {}, "big", false, QDateTime::currentDateTimeUtc(), big + end});
        }
        QCOMPARE(folder.text().size(), 5000001);
        QVERIFY(folder.text().endsWith("x3"));
    }

    void flushLeavesNothingDue() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document document(store);
        document.writer->setDelays(60s, 60s);
        document.type("unsaved");
        QCOMPARE(folder.text(), QString());
        document.writer->flush();
        QCOMPARE(folder.text(), "unsaved");
        document.writer->setOrigin("/data/a.spc", "a.spc");
        document.writer->flush();
        QCOMPARE(QJsonDocument::fromJson(
                     RecoveryFolder::read(folder.path() + '/' + folder.names().constFirst()))
                     .object()["path"]
                     .toString(),
                 "/data/a.spc");
    }

    void aFullDiskKeepsTheLastCopyAndIsTriedAgain() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        Document document(store);
        document.writer->setDelays(20ms, 200ms);
        document.type("small");
        QTRY_COMPARE(folder.text(), "small");
        const QString large = QString(20000, 'y');
        {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("No recovery copy of .* could be written"));
            const FileSizeLimit limit(4096);
            document.editor.setPlainText(large);
            document.editor.document()->setModified(true);
            document.writer->flush();
            QCOMPARE(folder.text(), "small");
        }
        QTRY_COMPARE(folder.text(), large);
    }

    void aFolderThatCannotBeMadeIsAFailure() {
        const RecoveryFolder folder;
        folder.write("taken", "a file");
        RecoveryStore store(folder.file("taken/recovery"));
        QVERIFY(!store.keep({store.newId(), {}, {}, false, {}, "text"}));
        QVERIFY(store.abandoned().isEmpty());
    }

    void aFolderThatIsCleanedUpIsMadeAgain() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        const QString id = store.newId();
        QVERIFY(store.keep({id, {}, {}, false, {}, "one"}));
        QVERIFY(QDir(folder.path()).removeRecursively());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Could not remove our own lock"));
        QVERIFY(store.keep({id, {}, {}, false, {}, "two"}));
        QCOMPARE(folder.text(), "two");
        QVERIFY2(RecoveryStore(folder.path()).abandoned().isEmpty(), "no lock of its own");
    }

    void onlyTheUserReadsCopies() {
        const RecoveryFolder folder;
        folder.leaveBehind("secret");
        struct stat state {};
        QCOMPARE(stat(qPrintable(folder.path()), &state), 0);
        QCOMPARE(state.st_mode & 0777, mode_t(0700));
        const QString copy = folder.path() + '/' + folder.names().constFirst();
        QCOMPARE(stat(qPrintable(copy), &state), 0);
        QCOMPARE(state.st_mode & 0777, mode_t(0600));
    }

    void otherFilesAreSkippedAndStay_data() {
        QTest::addColumn<QByteArray>("content");
        const QByteArray begin = "{\"id\": \"00112233445566778899aabbccddeeff-1\"";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << begin + ", \"text\": \"fre";
        QTest::newRow("no object") << QByteArray("[1, 2]");
        QTest::newRow("binary") << QByteArray("\0\xff\x80", 3);
        QTest::newRow("no text") << begin + "}";
        QTest::newRow("a text of another kind") << begin + ", \"text\": [\"a\"]}";
        QTest::newRow("another id") << QByteArray("{\"id\": \"../../x\", \"text\": \"a\"}");
        QTest::newRow("far too deep") << QByteArray("{\"a\":").repeated(100000);
    }

    void otherFilesAreSkippedAndStay() {
        QFETCH(QByteArray, content);
        const RecoveryFolder folder;
        folder.leaveBehind("good");
        const QString bad =
            folder.write("settings/recovery/00112233445566778899aabbccddeeff-1.json", content);
        folder.write("settings/recovery/notes.json", R"({"id": "notes", "text": "foreign"})");
        RecoveryStore store(folder.path());
        const QList<RecoveryCopy> copies = store.abandoned();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies[0].text, "good");
        store.drop("../../../etc/passwd");
        QCOMPARE(RecoveryFolder::read(bad), content);
    }

    void specialFilesDoNotHang() {
        const RecoveryFolder folder;
        folder.leaveBehind("good");
        const QString stem = folder.path() + "/00112233445566778899aabbccddeeff-";
        QCOMPARE(mkfifo(qPrintable(stem + "1.json"), 0600), 0);
        QVERIFY(QFile::link(folder.path(), stem + "2.json"));
        QVERIFY(QDir().mkpath(stem + "3.json"));
        QFile huge(stem + "4.json");
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(600LL * 1024 * 1024));
        RecoveryStore store(folder.path());
        QCOMPARE(store.abandoned().size(), 1);
    }

    void wrongKindsOfTheRestDoNotLoseTheText() {
        const RecoveryFolder folder;
        folder.leaveBehind("good");
        folder.write("settings/recovery/00112233445566778899aabbccddeeff-1.json",
                     R"({"id": "00112233445566778899aabbccddeeff-1", "text": "rescued",
                         "path": "relative.spc", "name": 7, "mode": [], "time": "yesterday"})");
        RecoveryStore store(folder.path());
        const QList<RecoveryCopy> copies = store.abandoned();
        QCOMPARE(copies.size(), 2);
        const RecoveryCopy& rescued = copies[copies[0].text == "rescued" ? 0 : 1];
        QCOMPARE(rescued.text, "rescued");
        QCOMPARE(rescued.filePath, QString());
        QVERIFY(!rescued.executeMode && rescued.written.isValid());
    }

    void droppingTakesRestsAndTheLastOneTheLock() {
        const RecoveryFolder folder;
        const QString id = folder.leaveBehind("text");
        folder.write("settings/recovery/" + id + ".json.Ab3xYz", "{\"id\": \"cut off");
        {
            RecoveryStore store(folder.path());
            QCOMPARE(store.abandoned().size(), 1);
            QCOMPARE(folder.locks().size(), 1);
            store.drop(id);
            QVERIFY(store.abandoned().isEmpty());
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
    }

    void theStoreLiesBesideTheSettings() {
        RecoveryStore& store = RecoveryStore::instance();
        const QString id = store.newId();
        QVERIFY(store.keep({id, {}, {}, false, {}, "text"}));
        const QDir settings = QFileInfo(KelSystem::instance().filePath()).dir();
        QVERIFY(settings.exists("recovery/" + id + ".json"));
        store.drop(id);
    }
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--type")
        return type(arguments.value(2), arguments.value(3), arguments.value(4));
    takeOwnSettings();
    TestRecovery test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_recovery.moc"
