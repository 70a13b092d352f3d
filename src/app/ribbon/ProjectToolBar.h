// SPDX-License-Identifier: GPL-3.0-or-later
// The page PROJECT: making, opening and keeping projects. Its forms are not there yet, so that none
// of its buttons can be pressed.
#pragma once

#include "app/ribbon/RibbonPage.h"

class ProjectToolBar : public RibbonPage {
    Q_OBJECT

public:
    explicit ProjectToolBar(tt::TabToolbar& toolbar);

public slots:
    /// Asks for a project to be opened: one that was saved, or chosen by the user.
    void on_projectFile(const QString& path);

signals:
    /// fromDictionary: the windows of the work area were asked already.
    void projectFile(const QString& path, bool fromDictionary);
};
