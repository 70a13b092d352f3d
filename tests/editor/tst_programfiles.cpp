// SPDX-License-Identifier: GPL-3.0-or-later
// New, open, save and close in the program window, with their questions, titles and file dialogs;
// and that no text is lost on the way.
#include "ProgramFixture.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "editor/files/Fingerprint.h"
#include "editor/files/RecoveryStore.h"
#include "editor/text/Editor.h"
#include "engine/execution/RunGuard.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

class TestProgramFiles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { fixture_ = std::make_unique<ProgramFixture>(); }
    void cleanupTestCase() { fixture_.reset(); }
    void init();
    void cleanup() { fixture_->closeWindows(); }

    void namesNewDocuments();
    void opensIntoAFreshTab();
    void opensAtOnceWhatTheWindowIsMadeFor();
    void goesToTheTabOfAFileThatIsOpen();
    void tellsWhatCannotBeRead();
    void savesWhereTheUserSays();
    void savesUnderAnotherName();
    void refusesTheFileOfAnotherTab();
    void keepsTheTextThatCannotBeWritten();
    void showsInTitlesWhatIsUnsaved();
    void asksBeforeATabWithChangesGoes_data();
    void asksBeforeATabWithChangesGoes();
    void closesAnEmptiedDocumentUnasked();
    void closesWithItsLastTab();
    void stopsClosingAtTheFirstRefusal();
    void staysWhileAProgramRuns();
    void asksBeforeItReplacesAChangedFile();
    void reloadsAChangedFileSoThatItCanBeUndone();
    void restoresARecoveryCopy();
    void asksBeforeARestoredTextReplacesANewerFile_data();
    void asksBeforeARestoredTextReplacesANewerFile();
    void keepsACopyUntilTheTextIsSafe();
    void keepsACopyOfWhatTheFileHasLost_data();
    void keepsACopyOfWhatTheFileHasLost();
    void asksTheOtherWindows();

private:
    Editor& editor() const { return *window_->currentEditor(); }
    QTabWidget& tabs() const { return ProgramFixture::tabs(*window_); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const {
        QTest::keyClick(&editor(), key, modifiers);
    }
    QMdiSubWindow* frame() const { return qobject_cast<QMdiSubWindow*>(window_->parentWidget()); }
    QString tabTexts() const;

    std::unique_ptr<ProgramFixture> fixture_;
    QPointer<ProcessProgramSPC> window_;
};

void TestProgramFiles::init() {
    fixture_->messages.clear();
    fixture_->answers.clear();
    window_ = &fixture_->show<ProcessProgramSPC>();
}

QString TestProgramFiles::tabTexts() const {
    QStringList texts;
    for (int index = 0; index < tabs().count(); ++index)
        texts += tabs().tabText(index);
    return texts.join('|');
}

void TestProgramFiles::namesNewDocuments() {
    press(Qt::Key_N);
    press(Qt::Key_N);
    QCOMPARE(tabTexts(), QString("Untitled document|Untitled document 1|Untitled document 2"));
    QCOMPARE(tabs().currentIndex(), 2);
    QCOMPARE(window_->windowTitle(), QString("Untitled document 2 - KelX"));
    QTRY_VERIFY(editor().hasFocus());
}

void TestProgramFiles::opensIntoAFreshTab() {
    const QString one = fixture_->write("one.spc", "freq PERSON.SEX // \xc3\xa9t\xc3\xa9\r\n");
    const QString two = fixture_->write("two.spc", "freq PERSON.AGE");
    KelvoraFileDialog::answerNext(one);
    press(Qt::Key_O);
    QCOMPARE(tabTexts(), QString("one.spc"));
    QCOMPARE(editor().toPlainText(), QString::fromUtf8("freq PERSON.SEX // \xc3\xa9t\xc3\xa9\n"));
    QVERIFY(!editor().document()->isModified());
    QCOMPARE(tabs().tabToolTip(0), QDir::toNativeSeparators(one));
    QCOMPARE(KelSystem::instance().directoryFor("PROGRAM"), fixture_->folder());

    KelvoraFileDialog::answerNext(two);
    press(Qt::Key_O);
    QCOMPARE(tabTexts(), QString("one.spc|two.spc"));
    QCOMPARE(editor().toPlainText(), QString("freq PERSON.AGE"));

    KelvoraFileDialog::answerNext(QString());
    press(Qt::Key_O);
    QCOMPARE(tabTexts(), QString("one.spc|two.spc"));
    QCOMPARE(fixture_->messages, QStringList());
}

