// SPDX-License-Identifier: GPL-3.0-or-later
// Documentation as it is stored and as it is read.
// In store a mark stands for each line break, since not every form of a dictionary keeps those.
#pragma once

#include <QString>

namespace Documentation {

QString shown(const QString& stored);
QString stored(const QString& shown);

} // namespace Documentation
