// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/PathPreflight.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// A statement that names a file to write, in the group "file".
struct WritingStatement {
    QString word;
    QRegularExpression expression;
};

const QList<WritingStatement>& writingStatements() {
    constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;
    static const QList<WritingStatement> statements{
        {QStringLiteral("outfile"),
         QRegularExpression(QStringLiteral("outfile\\s+(pdf|xls|csv)\\s+\"(?<file>[^\"]+)\""),
                            anyCase)},
        {QStringLiteral("save"),
         QRegularExpression(QStringLiteral("save\\s+\"(?<file>[^\"]+)\""), anyCase)}};
    return statements;
}

/// Statements in comments write nothing, and must not stop a run.
QString withoutComments(const QString& program) {
    static const QRegularExpression quotedOrComment(
        QStringLiteral("\"[^\"\\r\\n]*\"?|//[^\\r\\n]*|/\\*[\\s\\S]*?(?:\\*/|\\z)"));
    QString result;
    qsizetype copied = 0;
    for (const QRegularExpressionMatch& match : quotedOrComment.globalMatch(program)) {
        if (match.capturedView().startsWith(u'"'))
            continue;
        result += program.mid(copied, match.capturedStart() - copied) + u' ';
        copied = match.capturedEnd();
    }
    return result + program.mid(copied);
}

bool beginsWithDrive(const QString& path) {
    return path.size() > 1 && path[0].isLetter() && path[1] == u':';
}

/// Empty where it cannot be told.
QString folderOf(QString file, const QString& folder) {
    file.replace(u'\\', u'/');
    if (QDir::isRelativePath(file) && !beginsWithDrive(file)) {
        if (folder.isEmpty())
            return {};
        file = QDir(folder).filePath(file);
    }
    return QDir::cleanPath(QFileInfo(file).path());
}

QString missingFolderOfLine(const QString& line, const QString& folder) {
    for (const WritingStatement& statement : writingStatements()) {
        for (const QRegularExpressionMatch& match : statement.expression.globalMatch(line)) {
            const QString written = folderOf(match.captured(QStringLiteral("file")), folder);
            if (!written.isEmpty() && !QFileInfo(written).isDir())
                return QCoreApplication::translate(
                           "ProgramText", "The directory %1 used in the %2 statement doesn't exist")
                    .arg(QDir::toNativeSeparators(written), statement.word);
        }
    }
    return {};
}

} // namespace

QString missingFolder(const QString& program, const QString& folder) {
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    const QStringList lines = withoutComments(program).split(lineEnds, Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        QString message = missingFolderOfLine(line, folder);
        if (!message.isEmpty())
            return message;
    }
    return {};
}
