// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages of the ribbon share: an action becomes a button with an icon, a tool tip that
// tells the shortcut, and a name by which it is found.
#pragma once

#include "app/ribbon/tt/Group.h"
#include "app/ribbon/tt/Page.h"
#include "app/ribbon/tt/TabToolbar.h"

#include <QAction>
#include <QKeySequence>
#include <QObject>

/// Lives as long as the ribbon, which owns it.
class RibbonPage : public QObject {
    Q_OBJECT

public:
    tt::Page* page() const { return page_; }

protected:
    /// Adds a page, whose title is set by who makes all of them. family: the first word of the
    /// page's icons and object names ("Dictionary").
    RibbonPage(tt::TabToolbar& toolbar, const char* family);

    tt::Group& addGroup(const QString& title) { return *page_->AddGroup(title); }
    /// The action "<family>-<name>" as a large button.
    QAction* add(tt::Group& group, const char* name, const QString& text, const QString& toolTip,
                 const QKeySequence& shortcut = {});
    /// The same for a command whose window is not there yet: it shows, but cannot be pressed.
    QAction* addLater(tt::Group& group, const char* name, const QString& text,
                      const QString& toolTip);
    QAction* addMenuButton(tt::Group& group, const char* name, const QString& text,
                           const QString& toolTip, QMenu* menu);

private:
    QAction* make(const char* name, const QString& text, const QString& toolTip,
                  const QKeySequence& shortcut);

    QString family_;
    tt::Page* page_;
};