void TestProgramFiles::opensAtOnceWhatTheWindowIsMadeFor() {
    const QString path = fixture_->write("made.spc", "freq PERSON.SEX");
    auto& made = fixture_->show<ProcessProgramSPC>(path);
    QVERIFY(made.hasFile(path));
    QCOMPARE(made.currentEditor()->toPlainText(), QString("freq PERSON.SEX"));
    QTest::keyClick(made.currentEditor(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(ProgramFixture::tabs(made).tabText(1), QString("Untitled document"));

    // What cannot be read leaves a new document.
    auto& failed = fixture_->show<ProcessProgramSPC>(fixture_->path("none.spc"));
    QCOMPARE(fixture_->messages.size(), 1);
    QCOMPARE(ProgramFixture::tabs(failed).tabText(0), QString("Untitled document"));
}

void TestProgramFiles::goesToTheTabOfAFileThatIsOpen() {
    const QString path = fixture_->write("one.spc", "freq PERSON.SEX");
    QVERIFY(window_->openFile(path));
    Editor* opened = &editor();
    press(Qt::Key_N);
    QVERIFY(window_->openFile(fixture_->folder() + "/./one.spc"));
    QCOMPARE(tabs().count(), 2);
    QCOMPARE(&editor(), opened);
}

void TestProgramFiles::tellsWhatCannotBeRead() {
    const QString bytes = fixture_->write("bytes.spc", "freq \xff\xfe PERSON");
    for (const QString& path : {fixture_->path("missing.spc"), fixture_->folder(), bytes}) {
        fixture_->messages.clear();
        QVERIFY(!window_->openFile(path));
        QCOMPARE(fixture_->messages.size(), 1);
        QVERIFY2(fixture_->messages[0].startsWith("Cannot save file: "),
                 qPrintable(fixture_->messages[0]));
    }
    QCOMPARE(tabTexts(), QString("Untitled document"));
    QVERIFY(editor().toPlainText().isEmpty());
}

void TestProgramFiles::savesWhereTheUserSays() {
    const QString path = fixture_->path("typed.spc");
    ProgramFixture::type(editor(), "freq PERSON.SEX");
    KelvoraFileDialog::answerNext(QString());
    press(Qt::Key_S);
    QVERIFY(editor().document()->isModified());
    QVERIFY(!QFile::exists(path));

    // A name without its ending gets it.
    KelvoraFileDialog::answerNext(fixture_->path("typed"));
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), QByteArray("freq PERSON.SEX"));
    QVERIFY(!editor().document()->isModified());
    QCOMPARE(tabTexts(), QString("typed.spc"));
    QCOMPARE(window_->statusBar()->currentMessage(), QString("Document saved"));

    ProgramFixture::type(editor(), "\n");
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), QByteArray("freq PERSON.SEX\n"));
    QCOMPARE(fixture_->messages, QStringList());
}

void TestProgramFiles::savesUnderAnotherName() {
    const QString first = fixture_->write("first.spc", "freq PERSON.SEX");
    window_->openFile(first);
    editor().selectAll();
    ProgramFixture::type(editor(), "f");
    KelvoraFileDialog::answerNext(fixture_->path("second.spc"));
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(ProgramFixture::read(first), QByteArray("freq PERSON.SEX"));
    QCOMPARE(ProgramFixture::read(fixture_->path("second.spc")), QByteArray("f"));
    QVERIFY(window_->hasFile(fixture_->path("second.spc")));
    QVERIFY(!window_->hasFile(first));
}

void TestProgramFiles::refusesTheFileOfAnotherTab() {
    const QString path = fixture_->write("one.spc", "freq PERSON.SEX");
    window_->openFile(path);
    press(Qt::Key_N);
    ProgramFixture::type(editor(), "x");
    KelvoraFileDialog::answerNext(path);
    press(Qt::Key_S);
    QCOMPARE(fixture_->messages.size(), 1);
    QVERIFY(editor().document()->isModified());
    QCOMPARE(ProgramFixture::read(path), QByteArray("freq PERSON.SEX"));
}

