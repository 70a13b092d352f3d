// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TKelConfigImpl.h"
#include "engine/ThreadedWorker.h"
#include "kel.h"
#include "support/SmallDatabase.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <stdexcept>

class TestThreadedWorker : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    std::shared_ptr<TKelSession> session() const {
        return kel::makeDefaultSession(
            kel::readDictionary(folder_.filePath("small.kxdb").toStdString(), nullptr, true));
    }

    std::unique_ptr<QFile> file() const {
        return std::make_unique<QFile>(folder_.filePath("small.dicx"));
    }

private slots:
    void initTestCase() {
        kel::init(std::make_shared<TKelConfigImpl>());
        writeSmallDatabase(folder_.path());
    }

    void cleanupTestCase() { kel::destroy(); }

    void validatesOnceOnItsThread() {
        auto* worker = new ThreadedWorker;
        const Qt::HANDLE here = QThread::currentThreadId();
        bool away = false;
        worker->setValidation(
            [&](QIODevice* device, const QUrl& url) {
                away = QThread::currentThreadId() != here;
                return device->readAll().contains("kelDictionary_XML") &&
                       url.path() == folder_.filePath("small.dicx");
            },
            file());
        QThread thread;
        worker->moveToThread(&thread);
        QSignalSpy validated(worker, &ThreadedWorker::validated);
        connect(&thread, &QThread::started, worker, &ThreadedWorker::validateDictionary);
        connect(worker, &ThreadedWorker::validated, &thread, &QThread::quit);
        connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
        thread.start();
        QTRY_VERIFY(thread.isFinished());
        QCOMPARE(validated.size(), 1);
        QVERIFY(validated[0][0].toBool());
        QVERIFY(away);
    }

    void secondJobWaitsForQuit() {
        ThreadedWorker worker;
        worker.setValidation([](QIODevice*, const QUrl&) { return true; }, file());
        QSignalSpy validated(&worker, &ThreadedWorker::validated);
        worker.validateDictionary();
        worker.validateDictionary();
        QCOMPARE(validated.size(), 1);
        QVERIFY(worker.isRunning());
        worker.quit();
        worker.validateDictionary();
        QCOMPARE(validated.size(), 2);
        QVERIFY(validated[1][0].toBool());
    }

    void faultsOfAValidationAreTold() {
        ThreadedWorker worker;
        QSignalSpy validated(&worker, &ThreadedWorker::validated);
        QSignalSpy failed(&worker, qOverload<QString>(&ThreadedWorker::finishedError));
        worker.setValidation(
            [](QIODevice*, const QUrl&) -> bool { throw std::runtime_error("odd"); }, file());
        worker.validateDictionary();
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed[0][0].toString(), "odd");
        QVERIFY(validated.isEmpty());

        ThreadedWorker gone;
        QSignalSpy invalid(&gone, &ThreadedWorker::validated);
        gone.setValidation([](QIODevice*, const QUrl&) { return true; },
                           std::make_unique<QFile>(folder_.filePath("none.dicx")));
        gone.validateDictionary();
        QCOMPARE(invalid.size(), 1);
        QVERIFY(!invalid[0][0].toBool());
    }

    void programRunsToItsEnd() {
        ThreadedWorker worker;
        QSignalSpy percent(&worker, &ThreadedWorker::status);
        QSignalSpy finished(&worker, qOverload<>(&ThreadedWorker::finished));
        QSignalSpy failed(&worker, qOverload<QString>(&ThreadedWorker::finishedError));
        const auto run = session();
        worker.setProgram(run, "FREQ PERSON.SEX");
        worker.process();
        QCOMPARE(failed.size(), 0);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(percent.last()[0].toInt(), 100);
        QCOMPARE(run->outputs().size(), size_t(1));
    }

    void programThatFailsSaysWhy() {
        ThreadedWorker worker;
        QSignalSpy finished(&worker, qOverload<>(&ThreadedWorker::finished));
        QSignalSpy failed(&worker, qOverload<QString>(&ThreadedWorker::finishedError));
        worker.setProgram(session(), "FREQ PERSON.NOBODY");
        worker.process();
        QCOMPARE(finished.size(), 0);
        QCOMPARE(failed.size(), 1);
        QVERIFY(!failed[0][0].toString().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestThreadedWorker)
#include "tst_threadedworker.moc"
