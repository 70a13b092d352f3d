// SPDX-License-Identifier: GPL-3.0-or-later
// The page that finds and replaces, within a window as it stands there, and the window that asks
// for a line.
#include "dictionary/SaidMessages.h"
#include "editor/search/FindDialog.h"
#include "editor/search/GotoDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <limits>
#include <memory>

namespace {

using Told = QList<QVariantList>;
const Told& told(const QSignalSpy& spy) {
    return spy;
}

/// As the bottom panel of a program window has it: the second page.
struct Panel {
    QMainWindow window;
    QTabWidget* tabs = new QTabWidget;
    FindDialog* page = new FindDialog(&window);
    QSignalSpy next{page, qOverload<QString, bool, bool>(&FindDialog::startFinding)};
    QSignalSpy nextOrReplace{page, qOverload<QString, bool, bool, bool>(&FindDialog::startFinding)};
    QSignalSpy all{page, &FindDialog::startAllFinding};
    QSignalSpy replace{page, &FindDialog::startReplacing};
    QSignalSpy replaceAll{page, &FindDialog::startReplacingAll};
    QSignalSpy done{page, &FindDialog::editorWanted};

    Panel() {
        window.setCentralWidget(tabs);
        tabs->addTab(new QWidget, QStringLiteral("Output"));
        tabs->addTab(page, page->windowTitle());
        window.resize(1000, 160);
        window.show();
        window.activateWindow();
    }
    void open(const QString& selected = {}) {
        QVERIFY(QTest::qWaitForWindowActive(&window));
        tabs->setCurrentWidget(page);
        page->begin(selected);
    }
    template <typename Widget>
    Widget* find(const char* name) const {
        return page->findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* button) const {
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
    }
    QLineEdit* query() const { return find<QLineEdit>("queryField"); }
    QString message() const { return find<QLabel>("findMessage")->text(); }
    qsizetype told() const {
        return next.size() + nextOrReplace.size() + all.size() + replace.size() + replaceAll.size();
    }
};

/// Gives each text back in brackets.
class Brackets : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override {
        return '[' + QString::fromUtf8(text) + ']';
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestSearchDialogs : public QObject {
    Q_OBJECT

private slots:
    void eachButtonTellsWhatToDo();
    void asksForAQuery();
    void beginsWithTheSelection();
    void isWorkedByKeyboard();
    void showsTheLastResultOnly();
    void staysInItsPage();
    void speaksTheNewLanguage();
    void goesToALine();
    void asksForALine();
    void takesDigitsOnly();
    void staysWhileTheLineIsWrong();
};

void TestSearchDialogs::eachButtonTellsWhatToDo() {
    Panel panel;
    panel.open();
    QTest::keyClicks(panel.query(), "person");
    QTest::keyClicks(panel.find<QLineEdit>("replacementField"), "household");
    panel.click("findNextButton");
    QCOMPARE(told(panel.next), Told({{"person", false, false}}));
    panel.find<QCheckBox>("matchCaseBox")->click();
    panel.click("findAllButton");
    QCOMPARE(told(panel.all), Told({{"person", true, false}}));
    panel.find<QCheckBox>("wholeWordsBox")->click();
    panel.click("replaceButton");
    QCOMPARE(told(panel.replace), Told({{"person", "household", true, true}}));
    panel.find<QCheckBox>("matchCaseBox")->click();
    panel.click("replaceAllButton");
    QCOMPARE(told(panel.replaceAll), Told({{"person", "household", false, true}}));
    QCOMPARE(panel.told(), 4); // one signal a click
}

void TestSearchDialogs::asksForAQuery() {
    SaidMessages said;
    Panel panel;
    panel.open();
    panel.find<QLineEdit>("replacementField")->setText("household");
    for (const char* button :
         {"findNextButton", "findAllButton", "replaceButton", "replaceAllButton"}) {
        panel.click(button);
        QCOMPARE(said.take(), QStringList("Please enter a query."));
        QVERIFY(panel.query()->hasFocus());
    }
    QCOMPARE(panel.told(), 0);
    // Blanks are something to look for.
    QTest::keyClicks(panel.query(), "  ");
    panel.click("findNextButton");
    QCOMPARE(told(panel.next), Told({{"  ", false, false}}));
    QVERIFY(said.take().isEmpty());
}

void TestSearchDialogs::beginsWithTheSelection() {
    Panel panel;
    panel.open("PERSON.SEX");
    QVERIFY(panel.query()->hasFocus());
    QCOMPARE(panel.query()->selectedText(), QStringLiteral("PERSON.SEX"));
    panel.open({});
    QCOMPARE(panel.query()->selectedText(), QStringLiteral("PERSON.SEX"));
    for (const char16_t* lines : {u"freq\nby", u"freq\u2029by"}) {
        panel.open(QString::fromUtf16(lines));
        QCOMPARE(panel.query()->text(), QStringLiteral("PERSON.SEX"));
    }
    QTest::keyClicks(panel.query(), "by"); // replaces what was there
    QCOMPARE(panel.query()->text(), QStringLiteral("by"));
}

void TestSearchDialogs::isWorkedByKeyboard() {
    Panel panel;
    panel.open("sex");
    QTest::keyClick(panel.query(), Qt::Key_Return);
    QCOMPARE(panel.next.size(), 1);
    QTest::keyClick(panel.query(), Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(panel.next.size(), 2);
    QStringList order;
    for (int i = 0; i < 8; ++i) {
        order += panel.window.focusWidget()->objectName();
        QTest::keyClick(panel.window.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order.join(' '),
             QStringLiteral("queryField replacementField matchCaseBox wholeWordsBox "
                            "findNextButton findAllButton replaceButton replaceAllButton"));
    panel.find<QPushButton>("findAllButton")->setFocus();
    QTest::keyClick(panel.window.focusWidget(), Qt::Key_Return); // that button, not Find next
    QCOMPARE(panel.all.size(), 1);
    QCOMPARE(panel.next.size(), 2);
    QTest::keyClick(&panel.window, Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(panel.replaceAll.size(), 1);
    QTest::keyClick(&panel.window, Qt::Key_W, Qt::AltModifier);
    QVERIFY(panel.query()->hasFocus());
    QTest::keyClick(panel.query(), Qt::Key_Escape);
    QCOMPARE(panel.done.size(), 1);
    QVERIFY(panel.page->isVisible());
}

void TestSearchDialogs::showsTheLastResultOnly() {
    Panel panel;
    panel.open("sex");
    panel.page->onFindResultReady("No results found.");
    QCOMPARE(panel.message(), QStringLiteral("No results found."));
    panel.click("findNextButton");
    QCOMPARE(panel.message(), QString());
    // An answer that comes within the search stays.
    connect(panel.page, &FindDialog::startAllFinding, panel.page,
            [&panel] { panel.page->onFindResultReady("Again <b>"); });
    panel.click("findAllButton");
    QCOMPARE(panel.message(), QStringLiteral("Again <b>"));
    QTest::keyClicks(panel.query(), "x");
    QCOMPARE(panel.message(), QString());
}

/// Shown again, it must not move as a dialog would, nor need more than the low panel has.
void TestSearchDialogs::staysInItsPage() {
    Panel panel;
    panel.open();
    for (int i = 0; i < 2; ++i) {
        panel.tabs->setCurrentIndex(0);
        panel.tabs->setCurrentWidget(panel.page);
        QCOMPARE(panel.page->pos(), QPoint(0, 0));
        QCOMPARE(panel.page->size(), panel.page->parentWidget()->size());
    }
    QVERIFY(panel.page->minimumSizeHint().height() <= 8 * panel.page->fontMetrics().height());
}

void TestSearchDialogs::speaksTheNewLanguage() {
    Panel panel;
    GotoDialog go;
    Brackets language;
    QCoreApplication::installTranslator(&language);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QTRY_COMPARE(panel.page->windowTitle(), QStringLiteral("[Find]"));
    QTRY_COMPARE(go.windowTitle(), QStringLiteral("[Go To]"));
    QCOMPARE(panel.find<QLabel>("queryLabel")->text(), QStringLiteral("[Find &what: ]"));
    QCOMPARE(panel.find<QPushButton>("replaceAllButton")->text(), QStringLiteral("[Replace &all]"));
    QCoreApplication::removeTranslator(&language);
    QTRY_COMPARE(panel.find<QPushButton>("findNextButton")->text(), QStringLiteral("Find &next"));
}

void TestSearchDialogs::goesToALine() {
    GotoDialog dialog;
    QSignalSpy lines(&dialog, &GotoDialog::gotoLine);
    dialog.show();
    auto* field = dialog.findChild<QLineEdit*>("gotoField");
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClicks(field, "12");
    QTest::keyClick(field, Qt::Key_Return);
    field->setText("0");
    QTest::mouseClick(dialog.findChild<QPushButton*>("gotoButton"), Qt::LeftButton);
    field->setText("4294967297"); // 1 once it has wrapped
    QTest::keyClick(field, Qt::Key_Return);
    field->setText("99999999999999999999999999");
    QTest::keyClick(field, Qt::Key_Return);
    constexpr int beyond = std::numeric_limits<int>::max();
    QCOMPARE(told(lines), Told({{12}, {0}, {beyond}, {beyond}}));
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(dialog.isHidden());
}

void TestSearchDialogs::asksForALine() {
    SaidMessages said;
    GotoDialog dialog;
    const QSignalSpy lines(&dialog, &GotoDialog::gotoLine);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton*>("gotoButton"), Qt::LeftButton);
    QCOMPARE(said.take(), QStringList("Must enter a line number."));
    QCOMPARE(lines.size(), 0);
    QVERIFY(dialog.isVisible());
}

void TestSearchDialogs::takesDigitsOnly() {
    GotoDialog dialog;
    dialog.show();
    auto* field = dialog.findChild<QLineEdit*>("gotoField");
    QTest::keyClicks(field, "-1a2.5 ");
    QCOMPARE(field->text(), QStringLiteral("125"));
}

void TestSearchDialogs::staysWhileTheLineIsWrong() {
    GotoDialog dialog;
    dialog.show();
    auto* field = dialog.findChild<QLineEdit*>("gotoField");
    auto* message = dialog.findChild<QLabel*>("gotoMessage");
    connect(&dialog, &GotoDialog::gotoLine, &dialog,
            [&dialog] { dialog.onGotoResultReady("Invalid line number."); });
    QTest::keyClicks(field, "70");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(message->text(), QStringLiteral("Invalid line number."));
    QTest::keyClicks(field, "8"); // over the number that was wrong
    QCOMPARE(field->text(), QStringLiteral("8"));
    QCOMPARE(message->text(), QString());
    QTest::keyClick(field, Qt::Key_Return);
    dialog.hide();
    dialog.show();
    QCOMPARE(message->text(), QString());
    QCOMPARE(field->selectedText(), QStringLiteral("8"));
}

QTEST_MAIN(TestSearchDialogs)
#include "tst_searchdialogs.moc"
