// SPDX-License-Identifier: GPL-3.0-or-later
// What a program window may ask about the ones beside it, so that no file is open twice.
#pragma once

#include <QString>

#include <functional>

struct OtherWindows {
    using Ask = std::function<bool(const QString& path)>;
    Ask have; ///< one of them has that file
    Ask goTo; ///< the same, and it comes to the front
};
