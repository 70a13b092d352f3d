// SPDX-License-Identifier: GPL-3.0-or-later
// What the editor offers while a program is typed, and what becomes of it.
#include "TypedEditor.h"
#include "editor/language/KelvoraCompleter.h"
#include "editor/text/CompletionPlace.h"

#include <QAbstractItemView>
#include <QScrollBar>

namespace {

QAbstractItemView* popup(const TypedEditor& typed) {
    return typed.editor.completer()->popup();
}

bool isOpen(const TypedEditor& typed) {
    return popup(typed)->isVisible();
}

/// What the list shows; nothing where it is closed.
QStringList offered(const TypedEditor& typed) {
    QStringList words;
    const QAbstractItemModel* model = popup(typed)->model();
    for (int row = 0; isOpen(typed) && row < model->rowCount(); ++row)
        words += model->index(row, 0).data().toString();
    return words;
}

const QStringList entities{"country", "household", "person"};

} // namespace

class TestCompletion : public QObject {
    Q_OBJECT

private slots:
    void offersReservedWordsAtTheStart();
    void offersEntitiesAfterSomeWords_data();
    void offersEntitiesAfterSomeWords();
    void offersVariablesOfAnEntity();
    void offersEntitiesAfterAComma();
    void goesBackToReservedWordsWithTheLine();
    void acceptsByKeys_data();
    void acceptsByKeys();
    void insertsBehindABlank();
    void completesInTheMiddle();
    void closesOnOtherCharacters_data();
    void closesOnOtherCharacters();
    void narrowsAndWidens();
    void opensByCtrlSpace();
    void asksByPlace_data();
    void asksByPlace();
    void forgetsTheWordsOfAnotherLine();
    void staysAwayFromProse();
    void leavesNothingToAcceptAlone();
    void keepsCapitalsWhereTheListHasThem();
    void standsBesideTheCursor();
    void findsWords();
};

void TestCompletion::offersReservedWordsAtTheStart() {
    TypedEditor typed;
    QVERIFY(typed.ready);
    typed.type(QStringLiteral("ta"));
    QCOMPARE(offered(typed), QStringList({"table", "tablestyle", "tablist", "tabop", "tally"}));
    QCOMPARE(popup(typed)->currentIndex().row(), 0);
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("table"));
    QVERIFY(!isOpen(typed));
}

void TestCompletion::offersEntitiesAfterSomeWords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("offers");
    QTest::newRow("BY") << "freq PERSON.SEX by " << true;
    QTest::newRow("FREQ") << "freq " << true;
    QTest::newRow("any case") << "AreaList " << true;
    QTest::newRow("AREABREAK") << "    AREABREAK " << true;
    QTest::newRow("a second blank") << "freq  " << false;
    QTest::newRow("another word") << "table " << false;
    QTest::newRow("a word that ends so") << "hereby " << false;
    QTest::newRow("a blank at the start") << " " << false;
    QTest::newRow("behind a variable") << "freq person.sex " << false;
}

void TestCompletion::offersEntitiesAfterSomeWords() {
    QFETCH(QString, text);
    QFETCH(bool, offers);
    TypedEditor typed;
    typed.type(text);
    QCOMPARE(typed.text(), text);
    QCOMPARE(offered(typed), offers ? entities : QStringList());
}

void TestCompletion::offersVariablesOfAnEntity() {
    TypedEditor typed;
    typed.type(QStringLiteral("freq person."));
    QCOMPARE(offered(typed), QStringList({"age", "person_id", "sector", "sex"}));
    typed.type(QStringLiteral("se"));
    QCOMPARE(offered(typed), QStringList({"sector", "sex"}));
    typed.press(Qt::Key_Down);
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("freq person.sex"));
    QCOMPARE(typed.host.asked, QStringList({"person"}));
    typed.type(QStringLiteral(" by HOUSEHOLD."));
    QCOMPARE(offered(typed), QStringList({"rooms", "size"}));
    typed.type(QStringLiteral("ro\t"));
    QCOMPARE(typed.text(), QStringLiteral("freq person.sex by HOUSEHOLD.rooms"));
    // No entity, and one without variables.
    typed.type(QStringLiteral(" nobody."));
    QVERIFY(!isOpen(typed));
    typed.type(QStringLiteral(" country."));
    QVERIFY(!isOpen(typed));
    QCOMPARE(typed.host.asked, QStringList({"person", "household", "country"}));
}