void TestProgramFiles::keepsTheTextThatCannotBeWritten() {
    const QString folder = fixture_->path("gone");
    QDir().mkpath(folder);
    ProgramFixture::type(editor(), "freq PERSON.SEX");
    KelvoraFileDialog::answerNext(folder + "/a.spc");
    QDir(folder).removeRecursively();
    press(Qt::Key_S);
    QCOMPARE(fixture_->messages.size(), 1);
    QVERIFY(fixture_->messages[0].startsWith("Cannot save file: "));
    QVERIFY(!editor().document()->isModified());

    // Answering Yes while that goes on keeps the tab.
    ProgramFixture::type(editor(), " ");
    fixture_->answers = {Choice::Yes};
    press(Qt::Key_W);
    QCOMPARE(tabs().count(), 1);
    QCOMPARE(editor().toPlainText(), QString("freq PERSON.SEX "));

    QDir().mkpath(folder);
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(folder + "/a.spc"), QByteArray("freq PERSON.SEX "));
}

void TestProgramFiles::showsInTitlesWhatIsUnsaved() {
    ProgramFixture::type(editor(), "f");
    QCOMPARE(tabTexts(), QString("Untitled document *"));
    QCOMPARE(window_->windowTitle(), QString("Untitled document [Unsaved] - KelX"));
    QVERIFY(window_->isWindowModified());
    press(Qt::Key_N);
    QVERIFY(window_->isWindowModified());
    tabs().setCurrentIndex(0);
    press(Qt::Key_Z);
    QCOMPARE(tabTexts(), QString("Untitled document|Untitled document 1"));
    QVERIFY(!window_->isWindowModified());

    const QString long_ = QString("a_folder_with_a_name_of_some_length/").repeated(6);
    QDir(fixture_->folder()).mkpath(long_);
    const QString path = fixture_->write(long_ + "deep.spc", "x");
    window_->openFile(path);
    QVERIFY2(window_->windowTitle().contains("...") &&
                 window_->windowTitle().endsWith("deep.spc - KelX"),
             qPrintable(window_->windowTitle()));
    QCOMPARE(tabs().tabToolTip(tabs().currentIndex()), QDir::toNativeSeparators(path));
}

void TestProgramFiles::asksBeforeATabWithChangesGoes_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("tabsLeft");
    QTest::addColumn<int>("told");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("yes") << int(Choice::Yes) << 1 << 1 << QByteArray("xfreq");
    QTest::newRow("no") << int(Choice::No) << 1 << 0 << QByteArray("freq");
    QTest::newRow("cancel") << int(Choice::Cancel) << 2 << 0 << QByteArray("freq");
}

void TestProgramFiles::asksBeforeATabWithChangesGoes() {
    QFETCH(int, answer);
    const QString path = fixture_->write("asked.spc", "freq");
    ProgramFixture::type(editor(), "other");
    window_->openFile(path);
    ProgramFixture::type(editor(), "x");
    const QSignalSpy told(window_, &ProcessProgramSPC::savedTabToClose);
    fixture_->answers = {static_cast<Choice>(answer)};
    press(Qt::Key_W);
    QCOMPARE(fixture_->messages, QStringList("Do you want to save the changes to asked.spc?"));
    QTEST(tabs().count(), "tabsLeft");
    QTEST(int(told.count()), "told");
    QTEST(ProgramFixture::read(path), "file");
    if (told.count() == 1)
        QCOMPARE(told.first().first().toString(), path);
}

void TestProgramFiles::closesAnEmptiedDocumentUnasked() {
    press(Qt::Key_N);
    ProgramFixture::type(editor(), "x");
    QTest::keyClick(&editor(), Qt::Key_Backspace);
    ProgramFixture::type(editor(), "y");
    press(Qt::Key_A);
    QTest::keyClick(&editor(), Qt::Key_Delete);
    QVERIFY(editor().document()->isModified());
    const QSignalSpy told(window_, &ProcessProgramSPC::savedTabToClose);
    press(Qt::Key_W);
    QCOMPARE(fixture_->messages, QStringList());
    QCOMPARE(told.count(), 0);
    QCOMPARE(tabs().count(), 1);
}

void TestProgramFiles::closesWithItsLastTab() {
    const QPointer<QMdiSubWindow> frame = this->frame();
    press(Qt::Key_N);
    // The tab that is closed need not be the one in front.
    ProgramFixture::type(editor(), "kept in front");
    QVERIFY(window_->closeTab(0));
    QCOMPARE(tabTexts(), QString("Untitled document 1 *"));
    fixture_->answers = {Choice::No};
    press(Qt::Key_W);
    QTRY_VERIFY(frame.isNull());
    QVERIFY(window_.isNull());
}

