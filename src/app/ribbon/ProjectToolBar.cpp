// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/ProjectToolBar.h"

ProjectToolBar::ProjectToolBar(tt::TabToolbar& toolbar) : RibbonPage(toolbar, "Project") {
    tt::Group& file = addGroup(tr("File"));
    addLater(file, "new", tr("New"), tr("Make a new project"));
    addLater(file, "open", tr("Open"), tr("Open a project"));
    addLater(file, "save", tr("Save"), tr("Save the project"));
    addLater(file, "saveas", tr("Save As"), tr("Save the project under another name"));
    tt::Group& project = addGroup(tr("Project"));
    addLater(project, "show", tr("Show"), tr("Show and change what the project holds"));
    addLater(project, "close", tr("Close"), tr("Close the project"));
}

void ProjectToolBar::on_projectFile(const QString& path) {
    emit projectFile(path, false);
}
