// SPDX-License-Identifier: GPL-3.0-or-later
// A value of a variable and what it means.
#pragma once

#include <QString>

struct ValueLabelElement {
    QString value;
    QString label;
    bool operator==(const ValueLabelElement&) const = default;
};
