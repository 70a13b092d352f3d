// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/styles/ProgramStyle.h"

#include "app/settings/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <optional>

namespace {

constexpr qint64 largestProgram = 256LL * 1024 * 1024; // bytes
const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

constexpr auto options =
    QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption;

/// Ahead of the end of a line of either kind.
const QString lineEnd = QStringLiteral("(?=\\r?$)");

QString endOfLines(const QString& program) {
    return program.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

/// Nothing where no line names a style. The new line is put in as it is: a backslash in it is no
/// reference to what was found.
std::optional<QString> replaced(const QString& program, const QString& line) {
    static const QRegularExpression style(
        QStringLiteral("^[ \\t]*TABLESTYLE[ \\t]+\"(?:[^\"]++|\"\")*+\"[ \\t]*") + lineEnd,
        options);
    QString result;
    qsizetype done = 0;
    for (auto found = style.globalMatch(program); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        result += QStringView(program).mid(done, match.capturedStart() - done);
        result += line;
        done = match.capturedEnd();
    }
    if (done == 0)
        return std::nullopt;
    return result += QStringView(program).mid(done);
}

/// Nothing where the file cannot be read, or holds what would be lost as text.
std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) ||
        file.size() > largestProgram)
        return std::nullopt;
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError || !content.isValidUtf8())
        return std::nullopt;
    return content;
}

bool write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && writeThrough(file, content) && file.commit();
}

} // namespace

QString programstyle::line(const QString& stylePath) {
    QString text = stylePath;
    text.replace(QLatin1Char('"'), QLatin1String("\"\"")); // as the language writes a quote
    return QStringLiteral("    TABLESTYLE \"") + text + QLatin1Char('"');
}

QString programstyle::inserted(const QString& program, const QString& stylePath) {
    static const QRegularExpression define(QStringLiteral("^([ \\t]*DEFINE[ \\t]*)") + lineEnd,
                                           options);
    const QString added = line(stylePath);
    if (const auto result = replaced(program, added))
        return *result;
    const QString end = endOfLines(program);
    const QRegularExpressionMatch match = define.match(program);
    if (!match.hasMatch())
        return QStringLiteral("DEFINE") + end + added + end + end + program;
    // Where the program ends with it, there is no line feed, and the place is the very start.
    const qsizetype place = program.indexOf(QLatin1Char('\n'), match.capturedStart()) + 1;
    return program.left(place) + added + end + program.mid(place);
}

bool programstyle::insertInto(const QString& programPath, const QString& stylePath) {
    const auto content = contentOf(programPath);
    if (!content)
        return false;
    const QByteArray mark = content->startsWith(byteOrderMark) ? byteOrderMark : QByteArray();
    const QString program = QString::fromUtf8(content->mid(mark.size()));
    return write(programPath, mark + inserted(program, stylePath).toUtf8());
}
