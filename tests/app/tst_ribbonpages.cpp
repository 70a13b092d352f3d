// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the main window's ribbon: what stands on them, what can be pressed and what that
// does.
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/ribbon/DictionaryToolBar.h"
#include "app/ribbon/GeneralToolBar.h"
#include "app/ribbon/OpenDictionaryButtonMenu.h"
#include "app/ribbon/RibbonPages.h"
#include "app/ribbon/RibbonState.h"
#include "app/ribbon/RibbonStyle.h"
#include "app/ribbon/WorkAreaModes.h"
#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/Group.h"
#include "app/ribbon/tt/Page.h"
#include "app/ribbon/tt/Style.h"
#include "app/ribbon/tt/TabToolbar.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {

/// Says everything at greater length, as other languages do.
class LongWords : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        QStringList words = QString::fromUtf8(text).split(' ');
        for (QString& word : words)
            word += word.left((word.size() * 4 + 9) / 10);
        return words.join(' ');
    }
};

} // namespace

class TestRibbonPages : public QObject {
    Q_OBJECT

    std::unique_ptr<QMainWindow> window_;
    QMdiArea* area_ = nullptr;
    tt::TabToolbar* ribbon_ = nullptr;
    RibbonPages* pages_ = nullptr;
    QStringList messages_;

