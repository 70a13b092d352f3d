// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainActions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

void describe(QAction* action, const QString& text, const QString& tip) {
    action->setText(text);
    action->setStatusTip(tip);
    const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(shortcut.isEmpty() ? tip : tip + " (" + shortcut + ')');
}

} // namespace

MainActions::MainActions(QMainWindow* window)
    : QObject(window),
      open(make("actionOpenDictionary", QKeySequence::Open, ":/icons/res/icons/open.svg")),
      exit(make("actionExit", QKeySequence(Qt::CTRL | Qt::Key_Q))),
      findVariable(make("actionFindVariable", QKeySequence::Find)),
      valueLabels(make("actionValueLabels", QKeySequence(Qt::CTRL | Qt::Key_L))),
      frequency(make("actionFrequency", QKeySequence(Qt::Key_F9), ":/icons/res/icons/run.svg")),
      about(make("actionAbout", QKeySequence())) {
    exit->setMenuRole(QAction::QuitRole);
    about->setMenuRole(QAction::AboutRole);
    valueLabels->setCheckable(true);
    valueLabels->setChecked(true);
    frequency->setEnabled(false);
    makeMenus(window);
    retranslate();
}

QAction* MainActions::make(const char* objectName, const QKeySequence& shortcut, const char* icon) {
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(objectName));
    action->setShortcut(shortcut);
    if (icon != nullptr)
        action->setIcon(QIcon(QLatin1String(icon)));
    return action;
}

void MainActions::makeMenus(QMainWindow* window) {
    fileMenu_ = window->menuBar()->addMenu(QString());
    fileMenu_->addAction(open);
    fileMenu_->addSeparator();
    fileMenu_->addAction(exit);
    viewMenu_ = window->menuBar()->addMenu(QString());
    viewMenu_->addAction(findVariable);
    viewMenu_->addSeparator();
    viewMenu_->addAction(valueLabels);
    statisticsMenu_ = window->menuBar()->addMenu(QString());
    statisticsMenu_->addAction(frequency);
    helpMenu_ = window->menuBar()->addMenu(QString());
    helpMenu_->addAction(about);
    toolBar_ = window->addToolBar(QString());
    toolBar_->setObjectName(QStringLiteral("mainToolBar"));
    toolBar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar_->addAction(open);
    toolBar_->addAction(frequency);
}

void MainActions::addViewAction(QAction* action) {
    viewMenu_->addAction(action);
}

void MainActions::retranslate() {
    fileMenu_->setTitle(tr("&File"));
    viewMenu_->setTitle(tr("&View"));
    statisticsMenu_->setTitle(tr("&Statistics"));
    helpMenu_->setTitle(tr("&Help"));
    toolBar_->setWindowTitle(tr("Tool bar"));
    describe(open, tr("&Open Dictionary..."), tr("Open a dictionary"));
    open->setIconText(tr("Open"));
    describe(exit, tr("E&xit"), tr("Close the program"));
    describe(findVariable, tr("&Find Variable"), tr("Go to the filter of the variables"));
    describe(valueLabels, tr("Value &Labels"), tr("Show the labels of the selected variable"));
    describe(frequency, tr("F&requency"), tr("Count the categories of the selected variable"));
    describe(about, tr("&About Kelvora X"), tr("Version of the program and of its engine"));
}