void TestCompletion::offersEntitiesAfterAComma() {
    TypedEditor typed;
    typed.type(QStringLiteral(","));
    QVERIFY(!isOpen(typed));
    typed.type(QStringLiteral("\nfreq person.sex,"));
    QCOMPARE(offered(typed), entities);
    typed.type(QStringLiteral("ho\n"));
    QCOMPARE(typed.text(), QStringLiteral(",\nfreq person.sex,household"));
}

void TestCompletion::goesBackToReservedWordsWithTheLine() {
    TypedEditor typed;
    typed.type(QStringLiteral("freq person.age"));
    typed.press(Qt::Key_Escape);
    QVERIFY(!isOpen(typed));
    typed.type(QStringLiteral("\nse"));
    QCOMPARE(typed.text(), QStringLiteral("freq person.age\nse"));
    QCOMPARE(offered(typed), QStringList({"selection", "selectionlabel", "sensitive"}));
}

void TestCompletion::acceptsByKeys_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("Return") << int(Qt::Key_Return) << "freq person";
    QTest::newRow("Enter") << int(Qt::Key_Enter) << "freq person";
    QTest::newRow("Tab") << int(Qt::Key_Tab) << "freq person";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << "freq pe";
    QTest::newRow("Backtab") << int(Qt::Key_Backtab) << "freq pe";
}

void TestCompletion::acceptsByKeys() {
    QFETCH(int, key);
    TypedEditor typed;
    typed.type(QStringLiteral("freq pe"));
    QCOMPARE(offered(typed), QStringList({"person"}));
    typed.press(static_cast<Qt::Key>(key));
    QTEST(typed.text(), "text");
    QVERIFY(!isOpen(typed));
    QCOMPARE(typed.position(), static_cast<int>(typed.text().size()));
}

void TestCompletion::insertsBehindABlank() {
    TypedEditor typed;
    typed.type(QStringLiteral("freq by "));
    typed.press(Qt::Key_Up); // round to the last one
    typed.press(Qt::Key_Up);
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("freq by person"));
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("freq by "));
}

void TestCompletion::completesInTheMiddle() {
    TypedEditor typed(QStringLiteral("freq rson.sex"));
    typed.moveTo(5);
    typed.type(QStringLiteral("e")); // erson: no such word
    QVERIFY(!isOpen(typed));
    typed.moveTo(5);
    typed.editor.setEntityList({"person", "persons"});
    typed.press(Qt::Key_Backspace);
    typed.type(QStringLiteral(" ")); // in front of a word: nothing is wanted
    QVERIFY(!isOpen(typed));
    typed.press(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!isOpen(typed));
    typed.editor.setPlainText(QStringLiteral("ta x"));
    typed.moveTo(1);
    typed.type(QStringLiteral("r"));
    typed.press(Qt::Key_Backspace);
    QCOMPARE(offered(typed).first(), QStringLiteral("table"));
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("table x"));
}

void TestCompletion::closesOnOtherCharacters_data() {
    QTest::addColumn<QString>("typed");
    for (const char* other : {"(", ";", "=", "_", " ", "[", "\\", "\"", "7"})
        QTest::newRow(other) << other;
}

void TestCompletion::closesOnOtherCharacters() {
    QFETCH(QString, typed);
    TypedEditor editor;
    editor.type(QStringLiteral("fr"));
    QVERIFY(isOpen(editor));
    editor.type(typed);
    QVERIFY(!isOpen(editor));
    QCOMPARE(editor.text(), QStringLiteral("fr") + typed);
}

