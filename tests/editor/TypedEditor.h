// SPDX-License-Identifier: GPL-3.0-or-later
// An editor in a window of its own, typed into as a user does.
#pragma once

#include "editor/text/Editor.h"
#include "editor/text/EditorHost.h"

#include <QMap>
#include <QTest>
#include <QWindow>

/// A window with two bars and a dictionary of COUNTRY, HOUSEHOLD and PERSON.
class MadeHost : public EditorHost {
public:
    QStringList variablesOf(const QString& entity) const override {
        static const QMap<QString, QStringList> variables{
            {QStringLiteral("PERSON"), {"SEX", "AGE", "SECTOR", "PERSON_ID"}},
            {QStringLiteral("HOUSEHOLD"), {"ROOMS", "SIZE"}}};
        asked += entity;
        return variables.value(entity.toUpper());
    }
    void newProgram() override { commands += QStringLiteral("new"); }
    void openProgram() override { commands += QStringLiteral("open"); }
    void saveProgram() override { commands += QStringLiteral("save"); }
    void saveProgramAs() override { commands += QStringLiteral("save as"); }
    void setToolBarVisible(bool visible) override { toolBar = visible; }
    void setStatusBarVisible(bool visible) override { statusBar = visible; }
    void setErrorListVisible(bool visible) override { errorList = visible; }
    bool isToolBarVisible() const override { return toolBar; }
    bool isStatusBarVisible() const override { return statusBar; }
    bool isErrorListVisible() const override { return errorList; }

    mutable QStringList asked;
    QStringList commands;
    bool toolBar = true;
    bool statusBar = true;
    bool errorList = true;
};

class TypedEditor {
public:
    explicit TypedEditor(const QString& text = {}) {
        editor.setEntityList({"person", "country", "household"});
        editor.setLowerCase(true);
        editor.setPlainText(text);
        editor.document()->setModified(false);
        editor.resize(600, 400);
        editor.show();
        editor.activateWindow();
        editor.setFocus();
        ready = QTest::qWaitForWindowActive(&editor);
    }

    QString text() const { return editor.toPlainText(); }
    /// To whatever has the keys, an open list included.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(editor.windowHandle(), key, modifiers);
    }
    void type(const QString& typed) {
        for (const QChar c : typed)
            if (c == u'\n')
                press(Qt::Key_Return);
            else
                QTest::keyClick(editor.windowHandle(), c.toLatin1());
    }
    void select(int anchor, int position) {
        QTextCursor cursor = editor.textCursor();
        cursor.setPosition(anchor);
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        editor.setTextCursor(cursor);
    }
    void moveTo(int position) { select(position, position); }
    int position() const { return editor.textCursor().position(); }

    MadeHost host;
    Editor editor{EditorLook(), &host};
    bool ready = false;
};
