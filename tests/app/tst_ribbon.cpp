// SPDX-License-Identifier: GPL-3.0-or-later
// The ribbon by itself: tabs, pages, minimising, keyboard, narrow windows, fonts and styles.
#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/Group.h"
#include "app/ribbon/tt/Page.h"
#include "app/ribbon/tt/Style.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/ribbon/tt/WaitingSpinnerWidget.h"
#include "support/Contrast.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace tt;

namespace {

/// What a call throws; empty where it throws nothing.
QString thrown(const std::function<void()>& call) {
    try {
        call();
    } catch (const std::runtime_error& fault) {
        return fault.what();
    }
    return {};
}

/// A window with a ribbon of two pages and something else to focus.
class Window : public QMainWindow {
public:
    Window() {
        auto* middle = new QWidget;
        auto* layout = new QVBoxLayout(middle);
        edit = new QLineEdit;
        layout->addWidget(edit);
        ground = new QWidget; // takes no focus
        layout->addWidget(ground, 1);
        setCentralWidget(middle);
        ribbon = new TabToolbar(this, 75, 3);
        addToolBar(ribbon);
        ribbon->SetStyle(StyleNames().constFirst());
        Group* first = ribbon->AddPage("  ONE  ")->AddGroup("Files");
        for (const char* name : {"Open", "Save", "Close"})
            add(first, name);
        Group* second = ribbon->AddPage("  TWO  ")->AddGroup("More");
        add(second, "Output Summary")->setShortcut(Qt::Key_F7);
        resize(900, 500);
        show();
    }

    QAction* add(Group* group, const QString& name) {
        auto* action = new QAction(name, this);
        action->setObjectName(name);
        group->AddAction(QToolButton::DelayedPopup, action);
        actions[name] = action;
        return action;
    }

    QWidget* button(const QString& name) const {
        return ribbon->findChild<CompactToolButton*>(name);
    }
    QTabBar* tabBar() const { return ribbon->findChild<QTabBar*>(); }
    void clickTab(int index) const {
        QTest::mouseClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(index).center());
    }
    void doubleClickTab(int index) const {
        QTest::mouseDClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(index).center());
    }
    void clickHide() const {
        QTest::mouseClick(ribbon->findChild<QToolButton*>("hideRibbon"), Qt::LeftButton);
    }
    bool shows(const QString& name) const { return !button(name)->visibleRegion().isEmpty(); }

    TabToolbar* ribbon;
    QLineEdit* edit;
    QWidget* ground;
    QHash<QString, QAction*> actions;
};

} // namespace

class TestRibbon : public QObject {
    Q_OBJECT

