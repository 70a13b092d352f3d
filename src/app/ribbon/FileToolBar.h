// SPDX-License-Identifier: GPL-3.0-or-later
// The page FILE: programs, selections, maps and styles. Their windows are not there yet, so that
// none of its buttons can be pressed.
#pragma once

#include "app/ribbon/RibbonPage.h"

class FileToolBar : public RibbonPage {
    Q_OBJECT

public:
    explicit FileToolBar(tt::TabToolbar& toolbar);

public slots:
    // Both tell the debug stream only.
    void on_TableStylesClick();
    void on_GraphStylesClick();

signals:
    void openedFile(); ///< the lists of recent files changed
};
