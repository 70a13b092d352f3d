// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of the tour through the windows of programs.
#include "Tour.h"
#include "TourSteps.h"

#include "app/MainWindow.h"
#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/settings/KelSystem.h"
#include "editor/files/RecoveryDialog.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/text/Editor.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace {

/// Enough of the language to show all its colours.
const QString faulty = QStringLiteral("// Who lives in the country, and how.\n"
                                      "RUNDEF Population\n"
                                      "    TITLE \"Population by sex\"\n"
                                      "    FILTER PERSON.AGE >= 15 AND PERSON.AGE <> 99\n"
                                      "\n"
                                      "/* Age groups as the yearbook has them:\n"
                                      "   children are left out above. */\n"
                                      "DEFINE PERSON.AGEGROUP AS RECODE PERSON.AGE\n"
                                      "    (15 : 29 = 1) (30 : 64 = 2) (65 : HIGHEST = 3)\n"
                                      "    VALUELABELS 1 \"Young\" 2 \"Middle\" 3 \"Old\"\n"
                                      "\n"
                                      "FREQ PERSON.AGEGROUP BY PERSON.SEX\n"
                                      "FREQ PERSON.SCHOOLYEARS\n"
                                      "AVERAGE PERSON.INCOME BY PERSON.AGEGROUP\n"
                                      "    DECIMALS 1\n");

QListWidget* errorList(const ProcessProgramSPC& window) {
    return find<QListWidget>(window, "errorListWidget");
}

} // namespace

void Tour::programs() {
    programFromRibbon("File-new", QStringLiteral("newProgram"));
    completion();
    compileError();
    colourSchemes();
    findPanel();
    executeWindow();
    progress();
    samplePrograms();
}

ProcessProgramSPC& Tour::program() const {
    const QMdiSubWindow* frame = find<QMdiArea>(window_, "workArea")->activeSubWindow();
    auto* window = frame != nullptr ? qobject_cast<ProcessProgramSPC*>(frame->widget()) : nullptr;
    if (window == nullptr)
        throw std::runtime_error("no program window is in front");
    return *window;
}

Editor& Tour::editor() const {
    return *program().currentEditor();
}

void Tour::programFromRibbon(const char* button, const QString& entry) {
    find<tt::TabToolbar>(window_, "ribbon")->SetCurrentTab(ribbon::FilePage);
    QMenu* menu = find<tt::CompactToolButton>(window_, button)->defaultAction()->menu();
    menu->popup(window_.mapToGlobal(QPoint()));
    require(QTest::qWaitFor([menu] { return menu->isVisible(); }),
            QStringLiteral("no menu appears"));
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions)
        if (action->objectName() == entry || action->text().endsWith(entry)) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            program().currentEditor()->setFocus();
            return;
        }
    menu->close();
    require(false, QStringLiteral("no entry %1").arg(entry));
}

void Tour::type(const QString& text) {
    for (const QChar letter : text) {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* target = popup == nullptr ? QApplication::focusWidget() : popup->focusWidget();
        QTest::keyClicks(target != nullptr ? target : popup, letter);
    }
}

void Tour::completion() {
    type(QStringLiteral("freq person.e"));
    require(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }),
            QStringLiteral("no word is offered"));
    shootScreen(QStringLiteral("program-completion"));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(&editor(), Qt::Key_F8);
    shootScreen(QStringLiteral("program-syntax-clue"));
    if (QApplication::activePopupWidget() != nullptr)
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

