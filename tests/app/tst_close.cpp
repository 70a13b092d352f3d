// SPDX-License-Identifier: GPL-3.0-or-later
#include "EngineCalls.h"
#include "app/MainWindow.h"
#include "app/dialogs/Messages.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"

#include <QTest>

class TestClose : public QObject {
    Q_OBJECT

private slots:
    void closingWithNothingOpenAsksNothing() {
        kel::init(std::make_shared<TKelConfigImpl>());
        int messages = 0;
        answerMessages([&](MessageKind, const QString&) { return ++messages > 0; });
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
};

QTEST_MAIN(TestClose)
#include "tst_close.moc"