    void build(const RibbonState& state) {
        window_ = std::make_unique<QMainWindow>();
        area_ = new QMdiArea;
        window_->setCentralWidget(area_);
        workarea::showTabs(*area_);
        ribbon_ = new tt::TabToolbar(window_.get(), 75, 3);
        window_->addToolBar(ribbon_);
        applyRibbonStyle(*ribbon_, 0);
        pages_ = new RibbonPages(*ribbon_, state, *area_);
        window_->resize(1366, 700);
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    static RibbonState open() {
        RibbonState state;
        state.dictionaryOpen = true;
        return state;
    }

    tt::CompactToolButton* button(const QString& name) const {
        return ribbon_->findChild<tt::CompactToolButton*>(name);
    }

    /// On the page where it stands.
    void click(const QString& name) {
        for (int i = 0; i < ribbon_->Pages().size(); ++i)
            if (ribbon_->Pages()[i]->isAncestorOf(button(name)))
                ribbon_->SetCurrentTab(i);
        QTRY_VERIFY(button(name)->isVisible());
        QTest::mouseClick(button(name), Qt::LeftButton);
    }

    QStringList enabledOn(ribbon::PageIndex page) const {
        QStringList names;
        for (const auto* button : ribbon_->Pages()[page]->findChildren<tt::CompactToolButton*>())
            if (button->isEnabled())
                names += button->accessibleName();
        return names;
    }

    QList<QMdiSubWindow*> threeWindows() {
        for (const char* name : {"A", "B", "C"}) {
            auto* content = new QWidget;
            content->setWindowTitle(name);
            area_->addSubWindow(content)->show();
        }
        return area_->subWindowList();
    }

private slots:
    void init() {
        messages_.clear();
        answerMessages([this](MessageKind, const QString& text) {
            messages_ += text;
            return Choice::Yes;
        });
        build({});
    }

    void cleanup() {
        answerMessages({});
        window_.reset();
    }

    void pagesAndButtonsStandInOrder_data() {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("groups"); // the buttons of each
        QTest::newRow("project") << 0 << "  PROJECT  "
                                 << QStringList{"New,Open,Save,Save As", "Show,Close"};
        QTest::newRow("dictionary")
            << 1 << "  DICTIONARY  "
            << QStringList{"Open,Save,Save As", "Locate,Consistency,Report,Close"};
        QTest::newRow("file") << 2 << "  FILE  "
                              << QStringList{"New,Open", "Programs,Selections,Maps",
                                             "Table Styles,Graph Styles", "Execute"};
        QTest::newRow("statistics")
            << 3 << "  BASIC STATISTICS  "
            << QStringList{"Filter,Selection", "Statistics", "Count,Arealist,View",
                           "Frequencies,Crosstab,Functions", "Variable,Output Summary"};
        QTest::newRow("indicators") << 4 << "  EASY INDICATORS  " << QStringList();
        QTest::newRow("window")
            << 5 << "  WINDOW  "
            << QStringList{"Restore",
                           "Tile vertical,Tile horizontal,Cascade,Minimize All,Arrange Icons",
                           "Results"};
        QTest::newRow("general") << 6 << "  GENERAL  " << QStringList{"Preferences,Help,About"};
    }

    void pagesAndButtonsStandInOrder() {
        QFETCH(int, page);
        QFETCH(QString, title);
        QFETCH(QStringList, groups);
        QCOMPARE(ribbon_->Pages().size(), 7);
        QCOMPARE(ribbon_->findChild<QTabBar*>()->tabText(page), title);
        ribbon_->SetCurrentTab(page);
        QCoreApplication::processEvents();
        QStringList found;
        int right = 0;
        for (const auto* group : ribbon_->Pages()[page]->findChildren<tt::Group*>()) {
            QStringList names;
            for (const auto* button : group->findChildren<tt::CompactToolButton*>()) {
                names += button->accessibleName();
                const int left = button->mapTo(ribbon_, QPoint()).x();
                QVERIFY2(left >= right, qPrintable(names.last()));
                right = left + button->width();
                QVERIFY2(!button->icon().pixmap(24).isNull(), qPrintable(names.last()));
                QVERIFY2(!button->toolTip().isEmpty(), qPrintable(names.last()));
                QVERIFY2(button->toolTip() != names.last(), qPrintable(names.last()));
            }
            found += names.join(',');
        }
        QCOMPARE(found, groups);
    }

    void buttonsFollowTheState() {
        QStringList windows = {"Restore", "Tile vertical", "Tile horizontal",
                               "Cascade", "Minimize All",  "Arrange Icons"};
        QCOMPARE(enabledOn(ribbon::DictionaryPage), QStringList("Open"));
        QCOMPARE(enabledOn(ribbon::WindowPage), windows);
        QCOMPARE(enabledOn(ribbon::GeneralPage), QStringList({"Preferences", "Help", "About"}));
        RibbonState state = open();
        state.hasResults = true;
        build(state);
        windows += "Results";
        QCOMPARE(enabledOn(ribbon::WindowPage), windows);
        const QStringList clean = {"Open", "Save As", "Locate", "Close"};
        QCOMPARE(enabledOn(ribbon::DictionaryPage), clean);
        pages_->enableSaveDictionary(true);
        QCOMPARE(enabledOn(ribbon::DictionaryPage),
                 QStringList({"Open", "Save", "Save As", "Locate", "Close"}));
        pages_->enableSaveDictionary(false);
        QCOMPARE(enabledOn(ribbon::DictionaryPage), clean);
        state.dictionaryDirty = true;
        build(state);
        QVERIFY(button("Dictionary-save")->isEnabled());
        state.loading = true;
        build(state);
        pages_->enableSaveDictionary(true);
        QCOMPARE(enabledOn(ribbon::DictionaryPage), QStringList());
        QSignalSpy asked(pages_, &RibbonPages::readingDictionary);
        KelvoraFileDialog::answerNext("/data/x.kxdb");
        QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(asked.size(), 0);
        KelvoraFileDialog::answerNext({});
    }

    void saveOfNothingIsRefused() {
        pages_->enableSaveDictionary(true); // nothing is open
        QVERIFY(!button("Dictionary-save")->isEnabled());
        pages_->dictionary()->on_consistencyDictionary();
        QCOMPARE(messages_, QStringList("Please, you must open a dictionary beforehand"));
    }

    void dictionaryButtonsAskTheirOwner() {
        RibbonState state = open();
        state.dictionaryDirty = true;
        build(state);
        QStringList asked;
        connect(pages_, &RibbonPages::saveDictionary, this, [&] { asked += "save"; });
        connect(pages_, &RibbonPages::saveAsDictionary, this, [&] { asked += "save as"; });
        connect(pages_, &RibbonPages::locateDictionary, this, [&] { asked += "locate"; });
        connect(pages_, &RibbonPages::closeAllDictionary, this, [&] { asked += "close"; });
        connect(pages_, &RibbonPages::preferences, this, [&] { asked += "preferences"; });
        for (const char* name : {"Dictionary-save", "Dictionary-saveas", "Dictionary-locate",
                                 "Dictionary-close", "General-preferences"})
            click(name);
        // From whichever page.
        QTest::keyClick(area_, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(area_, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(area_, Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(asked, QStringList({"save", "save as", "locate", "close", "preferences", "save",
                                     "save as", "preferences"}));
    }

    void ribbonIsReplacedFromItsOwnButton() {
        build(open());
        connect(pages_, &RibbonPages::closeAllDictionary, this, [this] {
            window_->removeToolBar(ribbon_);
            ribbon_->deleteLater();
            auto* next = new tt::TabToolbar(window_.get(), 75, 3);
            next->SetMinimized(ribbon_->IsMinimized());
            window_->addToolBar(next);
            applyRibbonStyle(*next, 0);
            pages_ = new RibbonPages(*next, {}, *area_);
            ribbon_ = next;
        });
        const QPointer<tt::TabToolbar> old = ribbon_;
        ribbon_->SetMinimized(true);
        QTest::keyClick(area_, Qt::Key_2, Qt::AltModifier);
        QTRY_VERIFY(button("Dictionary-close")->isVisible());
        QTest::mouseClick(button("Dictionary-close"), Qt::LeftButton);
        QTRY_VERIFY(old == nullptr);
        QTRY_VERIFY(ribbon_->isVisible() && !ribbon_->IsPageShown());
        QVERIFY(!button("Dictionary-close")->isEnabled());
        // Its keys are the new one's alone.
        QSignalSpy asked(pages_, &RibbonPages::preferences);
        QTest::keyClick(area_, Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(asked.size(), 1);
        QTest::keyClick(area_, Qt::Key_6, Qt::AltModifier);
        QCOMPARE(ribbon_->CurrentTab(), static_cast<int>(ribbon::WindowPage));
        QTRY_VERIFY(button("Window-cascade")->isVisible());
    }

    void openingAsksForAFile() {
        QSignalSpy asked(pages_, &RibbonPages::readingDictionary);
        KelvoraFileDialog::answerNext("/data/census.2010.kxdb");
        QTest::keyClick(area_, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked[0], QVariantList({"/data/census.2010.kxdb", "kxdb"}));
        KelvoraFileDialog::answerNext({}); // the user cancels
        QTest::keyClick(area_, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(asked.size(), 1);
    }

    void recentDictionariesOpenByNumber() {
        RibbonState state;
        const QString folder = "/home/someone/" + QString(80, 'f');
        state.recentDictionaries = QStringList{"/data/one.kxdb", "/data/R&D.dicx"};
        for (int i = 3; i <= 11; ++i)
            state.recentDictionaries += QStringLiteral("%1/%2.kxdb").arg(folder).arg(i);
        build(state);
        QSignalSpy asked(pages_, &RibbonPages::dictionaryFile);
        QMenu* menu = button("Dictionary-open")->defaultAction()->menu();
        QList<QAction*> entries = menu->actions();
        QCOMPARE(entries.takeFirst()->objectName(), "openDictionary");
        entries.removeIf([](const QAction* action) { return action->isSeparator(); });
        QCOMPARE(entries.size(), 11);
        QCOMPARE(entries[1]->text(), "&2  /data/R&&D.dicx");
        QVERIFY(entries[2]->text().size() < state.recentDictionaries[2].size());
        QVERIFY(entries[2]->text().endsWith("3.kxdb"));
        QCOMPARE(entries[2]->toolTip(), state.recentDictionaries[2]);
        QVERIFY(!entries[9]->text().startsWith('&'));
        menu->popup({});
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_2);
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked[0][0].toString(), "/data/R&D.dicx");
        QVERIFY(!menu->isVisible());
    }

    void programsBeginAndOpenFromTheirMenus() {
        RibbonState state = open();
        state.recentPrograms = QStringList{"/home/someone/a.spc", "/home/someone/b.spc"};
        state.recentExecutes = QStringList{"/home/someone/all.spc"};
        state.dictionaryPrograms = QStringList{"/home/someone/a.spc", "/data/income.spc"};
        build(state);
        QStringList asked;
        connect(pages_, &RibbonPages::newProgram, this,
                [&](bool execute) { asked += execute ? "new execute" : "new"; });
        connect(pages_, &RibbonPages::programFile, this, [&](const QString& path, bool execute) {
            asked += path + (execute ? " execute" : "");
        });
        const auto press = [this](const char* name, std::initializer_list<Qt::Key> keys) {
            QMenu* menu = button(name)->defaultAction()->menu();
            menu->popup({});
            QTRY_VERIFY(menu->isVisible());
            for (const Qt::Key key : keys)
                QTest::keyClick(menu, key);
            QVERIFY(!menu->isVisible());
        };
        press("File-new", {Qt::Key_P});
        press("File-new", {Qt::Key_E});
        KelvoraFileDialog::answerNext("/home/someone/c.spc");
        press("File-open", {Qt::Key_P});
        KelvoraFileDialog::answerNext({}); // the user cancels
        press("File-open", {Qt::Key_P});
        KelvoraFileDialog::answerNext("/home/someone/d.spc");
        press("File-open", {Qt::Key_E});
        press("File-programs", {Qt::Key_2});
        press("File-programs", {Qt::Key_3});
        press("File-execute", {Qt::Key_N});
        press("File-execute", {Qt::Key_1});
        QCOMPARE(asked,
                 QStringList({"new", "new execute", "/home/someone/c.spc",
                              "/home/someone/d.spc execute", "/home/someone/b.spc",
                              "/data/income.spc", "new execute", "/home/someone/all.spc execute"}));
        build({});
        QVERIFY(!button("File-programs")->isEnabled()); // there is none to offer
        QVERIFY(button("File-new")->isEnabled());
    }

    void windowsTileSideBySideAndAboveOneAnother() {
        const QList<QMdiSubWindow*> windows = threeWindows();
        windows[1]->showMinimized();
        click("Window-vertical");
        QCOMPARE(area_->viewMode(), QMdiArea::SubWindowView);
        const QRect room = area_->viewport()->rect();
        int x = 0;
        for (const QMdiSubWindow* window : windows) {
            QCOMPARE(window->geometry().topLeft(), QPoint(x, 0));
            QCOMPARE(window->height(), room.height());
            x += window->width();
        }
        QCOMPARE(x, room.width());
        windows[2]->hide(); // keeps out of it
        click("Window-horizontal");
        QCOMPARE(windows[0]->width(), room.width());
        QCOMPARE(windows[1]->y(), windows[0]->height());
        QCOMPARE(windows[0]->height() + windows[1]->height(), room.height());
        QVERIFY(windows[2]->isHidden());
    }

    void windowsCascadeMinimiseAndComeBack() {
        const QList<QMdiSubWindow*> windows = threeWindows();
        click("Window-cascade");
        QCOMPARE(area_->viewMode(), QMdiArea::SubWindowView);
        const QRect room = area_->viewport()->rect();
        QSet<QPair<int, int>> corners;
        for (const QMdiSubWindow* window : windows)
            corners += {window->x(), window->y()};
        QCOMPARE(corners.size(), 3);
        click("Window-minimize");
        for (const QMdiSubWindow* window : windows)
            QVERIFY(window->isMinimized());
        windows[0]->move(300, 20);
        windows[2]->showNormal();
        windows[2]->setGeometry(5, 6, 200, 100);
        click("Window-arrange");
        QCOMPARE(windows[0]->geometry().bottomLeft(), room.bottomLeft());
        QCOMPARE(windows[1]->geometry().bottom(), room.bottom());
        QCOMPARE(windows[1]->x(), windows[0]->width());
        QCOMPARE(windows[2]->geometry(), QRect(5, 6, 200, 100));
        click("Window-restore");
        QCOMPARE(area_->viewMode(), QMdiArea::TabbedView);
        QVERIFY(area_->tabsClosable() && area_->tabsMovable());
        for (const QMdiSubWindow* window : windows)
            QVERIFY(!window->isMinimized());
    }

    void arrangementsOfAnEmptyAreaDoNothing() {
        for (const char* name : {"Window-vertical", "Window-horizontal", "Window-cascade",
                                 "Window-minimize", "Window-arrange", "Window-restore"})
            click(name);
        QCOMPARE(area_->viewMode(), QMdiArea::TabbedView);
    }

    void aboutAndHelp() {
        QCoreApplication::setApplicationName("KelXProcess");
        QCoreApplication::setApplicationVersion("67f53c7a");
        RibbonState state;
        state.engineVersion = "engine 9.9";
        build(state);
        click("General-about");
        QCOMPARE(messages_, QStringList("KelXProcess 1.2.1\n\nKelXProcess 67f53c7a, Commit: "
                                        "67f53c7aApr 27 2026 on engine 9.9"));
        QCOMPARE(GeneralToolBar::helpUrl("Process_es").path(), "/kdc/help/kelx/process/esp/");
        for (const char* language : {"Process_en", "Process_fr", "Process_pt", ""})
            QCOMPARE(GeneralToolBar::helpUrl(language).path(), "/kdc/help/kelx/process/eng/");
    }

    void longWordsFitOnASmallScreen() {
        LongWords words;
        QVERIFY(QCoreApplication::installTranslator(&words));
        build(open());
        QCOMPARE(button("Dictionary-locate")->accessibleName(), "LocateLoc");
        for (const tt::Page* page : ribbon_->Pages())
            QVERIFY2(page->ContentWidth() <= 1366,
                     qPrintable(page->accessibleName() + QString::number(page->ContentWidth())));
        const auto* tabs = ribbon_->findChild<QTabBar*>();
        QVERIFY2(tabs->sizeHint().width() < 1250, qPrintable(QString::number(tabs->width())));
        QCoreApplication::removeTranslator(&words);
        // The titles follow at once, and the rest with the next ribbon.
        pages_->retitle();
        QCOMPARE(tabs->tabText(ribbon::FilePage), "  FILE  ");
    }

    void stylesColorTheWholeApplication() {
        const auto lightness = [] { return QApplication::palette().window().color().lightness(); };
        applyRibbonStyle(*ribbon_, 2);
        QVERIFY(lightness() < 100);
        QCOMPARE(ribbon_->StyleName(), tt::StyleNames()[2]);
        for (const int beyond : {99, -1}) {
            applyRibbonStyle(*ribbon_, beyond);
            QCOMPARE(ribbon_->StyleName(), tt::StyleNames()[0]);
            QVERIFY(lightness() > 200);
        }
    }
};

QTEST_MAIN(TestRibbonPages)
#include "tst_ribbonpages.moc"
