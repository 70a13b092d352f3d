// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramTitle.h"

#include "editor/program/ElidedPath.h"
#include "editor/text/Editor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QTextDocument>

namespace {

constexpr int besidesTitle = 135; ///< pixels that the frame takes of the title's line

} // namespace

QString tabTitle(Editor& editor) {
    const QString name = editor.displayName();
    return editor.document()->isModified() ? name + QStringLiteral(" *") : name;
}

QString tabToolTip(Editor& editor) {
    return editor.filePath().isEmpty() ? editor.displayName()
                                       : QDir::toNativeSeparators(editor.filePath());
}

QString windowTitleOf(Editor& editor, int windowWidth) {
    QString title = tabToolTip(editor);
    if (!editor.filePath().isEmpty())
        title = elidePath(title, QFont(QStringLiteral("Arial"), 10), windowWidth - besidesTitle);
    if (editor.document()->isModified())
        title += QCoreApplication::translate("ProcessProgramSPC", " [Unsaved]");
    return title + QStringLiteral(" - KelX");
}
