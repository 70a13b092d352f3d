// SPDX-License-Identifier: GPL-3.0-or-later
#include "ResultsFixture.h"

#include "app/settings/KelSystem.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "results/tables/TableBase.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

ResultsFixture::ResultsFixture() {
    kel::init(std::make_shared<TKelConfigImpl>());
    writeSmallDatabase(folder_.path());
    dictionary_ = kel::readDictionary(path("small.kxdb").toStdString(), nullptr, true);
    KelSystem::instance().setDirectoryFor("TABLE", folder_.path());
    answerMessages([this](MessageKind, const QString& text) {
        messages += text;
        return Choice::No;
    });
    window_ = std::make_unique<ResultsManager>(KelSystem::instance(), path("small.kxdb"));
    QObject::connect(window_.get(), &ResultsManager::signalTableShowed, window_.get(),
                     [this](TableBase* table) { tables += table->tableName(); });
    window_->resize(1000, 700);
    window_->show();
    window_->activateWindow();
    if (!QTest::qWaitForWindowActive(window_.get()))
        qWarning("the window is not active");
}

ResultsFixture::~ResultsFixture() {
    window_.reset();
    answerMessages({});
    dictionary_.reset();
    kel::destroy();
}

std::shared_ptr<TKelSession> ResultsFixture::session(const QString& program) const {
    auto session = kel::makeDefaultSession(dictionary_);
    session->executeText(program.toStdString(), nullptr);
    return session;
}

QStringList ResultsFixture::run(const QString& program, const QString& stylePath) const {
    const auto made = session(program);
    return window_->addOutputs(made->outputs(), made, stylePath);
}

QString ResultsFixture::write(const QString& name, const QByteArray& text) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(name));
    return path(name);
}

QByteArray ResultsFixture::read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QTreeView& ResultsFixture::tree() const {
    return *find<QTreeView>("treeView");
}

QTableView& ResultsFixture::grid() const {
    return *find<QTableView>("tableWidget");
}

QTableView& ResultsFixture::report() const {
    return *find<QTableView>("tableWidgetReport");
}

QModelIndex ResultsFixture::place(int process, int table) const {
    const QModelIndex top = tree().model()->index(process, 0);
    return table < 0 ? top : tree().model()->index(table, 0, top);
}

void ResultsFixture::click(const QModelIndex& place, Qt::KeyboardModifiers keys) const {
    // Behind the check box.
    const QRect rect = tree().visualRect(place);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, keys,
                      {rect.left() + rect.width() / 2 + 15, rect.center().y()});
}

void ResultsFixture::clickBox(const QModelIndex& place) const {
    QStyleOptionViewItem option;
    option.initFrom(&tree());
    option.rect = tree().visualRect(place);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box =
        tree().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree());
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, box.center());
}

QStringList ResultsFixture::selected() const {
    QStringList texts;
    for (const QModelIndex& index : tree().selectionModel()->selectedIndexes())
        texts += index.data().toString();
    texts.sort();
    return texts;
}

void ResultsFixture::trigger(const char* action) const {
    auto* bar = find<QToolBar>("toolBar");
    QWidget* button = bar->widgetForAction(find<QAction>(action));
    QTest::mouseClick(button, Qt::LeftButton);
}

QMenu* ResultsFixture::menu(QWidget& viewport, QPoint place) const {
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport.mapToGlobal(place));
    QApplication::sendEvent(&viewport, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

void ResultsFixture::choose(QMenu& menu, const char* action) const {
    auto* entry = menu.findChild<QAction*>(QLatin1String(action));
    auto* owner = qobject_cast<QMenu*>(entry->parent());
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(owner == &menu ? entry : owner->menuAction()).center());
    if (owner == &menu)
        return;
    QTRY_VERIFY(owner->isVisible());
    QTest::mouseClick(owner, Qt::LeftButton, {}, owner->actionGeometry(entry).center());
}

void ResultsFixture::answerFileDialog(const QString& path, QStringList* seen) {
    answerNextDialog([path, seen](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        if (files == nullptr)
            qFatal("%s is no file dialog", dialog.metaObject()->className());
        auto* name = files->findChild<QLineEdit*>("fileNameEdit");
        if (seen != nullptr)
            *seen = {files->windowTitle(), files->nameFilters().value(0), files->directory().path(),
                     name->text()};
        if (path.isEmpty()) {
            dialog.reject();
            return;
        }
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

QStringList ResultsFixture::rows(const QTableView& view, int role) {
    const QAbstractItemModel& model = *view.model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(row, column).data(role).toString();
        rows += cells.join('|');
    }
    return rows;
}

QString ResultsFixture::status() const {
    return window_->statusBar()->currentMessage();
}
