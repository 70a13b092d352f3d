// SPDX-License-Identifier: GPL-3.0-or-later
// What other programs do to an open file, each in its own way of writing.
#include "editor/files/FileWatch.h"
#include "editor/files/Fingerprint.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <utime.h>

namespace {

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

void move(const QString& from, const QString& to) {
    QCOMPARE(std::rename(qPrintable(from), qPrintable(to)), 0);
}

/// A watched file among others, and what was told of it.
class Watched {
public:
    Watched() {
        QDir().mkpath(folder());
        write(path(), "before");
        write(other(), "before");
        watch.watch(path());
        watch.watch(other());
    }
    QString folder() const { return base_.filePath("programs"); }
    QString path() const { return folder() + "/a.spc"; }
    QString other() const { return base_.filePath("other.spc"); }
    QString beside(const QString& name) const { return folder() + '/' + name; }

    /// Everything that happened so far has been looked at.
    void settle() {
        const auto before = changed.size();
        write(other(), QByteArray::number(++round_));
        QTRY_VERIFY(changed.size() > before && changed.last().at(0).toString() == other());
    }
    QStringList news() const {
        QStringList told;
        for (const QList<QVariant>& signal : changed)
            if (signal.at(0).toString() != other())
                told += "changed " + QFileInfo(signal.at(0).toString()).fileName();
        for (const QList<QVariant>& signal : removed)
            told += "removed " + QFileInfo(signal.at(0).toString()).fileName();
        return told;
    }

private:
    QTemporaryDir base_;
    int round_ = 0;

public:
    FileWatch watch;
    QSignalSpy changed{&watch, &FileWatch::changed};
    QSignalSpy removed{&watch, &FileWatch::removed};
};

using Deed = std::function<void(Watched&)>;

} // namespace

Q_DECLARE_METATYPE(Deed)

class TestFileWatch : public QObject {
    Q_OBJECT

private slots:
    void changesAreTold_data() {
        QTest::addColumn<Deed>("deed");
        QTest::newRow("cut to nothing and written")
            << Deed([](Watched& at) { write(at.path(), "after!"); });
        QTest::newRow("replaced by rename") << Deed([](Watched& at) {
            write(at.beside("new"), "after!");
            move(at.beside("new"), at.path());
        });
        QTest::newRow("moved to a backup and written anew") << Deed([](Watched& at) {
            move(at.path(), at.beside("a.spc~"));
            write(at.path(), "after!");
        });
        QTest::newRow("removed and written anew") << Deed([](Watched& at) {
            QFile::remove(at.path());
            write(at.path(), "after!");
        });
        QTest::newRow("same size, same time") << Deed([](Watched& at) {
            at.settle(); // it knows size and time
            struct stat state {};
            stat(qPrintable(at.path()), &state);
            write(at.path(), "after!");
            const timespec old[] = {state.st_atim, state.st_mtim};
            utimensat(AT_FDCWD, qPrintable(at.path()), old, 0);
        });
        QTest::newRow("its folder is another one") << Deed([](Watched& at) {
            move(at.folder(), at.folder() + "-old");
            QDir().mkpath(at.folder());
            write(at.path(), "after!");
        });
        QTest::newRow("cut to nothing") << Deed([](Watched& at) { write(at.path(), {}); });
    }

    void changesAreTold() {
        QFETCH(Deed, deed);
        Watched at;
        QVERIFY(!at.watch.changedSince(at.path()));
        deed(at);
        QVERIFY(at.watch.changedSince(at.path()));
        QTRY_COMPARE(at.news(), QStringList("changed a.spc"));
        at.settle();
        QCOMPARE(at.news(), QStringList("changed a.spc"));
        // Whatever way was taken, the file is followed on.
        write(at.path(), "and again");
        QTRY_COMPARE(at.news(), QStringList({"changed a.spc", "changed a.spc"}));
    }

    void removalIsToldOnce_data() {
        QTest::addColumn<Deed>("deed");
        QTest::newRow("removed") << Deed([](Watched& at) { QFile::remove(at.path()); });
        QTest::newRow("moved away")
            << Deed([](Watched& at) { move(at.path(), at.beside("b.spc")); });
        QTest::newRow("with its folder")
            << Deed([](Watched& at) { QDir(at.folder()).removeRecursively(); });
        QTest::newRow("its folder moved away")
            << Deed([](Watched& at) { move(at.folder(), at.folder() + "-old"); });
        QTest::newRow("a pipe in its place") << Deed([](Watched& at) {
            QFile::remove(at.path());
            mkfifo(qPrintable(at.path()), 0600);
        });
    }

