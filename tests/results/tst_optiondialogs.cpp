// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of view options, driven by keys and clicks.
#include "results/options/ArealistViewOptionsDialog.h"
#include "results/options/FormatDialog.h"
#include "results/options/OrderDialog.h"
#include "results/tables/TableViewConfig.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <algorithm>
#include <stdexcept>

namespace {

const QStringList usual = TableViewConfig().columnOrder;

template <typename Control>
Control* control(const QDialog& dialog, const QString& name) {
    return dialog.findChild<Control*>(name);
}

QComboBox* combo(const QDialog& dialog, int row) {
    return control<QComboBox>(dialog, QStringLiteral("comboBox_%1").arg(row));
}

QCheckBox* check(const QDialog& dialog, int row) {
    return control<QCheckBox>(dialog, QStringLiteral("checkBox_%1").arg(row));
}

/// "Total+" shows and can be hidden, "NA-" is hidden, "Variables=" always shows.
QStringList rows(const QDialog& dialog) {
    QStringList texts;
    for (int row = 1; row <= 4; ++row) {
        const QCheckBox* box = check(dialog, row);
        const QString mark =
            box->isEnabled() ? (box->isChecked() ? "+" : "-") : (box->isChecked() ? "=" : "?");
        texts += combo(dialog, row)->currentText() + mark;
    }
    return texts;
}

void show(QDialog& dialog) {
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

void press(Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
}

void tabTo(const QWidget* wanted) {
    for (int tabs = 0; tabs < 20 && QApplication::focusWidget() != wanted; ++tabs)
        press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), wanted);
}

} // namespace

class TestOptionDialogs : public QObject {
    Q_OBJECT

private slots:
    void rowsOfACrosstab() {
        FormatDialog dialog(usual, true, false);
        show(dialog);
        QCOMPARE(dialog.windowTitle(), "View Options");
        QCOMPARE(dialog.findChild<QGroupBox*>()->title(), "Order");
        QCOMPARE(rows(dialog), QStringList({"Total=", "Variables=", "MV+", "NA-"}));
        QStringList offered;
        for (int i = 0; i < combo(dialog, 3)->count(); ++i)
            offered +=
                combo(dialog, 3)->itemText(i) + ' ' + combo(dialog, 3)->itemData(i).toString();
        QCOMPARE(offered,
                 QStringList({"Total __tot__", "Variables Variables", "NA __na__", "MV __mv__"}));
        QStringList labels;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            labels += label->text() + label->buddy()->objectName();
        QCOMPARE(labels,
                 QStringList({"#1comboBox_1", "#2comboBox_2", "#3comboBox_3", "#4comboBox_4"}));
    }

    void keysChooseAndCheckMarksFollowTheirGroup() {
        FormatDialog dialog(usual, false, false);
        show(dialog);
        tabTo(combo(dialog, 1));
        press(Qt::Key_End); // MV, which stood third
        QCOMPARE(rows(dialog), QStringList({"MV+", "Variables=", "Total=", "NA+"}));
        tabTo(check(dialog, 1));
        press(Qt::Key_Space);
        QCOMPARE(rows(dialog), QStringList({"MV-", "Variables=", "Total=", "NA+"}));
        tabTo(combo(dialog, 2));
        press(Qt::Key_End);
        QCOMPARE(rows(dialog), QStringList({"Variables=", "MV-", "Total=", "NA+"}));
        press(Qt::Key_Return);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(dialog.columnOrder(), QStringList({"Variables", "__mv__", "__tot__", "__na__"}));
        QVERIFY(dialog.hideMv() && !dialog.hideNa());
    }

    void placesStayAPermutation() {
        FormatDialog dialog(usual, false, true);
        unsigned state = 1;
        for (int step = 0; step < 500; ++step) {
            state = state * 1103515245U + 12345U;
            const int row = static_cast<int>((state >> 16) % 4) + 1;
            combo(dialog, row)->setCurrentIndex(static_cast<int>((state >> 20) % 4));
            QStringList order = dialog.columnOrder();
            for (int i = 1; i <= 4; ++i)
                QCOMPARE(combo(dialog, i)->currentData().toString(), order[i - 1]);
            std::sort(order.begin(), order.end());
            QCOMPARE(order, QStringList({"Variables", "__mv__", "__na__", "__tot__"}));
        }
        QVERIFY(dialog.hideMv() && !dialog.hideNa());
    }

    void ordersThatAreNoneAreCompleted() {
        const FormatDialog dialog({"__na__", "nonsense", "__na__", "Variables"}, false, false);
        QCOMPARE(dialog.columnOrder(), QStringList({"__na__", "Variables", "__tot__", "__mv__"}));
    }

    void areaListsHideTotalsAsWell() {
        ArealistViewOptionsDialog dialog({usual, false, true, true, false});
        show(dialog);
        QCOMPARE(dialog.windowTitle(), "View Options");
        QCOMPARE(dialog.findChild<QGroupBox*>()->title(), "Variables");
        QCOMPARE(rows(dialog), QStringList({"Total-", "Variables=", "MV-", "NA+"}));
        auto* totals = control<QCheckBox>(dialog, "checkBoxShowColumnsTotal");
        QCOMPARE(totals->text(), "Show Totals Row");
        QCOMPARE(totals->toolTip(), "Add a row with the sum of each column of whole numbers");
        for (QCheckBox* box : {check(dialog, 1), check(dialog, 4), totals}) {
            tabTo(box);
            press(Qt::Key_Space);
        }
        tabTo(combo(dialog, 4));
        press(Qt::Key_Home); // NA and Total change places
        QCOMPARE(rows(dialog), QStringList({"NA-", "Variables=", "MV-", "Total+"}));
        const ArealistViewOptionsDialog::Options options = dialog.options();
        QCOMPARE(options.columnOrder, QStringList({"__na__", "Variables", "__mv__", "__tot__"}));
        QVERIFY(options.hideNa && options.hideMv && !options.hideTotal && options.showTotalsRow);
        press(Qt::Key_Escape);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    }

    void orderOfRows() {
        for (const int order : {0, 1, 2})
            QCOMPARE(OrderDialog(order).order(), order);
        OrderDialog dialog(1);
        show(dialog);
        QCOMPARE(dialog.windowTitle(), "View Options");
        QCOMPARE(dialog.findChild<QGroupBox*>()->title(), "Order");
        QVERIFY(control<QRadioButton>(dialog, "radioButtonAscending")->isChecked());
        QVERIFY(control<QRadioButton>(dialog, "radioButtonAscending")->hasFocus());
        press(Qt::Key_Down);
        QCOMPARE(dialog.order(), 2);
        QVERIFY(control<QRadioButton>(dialog, "radioButtonDescending")->isChecked());
        QTest::mouseClick(control<QRadioButton>(dialog, "radioButtonDefault"), Qt::LeftButton, {},
                          QPoint(5, 5));
        QCOMPARE(dialog.order(), 0);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    }

    void ordersThatAreNoneAreRefused() {
        for (const int order : {-1, 3})
            try {
                const OrderDialog dialog(order);
                QFAIL("made with an order that is none");
            } catch (const std::invalid_argument& fault) {
                QCOMPARE(fault.what(), "Invalid order");
            }
    }
};

QTEST_MAIN(TestOptionDialogs)
#include "tst_optiondialogs.moc"
