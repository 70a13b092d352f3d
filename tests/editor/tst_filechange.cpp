// SPDX-License-Identifier: GPL-3.0-or-later
// What a user is asked when another program changed an open file, and what becomes of his text.
#include "app/messages/Messages.h"
#include "editor/files/FileChangeNotice.h"
#include "editor/files/FileWatch.h"
#include "editor/files/TextFile.h"
#include "support/ModalAnswer.h"

#include <QFile>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// One open file, as a program window has it.
class OpenFile {
public:
    OpenFile() {
        answerMessages([this](MessageKind kind, const QString& text) {
            (kind == MessageKind::Question ? questions : warnings) += text;
            return answer;
        });
        write("line 1\nline 2\n");
        const TextFileResult read = readTextFile(path());
        editor.setPlainText(read.text);
        watch.watch(path(), read.fingerprint);
        editor.show();
        editor.activateWindow();
        (void)QTest::qWaitForWindowActive(&editor);
    }
    ~OpenFile() { answerMessages({}); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    QString path() const { return folder_.filePath("a.spc"); }
    void write(const QByteArray& bytes) const {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void type(const QString& keys) { QTest::keyClicks(&editor, keys); }
    QString text() const { return editor.toPlainText(); }
    bool modified() const { return editor.document()->isModified(); }

private:
    QTemporaryDir folder_;

public:
    QPlainTextEdit editor;
    FileWatch watch;
    bool isOpen = true;
    bool isFree = true;
    FileChangeNotice notice{watch, [this](const QString&) { return isOpen ? &editor : nullptr; },
                            [this] { return isFree; }};
    QSignalSpy reloaded{&notice, &FileChangeNotice::reloaded};
    QSignalSpy kept{&notice, &FileChangeNotice::kept};
    Choice answer = Choice::Yes;
    QStringList questions;
    QStringList warnings;
};

} // namespace

class TestFileChange : public QObject {
    Q_OBJECT

private slots:
    void anUnmodifiedTextIsReloadedAtWill() {
        OpenFile file;
        QTest::keyClick(&file.editor, Qt::Key_Down);
        file.write("theirs\r\nin two lines");
        QTRY_COMPARE(file.text(), "theirs\nin two lines");
        QCOMPARE(file.questions,
                 QStringList("The file " + file.path() +
                             " was changed by another program. Do you want to reload it?"));
        QVERIFY(!file.modified());
        QVERIFY(!file.watch.changedSince(file.path()));
        QCOMPARE(file.reloaded.size(), 1);
        QCOMPARE(file.kept.size(), 0);
        QCOMPARE(file.editor.textCursor().blockNumber(), 1);
        QTest::keyClick(&file.editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(file.text(), "line 1\nline 2\n");
        QVERIFY(file.modified());
    }

    void aTextThatIsKeptCountsAsModified() {
        OpenFile file;
        file.answer = Choice::No;
        file.write("theirs");
        QTRY_VERIFY(file.modified());
        QCOMPARE(file.text(), "line 1\nline 2\n");
        QCOMPARE(file.questions.size(), 1);
        QCOMPARE(file.kept.size(), 1);
        QVERIFY2(file.notice.maySave(file.path()), "asked twice for the same contents");
        file.write("theirs again");
        QTRY_COMPARE(file.questions.size(), 2);
        QVERIFY(file.questions[1].contains("Saving will replace the file."));
    }

    void aModifiedTextIsNotLostByReloading() {
        OpenFile file;
        file.type("mine ");
        file.write("theirs");
        QTRY_COMPARE(file.text(), "theirs");
        QVERIFY(file.questions.value(0).contains("changes that are not saved"));
        QTest::keyClick(&file.editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(file.text(), "mine line 1\nline 2\n");
    }

    void aRemovedFileLeavesItsText() {
        OpenFile file;
        QFile::remove(file.path());
        QTRY_COMPARE(file.warnings.size(), 1);
        QVERIFY(file.warnings[0].contains("was removed by another program"));
        QVERIFY(file.modified());
        QCOMPARE(file.kept, QList<QVariantList>{{file.path()}});
        QCOMPARE(file.text(), "line 1\nline 2\n");
        QVERIFY(file.notice.maySave(file.path()));
        // It comes back as it was: a branch that was switched there and back.
        file.write("line 1\nline 2\n");
        QTRY_VERIFY(!file.modified());
        QCOMPARE(file.questions, QStringList());
    }

    void whatCannotBeReloadedIsTold() {
        OpenFile file;
        file.write("A\xF1o");
        QTRY_COMPARE(file.warnings.size(), 1);
        QVERIFY2(file.warnings[0].contains("UTF-8"), qPrintable(file.warnings[0]));
        QVERIFY(file.modified());
        QCOMPARE(file.text(), "line 1\nline 2\n");
    }

    void questionsWaitForTheWindow() {
        OpenFile file;
        file.isFree = false;
        QSignalSpy changed(&file.watch, &FileWatch::changed);
        file.write("one");
        QTRY_COMPARE(changed.size(), 1);
        file.write("two");
        QTRY_COMPARE(changed.size(), 2);
        QCOMPARE(file.questions, QStringList());
        file.isFree = true;
        QTRY_COMPARE(file.text(), "two");
        QCOMPARE(file.questions.size(), 1);
    }

    void aClosedTabIsNotAskedAbout() {
        OpenFile file;
        file.isFree = false;
        QSignalSpy changed(&file.watch, &FileWatch::changed);
        file.write("theirs");
        QTRY_COMPARE(changed.size(), 1);
        file.isOpen = false;
        file.isFree = true;
        const QTemporaryDir folder;
        file.watch.watch(folder.filePath("gone.spc"), "as it was read");
        QSignalSpy removed(&file.watch, &FileWatch::removed);
        QTRY_COMPARE(removed.size(), 1);
        QTest::qWait(400);
        QCOMPARE(file.questions + file.warnings, QStringList());
    }

    void savingOverAChangeAsksFirst() {
        OpenFile file;
        file.isFree = false;
        QVERIFY(file.notice.maySave(file.path()));
        file.write("theirs");
        file.answer = Choice::No;
        QVERIFY(!file.notice.maySave(file.path()));
        file.answer = Choice::Yes;
        QVERIFY(file.notice.maySave(file.path()));
        QCOMPARE(file.questions.size(), 2);
        QVERIFY(file.questions[0].contains("since it was read here"));
    }

    /// The box itself: Enter must not lose what was typed.
    void enterKeepsATextThatWasModified() {
        OpenFile file;
        answerMessages({});
        file.type("mine ");
        QStringList buttons;
        answerNextDialog([&buttons](QDialog& dialog) {
            for (const auto* button : dialog.findChildren<QPushButton*>())
                buttons += button->text().remove('&');
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        file.write("theirs");
        QTRY_COMPARE(buttons.size(), 2);
        QVERIFY(buttons.contains("Reload") && buttons.contains("Keep"));
        QTRY_VERIFY(!file.watch.changedSince(file.path()));
        QCOMPARE(file.text(), "mine line 1\nline 2\n");
    }
};

QTEST_MAIN(TestFileChange)
#include "tst_filechange.moc"
