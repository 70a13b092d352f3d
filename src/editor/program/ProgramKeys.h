// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the keys of a program window's commands for it while the focus is within: the main window
// around it has some of the same, and the lists of words over an editor would swallow them.
#pragma once

#include <QObject>

class ProgramActions;
class QAction;
class QKeyEvent;
class QWidget;

class ProgramKeys : public QObject {
    Q_OBJECT

public:
    ProgramKeys(const ProgramActions& actions, QWidget& window);

    void watchList(QWidget& popup); ///< it closes where a command's keys are pressed in it

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QAction* actionFor(const QKeyEvent& event) const;

    const ProgramActions& actions_;
    QWidget& window_;
};
