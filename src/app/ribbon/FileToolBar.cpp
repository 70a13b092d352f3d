// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/FileToolBar.h"

#include <QDebug>

FileToolBar::FileToolBar(tt::TabToolbar& toolbar) : RibbonPage(toolbar, "File") {
    tt::Group& file = addGroup(tr("File"));
    addLater(file, "new", tr("New"), tr("Begin a new program, selection or map"));
    addLater(file, "open", tr("Open"), tr("Open a program, selection or map"));
    tt::Group& documents = addGroup(tr("Documents"));
    addLater(documents, "programs", tr("Programs"), tr("Programs in the command language"));
    addLater(documents, "selections", tr("Selections"), tr("Selections of areas"));
    addLater(documents, "maps", tr("Maps"), tr("Thematic maps"));
    tt::Group& styles = addGroup(tr("Styles"));
    QAction* table = addLater(styles, "tablestyles", tr("Table Styles"), tr("How tables look"));
    QAction* graph = addLater(styles, "graphstyles", tr("Graph Styles"), tr("How charts look"));
    connect(table, &QAction::triggered, this, &FileToolBar::on_TableStylesClick);
    connect(graph, &QAction::triggered, this, &FileToolBar::on_GraphStylesClick);
    tt::Group& run = addGroup(tr("Run"));
    addLater(run, "execute", tr("Execute"), tr("Programs that run other programs"));
}

void FileToolBar::on_TableStylesClick() {
    qDebug("Open Button - Table Styles - clicked - In Construction");
}

void FileToolBar::on_GraphStylesClick() {
    qDebug("Open Button - Graph Styles - clicked - In Construction");
}