void TestCompletion::narrowsAndWidens() {
    TypedEditor typed;
    typed.type(QStringLiteral("fre"));
    QCOMPARE(offered(typed), QStringList({"freq", "frequency"}));
    typed.press(Qt::Key_Backspace);
    QCOMPARE(offered(typed), QStringList({"fraction", "freq", "frequency"}));
    typed.press(Qt::Key_Shift); // alone it changes nothing
    QVERIFY(isOpen(typed));
    typed.press(Qt::Key_Left);
    QVERIFY(!isOpen(typed));
    typed.press(Qt::Key_Delete);
    QVERIFY(!isOpen(typed));
    QCOMPARE(typed.text(), QStringLiteral("f"));
}

void TestCompletion::opensByCtrlSpace() {
    TypedEditor typed(QStringLiteral("tab"));
    typed.moveTo(3);
    typed.press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(offered(typed), QStringList({"table", "tablestyle", "tablist", "tabop"}));
    QCOMPARE(typed.text(), QStringLiteral("tab"));
    typed.press(Qt::Key_Escape);
    typed.type(QStringLiteral("\nfreq "));
    typed.press(Qt::Key_Escape);
    QVERIFY(!isOpen(typed));
    typed.press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(offered(typed), entities);
    typed.press(Qt::Key_Escape);
    typed.type(QStringLiteral("\n"));
    typed.press(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(offered(typed).size() > 100);
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("tab\nfreq \nabs"));
}

void TestCompletion::asksByPlace_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("first");
    QTest::newRow("behind an entity") << "freq person.sex by person."
                                      << "age";
    QTest::newRow("within a variable") << "freq person.se"
                                       << "sector";
    QTest::newRow("behind no entity") << "freq nobody."
                                      << "abs";
    QTest::newRow("behind a trigger") << "freq person.sex by "
                                      << "country";
    QTest::newRow("within an entity") << "freq person.sex by ho"
                                      << "household";
    QTest::newRow("next of a list") << "AREALIST country, "
                                    << "country";
    QTest::newRow("within the next of a list") << "freq person.age,ho"
                                               << "household";
    QTest::newRow("a list of other things") << "abs(1, "
                                            << "abs";
    QTest::newRow("a word at the start") << "tab"
                                         << "table";
    QTest::newRow("behind a variable") << "freq person.sex "
                                       << "abs";
}

