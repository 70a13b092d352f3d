// SPDX-License-Identifier: GPL-3.0-or-later
// The reserved words of the command language, as the engine knows them.
#pragma once

#include <QStringList>

class QUtils {
public:
    /// In lower case, in the engine's order.
    static QStringList reservedWords();
};
