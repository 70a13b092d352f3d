// SPDX-License-Identifier: GPL-3.0-or-later
// Tree and table of the dictionary, used as a user does: keys, clicks, menus.
#include "MadeMirror.h"
#include "SaidMessages.h"
#include "dictionary/views/DictionaryTreeModel.h"
#include "dictionary/views/DraggedItems.h"
#include "dictionary/views/KelTreeView.h"
#include "dictionary/views/KelVariablesTableView.h"
#include "dictionary/views/VariableDiccionaryModel.h"
#include "dictionary/views/VariablesPane.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

namespace {

using Model = VariableDiccionaryModel;

/// A language that says all in capitals.
class Capitals : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override {
        return QString::fromUtf8(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

/// The menu that a right click there opens; null where none opens.
QMenu* menuAt(QAbstractItemView* view, const QPoint& position) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                            view->viewport()->mapToGlobal(position));
    QApplication::sendEvent(view->viewport(), &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction* entry(QMenu* menu, const char* name) {
    return menu == nullptr ? nullptr : menu->findChild<QAction*>(QLatin1String(name));
}

/// Texts of the entries, separators left out.
QStringList entries(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions())
        if (!action->isSeparator())
            texts += action->text();
    return texts;
}

/// As a click in the menu does: the entry acts and the menu is gone.
void choose(QMenu* menu, QAction* action) {
    QVERIFY(action != nullptr);
    QVERIFY(action->isEnabled());
    action->trigger();
    menu->close();
}

QStringList shownNames(const QAbstractItemView& view) {
    QStringList names;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        names += view.model()->index(row, 0).data().toString();
    return names;
}

QStringList namesOf(const QList<TKpVariable*>& variables) {
    QStringList names;
    for (const TKpVariable* variable : variables)
        names += variable->name;
    return names;
}

} // namespace

class TestDictionaryViews : public QObject {
    Q_OBJECT

    std::unique_ptr<MadeMirror> made_;
    std::unique_ptr<KelTreeView> tree_;
    std::unique_ptr<VariablesPane> pane_;
    KelVariablesTableView* table_ = nullptr;
    QLineEdit* filter_ = nullptr;

    QPoint placeOf(const QString& entity) const {
        return tree_->visualRect(tree_->dictionaryModel()->indexOf(entity)).center();
    }
    void clickEntity(const QString& entity) {
        QTest::mouseClick(tree_->viewport(), Qt::LeftButton, {}, placeOf(entity));
    }
    QPoint cell(int row, int column) const {
        return table_->visualRect(table_->model()->index(row, column)).center();
    }
    void clickCell(int row, int column, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, keys, cell(row, column));
    }
    void clickHeader(int column) {
        QHeaderView* header = table_->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 12, header->height() / 2});
    }
    /// F2 on the cell, the text, Enter. False where no editor opened.
    bool retype(int row, int column, const QString& text) {
        clickCell(row, column);
        QTest::keyClick(table_, Qt::Key_F2);
        auto* editor = table_->viewport()->findChild<QLineEdit*>();
        if (editor == nullptr)
            return false;
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        return QTest::qWaitFor(
            [&] { return table_->viewport()->findChild<QLineEdit*>() == nullptr; });
    }

