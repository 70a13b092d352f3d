// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tour.h"
#include "TourSteps.h"

#include "app/MainWindow.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/settings/KelSystem.h"
#include "dictionary/loading/LocatePaths.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "engine/UIInvoker.h"
#include "preferences/SelectorLanguageDlg.h"
#include "projects/TfrmProject.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <stdexcept>

namespace {

/// Clicks the row that shows the text in its first column.
void clickRow(QAbstractItemView* view, const QString& text) {
    const auto found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, text, 1,
                                            Qt::MatchExactly | Qt::MatchRecursive);
    require(!found.isEmpty(), QStringLiteral("no row %1").arg(text));
    view->scrollTo(found.first());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(found.first()).center());
}

constexpr QSize smallScreen(1280, 800);
constexpr QSize largeScreen(1920, 1080);

} // namespace

void Tour::run(const QString& dictionary) {
    window_.resize(smallScreen);
    shoot(QStringLiteral("start"));
    open(dictionary);
    shoot(QStringLiteral("opened"));
    ribbonPages();
    selectEntity(QStringLiteral("HOUSEHOLD"));
    shoot(QStringLiteral("household"));
    selectEntity(QStringLiteral("PERSON"));
    filter(QStringLiteral("ed"));
    shoot(QStringLiteral("filter"));
    filter(QString());
    properties();
    quickViews();
    menus();
    frequency();
    shoot(QStringLiteral("frequency"));
    results();
    programs();
    dialogs();
    preferences();
    languages();
    styles();
}

void Tour::firstTable(const QString& dictionary) {
    // Keys reach a window only once a window manager has made it the active one.
    window_.openFile(dictionary, QFileInfo(dictionary).suffix());
    waitForDictionary(dictionary);
    selectEntity(QStringLiteral("PERSON"));
    selectVariable(QStringLiteral("SEX"));
    window_.runProgram(QStringLiteral("FREQ PERSON.SEX"));
}

void Tour::open(const QString& dictionary) {
    KelvoraFileDialog::answerNext(dictionary);
    QTest::keyClick(&window_, Qt::Key_O, Qt::ControlModifier);
    waitForDictionary(dictionary);
}

void Tour::waitForDictionary(const QString& dictionary) {
    require(QTest::qWaitFor([&] { return !window_.isLoading(); }, 60000),
            QStringLiteral("the dictionary takes too long to open"));
    require(TfrmProject::instance().isOpen(), QStringLiteral("%1 did not open").arg(dictionary));
}

void Tour::selectEntity(const QString& name) {
    clickRow(find<QTreeView>(window_, "TreeViewDictionary"), name);
}

void Tour::selectVariable(const QString& name) {
    clickRow(find<QTableView>(window_, "variableTable"), name);
}

void Tour::filter(const QString& text) {
    auto* line = find<QLineEdit>(window_, "variableFilter");
    line->clear();
    QTest::keyClicks(line, text);
}

void Tour::ribbonPages() {
    auto* ribbon = find<tt::TabToolbar>(window_, "ribbon");
    const int page = ribbon->CurrentTab();
    for (int index = 0; index < ribbon->Pages().size(); ++index) {
        ribbon->SetCurrentTab(index);
        shoot(QStringLiteral("ribbon-%1").arg(index + 1));
    }
    ribbon->SetCurrentTab(page);
}

void Tour::properties() {
    selectVariable(QStringLiteral("SEX"));
    QTest::keyClick(find<QTableView>(window_, "variableTable"), Qt::Key_F8);
    shoot(QStringLiteral("variable-properties"));
    QTest::keyClick(find<QTreeView>(window_, "TreeViewDictionary"), Qt::Key_F8);
    shoot(QStringLiteral("entity-properties"));
    window_.dock(QStringLiteral("Variables"))->raise();
}

