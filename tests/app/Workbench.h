// SPDX-License-Identifier: GPL-3.0-or-later
// The real main window as a test drives it, with the small database of support/SmallDatabase.h and
// the messages that it showed.
#pragma once

#include "app/MainWindow.h"
#include "app/messages/Messages.h"

#include <QAbstractItemView>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class Workbench {
public:
    /// Starts the engine and shows the window.
    Workbench();
    ~Workbench();

    MainWindow& window() const { return *window_; }
    void endWindow() { window_.reset(); }
    template <typename Widget>
    Widget* find(const char* name) const {
        return window_->findChild<Widget*>(QLatin1String(name));
    }

    QString smallPath() const { return folder_.filePath("small.kxdb"); }
    QString folder() const { return folder_.path(); }
    /// What questions are answered with, in turn; No once none is left.
    void answer(std::initializer_list<Choice> answers) { answers_ = answers; }
    QStringList messages;  ///< shown since the test cleared them
    int saidWhileBusy = 0; ///< messages that came under the wait cursor

    void activate() const; ///< no window manager does it once a dialog has gone
    void openByKeyboard(const QString& path) const; ///< returns once the load has ended
    void openSmall() const;                         ///< unless it is open
    void waitForLoad() const;

    /// Clicks the row that shows the text in its first column, at any depth.
    static bool click(QAbstractItemView* view, const QString& text);
    /// The entity of the tree, then the variable of the table.
    void select(const QString& entity, const QString& variable) const;
    /// Runs an entry of the context menu of the current row.
    void chooseFromMenu(QAbstractItemView* view, const char* action) const;
    /// A frequency of the selected variables, from their menu.
    void frequency() const;
    QStringList frequencyRows() const; ///< of the shown table, sorted; cells joined by "|"
    int resultCount() const;           ///< tables of all runs
    QStringList windowNames() const;   ///< of the contents of the work area

private:
    QTemporaryDir folder_;
    QList<Choice> answers_;
    std::unique_ptr<MainWindow> window_;
};
