// SPDX-License-Identifier: GPL-3.0-or-later
// What is wired anew when another tab comes to the front: finding, runs, assistants and counters
// always belong to the editor that shows.
#pragma once

#include <QList>
#include <QMetaObject>

class Editor;
class FindDialog;
class GotoDialog;
class MetricReporter;
class ProcessProgramSPC;

class EditorConnections {
public:
    EditorConnections(ProcessProgramSPC& window, FindDialog& find, GotoDialog& goTo,
                      MetricReporter& metrics);

    void follow(Editor& editor); ///< and no other one
    void end();

private:
    void connectFinding(Editor& editor);
    void connectCommands(Editor& editor);
    void connectState(Editor& editor);

    ProcessProgramSPC& window_;
    FindDialog& find_;
    GotoDialog& goTo_;
    MetricReporter& metrics_;
    QList<QMetaObject::Connection> made_;
};
