// SPDX-License-Identifier: GPL-3.0-or-later
// The update check against tools that a shell script plays.
#include "app/messages/Messages.h"
#include "preferences/QUpdater.h"
#include "support/ModalAnswer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class TestUpdater : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QStringList questions_;
    Choice answer_ = Choice::No;

    /// The script notes its arguments in the file "calls" beside it.
    QString makeTool(const QByteArray& onCheck) const {
        QFile file(folder_.filePath("maintenancetool"));
        QFile::remove(folder_.filePath("calls"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return {};
        file.write("#!/bin/sh\necho \"$@\" >> calls\n[ \"$1\" = check-updates ] || exit 0\n" +
                   onCheck + "\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    QByteArray calls() const {
        QFile file(folder_.filePath("calls"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init() {
        questions_.clear();
        answer_ = Choice::No;
        answerMessages([this](MessageKind, const QString& text) {
            questions_ += text;
            return answer_;
        });
    }
    void cleanup() { answerMessages({}); }

    void onlyTheWordAsks_data() {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<bool>("asks");
        QTest::newRow("an update") << QByteArray("echo '<updates><update/></updates>'") << true;
        QTest::newRow("the word in two pieces")
            << QByteArray("printf '<upd'; sleep 0.2; printf 'ates>'") << true;
        QTest::newRow("an update with a status of failure")
            << QByteArray("echo '<updates>'; exit 1") << true;
        QTest::newRow("nothing new") << QByteArray("echo 'There are no updates.'") << false;
        QTest::newRow("silence") << QByteArray("exit 1") << false;
        QTest::newRow("the word among errors only") << QByteArray("echo '<updates>' >&2") << false;
        QTest::newRow("a crash") << QByteArray("echo '<updates>'; kill -9 $$") << false;
    }

    void onlyTheWordAsks() {
        QFETCH(QByteArray, script);
        QFETCH(bool, asks);
        QUpdater updater(makeTool(script));
        QSignalSpy checked(&updater, &QUpdater::checked);
        updater.start();
        updater.start(); // while it is asking
        QTRY_COMPARE(checked.size(), 1);
        QCOMPARE(checked.first().first().toBool(), asks);
        QCOMPARE(questions_.size(), asks ? 1 : 0);
        QCOMPARE(calls(), "check-updates\n");
    }

    void noToolIsSilence() {
        QVERIFY(makeTool("echo '<updates>'").endsWith("maintenancetool"));
        QVERIFY(QFile::setPermissions(folder_.filePath("maintenancetool"), QFile::ReadOwner));
        for (const QString& tool : {folder_.filePath("absent"), folder_.path(),
                                    folder_.filePath("maintenancetool"), QString()}) {
            QUpdater updater(tool);
            QSignalSpy checked(&updater, &QUpdater::checked);
            updater.start();
            QCoreApplication::processEvents();
            QCOMPARE(checked.size(), 0);
        }
        QCOMPARE(calls(), "");
    }

    void nothingOnTheSearchPathIsStarted() {
        const QByteArray path = qgetenv("PATH");
        makeTool("echo '<updates>'");
        qputenv("PATH", folder_.path().toLocal8Bit() + ':' + path);
        QUpdater updater;
        updater.start();
        QTest::qWait(0);
        qputenv("PATH", path);
        QVERIFY(QUpdater::installedTool().startsWith(QApplication::applicationDirPath() + '/'));
        QCOMPARE(calls(), "");
    }

    void yesStartsTheUpdaterAndQuits() {
        answer_ = Choice::Yes;
        QUpdater updater(makeTool("echo '<updates>'"));
        const int overdue = 99;
        QTimer guard;
        connect(&guard, &QTimer::timeout, &guard, [] { QApplication::exit(overdue); });
        guard.start(20000);
        updater.start();
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(questions_.size(), 1);
        QVERIFY(questions_.first().startsWith("<h3>New version has been released!</h3>"));
        QTRY_COMPARE(calls(), "check-updates\n--start-updater\n");
    }

    void newsWaitWhileTheProgramIsBusy() {
        bool busy = true;
        int asked = 0;
        QUpdater updater(makeTool("echo '<updates>'"));
        updater.setBusyTest([&] {
            ++asked;
            return busy;
        });
        updater.start();
        QTRY_COMPARE(asked, 2);
        QCOMPARE(questions_.size(), 0);
        busy = false;
        QTRY_COMPARE(questions_.size(), 1);
        QCOMPARE(calls(), "check-updates\n"); // the answer was No
    }

    void theQuestionIsRichAndYesIsItsDefault() {
        answerMessages({});
        QString seen;
        answerNextDialog([&seen](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            const bool told = box != nullptr && box->textFormat() == Qt::RichText &&
                              box->icon() == QMessageBox::Information &&
                              box->defaultButton() == box->button(QMessageBox::Yes) &&
                              box->escapeButton() == box->button(QMessageBox::No);
            seen = told ? box->informativeText() : QString("another box");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QUpdater updater(makeTool("echo '<updates>'"));
        updater.start();
        QTRY_COMPARE(seen, "Would you like to download the update now? Current application will "
                           "be close");
        QCOMPARE(calls(), "check-updates\n");
    }

    void goingWhileTheToolRunsEndsIt() {
        QElapsedTimer timer;
        {
            QUpdater updater(makeTool("exec sleep 60"));
            updater.start();
            QTRY_COMPARE(calls(), "check-updates\n");
            timer.start();
        }
        QVERIFY(timer.elapsed() < 10000);
    }
};

QTEST_MAIN(TestUpdater)
#include "tst_updater.moc"