void TestProgramFiles::stopsClosingAtTheFirstRefusal() {
    ProgramFixture::type(editor(), "one");
    press(Qt::Key_N);
    ProgramFixture::type(editor(), "two");
    fixture_->answers = {Choice::No, Choice::Cancel};
    ProgramFixture::action(*window_, "actionExit")->trigger();
    QCOMPARE(fixture_->messages.size(), 2);
    QVERIFY(window_ != nullptr && window_->isVisible());
    QCOMPARE(tabTexts(), QString("Untitled document 1 *"));
    QCOMPARE(editor().toPlainText(), QString("two"));

    fixture_->answers = {Choice::No};
    const QPointer<QMdiSubWindow> frame = this->frame();
    frame->close();
    QTRY_VERIFY(frame.isNull());
}

void TestProgramFiles::staysWhileAProgramRuns() {
    press(Qt::Key_N);
    {
        const RunGuard guard;
        press(Qt::Key_W);
        QCOMPARE(tabs().count(), 2);
        QVERIFY(!frame()->close());
        QVERIFY(frame()->isVisible());
    }
    press(Qt::Key_W);
    QCOMPARE(tabs().count(), 1);
}

void TestProgramFiles::asksBeforeItReplacesAChangedFile() {
    const QString path = fixture_->write("shared.spc", "freq PERSON.SEX");
    window_->openFile(path);
    ProgramFixture::type(editor(), "x");
    fixture_->write("shared.spc", "freq PERSON.AGE");
    press(Qt::Key_S);
    QCOMPARE(fixture_->messages.size(), 1);
    QCOMPARE(ProgramFixture::read(path), QByteArray("freq PERSON.AGE"));
    QVERIFY(editor().document()->isModified());

    fixture_->answers = {Choice::Yes};
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), QByteArray("xfreq PERSON.SEX"));
    fixture_->messages.clear();
    press(Qt::Key_S);
    QCOMPARE(fixture_->messages, QStringList());
}

void TestProgramFiles::reloadsAChangedFileSoThatItCanBeUndone() {
    const QString path = fixture_->write("shared.spc", "freq PERSON.SEX");
    window_->openFile(path);
    fixture_->answers = {Choice::Yes};
    fixture_->write("shared.spc", "freq PERSON.AGE");
    QTRY_COMPARE(editor().toPlainText(), QString("freq PERSON.AGE"));
    QCOMPARE(tabTexts(), QString("shared.spc"));
    QVERIFY(!window_->isWindowModified());
    press(Qt::Key_Z);
    QCOMPARE(editor().toPlainText(), QString("freq PERSON.SEX"));
    QCOMPARE(tabTexts(), QString("shared.spc *"));
}

void TestProgramFiles::restoresARecoveryCopy() {
    RecoveryStore& store = RecoveryStore::instance();
    const QString path = fixture_->write("rescued.spc", "old");
    const QDateTime later = QDateTime::currentDateTimeUtc().addSecs(60);
    window_->restore({store.newId(), path, "rescued.spc", false, later, "rescued"});
    window_->restore({store.newId(), {}, "Untitled document 7", false, {}, "draft"});
    QCOMPARE(tabTexts(), QString("rescued.spc *|Untitled document 7 *"));
    QVERIFY(window_->isWindowModified());
    tabs().setCurrentIndex(0);
    QCOMPARE(editor().toPlainText(), QString("rescued"));
    QCOMPARE(ProgramFixture::read(path), QByteArray("old"));
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), QByteArray("rescued"));
    QCOMPARE(tabTexts(), QString("rescued.spc|Untitled document 7 *"));
}

void TestProgramFiles::asksBeforeARestoredTextReplacesANewerFile_data() {
    QTest::addColumn<int>("writtenLater"); // the copy, in seconds
    QTest::addColumn<QByteArray>("basis");
    QTest::addColumn<bool>("asks");
    const QByteArray theirs = fingerprintOf("theirs");
    QTest::newRow("the file is newer") << -3600 << QByteArray() << true;
    QTest::newRow("the copy is newer") << 3600 << QByteArray() << false;
    QTest::newRow("changed while it was typed") << 3600 << fingerprintOf("base") << true;
    QTest::newRow("only touched since") << -3600 << theirs << false;
}

