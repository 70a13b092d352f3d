// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/StatisticalToolBar.h"

StatisticalToolBar::StatisticalToolBar(tt::TabToolbar& toolbar)
    : RibbonPage(toolbar, "Statistics") {
    tt::Group& universe = addGroup(tr("Universe"));
    addLater(universe, "filter", tr("Filter"), tr("Limit the cases by an expression"));
    addLater(universe, "selection", tr("Selection"), tr("Limit the areas by a selection"));
    tt::Group& summary = addGroup(tr("Summary"));
    addLater(summary, "statistics", tr("Statistics"), tr("Key figures of a variable"));
    tt::Group& areas = addGroup(tr("Areas"));
    addLater(areas, "count", tr("Count"), tr("Count the elements of an entity by area"));
    addLater(areas, "arealist", tr("Arealist"), tr("List figures of variables by area"));
    addLater(areas, "view", tr("View"), tr("See the values case by case"));
    tt::Group& tables = addGroup(tr("Tables"));
    addLater(tables, "frequencies", tr("Frequencies"), tr("Frequencies of variables"));
    addLater(tables, "crosstab", tr("Crosstab"), tr("Tables of two or more variables"));
    addLater(tables, "functions", tr("Functions"), tr("Averages, medians, maxima and minima"));
    tt::Group& information = addGroup(tr("Information"));
    addLater(information, "variable", tr("Variable"), tr("Properties of a variable"));
    addLater(information, "output", tr("Output Summary"), tr("All results so far"));
}