    std::unique_ptr<Window> window_;
    QFont font_;

private slots:
    void init() {
        font_ = QApplication::font();
        window_ = std::make_unique<Window>();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void cleanup() {
        window_.reset();
        QApplication::setFont(font_);
    }

    void minimisingKeepsThePage() {
        QSignalSpy minimized(window_->ribbon, &TabToolbar::Minimized);
        QSignalSpy maximized(window_->ribbon, &TabToolbar::Maximized);
        const auto* hide = window_->ribbon->findChild<QToolButton*>("hideRibbon");
        window_->clickTab(1);
        QTRY_VERIFY(window_->shows("Output Summary"));
        const int height = window_->ribbon->height();
        QCOMPARE(hide->text(), "▲");
        window_->clickHide();
        QTRY_VERIFY(window_->ribbon->height() < height / 2);
        QVERIFY(!window_->shows("Output Summary"));
        QCOMPARE(hide->text(), "▼");
        QCOMPARE(window_->ribbon->CurrentTab(), 1);
        window_->clickHide();
        QTRY_COMPARE(window_->ribbon->height(), height);
        QTRY_VERIFY(window_->shows("Output Summary"));
        QCOMPARE(window_->ribbon->CurrentTab(), 1);
        QCOMPARE(minimized.size(), 1);
        QCOMPARE(maximized.size(), 1);
    }

    void minimisedTabShowsItsPageUntilTheFocusGoes() {
        window_->ribbon->SetMinimized(true);
        window_->clickTab(1);
        QTRY_VERIFY(window_->shows("Output Summary"));
        QVERIFY(window_->ribbon->IsMinimized());
        // Pressing a button leaves the page, the focus going elsewhere hides it.
        QSignalSpy triggered(window_->actions["Output Summary"], &QAction::triggered);
        QTest::mouseClick(window_->button("Output Summary"), Qt::LeftButton);
        QCOMPARE(triggered.size(), 1);
        QVERIFY(window_->ribbon->IsPageShown());
        window_->edit->setFocus();
        QTRY_VERIFY(!window_->shows("Output Summary"));
        QVERIFY(window_->edit->hasFocus());
        // A click on what takes no focus hides it too, and so does the same tab again.
        window_->clickTab(0);
        QTRY_VERIFY(window_->shows("Save"));
        QTest::mouseClick(window_->ground, Qt::LeftButton);
        QTRY_VERIFY(!window_->shows("Save"));
        window_->clickTab(0);
        QTRY_VERIFY(window_->shows("Save"));
        window_->clickTab(0);
        QTRY_VERIFY(!window_->shows("Save"));
        QVERIFY(window_->ribbon->IsMinimized());
    }

    void doubleClickOnATabMinimisesAndBack() {
        window_->doubleClickTab(1);
        QTRY_VERIFY(window_->ribbon->IsMinimized());
        QCoreApplication::processEvents();
        QVERIFY(!window_->ribbon->IsPageShown());
        QCOMPARE(window_->ribbon->CurrentTab(), 1);
        window_->doubleClickTab(0);
        QTRY_VERIFY(!window_->ribbon->IsMinimized());
        QCOMPARE(window_->ribbon->CurrentTab(), 0);
        QTRY_VERIFY(window_->shows("Save"));
    }

    void keyboardReachesEveryButton() {
        window_->actions["Save"]->setEnabled(false);
        QSignalSpy closed(window_->actions["Close"], &QAction::triggered);
        window_->edit->setFocus();
        QTest::keyClick(window_->edit, Qt::Key_2, Qt::AltModifier);
        QCOMPARE(window_->ribbon->CurrentTab(), 1);
        QVERIFY(window_->tabBar()->hasFocus());
        QTest::keyClick(window_->tabBar(), Qt::Key_Left);
        QCOMPARE(window_->ribbon->CurrentTab(), 0);
        QTest::keyClick(window_->tabBar(), Qt::Key_Down);
        QVERIFY(window_->button("Open")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QVERIFY(window_->button("Close")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(closed.size(), 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QVERIFY(window_->button("Open")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QVERIFY(window_->tabBar()->hasFocus());
    }

    void minimisedRibbonWorksByKeyboard() {
        QTest::keyClick(window_->edit, Qt::Key_F1, Qt::ControlModifier);
        QTRY_VERIFY(window_->ribbon->IsMinimized());
        QTest::keyClick(window_->edit, Qt::Key_1, Qt::AltModifier);
        QTRY_VERIFY(window_->shows("Open"));
        QTest::keyClick(window_->tabBar(), Qt::Key_Down);
        QTest::keyClick(window_->button("Open"), Qt::Key_Escape);
        QVERIFY(!window_->ribbon->IsPageShown());
        QVERIFY(window_->tabBar()->hasFocus());
        // A command's keys count on whichever page it stands.
        QSignalSpy triggered(window_->actions["Output Summary"], &QAction::triggered);
        QTest::keyClick(window_->edit, Qt::Key_F7);
        QCOMPARE(triggered.size(), 1);
    }

    void pagesHideAndSpecialTabsOnlyTell() {
        Page* second = window_->ribbon->Pages()[1];
        second->Hide();
        QVERIFY(!window_->tabBar()->isTabVisible(1));
        second->Show();
        QVERIFY(window_->tabBar()->isTabVisible(1));
        window_->ribbon->SetSpecialTab(1);
        QSignalSpy clicked(window_->ribbon, &TabToolbar::SpecialTabClicked);
        window_->clickTab(1);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(window_->ribbon->CurrentTab(), 0);
    }

    void cornerActionsStandBeforeTheHideButton() {
        auto* action = new QAction("M", window_.get());
        action->setObjectName("mode");
        action->setToolTip("Tabs or windows");
        QSignalSpy triggered(action, &QAction::triggered);
        window_->ribbon->AddCornerAction(action);
        auto* button = window_->ribbon->findChild<QToolButton*>("mode");
        const auto* hide = window_->ribbon->findChild<QToolButton*>("hideRibbon");
        QTRY_VERIFY(button->isVisible() && button->geometry().right() < hide->geometry().left());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(triggered.size(), 1);
        QCOMPARE(button->accessibleName(), "Tabs or windows");
    }

    void narrowWindowScrollsToTheRest() {
        Group* group = window_->ribbon->Pages()[0]->AddGroup("Many");
        for (int i = 0; i < 6; ++i)
            window_->add(group, QStringLiteral("Action%1").arg(i));
        auto* forward = window_->ribbon->Pages()[0]->findChild<QToolButton*>("scrollForward");
        auto* back = window_->ribbon->Pages()[0]->findChild<QToolButton*>("scrollBack");
        window_->resize(780, 500);
        QTRY_VERIFY(window_->shows("Action5"));
        QVERIFY(!forward->isVisible());
        window_->resize(330, 500);
        QTRY_COMPARE(window_->width(), 330);
        QTRY_VERIFY(forward->isVisible());
        QVERIFY(!window_->shows("Action5"));
        QVERIFY(!back->isEnabled());
        for (int i = 0; i < 20 && forward->isEnabled(); ++i)
            QTest::mouseClick(forward, Qt::LeftButton);
        QVERIFY(window_->shows("Action5"));
        QVERIFY(!window_->shows("Open"));
        // From the last button around to the first, which comes into sight.
        window_->button("Action5")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(window_->button("Action5"), Qt::Key_Right);
        QVERIFY(window_->button("Open")->hasFocus());
        QVERIFY(window_->shows("Open"));
    }

    void pageGrowsWithTheFont() {
        const auto grownTo = [this](double points) {
            QFont font = font_;
            font.setPointSizeF(points);
            QApplication::setFont(font);
            QCoreApplication::processEvents();
            const QWidget* page = window_->ribbon->Pages()[0];
            const QWidget* button = window_->button("Save");
            QTRY_VERIFY(button->height() >= button->sizeHint().height());
            QVERIFY(button->width() >= button->sizeHint().width());
            const int told = 75 * window_->ribbon->fontMetrics().height() / 14;
            QVERIFY2(page->height() >= told && page->height() <= told + told / 16,
                     qPrintable(QStringLiteral("%1 for %2").arg(page->height()).arg(told)));
        };
        for (const double points : {8.0, 9.0, 12.0, 18.0})
            grownTo(points);
    }

    void longLabelsTakeTwoLines_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("menu");
        QTest::addColumn<QString>("lines");
        const QString blank(QChar::Nbsp);
        QTest::newRow("short") << "Save" << false << "Save\n" + blank;
        QTest::newRow("short with blank") << "On it" << false << "On it\n" + blank;
        QTest::newRow("one long word") << "Consistencies" << false << "Consistencies\n" + blank;
        QTest::newRow("two words") << "Output Summary" << false << "Output\nSummary";
        QTest::newRow("best break") << "Resumen de salidas" << false << "Resumen\nde salidas";
        QTest::newRow("menu") << "Open" << true << "Open\n▾";
        QTest::newRow("menu of two lines") << "Table Styles" << true << "Table\nStyles ▾";
    }

    void longLabelsTakeTwoLines() {
        QFETCH(QString, label);
        QFETCH(bool, menu);
        QFETCH(QString, lines);
        const QFontMetrics metrics(font_);
        const int room = metrics.horizontalAdvance("On it  ");
        QCOMPARE(CompactToolButton::TwoLines(label, menu, metrics, room), lines);
    }

    void buttonsSayWhatTheyAre() {
        const QWidget* button = window_->button("Output Summary");
        QCOMPARE(button->accessibleName(), "Output Summary");
        window_->actions["Output Summary"]->setText("Results");
        QCOMPARE(button->accessibleName(), "Results");
        QCOMPARE(qobject_cast<const QToolButton*>(button)->text().section('\n', 0, 0), "Results");
    }

    void partsOutsideOfARibbonStop() {
        QWidget alone;
        QCOMPARE(thrown([&] { const Page page(0, "A", &alone); }),
                 "Page should be constructed inside TabToolbar!");
        QCOMPARE(thrown([] { const Group group("A", nullptr); }),
                 "Group should be constructed inside TabToolbar!");
    }

    void styleSwitchFillsTheSheet() {
        QVERIFY(StyleNames().size() >= 4);
        QStringList sheets;
        for (const QString& name : StyleNames()) {
            QSignalSpy changed(window_->ribbon, &TabToolbar::StyleChanged);
            window_->ribbon->SetStyle(name);
            QCOMPARE(changed.size(), 1);
            const QString sheet = window_->ribbon->styleSheet();
            QVERIFY(sheet.contains("rgba("));
            QVERIFY2(!sheet.contains('%'), qPrintable(sheet));
            QVERIFY(!sheets.contains(sheet));
            sheets += sheet;
            // What is drawn is what the style says.
            const QImage picture = window_->ribbon->Pages()[0]->grab().toImage();
            QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() / 2),
                     Style(name).Color("Page"));
        }
        QCOMPARE(thrown([this] { window_->ribbon->SetStyle("Plaid"); }),
                 "Plaid - style is not registered!");
        QCOMPARE(window_->ribbon->StyleName(), StyleNames().constLast());
        QCOMPARE(window_->ribbon->styleSheet(), sheets.constLast());
    }

    void stylesRegisterOnceAndNeedTheirColors() {
        StyleParams params;
        params.Set("Plain", QColor(1, 2, 3, 4));
        params.Set("Shaded", QGradientStops{{0, Qt::black}, {1, Qt::white}});
        params.Set("Empty", QGradientStops());
        params.Set("Bad", QColor());
        QCOMPARE(params.Fill("a: %Plain%; b: %Shaded%;"),
                 "a: rgba(1, 2, 3, 4); b: qlineargradient(x1:0, y1:1, x2:0, y2:0, "
                 "stop:0 rgba(0, 0, 0, 255), stop:1 rgba(255, 255, 255, 255));");
        QCOMPARE(params.Fill("width: 50% ; left: 10%"), "width: 50% ; left: 10%");
        QCOMPARE(thrown([&] { params.Fill("%Absent%"); }), "Some property has no colors!");
        QCOMPARE(thrown([&] { params.Fill("%Empty%"); }), "Some property has no colors!");
        QCOMPARE(thrown([&] { params.Fill("%Bad%"); }), "Unknown property type in style!");
        const qsizetype count = StyleNames().size();
        QCOMPARE(thrown([&] { RegisterStyle(StyleNames()[1], params); }),
                 StyleNames()[1] + " - style already registered!");
        QCOMPARE(StyleNames().size(), count);
    }

    void everyTextCanBeRead_data() {
        QTest::addColumn<QString>("style");
        for (const QString& name : StyleNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyTextCanBeRead() {
        QFETCH(QString, style);
        const auto check = [](const QColor& text, const QColor& ground, double least,
                              const QString& what) {
            const double found = contrast(text, ground);
            if (found < least)
                qWarning("%s: %.2f", qPrintable(what), found);
            return found >= least;
        };
        const StyleParams& params = Style(style);
        const QStringList pairs = {
            "TabText TabBar 4.5",     "TabText TabHover 4.5", "TabTextCurrent Page 4.5",
            "ButtonText Page 4.5",    "ButtonText Hover 4.5", "ButtonText Pressed 4.5",
            "ButtonText Checked 4.5", "GroupTitle Page 4.5",  "DisabledText Page 3",
            "Focus Page 3",           "Focus TabBar 3",       "Focus Checked 3"};
        bool good = true;
        for (const QString& pair : pairs) {
            const QStringList words = pair.split(' ');
            good &=
                check(params.Color(words[0]), params.Color(words[1]), words[2].toDouble(), pair);
        }
        const QPalette colors = palette(style);
        using P = QPalette;
        const std::pair<P::ColorRole, P::ColorRole> roles[] = {
            {P::WindowText, P::Window},         {P::Text, P::Base},
            {P::Text, P::AlternateBase},        {P::ButtonText, P::Button},
            {P::HighlightedText, P::Highlight}, {P::Link, P::Base},
            {P::LinkVisited, P::Base},          {P::ToolTipText, P::ToolTipBase},
            {P::PlaceholderText, P::Base}};
        for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled})
            for (const auto& [text, ground] : roles)
                good &= check(colors.color(group, text), colors.color(group, ground),
                              group == P::Disabled ? 3 : 4.5,
                              QStringLiteral("group %1 role %2").arg(group).arg(text));
        QVERIFY(good);
    }

    void spinnerTurnsWhileItRuns() {
        WaitingSpinnerWidget spinner;
        QVERIFY(!spinner.isSpinning());
        spinner.start();
        QVERIFY(spinner.isVisible());
        const QImage before = spinner.grab().toImage();
        QTRY_VERIFY(spinner.grab().toImage() != before);
        spinner.stop();
        QVERIFY(!spinner.isVisible() && !spinner.isSpinning());
    }
};

QTEST_MAIN(TestRibbon)
#include "tst_ribbon.moc"