private slots:
    void initTestCase() { // for the spies
        qRegisterMetaType<TKpEntity*>("TKpEntity*");
        qRegisterMetaType<TKpVariable*>("TKpVariable*");
    }

    void init() {
        made_ = std::make_unique<MadeMirror>();
        tree_ = std::make_unique<KelTreeView>();
        tree_->setRoot(made_->root);
        tree_->resize(300, 300);
        tree_->show();
        pane_ = std::make_unique<VariablesPane>();
        pane_->setEntity(made_->root, made_->person);
        pane_->resize(800, 300);
        pane_->show();
        table_ = pane_->findChild<KelVariablesTableView*>("variableTable");
        filter_ = pane_->findChild<QLineEdit*>("variableFilter");
        QVERIFY(table_ != nullptr && filter_ != nullptr);
        pane_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(pane_.get()));
    }

    void cleanup() {
        pane_.reset();
        tree_.reset();
    }

    void treeTellsWhatIsSelected() {
        QCOMPARE(tree_->objectName(), "TreeViewDictionary");
        QSignalSpy selected(tree_.get(), &KelTreeView::selectedEntity);
        QVERIFY(tree_->currentEntity() == nullptr);
        clickEntity("PERSON");
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.takeFirst()[0].value<TKpEntity*>(), made_->person);
        clickEntity("PERSON"); // once more, to bring back what it shows
        QCOMPARE(selected.count(), 1);
        QTest::keyClick(tree_.get(), Qt::Key_Up);
        QCOMPARE(selected.count(), 2);
        QCOMPARE(selected.last()[0].value<TKpEntity*>(), made_->household);
        QSignalSpy twice(tree_.get(), &KelTreeView::entityDoubleClicked);
        clickEntity("HOUSEHOLD");
        QTest::mouseDClick(tree_->viewport(), Qt::LeftButton, {}, placeOf("HOUSEHOLD"));
        QCOMPARE(twice.count(), 1);
        QVERIFY(tree_->isExpanded(tree_->currentIndex()));
    }

    void treeKeysAskForViews() {
        QSignalSpy quick(tree_.get(), &KelTreeView::quickViewRequested);
        QSignalSpy properties(tree_.get(), &KelTreeView::propertiesRequested);
        QSignalSpy print(tree_.get(), &KelTreeView::printRequested);
        clickEntity("PERSON");
        QTest::keyClick(tree_.get(), Qt::Key_F3);
        QTest::keyClick(tree_.get(), Qt::Key_F8);
        QTest::keyClick(tree_.get(), Qt::Key_P, Qt::ControlModifier);
        for (const QSignalSpy* spy : {&quick, &properties, &print}) {
            QCOMPARE(spy->count(), 1);
            QCOMPARE(spy->first()[0].value<TKpEntity*>(), made_->person);
        }
    }

    void printingIsOfferedOnlyWhereSomebodyPrints() {
        QAction others(tree_.get());
        others.setShortcut(QKeySequence::Print);
        tree_->addAction(&others);
        QSignalSpy passed(&others, &QAction::triggered);
        clickEntity("PERSON");
        tree_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(tree_.get()));
        QTest::keyClick(tree_.get(), Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(passed.count(), 1);
        QMenu* menu = menuAt(tree_.get(), placeOf("PERSON"));
        QVERIFY(menu != nullptr);
        QVERIFY(!entry(menu, "actionPrint")->isEnabled());
        QCOMPARE(entry(menu, "actionPrint")->toolTip(), "Printing is not available yet");
        QVERIFY(menu->toolTipsVisible());
        menu->close();
    }

    void oneEntityStaysSelected() {
        clickEntity("PERSON");
        QTest::mouseClick(tree_->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          placeOf("PERSON"));
        QCOMPARE(tree_->currentEntity(), made_->person);
        QTest::keyClick(tree_.get(), Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(tree_->currentEntity(), made_->person);
        QTest::mouseClick(tree_->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          placeOf("HOUSEHOLD"));
        QCOMPARE(tree_->currentEntity(), made_->household);
    }

    void treeMenuAsksForAllItsEntries() {
        SaidMessages said;
        QVERIFY(menuAt(tree_.get(), {150, 280}) == nullptr);
        QCOMPARE(said.take(), QStringList("A entity must be selected"));
        clickEntity("PERSON");
        QSignalSpy print(tree_.get(), &KelTreeView::printRequested);
        QMenu* menu = menuAt(tree_.get(), placeOf("PERSON"));
        QVERIFY(menu != nullptr);
        QCOMPARE(entries(*menu),
                 QStringList({"Quick View", "Properties", "Print", "Selectable", "Frequency",
                              "Statistics", "View", "Hide All Variables", "Unhide All Variables"}));
        QVERIFY(!entry(menu, "actionSelectable")->isEnabled());
        QVERIFY(!entry(menu, "actionSelectable")->isChecked());
        QSignalSpy program(tree_.get(), &KelTreeView::executeProgram);
        QSignalSpy quick(tree_.get(), &KelTreeView::quickViewRequested);
        entry(menu, "actionQuickView")->trigger();
        entry(menu, "actionPrint")->trigger();
        entry(menu, "actionFrequency")->trigger();
        QCOMPARE(program.first()[0].toString(), "FREQ PERSON.*");
        QCOMPARE(quick.count() + print.count(), 2);
        for (const char* name :
             {"actionStatistics", "actionView", "actionHideAll", "actionUnhideAll"})
            entry(menu, name)->trigger();
        QCOMPARE(said.take(),
                 QStringList({"<b>Construction: Statistics variable context menu </b> ",
                              "<b>Contruction: View context menu </b> ",
                              "<b>Contruction: Hide All Variables context menu </b> ",
                              "<b>Contruction: Unhide All Variables from context menu </b> "}));
        menu->close();
        made_->household->selectable = true;
        clickEntity("HOUSEHOLD");
        menu = menuAt(tree_.get(), placeOf("HOUSEHOLD"));
        QVERIFY(entry(menu, "actionSelectable")->isChecked());
        menu->close();
    }

    void menuOutlivesTheMirror() {
        clickEntity("PERSON");
        QMenu* menu = menuAt(tree_.get(), placeOf("PERSON"));
        QVERIFY(menu != nullptr);
        QSignalSpy program(tree_.get(), &KelTreeView::executeProgram);
        pane_->setEntity({}, nullptr);
        tree_->setRoot({});
        made_.reset();
        choose(menu, entry(menu, "actionFrequency"));
        QCOMPARE(program.first()[0].toString(), "FREQ PERSON.*");
    }

    void rebuiltTreeKeepsItsState() {
        clickEntity("EMIGRANT");
        MadeMirror other;
        QSignalSpy selected(tree_.get(), &KelTreeView::selectedEntity);
        tree_->setRoot(other.root);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.first()[0].value<TKpEntity*>(), other.emigrant);
        clickEntity("COUNTRY");
        tree_->collapse(tree_->dictionaryModel()->indexOf("HOUSEHOLD"));
        MadeMirror third;
        tree_->setRoot(third.root);
        QCOMPARE(tree_->currentEntity(), third.root.get());
        QVERIFY(!tree_->isExpanded(tree_->dictionaryModel()->indexOf("HOUSEHOLD")));
        QVERIFY(tree_->isExpanded(tree_->dictionaryModel()->indexOf("COUNTRY")));
        tree_->setRoot({});
        QVERIFY(tree_->currentEntity() == nullptr);
    }

    void typingFilters() {
        auto* count = pane_->findChild<QLabel*>("variableCount");
        QCOMPARE(filter_->placeholderText(), "Filter...");
        QCOMPARE(count->text(), "5 of 5");
        clickCell(1, 0); // AGE
        QTest::keyClick(table_, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(filter_->hasFocus());
        QTest::keyClicks(filter_, "demo");
        QCOMPARE(shownNames(*table_), QStringList({"SEX", "AGE"}));
        QCOMPARE(count->text(), "2 of 5");
        QCOMPARE(table_->currentVariable(), made_->age); // it stays selected
        QTest::keyClicks(filter_, "(");
        QCOMPARE(count->text(), "0 of 5");
        QVERIFY(table_->currentVariable() == nullptr);
        QTest::keyClick(filter_, Qt::Key_Escape);
        QCOMPARE(filter_->text(), "");
        QCOMPARE(count->text(), "5 of 5");
        QSignalSpy selected(table_, &KelVariablesTableView::selectedItem);
        QTest::keyClicks(filter_, "work");
        QTest::keyClick(filter_, Qt::Key_Down);
        QVERIFY(table_->hasFocus());
        QCOMPARE(table_->currentVariable(), made_->wage);
        QCOMPARE(selected.count(), 1);
        QTest::keyClick(table_, Qt::Key_Down);
        QCOMPARE(table_->currentVariable(), made_->made);
        pane_->setEntity(made_->root, made_->household);
        QCOMPARE(filter_->text(), "");
        QCOMPARE(count->text(), "1 of 1");
    }

    void clicksOnTheHeaderSort() {
        const QStringList told = shownNames(*table_);
        QCOMPARE(told.first(), "SEX"); // the dictionary's order to begin with
        clickHeader(Model::NameColumn);
        QCOMPARE(shownNames(*table_), QStringList({"AGE", "CODE", "NEW", "SEX", "WAGE"}));
        clickHeader(Model::NameColumn);
        QCOMPARE(shownNames(*table_), QStringList({"WAGE", "SEX", "NEW", "CODE", "AGE"}));
        clickHeader(Model::NameColumn);
        QCOMPARE(shownNames(*table_), told);
        clickHeader(Model::TagColumn);
        QCOMPARE(shownNames(*table_), QStringList({"WAGE", "SEX", "CODE", "AGE", "NEW"}));
    }

    void selectionIsToldOnce() {
        QSignalSpy selected(table_, &KelVariablesTableView::selectedItem);
        clickCell(0, 2);
        QCOMPARE(selected.count(), 1);
        clickCell(2, 0, Qt::ControlModifier);
        QCOMPARE(selected.count(), 2);
        QCOMPARE(selected.last()[0].value<TKpVariable*>(), made_->wage);
        QCOMPARE(namesOf(table_->selectedVariables()), QStringList({"SEX", "WAGE"}));
        QTest::keyClick(table_, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(table_->selectedVariables().size(), 5);
        QCOMPARE(selected.count(), 2);
        clickCell(2, 0);
        QCOMPARE(selected.count(), 3);
        clickCell(2, 3); // the same again
        QCOMPARE(selected.count(), 4);
        QSignalSpy twice(table_, &KelVariablesTableView::variableDoubleClicked);
        clickCell(1, 0);
        QTest::mouseDClick(table_->viewport(), Qt::LeftButton, {}, cell(1, 0));
        QCOMPARE(twice.count(), 1);
        QVERIFY(table_->viewport()->findChild<QLineEdit*>() == nullptr);
    }

    void f2EditsTheCell() {
        SaidMessages said;
        QSignalSpy changed(table_, &KelVariablesTableView::tableInfoChange);
        QVERIFY(retype(0, Model::LabelColumn, "Sex at birth"));
        QCOMPARE(made_->sex->label, "Sex at birth");
        QVERIFY(retype(4, Model::NameColumn, "NEWER"));
        QCOMPARE(made_->made->fullName, "PERSON.NEWER");
        QVERIFY(retype(1, Model::AliasColumn, "YEARS"));
        QVERIFY(retype(1, Model::TagColumn, "x1y2"));
        QCOMPARE(made_->age->tag, 12); // letters cannot be typed
        QCOMPARE(changed.count(), 4);
        QVERIFY(changed.first()[0].toBool());
        QCOMPARE(said.take(), QStringList());
        QVERIFY(retype(4, Model::NameColumn, "YEARS"));
        QCOMPARE(said.take(), QStringList("The typed character string already exists as a "
                                          "variable name: PERSON.AGE")); // and only once
        QCOMPARE(table_->model()->index(4, 0).data().toString(), "NEWER");
        QVERIFY(!retype(0, Model::NameColumn, "OTHER"));
        QCOMPARE(said.take(),
                 QStringList("The variable could not be renamed, it is not a local variable"));
        QCOMPARE(changed.count(), 4);
    }

    void tableKeysAskForViews() {
        QSignalSpy quick(table_, &KelVariablesTableView::quickViewRequested);
        QSignalSpy properties(table_, &KelVariablesTableView::signalShowVariablesProperties);
        QTest::keyClick(table_, Qt::Key_F3);
        QTest::keyClick(table_, Qt::Key_F8);
        QCOMPARE(quick.count() + properties.count(), 0); // nothing is selected
        clickCell(3, 0);
        QTest::keyClick(table_, Qt::Key_F3);
        QTest::keyClick(table_, Qt::Key_F8);
        QCOMPARE(quick.count(), 1);
        QCOMPARE(quick.first()[0].value<TKpVariable*>(), made_->code);
        QCOMPARE(properties.count(), 1);
    }

    void deletingAsksAndTellsItIsNotDone() {
        SaidMessages said;
        const QString question = "Are you sure you want to delete the variable(s)?";
        const QString answer = "EN CONSTRUCCION- Se debe establecer si es posible borrar y el "
                               "proceso a seguir";
        const QString refusal = "The variable could not be deleted, it is not a local variable";
        clickCell(4, 0);
        QTest::keyClick(table_, Qt::Key_Delete);
        QCOMPARE(said.take(), QStringList({question, answer}));
        QMenu* menu = menuAt(table_, cell(4, 0));
        choose(menu, entry(menu, "actionDelete"));
        QCOMPARE(said.take(), QStringList({question, answer}));
        said.answer = Choice::No;
        QTest::keyClick(table_, Qt::Key_Delete);
        QCOMPARE(said.take(), QStringList(question));
        clickCell(0, 0, Qt::ControlModifier); // one that is not local beside it
        QTest::keyClick(table_, Qt::Key_Delete);
        QCOMPARE(said.take(), QStringList(refusal));
        menu = menuAt(table_, cell(0, 0));
        QVERIFY(!entry(menu, "actionDelete")->isEnabled());
        QCOMPARE(entry(menu, "actionDelete")->toolTip(), refusal);
        QVERIFY(menu->toolTipsVisible());
        menu->close();
        QCOMPARE(table_->model()->rowCount(), 5);
    }

    void tableMenuAsksForAllItsEntries() {
        SaidMessages said;
        QVERIFY(menuAt(table_, cell(0, 0)) == nullptr); // nothing is selected
        clickCell(2, 0);
        clickCell(0, 0, Qt::ControlModifier);
        QMenu* menu = menuAt(table_, cell(0, 0));
        QVERIFY(menu != nullptr);
        QCOMPARE(entries(*menu), QStringList({"Quick View", "Properties", "Rename", "Delete",
                                              "Select All", "Frequency", "Statistics", "View",
                                              "Mark as hidden", "Unmark as hidden", "Group"}));
        auto* group = menu->findChild<QMenu*>("menuGroup");
        QCOMPARE(entries(*group), QStringList({"Group Name: Demography", "Frequency", "Statistics",
                                               "View", "Mark hidden", "Unmark hidden"}));
        QSignalSpy program(table_, &KelVariablesTableView::executeProgram);
        entry(menu, "actionFrequency")->trigger();
        QCOMPARE(program.first()[0].toString(), "freq PERSON.SEX, PERSON.WAGE");
        for (const char* name :
             {"actionStatistics", "actionView", "actionMarkHidden", "actionUnmarkHidden",
              "actionGroupFrequency", "actionGroupStatistics", "actionGroupView",
              "actionGroupMarkHidden", "actionGroupUnmarkHidden"})
            entry(menu, name)->trigger();
        QStringList words;
        for (const QString& text : said.take())
            words += text.section("Contruction: ", 1).section(" context", 0, 0);
        QCOMPARE(words,
                 QStringList({"Statistics variable", "View variable", "Mark as hidden variable",
                              "Unmark as hidden variable", "Group Frequency variable",
                              "Group Statisitcs variable", "Group View variable",
                              "Group Mark as hidden variable", "Group unmark as hidden variable"}));
        choose(menu, entry(menu, "actionSelectAll"));
        QCOMPARE(table_->selectedVariables().size(), 5);
        clickCell(3, 1); // CODE has no group
        menu = menuAt(table_, cell(3, 1));
        QVERIFY(!menu->findChild<QMenu*>("menuGroup")->isEnabled());
        QVERIFY(!entry(menu, "actionRename")->isEnabled());
        QCOMPARE(entry(menu, "actionRename")->toolTip(),
                 "The variable could not be renamed, it is not a local variable");
        menu->close();
        clickCell(4, 3); // its name is edited, wherever it was pointed at
        menu = menuAt(table_, cell(4, 3));
        choose(menu, entry(menu, "actionRename"));
        QCOMPARE(table_->currentIndex().column(), int(Model::NameColumn));
        auto* editor = table_->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->text(), "NEW");
    }

    void rebuiltTableKeepsSelectionAndFilter() {
        QTest::keyClicks(filter_, "e");
        clickHeader(Model::NameColumn);
        table_->selectVariable("WAGE");
        clickCell(0, 1, Qt::ControlModifier); // AGE
        MadeMirror other;
        QSignalSpy selected(table_, &KelVariablesTableView::selectedItem);
        pane_->setEntity(other.root, other.person);
        made_.reset();
        QCOMPARE(filter_->text(), "e");
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.first()[0].value<TKpVariable*>(), other.age);
        QCOMPARE(table_->selectedVariables(), QList<TKpVariable*>({other.age, other.wage}));
        pane_->setEntity({}, nullptr);
        QVERIFY(table_->selectedVariables().isEmpty());
    }

    void widthsOfTheUserStay() {
        table_->setColumnWidth(Model::NameColumn, 333);
        pane_->setEntity(made_->root, made_->household);
        QCOMPARE(table_->columnWidth(Model::NameColumn), 333);
        QVERIFY(!table_->horizontalScrollBar()->isVisible());
    }

    void dropsAreRefused() {
        clickCell(0, 0);
        const std::unique_ptr<QMimeData> data(
            table_->model()->mimeData(table_->selectionModel()->selectedIndexes()));
        QCOMPARE(readDraggedItems(data.get()).size(), 1);
        QVERIFY(table_->dragEnabled());
        for (const QAbstractScrollArea* view : {static_cast<QAbstractScrollArea*>(table_),
                                                static_cast<QAbstractScrollArea*>(tree_.get())}) {
            QDragEnterEvent enter({100, 40}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
            QApplication::sendEvent(view->viewport(), &enter);
            QVERIFY(!enter.isAccepted());
        }
    }

    void textsFollowTheLanguage() {
        Capitals capitals;
        QVERIFY(QCoreApplication::installTranslator(&capitals));
        QTRY_COMPARE(filter_->placeholderText(), "FILTER...");
        QCOMPARE(table_->model()->headerData(3, Qt::Horizontal).toString(), "LABEL");
        QCOMPARE(tree_->model()->headerData(0, Qt::Horizontal).toString(), "ENTITY");
        QCOMPARE(table_->accessibleName(), "VARIABLES");
        QCoreApplication::removeTranslator(&capitals);
        QTRY_COMPARE(filter_->placeholderText(), "Filter...");
    }
};

QTEST_MAIN(TestDictionaryViews)
#include "tst_dictionaryviews.moc"
