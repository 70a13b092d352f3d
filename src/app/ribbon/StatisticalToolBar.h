// SPDX-License-Identifier: GPL-3.0-or-later
// The page BASIC STATISTICS: tables without programming. The windows are not there yet, so that
// none of its buttons can be pressed.
#pragma once

#include "app/ribbon/RibbonPage.h"

class StatisticalToolBar : public RibbonPage {
    Q_OBJECT

public:
    explicit StatisticalToolBar(tt::TabToolbar& toolbar);
};