void Tour::quickViews() {
    QTest::keyClick(find<QTreeView>(window_, "TreeViewDictionary"), Qt::Key_F3);
    shoot(QStringLiteral("quick-view-entity"));
    selectVariable(QStringLiteral("EDUCATION"));
    QTest::keyClick(find<QTableView>(window_, "variableTable"), Qt::Key_F3);
    shoot(QStringLiteral("quick-view-variable"));
    window_.onCloseInfoAppProperties();
}

void Tour::menus() {
    for (const char* name : {"variableTable", "TreeViewDictionary"}) {
        showMenu(find<QAbstractItemView>(window_, name));
        shootScreen(QStringLiteral("menu-") + QLatin1String(name));
        QApplication::activePopupWidget()->close();
    }
}

void Tour::showMenu(QAbstractItemView* view) {
    const QPoint place = view->visualRect(view->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view->viewport(), &event);
    require(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }),
            QStringLiteral("no menu appears"));
}

void Tour::frequency() {
    selectVariable(QStringLiteral("SEX"));
    showMenu(find<QTableView>(window_, "variableTable"));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    auto* entry = menu->findChild<QAction*>(QStringLiteral("actionFrequency"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    QTest::qWait(100); // the run begins with the next events
    const auto* table = find<QTableView>(window_, "tableWidget");
    require(table->isVisible() && table->model()->rowCount() > 1,
            QStringLiteral("the frequency shows nothing"));
}

/// Each as it asks; the answer is always no.
void Tour::dialogs() {
    shootModal(QStringLiteral("language-choice"), [] { SelectorLanguageDlg::ask(); });
    shootModal(QStringLiteral("password"),
               [] { UIInvoker::instance().promptPassword(QStringLiteral("NATIONAL CENSUS")); });
    PathLocator::Item missing;
    missing.entity =
        DictionaryUtil().findEntity(TfrmProject::instance().root(), QStringLiteral("HOUSEHOLD"));
    recovery();
    shootModal(QStringLiteral("locate"), [&] { LocatePaths(missing, 1, 3, &window_).exec(); });
}

void Tour::shootModal(const QString& name, const std::function<void()>& ask) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        timer.stop();
        save(dialog->grab(), name);
        dialog->reject();
    });
    timer.start(100);
    ask();
}

void Tour::preferences() {
    window_.onClickInPreferences();
    shoot(QStringLiteral("preferences"));
}

void Tour::languages() {
    for (const QString language : {"es", "pt", "fr", "en"}) {
        auto* choice = find<QComboBox>(window_, "cbLanguage");
        choice->setCurrentIndex(choice->findData("Process_" + language));
        require(KelSystem::instance().language() == "Process_" + language,
                QStringLiteral("no translation for %1").arg(language));
        shoot(QStringLiteral("language-") + language);
        if (language == QLatin1String("en"))
            continue;
        properties();
        window_.onShowResults();
        shoot(QStringLiteral("results-") + language);
        programIn(language);
    }
}

void Tour::styles() {
    auto* choice = find<QComboBox>(window_, "cbMenuColors");
    for (int style = choice->count() - 1; style >= 0; --style) {
        choice->setCurrentIndex(style);
        window_.resize(smallScreen);
        shoot(QStringLiteral("style-%1").arg(style + 1));
        window_.resize(largeScreen);
        shoot(QStringLiteral("style-%1-large").arg(style + 1));
    }
}

void Tour::save(const QPixmap& picture, const QString& name) {
    const QString file =
        QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
    require(picture.save(QDir(folder_).filePath(file)),
            QStringLiteral("cannot write %1").arg(file));
}

void Tour::shoot(const QString& name) {
    QTest::qWait(100);
    save(window_.grab(), name);
}

void Tour::shootScreen(const QString& name) {
    QTest::qWait(100);
    saveScreen(name);
}

void Tour::saveScreen(const QString& name) {
    const QRect place = window_.geometry();
    save(QGuiApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), place.width(),
                                                      place.height()),
         name);
}
