// SPDX-License-Identifier: GPL-3.0-or-later
// Where a file named in a dictionary lies on this disk.
#pragma once

#include <QString>

/// Each leading ".." of the name walks one folder up from folder. Backslashes separate too, since
/// dictionaries come from other systems. An absolute name stays as it is.
QString resolvePath(const QString& name, const QString& folder);