    void removalIsToldOnce() {
        QFETCH(Deed, deed);
        Watched at;
        deed(at);
        QTRY_COMPARE(at.news(), QStringList("removed a.spc"));
        QCOMPARE(at.watch.stateOf(at.path()), FileWatch::State::Removed);
        at.settle();
        QCOMPARE(at.news(), QStringList("removed a.spc"));
        at.watch.accept(at.path(), {});
        QCOMPARE(at.watch.stateOf(at.path()), FileWatch::State::Same);
        QFile::remove(at.path());
        QDir().mkpath(at.folder());
        write(at.path(), "back again");
        QTRY_COMPARE(at.news(), QStringList({"changed a.spc", "removed a.spc"}));
    }

    void whatIsNoChangeIsNotTold_data() {
        QTest::addColumn<Deed>("deed");
        QTest::newRow("touched") << Deed([](Watched& at) {
            const utimbuf now{2000000000, 2000000000};
            utime(qPrintable(at.path()), &now);
        });
        QTest::newRow("the same bytes") << Deed([](Watched& at) { write(at.path(), "before"); });
        QTest::newRow("the same bytes by rename") << Deed([](Watched& at) {
            write(at.beside("new"), "before");
            move(at.beside("new"), at.path());
        });
        QTest::newRow("files beside it") << Deed([](Watched& at) {
            write(at.beside("b.spc"), "x");
            QFile::remove(at.beside("b.spc"));
        });
        QTest::newRow("our own writing") << Deed([](Watched& at) {
            at.watch.beginWriting(at.path());
            write(at.path(), "ours");
            at.watch.endWriting(at.path(), fingerprintOf("ours"));
        });
        QTest::newRow("our own writing by rename") << Deed([](Watched& at) {
            at.watch.beginWriting(at.path());
            write(at.beside("new"), "ours");
            move(at.beside("new"), at.path());
            at.watch.endWriting(at.path());
        });
        QTest::newRow("no longer watched") << Deed([](Watched& at) {
            at.watch.unwatch(at.path());
            write(at.path(), "after");
        });
    }

    void whatIsNoChangeIsNotTold() {
        QFETCH(Deed, deed);
        Watched at;
        deed(at);
        QVERIFY(!at.watch.changedSince(at.path()));
        at.settle();
        QCOMPARE(at.news(), QStringList());
    }

    void changesAroundOurOwnWritingAreTold() {
        Watched at;
        at.watch.beginWriting(at.path());
        write(at.path(), "ours");
        write(at.path(), "theirs");
        at.watch.endWriting(at.path(), fingerprintOf("ours"));
        QTRY_COMPARE(at.news(), QStringList("changed a.spc"));
    }

    void writingThatFailedChangesNothing() {
        Watched at;
        write(at.path(), "theirs");
        at.watch.beginWriting(at.path());
        at.watch.endWriting(at.path(), {});
        QVERIFY(at.watch.changedSince(at.path()));
        QTRY_COMPARE(at.news(), QStringList("changed a.spc"));
    }

    void aChangeBetweenReadingAndWatchingIsTold() {
        Watched at;
        at.watch.watch(at.path(), fingerprintOf("what was read"));
        QTRY_COMPARE(at.news(), QStringList("changed a.spc"));
    }

    void acceptedContentsAreOld() {
        Watched at;
        write(at.path(), "theirs");
        QTRY_COMPARE(at.news(), QStringList("changed a.spc"));
        at.watch.accept(at.path(), fingerprintOf("theirs"));
        QVERIFY(!at.watch.changedSince(at.path()));
        write(at.path(), "before");
        QTRY_COMPARE(at.news(), QStringList({"changed a.spc", "changed a.spc"}));
    }

    void linksAreFollowedToTheirFile() {
        Watched at;
        const QTemporaryDir elsewhere;
        const QString target = elsewhere.filePath("target.spc");
        write(target, "before");
        QVERIFY(QFile::link(target, at.beside("link.spc")));
        at.watch.watch(at.beside("link.spc"));
        write(elsewhere.filePath("new"), "after");
        move(elsewhere.filePath("new"), target);
        QTRY_COMPARE(at.news(), QStringList("changed link.spc"));
    }

    void manyFilesAreToldApart() {
        Watched at;
        for (int number = 0; number < 200; ++number) {
            write(at.beside(QString::number(number)), "before");
            at.watch.watch(at.beside(QString::number(number)));
        }
        for (int number = 0; number < 200; number += 2)
            write(at.beside(QString::number(number)), "after");
        QTRY_COMPARE(at.news().size(), 100);
        at.settle();
        const QStringList news = at.news();
        QCOMPARE(news.size(), 100);
        for (int number = 0; number < 200; number += 2)
            QVERIFY(news.contains("changed " + QString::number(number)));
    }
};

QTEST_MAIN(TestFileWatch)
#include "tst_filewatch.moc"
