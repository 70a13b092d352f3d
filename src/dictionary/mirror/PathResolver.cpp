// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/PathResolver.h"

#include <QDir>
#include <QStringList>

namespace {

QString withForwardSlashes(QString path) {
    return path.replace('\\', '/');
}

} // namespace

QString resolvePath(const QString& name, const QString& folder) {
    QStringList parts = withForwardSlashes(name).split('/');
    QDir base(withForwardSlashes(folder));
    while (!parts.isEmpty() && parts.first() == QLatin1String("..")) {
        parts.removeFirst();
        base.setPath(QDir::cleanPath(base.filePath(QStringLiteral(".."))));
    }
    return base.filePath(parts.join('/'));
}
