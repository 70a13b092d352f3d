// SPDX-License-Identifier: GPL-3.0-or-later
// The ribbon: a tool bar of tabs, each with a page of large buttons in groups. It can be minimised
// to its tabs, which then show their page for a while.
#pragma once

#include <QList>
#include <QToolBar>

class QTabWidget;
class QToolButton;

namespace tt {

class Page;

class TabToolbar : public QToolBar {
    Q_OBJECT

public:
    /// maxHeight: of a page, its group titles included, in pixels at a line height of 15 pixels; it
    /// grows with the font. groupRowCount: small widgets of a group above one another.
    explicit TabToolbar(QWidget* parent = nullptr, int maxHeight = 75, int groupRowCount = 3);
    ~TabToolbar() override;

    /// The ribbon that holds the widget; null where none does.
    static TabToolbar* Around(QWidget* widget);

    /// The new page, which the ribbon owns. The first nine get Alt and their number as shortcut.
    Page* AddPage(const QString& title);
    const QList<Page*>& Pages() const { return pages_; }
    void SetPageTitle(int index, const QString& title);
    /// A small button at the right of the tabs. The action must outlive the ribbon.
    void AddCornerAction(QAction* action);
    /// A tab without a page of its own: choosing it emits SpecialTabClicked() and the tab before
    /// stays. -1 means none.
    void SetSpecialTab(int index) { specialTab_ = index; }

    /// Throws std::runtime_error where there is no style of that name.
    void SetStyle(const QString& name);
    QString StyleName() const { return style_; }

    int CurrentTab() const;
    /// Shows the page of a minimised ribbon only where the user asked for it.
    void SetCurrentTab(int index);

    bool IsMinimized() const { return minimized_; }
    void SetMinimized(bool minimized);
    /// The page can be seen: not minimised, or minimised and shown for a while.
    bool IsPageShown() const { return !minimized_ || peeking_; }

    int RowCount() const { return rowCount_; }
    QSize IconSize() const;
    /// Makes the action's shortcut work while the ribbon is there, whichever page shows.
    void ListenTo(QAction* action);

signals:
    void Minimized();
    void Maximized();
    void SpecialTabClicked();
    void StyleChanged();

public slots:
    /// Ends the showing of a minimised ribbon's page once the focus is elsewhere.
    void FocusChanged(QWidget* old, QWidget* now);
    /// Shows the page of a minimised ribbon, or ends that.
    void TabClicked(int index);
    void CurrentTabChanged(int index);
    void HideAt(int index); ///< minimises at that tab, or undoes it
    void HideAt();          ///< at the current tab
    void HideTab(int index);
    void ShowTab(int index);

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakeCorner();
    void ConnectTabs();
    void AddTabShortcut(int index);
    void SetPeeking(bool peeking);
    void EnterPage();
    void LeavePage();
    void UpdateSizes();
    void UpdateHideButton();
    bool Holds(const QWidget* widget) const; ///< menus of its buttons included
    double Scale() const;                    ///< of the font, against the one of 15 pixels

    int maxHeight_;
    int rowCount_;
    int specialTab_ = -1;
    int lastTab_ = 0;
    bool minimized_ = false;
    bool peeking_ = false;
    QString style_;
    QTabWidget* tabs_;
    QWidget* corner_ = nullptr;
    QToolButton* hideButton_ = nullptr;
    QList<Page*> pages_;
};

} // namespace tt
