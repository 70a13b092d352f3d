// SPDX-License-Identifier: GPL-3.0-or-later
#include "Workbench.h"

#include "app/WorkArea.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTableView>
#include <QTest>

namespace {

QMenu* openMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

} // namespace

Workbench::Workbench() {
    UIInvoker::instance();
    kel::init(std::make_shared<TKelConfigImpl>());
    kel::setupLocale("en");
    writeSmallDatabase(folder_.path());
    answerMessages([this](MessageKind kind, const QString& text) {
        messages += text;
        saidWhileBusy += QApplication::overrideCursor() != nullptr ? 1 : 0;
        return kind == MessageKind::Question && !answers_.isEmpty() ? answers_.takeFirst()
                                                                    : Choice::No;
    });
    window_ = std::make_unique<MainWindow>();
    window_->setWindowTitle("KelXProcess 67f53c7a");
    window_->resize(1280, 800);
    window_->show();
    activate();
}

Workbench::~Workbench() {
    answerMessages({});
}

void Workbench::activate() const {
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void Workbench::waitForLoad() const {
    QTRY_VERIFY_WITH_TIMEOUT(!window_->isLoading(), 20000);
    QCoreApplication::processEvents(); // the docks take their places
}

void Workbench::openByKeyboard(const QString& path) const {
    activate();
    KelvoraFileDialog::answerNext(path);
    QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
    waitForLoad();
}

void Workbench::openSmall() const {
    if (TfrmProject::instance().dictionaryPath() != smallPath())
        openByKeyboard(smallPath());
    QVERIFY(TfrmProject::instance().allPathsFound());
}

bool Workbench::click(QAbstractItemView* view, const QString& text) {
    const QAbstractItemModel* model = view->model();
    const auto found = model->match(model->index(0, 0), Qt::DisplayRole, text, 1,
                                    Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        return false;
    view->scrollTo(found.first());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(found.first()).center());
    return true;
}

void Workbench::select(const QString& entity, const QString& variable) const {
    activate();
    QVERIFY2(click(find<QAbstractItemView>("TreeViewDictionary"), entity), qPrintable(entity));
    QVERIFY2(click(find<QAbstractItemView>("variableTable"), variable), qPrintable(variable));
}

void Workbench::chooseFromMenu(QAbstractItemView* view, const char* action) const {
    const QPoint place = view->visualRect(view->currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view->viewport(), &event);
    QTRY_VERIFY(openMenu() != nullptr);
    QMenu* menu = openMenu();
    auto* entry = menu->findChild<QAction*>(QLatin1String(action));
    QVERIFY2(entry != nullptr && entry->isEnabled(), action);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    QCoreApplication::processEvents(); // a run begins with them
}

void Workbench::frequency() const {
    chooseFromMenu(find<QAbstractItemView>("variableTable"), "actionFrequency");
}

QStringList Workbench::frequencyRows() const {
    const auto* table = find<QTableView>("tableWidget");
    QStringList rows;
    for (int row = 1; table != nullptr && row < table->model()->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->model()->columnCount(); ++column)
            cells += table->model()->index(row, column).data().toString();
        rows += cells.join('|');
    }
    rows.sort();
    return rows;
}

int Workbench::resultCount() const {
    const auto* results = find<QWidget>("ResultsManager");
    if (results == nullptr)
        return 0;
    const QAbstractItemModel& tree = *results->findChild<QAbstractItemView*>("treeView")->model();
    int tables = 0;
    for (int process = 0; process < tree.rowCount(); ++process)
        tables += tree.rowCount(tree.index(process, 0));
    return tables;
}

QStringList Workbench::windowNames() const {
    QStringList names;
    for (const QMdiSubWindow* frame : find<WorkArea>("workArea")->windows())
        names += frame->widget()->objectName();
    return names;
}
