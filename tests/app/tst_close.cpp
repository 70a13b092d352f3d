// SPDX-License-Identifier: GPL-3.0-or-later
#include "EngineCalls.h"
#include "app/MainWindow.h"
#include "app/messages/Messages.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QTemporaryDir>
#include <QTest>

class TestClose : public QObject {
    Q_OBJECT

private slots:
    void closingWithNothingOpenAsksNothing() {
        kel::init(std::make_shared<TKelConfigImpl>());
        int messages = 0;
        answerMessages([&](MessageKind, const QString&) {
            ++messages;
            return Choice::Yes;
        });
        {
            MainWindow window;
            QCOMPARE(MainWindow::instance(), &window);
            window.show();
            QVERIFY(window.close());
            QVERIFY(!window.isVisible());
            QCOMPARE(destroyCalls(), 1);
            window.close();
        }
        QCOMPARE(destroyCalls(), 1);
        QCOMPARE(messages, 0);
    }

    void closingWhileThePasswordIsAskedEndsBoth() {
        kel::init(std::make_shared<TKelConfigImpl>());
        UIInvoker::instance();
        const QTemporaryDir folder;
        writeSmallDatabase(folder.path(), "s3cret");
        const int before = destroyCalls();
        MainWindow window;
        window.show();
        window.openFile(folder.filePath("small.kxdb"), "kxdb");
        answerNextDialog([&window](QDialog&) { window.close(); });
        QTRY_COMPARE(destroyCalls(), before + 1);
        QVERIFY(!window.isVisible());
        QVERIFY(!UIInvoker::instance().isAsking());
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    // After the case above: questions stay refused for the rest of the process.
    void closingDuringALoadEndsIt() {
        kel::init(std::make_shared<TKelConfigImpl>());
        const QTemporaryDir folder;
        writeSmallDatabase(folder.path(), "s3cret");
        const int before = destroyCalls();
        MainWindow window;
        window.show();
        window.openFile(folder.filePath("small.kxdb"), "kxdb");
        QVERIFY(window.isLoading());
        window.close();               // before the thread's question can be asked
        QVERIFY(!window.isVisible()); // at once, the rest follows
        QTRY_COMPARE(destroyCalls(), before + 1);
        QVERIFY(!window.isLoading());
        QVERIFY(!TfrmProject::instance().isOpen());
    }
};

QTEST_MAIN(TestClose)
#include "tst_close.moc"
