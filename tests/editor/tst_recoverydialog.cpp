// SPDX-License-Identifier: GPL-3.0-or-later
// The offer of unsaved texts at the start, answered as a user does.
#include "RecoveryFolder.h"
#include "app/messages/Messages.h"
#include "editor/files/RecoveryDialog.h"
#include "editor/files/RecoveryRow.h"
#include "editor/files/TextFile.h"
#include "support/ModalAnswer.h"

#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

class TestRecoveryDialog : public QObject {
    Q_OBJECT

    static QTreeWidget* listOf(const QDialog& dialog) {
        return dialog.findChild<QTreeWidget*>("recoveryList");
    }
    static QTreeWidgetItem* rowOf(const QDialog& dialog, const QString& program) {
        return listOf(dialog)->findItems(program, Qt::MatchExactly).value(0);
    }
    static void click(const QDialog& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    /// By the keyboard.
    static void tick(const QDialog& dialog, const QString& program) {
        QTreeWidget* list = listOf(dialog);
        list->setCurrentItem(rowOf(dialog, program));
        QTest::keyClick(list, Qt::Key_Space);
    }
    static QStringList namesOf(const QList<RecoveryCopy>& copies) {
        QStringList names;
        for (const RecoveryCopy& copy : copies)
            names += copy.name;
        return names;
    }

private slots:
    void cleanup() { answerMessages({}); }

    void nothingIsShownWithoutCopies() {
        const RecoveryFolder folder;
        RecoveryStore store(folder.path());
        QVERIFY(RecoveryDialog::ask(store, nullptr).isEmpty());
    }

    void rowsTellWhatTheUserMustKnow() {
        const RecoveryFolder folder;
        const QDateTime past = QDateTime::currentDateTimeUtc().addDays(-1);
        const QString other = folder.write("changed.spc", "by another hand");
        const QString same = folder.write("same.spc", "freq a\r\n");
        folder.leaveBehind("mine", other, "changed.spc", past);
        folder.leaveBehind("later", other, "older.spc", past.addDays(2));
        folder.leaveBehind("freq a\n", same, "same.spc", past);
        folder.leaveBehind("gone", folder.file("gone.spc"), "gone.spc", past);
        folder.leaveBehind("x", folder.path(), "folder.spc", past);
        folder.leaveBehind("\n\n  freq   PERSON.SEX\nby", {}, "Untitled document", past);
        RecoveryStore store(folder.path());
        const RecoveryDialog dialog(store, store.abandoned());
        const auto state = [&dialog](const QString& program) {
            return rowOf(dialog, program)->text(3);
        };
        QCOMPARE(state("changed.spc"), "Differs; the file was changed later");
        QCOMPARE(state("older.spc"), "Differs from the file");
        QCOMPARE(state("same.spc"), "The file holds the same text");
        QCOMPARE(state("gone.spc"), "The file is no longer there");
        QCOMPARE(state("folder.spc"), "The file cannot be read");
        QCOMPARE(state("Untitled document"), "Was never saved");
        QCOMPARE(rowOf(dialog, "Untitled document")->text(1), "freq PERSON.SEX");
        const QStringList ticked = namesOf(dialog.chosen());
        QVERIFY(!ticked.contains("same.spc"));
        QVERIFY2(!ticked.contains("changed.spc"), "Enter would open an old text over a newer one");
        QCOMPARE(ticked.size(), 4);
    }

    /// Times tell nothing where a file was changed while its text was being typed, or only touched.
    void whatTheTextStemsFromTellsMoreThanTimes() {
        const RecoveryFolder folder;
        const QString file = folder.write("a.spc", "theirs");
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const QByteArray held = readTextFile(file).fingerprint;
        QCOMPARE(originOf({"1", file, "a", false, now.addDays(1), "mine", "another"}),
                 RecoveryOrigin::Newer);
        QCOMPARE(originOf({"1", file, "a", false, now.addDays(-1), "mine", held}),
                 RecoveryOrigin::Older);
        QCOMPARE(originOf({"1", file, "a", false, now.addDays(-1), "theirs", "another"}),
                 RecoveryOrigin::Same);
    }

    void rowsAreReadAndTheDialogIsNoWider() {
        const RecoveryFolder folder;
        folder.leaveBehind("x");
        const QString text = "freq PERSON.AGE by HOUSEHOLD.ROOMS";
        RecoveryStore store(folder.path());
        RecoveryDialog narrow(store, store.abandoned());
        narrow.show();
        folder.leaveBehind("\n  \n" + text + "\nfreq", {}, "b");
        RecoveryDialog wide(store, store.abandoned());
        wide.show();
        QTreeWidgetItem* row = rowOf(wide, "b");
        QCOMPARE(row->text(1), text);
        const QTreeWidget& list = *listOf(wide);
        QVERIFY(list.columnWidth(1) > list.fontMetrics().horizontalAdvance(text));
        QVERIFY(!list.horizontalScrollBar()->isVisible());
        QVERIFY2(narrow.width() < wide.width(), qPrintable(QString::number(narrow.width())));
        const QString deep = folder.file(QString("a_long_folder/").repeated(20) + "c.spc");
        folder.leaveBehind("define PERSON.AGEGROUP as recode(PERSON.AGE, 0-14 = 1, 15-64 = 2)",
                           deep, "c.spc");
        RecoveryDialog full(store, store.abandoned());
        full.show();
        QVERIFY(full.width() <= full.screen()->availableGeometry().width());
        QVERIFY(list.columnWidth(1) > list.fontMetrics().horizontalAdvance(text));
    }

    void theTickedOnesAreRestoredAndTheOthersStay() {
        const RecoveryFolder folder;
        const QString file = folder.write("a.spc", "saved");
        folder.leaveBehind("one", file, "a.spc");
        folder.leaveBehind("two", {}, "b");
        {
            RecoveryStore store(folder.path());
            answerNextDialog([](QDialog& dialog) {
                tick(dialog, "b");
                click(dialog, "restoreButton");
            });
            const QList<RecoveryCopy> restored = RecoveryDialog::ask(store, nullptr);
            QCOMPARE(namesOf(restored), QStringList("a.spc"));
            QCOMPARE(restored[0].text, "one");
        }
        QCOMPARE(RecoveryFolder::read(file), "saved");
        RecoveryStore store(folder.path());
        QCOMPARE(namesOf(store.abandoned()), QStringList({"a.spc", "b"}));
    }

    void discardingAsksFirst() {
        const RecoveryFolder folder;
        folder.leaveBehind("one", {}, "a");
        folder.leaveBehind("two", {}, "b");
        RecoveryStore store(folder.path());
        QStringList questions;
        Choice choice = Choice::No;
        answerMessages([&](MessageKind, const QString& text) {
            questions += text;
            return choice;
        });
        answerNextDialog([&](QDialog& dialog) {
            tick(dialog, "b");
            click(dialog, "discardButton");
            QCOMPARE(listOf(dialog)->topLevelItemCount(), 2);
            choice = Choice::Yes;
            click(dialog, "discardButton");
            QCOMPARE(listOf(dialog)->topLevelItemCount(), 1);
            QVERIFY(!dialog.findChild<QPushButton*>("restoreButton")->isEnabled());
            tick(dialog, "b");
            click(dialog, "restoreButton");
        });
        QCOMPARE(namesOf(RecoveryDialog::ask(store, nullptr)), QStringList("b"));
        QCOMPARE(questions.size(), 2);
        QCOMPARE(namesOf(store.abandoned()), QStringList("b"));
    }

    void discardingAllEndsTheDialog() {
        const RecoveryFolder folder;
        folder.leaveBehind("one");
        RecoveryStore store(folder.path());
        answerMessages([](MessageKind, const QString&) { return Choice::Yes; });
        answerNextDialog([](QDialog& dialog) { click(dialog, "discardButton"); });
        QVERIFY(RecoveryDialog::ask(store, nullptr).isEmpty());
        QVERIFY(store.abandoned().isEmpty());
    }

    void laterAndEscapeLoseNothing_data() {
        QTest::addColumn<bool>("escape");
        QTest::newRow("Later") << false;
        QTest::newRow("Escape") << true;
    }

    void laterAndEscapeLoseNothing() {
        QFETCH(bool, escape);
        const RecoveryFolder folder;
        folder.leaveBehind("one");
        RecoveryStore store(folder.path());
        answerNextDialog([escape](QDialog& dialog) {
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                click(dialog, "laterButton");
        });
        QVERIFY(RecoveryDialog::ask(store, nullptr).isEmpty());
        QCOMPARE(store.abandoned().size(), 1);
    }
};

QTEST_MAIN(TestRecoveryDialog)
#include "tst_recoverydialog.moc"
