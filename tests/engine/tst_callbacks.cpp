// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/SpcMessage.h"
#include "engine/TKelConfigImpl.h"
#include "engine/TKelSpcErrorsListenerImpl.h"
#include "engine/TKelUIProviderImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>

namespace {

/// What a question gave: its answer, or the text that it threw.
QString outcome(const std::function<std::string()>& question) {
    try {
        return QString::fromStdString(question());
    } catch (const std::runtime_error& refusal) {
        return QStringLiteral("threw ") + refusal.what();
    }
}

QString outcomeOnWorker(const std::function<std::string()>& question) {
    QString result;
    const std::unique_ptr<QThread> worker(QThread::create([&] { result = outcome(question); }));
    worker->start();
    [&] { QTRY_VERIFY_WITH_TIMEOUT(worker->isFinished(), 20000); }();
    worker->wait();
    return result;
}

void type(QDialog& dialog, const QString& password) {
    auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("password"));
    QTest::keyClicks(line, password);
    QTest::keyClick(line, Qt::Key_Return);
}

std::string password() {
    return TKelUIProviderImpl().promptPassword("census");
}

std::string dataFolder() {
    return TKelUIProviderImpl().pickDataDir("census");
}

} // namespace

class TestCallbacks : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { UIInvoker::instance(); }

    void configurationAnswersItsConstants() {
        TKelConfigImpl config;
        QCOMPARE(config.engineCode(), "RR4");
        QCOMPARE(config.stopAtWarnings(), false);
        QCOMPARE(config.pluginFolder(), "plugins");
        QCOMPARE(config.autoWeight(), true);
        QCOMPARE(config.defaultQuantiles(), 10);
        QCOMPARE(config.showProgress(), true);
        QCOMPARE(config.workFolder(), "");
        QCOMPARE(config.memoryLimit(), 100);
        QCOMPARE(config.sensitiveByDefault(), false);
        QCOMPARE(config.strictTypes(), false);
        QVERIFY(config.uiProvider());
        QCOMPARE(config.uiProvider(), config.uiProvider());
    }

    void listenerKeepsErrorsAndWarningsApart() {
        TKelSpcErrorsListenerImpl listener;
        QVERIFY(!listener.hasErrors() && !listener.hasWarnings());
        listener.warning(eSpcWarnings(1), "careful", 4, 2);
        QVERIFY(!listener.hasErrors());
        QVERIFY(listener.hasWarnings());
        listener.error(eSpcErrors(1), "first", 7, 3);
        listener.error(eSpcErrors(2), "second", 8, 1);
        QCOMPARE(listener.errors().size(), size_t(2));
        QCOMPARE(listener.errors()[1].text, "second");
        QCOMPARE(listener.errors()[0].line, std::int64_t(7));
        QCOMPARE(listener.errors()[0].column, std::int64_t(3));
        QCOMPARE(listener.warnings()[0].code, 1);
        QCOMPARE(listener.lines().size(), 3);
        QVERIFY(listener.lines().at(0).startsWith("7: "));
        QVERIFY(listener.lines(10).at(2).startsWith("14: "));
        listener.clear();
        QVERIFY(!listener.hasErrors() && !listener.hasWarnings());
        listener.error(eSpcErrors(1), "again", 1, 1);
        QVERIFY(listener.hasErrors());
    }

    void messageIsLineNameAndText() {
        const SpcMessage message{1, 12, 3, QStringLiteral("año").toLocal8Bit().toStdString()};
        const QString error = QString::fromStdString(kel::errorCodeName(eSpcErrors(1)));
        const QString warning = QString::fromStdString(kel::warningCodeName(eSpcWarnings(1)));
        QVERIFY(error != warning);
        QCOMPARE(formatSpcMessage(message, SpcMessageKind::Error), "12: " + error + " año");
        QCOMPARE(formatSpcMessage(message, SpcMessageKind::Warning), "12: " + warning + " año");
        QCOMPARE(formatSpcMessage(message, SpcMessageKind::Error, 30), "42: " + error + " año");
    }

    void refusedPasswordThrows() {
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        QCOMPARE(outcome(password), "threw Missing password.");
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        QCOMPARE(outcomeOnWorker(password), "threw Missing password.");
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void emptyPasswordIsMissing() {
        answerNextDialog([](QDialog& dialog) { type(dialog, QString()); });
        QCOMPARE(outcome(password), "threw Missing password.");
    }

    void typedPasswordIsAnswered() {
        answerNextDialog([](QDialog& dialog) { type(dialog, QStringLiteral("s3cret")); });
        QCOMPARE(outcome(password), "s3cret");
        answerNextDialog([](QDialog& dialog) { type(dialog, QStringLiteral("from afar")); });
        QCOMPARE(outcomeOnWorker(password), "from afar");
    }

    void eyeShowsThePassword() {
        answerNextDialog([](QDialog& dialog) {
            auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("password"));
            auto* eye = dialog.findChild<QAbstractButton*>(QStringLiteral("showPassword"));
            QCOMPARE(dialog.windowTitle(), "Dictionary password");
            QCOMPARE(line->placeholderText(), "Enter password...");
            QCOMPARE(line->echoMode(), QLineEdit::Password);
            QVERIFY(!eye->icon().isNull());
            QTest::mouseClick(eye, Qt::LeftButton);
            QCOMPARE(line->echoMode(), QLineEdit::Normal);
            QTest::mouseClick(eye, Qt::LeftButton);
            QCOMPARE(line->echoMode(), QLineEdit::Password);
            dialog.reject();
        });
        outcome(password);
    }

    void dataFolderIsAsked() {
        answerNextDialog([](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Select data folder to census");
            dialog.reject();
        });
        QCOMPARE(outcome(dataFolder), "threw Missing data location.");
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        QCOMPARE(outcomeOnWorker(dataFolder), "threw Missing data location.");

        const QTemporaryDir folder;
        answerNextDialog([&](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(folder.path());
            QTest::keyClick(name, Qt::Key_Return);
        });
        QCOMPARE(outcome(dataFolder), folder.path());
    }
};

QTEST_MAIN(TestCallbacks)
#include "tst_callbacks.moc"
