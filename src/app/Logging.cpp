// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Logging.h"

#include <QDebug>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(kelvoraX, "KelvoraX")

} // namespace

void logMessage(const QString& text, bool useCategory) {
    if (useCategory)
        qCDebug(kelvoraX, "%s", qUtf8Printable(text));
    else
        qDebug("%s", text.toStdString().c_str());
}
