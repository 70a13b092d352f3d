// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/WholeFile.h"

bool writeThrough(QFileDevice& file, const QByteArray& content) {
    return file.write(content) == content.size() && file.flush();
}
