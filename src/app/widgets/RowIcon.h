// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the rows of a view: in a selected row, where their own colours would vanish in the
// background, they take the colour of the text; on a dark background they are lighter.
#pragma once

#include <QIcon>

/// The picture of a resource or file.
QIcon rowIcon(const QString& file);