void Tour::compileError() {
    editor().selectAll();
    editor().insertPlainText(faulty);
    program().on_actionCompile_triggered();
    QListWidget* list = errorList(program());
    require(list->count() > 1 && list->isVisible(), QStringLiteral("no fault is listed"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    require(editor().highlightedLine() == 13, QStringLiteral("the fault leads nowhere"));
    shoot(QStringLiteral("program-compile-error"));
}

void Tour::colourSchemes() {
    KelSystem& system = KelSystem::instance();
    const int before = system.editorColorScheme();
    for (const int scheme : {1, 2, 3, 4, 5, 6, 7, 0}) {
        system.setEditorColorScheme(scheme);
        program().hide();
        program().show(); // it reads the preferences when it shows
        shoot(QStringLiteral("program-scheme-%1").arg(scheme));
    }
    system.setEditorColorScheme(before);
}

void Tour::findPanel() {
    editor().setFocus();
    QTest::keyClick(&editor(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&editor(), Qt::Key_F, Qt::ControlModifier);
    auto* query = find<QLineEdit>(program(), "queryField");
    query->clear();
    QTest::keyClicks(query, QStringLiteral("PERSON"));
    QTest::mouseClick(find<QPushButton>(program(), "findAllButton"), Qt::LeftButton);
    shoot(QStringLiteral("program-find"));
}

void Tour::executeWindow() {
    programFromRibbon("File-new", QStringLiteral("newExecute"));
    editor().insertPlainText(
        QStringLiteral("EXECUTE \"profile.spc\" province = {01}, title = {First province}\n"
                       "EXECUTE \"profile.spc\" province = {02}, title = {Second province}\n"));
    QTest::keyClick(&editor(), Qt::Key_F9);
    require(!errorList(program())->findItems(QStringLiteral("2/2"), Qt::MatchContains).isEmpty(),
            QStringLiteral("the list of programs did not run"));
    shoot(QStringLiteral("program-execute"));
}

/// A long run, which ends by its Cancel button.
void Tour::progress() {
    programFromRibbon("File-new", QStringLiteral("newProgram"));
    editor().insertPlainText(
        QStringLiteral("FREQ PERSON.INCOME BY PERSON.AGE BY PERSON.OCCUPATION\n").repeated(300));
    int seen = 0; // times, until it is painted
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = window_.findChild<QProgressDialog*>(QStringLiteral("runProgress"));
        if (dialog == nullptr || !dialog->isVisible() || ++seen != 5)
            return;
        saveScreen(QStringLiteral("program-progress"));
        QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
    });
    timer.start(20);
    QTest::keyClick(&editor(), Qt::Key_F9);
    require(seen >= 5, QStringLiteral("the run shows no progress"));
    program().parentWidget()->close();
}

void Tour::recovery() {
    const QTemporaryDir folder;
    RecoveryStore store(folder.path());
    RecoveryCopy untitled;
    untitled.id = QStringLiteral("1");
    untitled.name = QStringLiteral("Untitled document");
    untitled.written = QDateTime(QDate(2026, 1, 15), QTime(9, 30));
    untitled.text = faulty;
    RecoveryCopy saved = untitled;
    saved.id = QStringLiteral("2");
    saved.name = QStringLiteral("population.spc");
    saved.filePath = QStringLiteral("/data/census/population.spc");
    saved.text = QStringLiteral("FREQ PERSON.SEX\n");
    RecoveryDialog dialog(store, {untitled, saved}, &window_);
    dialog.show();
    QTest::qWait(100);
    save(dialog.grab(), QStringLiteral("recovery"));
}

void Tour::samplePrograms() {
    for (const QString name : {"population.spc", "districts.spc", "housing.spc", "income.spc",
                               "provinces.spc", "capital.spc", "profiles.spc", "variables.spc"}) {
        programFromRibbon("File-programs", name);
        ProcessProgramSPC& window = program();
        QTest::keyClick(&editor(), Qt::Key_F9);
        const QListWidget* list = errorList(window);
        for (int row = 0; row < list->count(); ++row)
            require(false, name + QStringLiteral(": ") + list->item(row)->text());
        shoot(QStringLiteral("results-") + name.chopped(4));
        find<QMdiArea>(window_, "workArea")
            ->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(window.parentWidget()));
        window.parentWidget()->close();
    }
}

void Tour::programIn(const QString& language) {
    auto* area = find<QMdiArea>(window_, "workArea");
    QMdiSubWindow* before = area->activeSubWindow();
    for (QMdiSubWindow* frame : area->subWindowList())
        if (qobject_cast<ProcessProgramSPC*>(frame->widget()) != nullptr)
            area->setActiveSubWindow(frame);
    shoot(QStringLiteral("program-") + language);
    auto* menu = find<QMenu>(program(), "menuEdit");
    menu->popup(program().mapToGlobal(QPoint(30, 30)));
    shootScreen(QStringLiteral("program-menu-") + language);
    menu->close();
    area->setActiveSubWindow(before);
}
