// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/PathResolver.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace {

QString withForwardSlashes(QString path) {
    return path.replace('\\', '/');
}

} // namespace

QString resolvePath(const QString& name, const QString& folder) {
    QStringList parts = withForwardSlashes(name).split('/');
    QString base = QDir::cleanPath(withForwardSlashes(folder));
    while (!parts.isEmpty() && parts.first() == QLatin1String("..")) {
        parts.removeFirst();
        base = QFileInfo(base).path(); // the root stays the root
    }
    return QDir(base).filePath(parts.join('/'));
}
