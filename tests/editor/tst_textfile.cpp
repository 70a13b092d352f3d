// SPDX-License-Identifier: GPL-3.0-or-later
// Program files as they are read and written: nothing that a file holds may be lost on the way.
#include "app/SettingsFolder.h"
#include "editor/files/Fingerprint.h"
#include "editor/files/TextFile.h"

#include <QPlainTextEdit>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// From whom files can be kept, unlike from the one that tests may run as.
class PlainUser {
public:
    PlainUser() {
        if (own_ == 0)
            (void)!seteuid(65534);
    }
    ~PlainUser() { (void)!seteuid(own_); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

private:
    uid_t own_ = geteuid();
};

} // namespace

class TestTextFile : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString path(const QString& name) const { return folder_.filePath(name); }
    QString make(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
                   ? file.fileName()
                   : QString();
    }
    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void textIsReadWithLineFeeds_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("plain") << QByteArray("freq a.b\n\tby c\n") << "freq a.b\n\tby c\n";
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                       "freq\n")
                                         << "freq\n";
        QTest::newRow("carriage returns") << QByteArray("a\r\n\r\nb\r\n") << "a\n\nb\n";
        QTest::newRow("beyond Latin") << QByteArray("Español 人口 \xF0\x9F\x98\x80")
                                      << QString::fromUtf8("Español 人口 \xF0\x9F\x98\x80");
    }

    void textIsReadWithLineFeeds() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        const TextFileResult result = readTextFile(make("read.spc", bytes));
        QVERIFY2(result.succeeded, qPrintable(result.error));
        QCOMPARE(result.text, text);
        QCOMPARE(result.fingerprint, fingerprintOfFile(path("read.spc")));
    }

    void otherBytesAreRefusedWithTheirLine_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("told");
        QTest::newRow("Latin-1") << QByteArray("ok\nA\xF1o\n") << "not encoded in UTF-8: line 2";
        QTest::newRow("cut off") << QByteArray("a\nb\nc\xE2\x82") << "UTF-8: line 3";
        QTest::newRow("overlong") << QByteArray("\xC0\xAF") << "UTF-8: line 1";
        QTest::newRow("half of a pair") << QByteArray("\xED\xA0\x80") << "UTF-8: line 1";
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                              "f\0r\0",
                                              6)
                                << "null byte";
        QTest::newRow("a null byte") << QByteArray("a\nb\0c", 5) << "line 2 has a null byte";
    }

    void otherBytesAreRefusedWithTheirLine() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        const TextFileResult result = readTextFile(make("other.spc", bytes));
        QVERIFY(!result.succeeded);
        QVERIFY2(result.error.contains(told), qPrintable(result.error));
        QCOMPARE(result.fingerprint, QByteArray());
    }

    void whatIsNoFileIsRefusedAtOnce() {
        QVERIFY(readTextFile(path("absent.spc")).error.contains("No such file"));
        QVERIFY(!readTextFile(folder_.path()).succeeded);
        QVERIFY(!readTextFile(folder_.path()).error.isEmpty());
        QCOMPARE(mkfifo(qPrintable(path("pipe")), 0600), 0);
        QVERIFY(readTextFile(path("pipe")).error.contains("pipe"));
        QVERIFY(readTextFile("/dev/zero").error.contains("device"));
        make("huge.spc", "a");
        QVERIFY(QFile::resize(path("huge.spc"), largestTextFile + 1));
        QVERIFY(readTextFile(path("huge.spc")).error.contains("256 MB"));
    }

    void anUnreadableFileIsTold() {
        QCOMPARE(chmod(qPrintable(folder_.path()), 0755), 0);
        const QString file = make("closed.spc", "freq");
        QFile::setPermissions(file, {});
        const PlainUser user;
        QCOMPARE(readTextFile(file).error, "Permission denied");
        QVERIFY(!writeTextFile(file, "lost").succeeded);
        QCOMPARE(QFileInfo(file).size(), 4);
    }

    void whatWasWrittenIsReadAgain() {
        const QString text = QString::fromUtf8("título 人\n\n\tx y \xF0\x9F\x98\x80");
        const TextFileResult written = writeTextFile(path("new.spc"), text);
        QVERIFY2(written.succeeded, qPrintable(written.error));
        QCOMPARE(bytesOf(path("new.spc")), text.toUtf8());
        QCOMPARE(written.fingerprint, fingerprintOfFile(path("new.spc")));
        QCOMPARE(readTextFile(path("new.spc")).text, text);
    }

    void permissionsStay() {
        const QString file = make("shared.spc", "old");
        QCOMPARE(chmod(qPrintable(file), 0664), 0);
        QVERIFY(writeTextFile(file, "new").succeeded);
        struct stat state {};
        QCOMPARE(stat(qPrintable(file), &state), 0);
        QCOMPARE(state.st_mode & 07777, mode_t(0664));
    }

    void linksStayLinks() {
        QVERIFY(QDir(folder_.path()).mkpath("below"));
        make("below/target.spc", "old");
        QVERIFY(QFile::link("below/target.spc", path("one.spc")));
        QVERIFY(QFile::link("one.spc", path("two.spc")));
        QVERIFY(writeTextFile(path("two.spc"), "new").succeeded);
        QVERIFY(QFileInfo(path("two.spc")).isSymLink());
        QVERIFY(QFileInfo(path("one.spc")).isSymLink());
        QCOMPARE(bytesOf(path("below/target.spc")), "new");
    }

    void aFailedWriteLeavesTheFile() {
        const QString file = make("full.spc", "the old text");
        {
            const FileSizeLimit limit(4096);
            const TextFileResult result = writeTextFile(file, QString(100000, 'x'));
            QVERIFY(!result.succeeded);
            QVERIFY(!result.error.isEmpty());
            QCOMPARE(result.fingerprint, QByteArray());
        }
        QCOMPARE(bytesOf(file), "the old text");
        QCOMPARE(QDir(folder_.path()).entryList({"full.spc*"}), QStringList("full.spc"));
        QVERIFY(!writeTextFile(path("absent/a.spc"), "x").succeeded);
        QVERIFY(!writeTextFile(folder_.path(), "x").succeeded);
    }

    void pipesAreNotReplaced() {
        const QString pipe = path("kept-pipe");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY(!writeTextFile(pipe, "x").succeeded);
        QVERIFY(!QFileInfo(pipe).isFile() && QFileInfo::exists(pipe));
    }

    void anEditorKeepsHardBlanks() {
        const QString text = QString::fromUtf8("\"a\u00A0b\"\n\n\tc\n");
        QPlainTextEdit editor;
        editor.setPlainText(text);
        QCOMPARE(textOf(*editor.document()), text);
    }
};

QTEST_MAIN(TestTextFile)
#include "tst_textfile.moc"
