// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tour.h"

#include "app/MainWindow.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/settings/KelSystem.h"
#include "projects/TfrmProject.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <stdexcept>

namespace {

void require(bool condition, const QString& what) {
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

template <typename View>
View* find(const MainWindow& window, const char* name) {
    auto* view = window.findChild<View*>(QLatin1String(name));
    require(view != nullptr, QStringLiteral("no widget %1").arg(QLatin1String(name)));
    return view;
}

/// Clicks the row that shows the text in its first column.
void clickRow(QAbstractItemView* view, const QString& text) {
    const auto found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, text, 1,
                                            Qt::MatchExactly | Qt::MatchRecursive);
    require(!found.isEmpty(), QStringLiteral("no row %1").arg(text));
    view->scrollTo(found.first());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(found.first()).center());
}

QPalette darkColours() {
    QPalette palette(QColor(53, 53, 57), QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(34, 34, 37));
    palette.setColor(QPalette::AlternateBase, QColor(43, 43, 47));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

} // namespace

void Tour::run(const QString& dictionary) {
    shoot(QStringLiteral("start"));
    open(dictionary);
    shoot(QStringLiteral("opened"));
    selectEntity(QStringLiteral("HOUSEHOLD"));
    shoot(QStringLiteral("household"));
    selectEntity(QStringLiteral("PERSON"));
    shoot(QStringLiteral("person"));
    filter(QStringLiteral("sex"));
    shoot(QStringLiteral("filter"));
    selectVariable(QStringLiteral("SEX"));
    frequency();
    shoot(QStringLiteral("frequency"));
    filter(QString());
    languages();
    darkPalette();
}

void Tour::firstTable(const QString& dictionary) {
    // Keys reach a window only once a window manager has made it the active one.
    window_.openFile(dictionary, QFileInfo(dictionary).suffix());
    waitForDictionary(dictionary);
    selectEntity(QStringLiteral("PERSON"));
    selectVariable(QStringLiteral("SEX"));
    window_.runFrequency(QStringLiteral("PERSON.SEX"));
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
    clickRow(find<QTreeView>(window_, "entityTree"), name);
}

void Tour::selectVariable(const QString& name) {
    clickRow(find<QTableView>(window_, "variableTable"), name);
}

void Tour::filter(const QString& text) {
    QTest::keyClick(&window_, Qt::Key_F, Qt::ControlModifier);
    auto* line = find<QLineEdit>(window_, "variableFilter");
    line->clear();
    QTest::keyClicks(line, text);
}

void Tour::frequency() {
    QTest::keyClick(&window_, Qt::Key_F9);
    const auto* table = find<QTableView>(window_, "frequencyTable");
    require(table->isVisible() && table->model()->rowCount() > 1,
            QStringLiteral("the frequency shows nothing"));
}

void Tour::languages() {
    for (const QString language : {"es", "pt", "fr", "en"}) {
        require(KelSystem::instance().installTranslator("Process_" + language),
                QStringLiteral("no translation for %1").arg(language));
        shoot(QStringLiteral("language-") + language);
    }
}

void Tour::darkPalette() {
    QApplication::setPalette(darkColours());
    shoot(QStringLiteral("dark"));
}

void Tour::shoot(const QString& name) {
    QTest::qWait(50);
    const QString file =
        QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
    require(window_.grab().save(QDir(folder_).filePath(file)),
            QStringLiteral("cannot write %1").arg(file));
}
