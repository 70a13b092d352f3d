// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/RibbonPage.h"

#include "app/ribbon/tt/CompactToolButton.h"

#include <QMenu>

RibbonPage::RibbonPage(tt::TabToolbar& toolbar, const char* family)
    : QObject(&toolbar), family_(QLatin1String(family)), page_(toolbar.AddPage({})) {}

QAction* RibbonPage::make(const char* name, const QString& text, const QString& toolTip,
                          const QKeySequence& shortcut) {
    const QString word = family_ + '-' + QLatin1String(name);
    auto* action =
        new QAction(QIcon(QStringLiteral(":/icons/res/icons/48px-%1.png").arg(word)), text, this);
    action->setObjectName(word);
    action->setShortcut(shortcut);
    const QString keys = shortcut.toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? toolTip : toolTip + " (" + keys + ')');
    return action;
}

QAction* RibbonPage::add(tt::Group& group, const char* name, const QString& text,
                         const QString& toolTip, const QKeySequence& shortcut) {
    QAction* action = make(name, text, toolTip, shortcut);
    group.AddAction(QToolButton::DelayedPopup, action);
    return action;
}

QAction* RibbonPage::addLater(tt::Group& group, const char* name, const QString& text,
                              const QString& toolTip) {
    QAction* action = add(group, name, text, toolTip);
    action->setEnabled(false);
    return action;
}

QAction* RibbonPage::addMenuButton(tt::Group& group, const char* name, const QString& text,
                                   const QString& toolTip, QMenu* menu) {
    QAction* action = make(name, text, toolTip, {});
    action->setMenu(menu);
    group.AddAction(QToolButton::InstantPopup, action);
    return action;
}