void TestProgramFiles::asksBeforeARestoredTextReplacesANewerFile() {
    QFETCH(int, writtenLater);
    QFETCH(QByteArray, basis);
    QFETCH(bool, asks);
    const QString path = fixture_->write("newer.spc", "theirs");
    const QDateTime written = QDateTime::currentDateTimeUtc().addSecs(writtenLater);
    window_->restore(
        {RecoveryStore::instance().newId(), path, "newer.spc", false, written, "rescued", basis});
    press(Qt::Key_S);
    if (asks) {
        QCOMPARE(fixture_->messages.size(), 1);
        QVERIFY(fixture_->messages[0].contains("since it was read here"));
        QCOMPARE(ProgramFixture::read(path), QByteArray("theirs"));
        QVERIFY(editor().document()->isModified());
        fixture_->messages.clear();
        fixture_->answers = {Choice::Yes};
        press(Qt::Key_S);
        fixture_->messages.clear();
    }
    QCOMPARE(ProgramFixture::read(path), QByteArray("rescued"));
    ProgramFixture::type(editor(), "x");
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), QByteArray("xrescued"));
    QCOMPARE(fixture_->messages, QStringList());
}

void TestProgramFiles::keepsACopyOfWhatTheFileHasLost_data() {
    QTest::addColumn<bool>("removed");
    QTest::newRow("removed") << true;
    QTest::newRow("kept after a change") << false;
}

void TestProgramFiles::keepsACopyOfWhatTheFileHasLost() {
    QFETCH(bool, removed);
    const QString text = removed ? "freq removed" : "freq replaced";
    const auto copies = [&text] { return ProgramFixture::recoveryTexts().filter(text).size(); };
    const QString path = fixture_->write("lost.spc", text.toUtf8());
    window_->openFile(path);
    if (removed)
        QFile::remove(path);
    else
        fixture_->write("lost.spc", "theirs");
    QTRY_COMPARE(fixture_->messages.size(), 1); // which keeps the text
    QTRY_COMPARE_WITH_TIMEOUT(copies(), 1, 20000);
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(path), text.toUtf8());
    QTRY_COMPARE(copies(), 0);
}

void TestProgramFiles::asksTheOtherWindows() {
    const QString theirs = fixture_->write("theirs.spc", "freq PERSON.AGE");
    const QString mine = fixture_->write("mine.spc", "freq PERSON.SEX");
    QStringList shown;
    window_->setOtherWindows({[&](const QString& path) { return path == theirs; },
                              [&](const QString& path) {
                                  shown += path;
                                  return path == theirs;
                              }});
    KelvoraFileDialog::answerNext(theirs);
    press(Qt::Key_O);
    QCOMPARE(shown, QStringList(theirs));
    QCOMPARE(tabTexts(), QString("Untitled document"));
    KelvoraFileDialog::answerNext(mine);
    press(Qt::Key_O);
    QCOMPARE(tabTexts(), QString("mine.spc"));

    ProgramFixture::type(editor(), "x");
    KelvoraFileDialog::answerNext(theirs);
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture_->messages, QStringList("The file theirs.spc is open in another window."));
    QCOMPARE(ProgramFixture::read(theirs), QByteArray("freq PERSON.AGE"));
    QVERIFY(editor().document()->isModified());
    press(Qt::Key_S);
    QCOMPARE(ProgramFixture::read(mine), QByteArray("xfreq PERSON.SEX"));
}

void TestProgramFiles::keepsACopyUntilTheTextIsSafe() {
    const auto copies = [](const char* text) {
        return ProgramFixture::recoveryTexts().filter(text).size();
    };
    for (const char* text : {"refused", "written", "failing"}) {
        press(Qt::Key_N);
        editor().insertPlainText(text);
        QTRY_COMPARE_WITH_TIMEOUT(copies(text), 1, 20000);
    }
    const QString folder = fixture_->path("away");
    QDir().mkpath(folder);
    KelvoraFileDialog::answerNext(folder + "/failing.spc");
    QDir(folder).removeRecursively();
    press(Qt::Key_S);
    press(Qt::Key_W);
    QCOMPARE(tabs().count(), 3);
    QCOMPARE(copies("failing"), 1);

    KelvoraFileDialog::answerNext(fixture_->path("written.spc"));
    press(Qt::Key_S);
    QTRY_COMPARE(copies("written"), 0);
    press(Qt::Key_W);
    fixture_->answers = {Choice::No};
    press(Qt::Key_W);
    QTRY_COMPARE(copies("refused"), 0);
    QCOMPARE(copies("failing"), 1);
}

QTEST_MAIN(TestProgramFiles)
#include "tst_programfiles.moc"
