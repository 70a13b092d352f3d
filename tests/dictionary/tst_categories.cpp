// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of categories and drafts, without a window.
#include "app/widgets/ClosableQDockedWidget.h"
#include "dictionary/properties/CategoryEdits.h"
#include "dictionary/properties/Documentation.h"
#include "dictionary/properties/TagText.h"
#include "dictionary/properties/VarValueLabelDiccionaryModel.h"
#include "dictionary/properties/VariableDraft.h"

#include <QAbstractItemModelTester>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using Categories::Fault;

class TestCategories : public QObject {
    Q_OBJECT

private slots:
    void textSurvivesTheClipboard() {
        const Categories::List list = {{" 01 ", "a\tb\nc "}, {"2", ""}, {"", "x"}};
        const QString text = Categories::toText(list);
        QCOMPARE(text, "01\ta b c\r\n2\t\r\n\tx\r\n");
        int ignored = -1;
        QCOMPARE(Categories::fromText(text, &ignored),
                 Categories::List({{"01", "a b c"}, {"2", ""}, {"", "x"}}));
        QCOMPARE(ignored, 0);
        QVERIFY(Categories::fromText("no tab\n", &ignored).isEmpty());
        QCOMPARE(ignored, 1);
        QCOMPARE(Categories::toText({}), "");
    }

    void faultsAreOfCodes() {
        QCOMPARE(Categories::faults({{"1", "a"}, {"2", "b"}, {"1", "c"}, {"", "d"}, {"", ""}}),
                 QList<Fault>({Fault::DuplicateCode, Fault::None, Fault::DuplicateCode,
                               Fault::NoCode, Fault::None}));
        // Codes are texts: both of these are stored.
        QCOMPARE(Categories::faults({{"1", "a"}, {"01", "b"}}),
                 QList<Fault>({Fault::None, Fault::None}));
    }

    void modelKeepsItsPromises() {
        VarValueLabelDiccionaryModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy edited(&model, &VarValueLabelDiccionaryModel::editedItem);
        model.setList({{"1", "a"}, {"2", "b"}}, true);
        model.append({{"3", "c"}, {"4", "d"}});
        model.remove(0);
        QVERIFY(model.setData(model.index(0, 0), "4", Qt::EditRole));
        QCOMPARE(edited.count(), 1);
        QCOMPARE(model.firstFault(), 0);
        QVERIFY(model.setData(model.index(0, 0), "4", Qt::EditRole));
        QCOMPARE(edited.count(), 1);
        model.clear();
        QCOMPARE(model.firstFault(), -1);
        for (int i = 0; i < 4; ++i)
            model.undo();
        QCOMPARE(model.list(), Categories::List({{"1", "a"}, {"2", "b"}}));
        QVERIFY(!model.canUndo());
        model.undo();
        QCOMPARE(model.rowCount(), 2);
    }

    void manyCategoriesAreQuick() {
        Categories::List list;
        for (int i = 0; i < 10000; ++i)
            list.append({QString::number(i), QStringLiteral("Label %1").arg(i)});
        VarValueLabelDiccionaryModel model;
        model.setList(list, true);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 20; ++i)
            model.setData(model.index(i, 1), "other", Qt::EditRole);
        // A keystroke's worth each, even in a build for debugging.
        QVERIFY2(timer.elapsed() < 20 * 50, qPrintable(QString::number(timer.elapsed())));
        for (int i = 0; i < 20; ++i)
            model.undo();
        QCOMPARE(model.list(), list);
    }

    void tagsAreFourDigits() {
        QCOMPARE(TagText::of(-1), "");
        QCOMPARE(TagText::of(0), "0");
        QCOMPARE(TagText::of(-5), "-5");
        QCOMPARE(TagText::parse(""), -1);
        QCOMPARE(TagText::parse("-"), -1);
        QCOMPARE(TagText::parse("-5"), -5);
        QCOMPARE(TagText::parse("0012"), 12);
        QCOMPARE(TagText::parse("10000"), 9999);
        QCOMPARE(TagText::parse("99999999999999999999"), 9999);
        QVERIFY(TagText::parse("-99999999999999999999") < -9999);
    }

    void documentationKeepsItsLines() {
        QCOMPARE(Documentation::shown(R"(a#\#nb)"), "a\nb");
        QCOMPARE(Documentation::shown("a\r\nb"), "a\nb");
        QCOMPARE(Documentation::stored("a\n\nb"), R"(a#\#n#\#nb)");
        QCOMPARE(Documentation::shown(Documentation::stored(R"(#n \ # n)")), R"(#n \ # n)");
    }

    void draftFollowsWhatItDidNotTouch() {
        VariableDraft before;
        before.label = "old";
        before.group = "g";
        before.categories = {{"1", "a"}};
        VariableDraft draft = before;
        draft.label = "typed";
        VariableDraft now = before;
        now.label = "elsewhere";
        now.group = "h";
        now.hidden = true;
        draft.rebase(before, now);
        QCOMPARE(draft.label, "typed");
        QCOMPARE(draft.group, "h");
        QVERIFY(draft.hidden);
    }

    void dockMayRefuseToClose() {
        ClosableQDockedWidget dock;
        dock.show();
        bool refuse = true;
        connect(&dock, &ClosableQDockedWidget::closeEventCall, &dock,
                [&refuse](QCloseEvent* event) { event->setAccepted(!refuse); });
        QSignalSpy resized(&dock, &ClosableQDockedWidget::resizeEventCall);
        QVERIFY(!dock.close());
        QVERIFY(dock.isVisible());
        dock.resize(321, 234);
        QVERIFY(!resized.isEmpty());
        QCOMPARE(resized.last(), QVariantList({321, 234}));
        refuse = false;
        QVERIFY(dock.close());
        QVERIFY(!dock.isVisible());
    }
};

QTEST_MAIN(TestCategories)
#include "tst_categories.moc"