void TestCompletion::asksByPlace() {
    QFETCH(QString, text);
    TypedEditor typed(QStringLiteral("\n") + text);
    for (const char* before : {"", "freq person.", "freq x,"}) { // whatever was offered last
        typed.moveTo(0);
        typed.type(QLatin1String(before));
        typed.press(Qt::Key_Escape);
        typed.moveTo(static_cast<int>(typed.text().size()));
        typed.press(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(isOpen(typed));
        QTEST(offered(typed).first(), "first");
        typed.press(Qt::Key_Escape);
    }
}

void TestCompletion::forgetsTheWordsOfAnotherLine() {
    TypedEditor typed(QStringLiteral("\n\n"));
    typed.type(QStringLiteral("freq person."));
    typed.press(Qt::Key_Escape);
    typed.press(Qt::Key_Down);
    typed.type(QStringLiteral("se"));
    QCOMPARE(offered(typed), QStringList({"selection", "selectionlabel", "sensitive"}));
    typed.press(Qt::Key_Escape);
    typed.type(QStringLiteral(" by "));
    typed.press(Qt::Key_Escape);
    const QPoint third =
        typed.editor.cursorRect().center() + QPoint(0, typed.editor.cursorRect().height());
    QTest::mouseClick(typed.editor.viewport(), Qt::LeftButton, {}, third);
    QCOMPARE(typed.editor.currentLine(), 3);
    typed.type(QStringLiteral("ho"));
    QVERIFY(!offered(typed).contains(QStringLiteral("household")));
    typed.press(Qt::Key_Escape);
    typed.editor.setPlainText({});
    typed.type(QStringLiteral("freq person."));
    typed.press(Qt::Key_Escape);
    typed.editor.selectAll();
    typed.type(QStringLiteral("ta"));
    QCOMPARE(offered(typed).first(), QStringLiteral("table"));
}

void TestCompletion::staysAwayFromProse() {
    TypedEditor typed;
    for (const char* line : {"// sorted by ", "/* all", "a */ \"by ", "\" // person."}) {
        typed.type(QLatin1String(line));
        QVERIFY2(!isOpen(typed), line);
        typed.type(QStringLiteral("\n"));
    }
    QVERIFY(typed.host.asked.isEmpty());
    typed.type(QStringLiteral("fr"));
    QVERIFY(isOpen(typed));
    typed.press(Qt::Key_Escape);
    typed.type(QStringLiteral(" \"a,\" ta")); // a comma of a string asks for nothing
    QCOMPARE(offered(typed).first(), QStringLiteral("table"));
}

void TestCompletion::leavesNothingToAcceptAlone() {
    TypedEditor typed;
    typed.type(QStringLiteral("freq person.sex"));
    QVERIFY(!isOpen(typed)); // so that Return is what it is
    typed.type(QStringLiteral("\n"));
    QCOMPARE(typed.editor.blockCount(), 2);
}

void TestCompletion::keepsCapitalsWhereTheListHasThem() {
    TypedEditor typed;
    typed.editor.setLowerCase(false);
    typed.editor.setEntityList({"PERSON", "HOUSEHOLD"});
    typed.type(QStringLiteral("freq person.s"));
    QCOMPARE(offered(typed), QStringList({"SECTOR", "SEX"}));
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("freq person.sECTOR"));
}

void TestCompletion::standsBesideTheCursor() {
    TypedEditor typed;
    typed.type(QStringLiteral("freq "));
    const QRect cursor = typed.editor.cursorRect();
    const QPoint below = typed.editor.viewport()->mapToGlobal(cursor.bottomLeft());
    QVERIFY(qAbs(popup(typed)->x() - below.x()) <= 1);
    QVERIFY(popup(typed)->y() >= below.y());
    QCOMPARE(popup(typed)->width(), popup(typed)->sizeHintForColumn(0) +
                                        popup(typed)->verticalScrollBar()->sizeHint().width());
    QCOMPARE(popup(typed)->palette().color(QPalette::Base),
             typed.editor.palette().color(QPalette::Base));
    QCOMPARE(popup(typed)->font().pointSizeF(), typed.editor.font().pointSizeF());
}

void TestCompletion::findsWords() {
    QCOMPARE(wordAround(u"freq PERSON.AGE_5 by", 15), QStringLiteral("AGE_5"));
    QCOMPARE(wordAround(u"a.", 2), QString());
    QCOMPARE(wordAround(u"a.b", 2), QStringLiteral("b"));
    QCOMPARE(wordAround(u"", 3), QString());
    QCOMPARE(wordEnd(u"año=1", 1), 3);
    for (const QChar c : QStringLiteral("~!@#$%^&*()_+{}|:\"<>?,./;'[]\\-="))
        QVERIFY(endsWord(c));
    QVERIFY(isProse(u"x", 1, true));
    QVERIFY(!isProse(u"/*/ x */ y", 10, false));
    QVERIFY(isProse(u"/*/ x", 5, false));
    QVERIFY(!isProse(u"\"//\" y", 6, false));
    QVERIFY(!isProse(u"x // y", 2, false));
    QVERIFY(!isProse(u"*/ y", 4, true));
}

QTEST_MAIN(TestCompletion)
#include "tst_completion.moc"
