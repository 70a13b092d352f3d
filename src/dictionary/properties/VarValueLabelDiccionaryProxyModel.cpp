// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VarValueLabelDiccionaryProxyModel.h"

#include <cmath>
#include <optional>

namespace {

/// Words that a number's reader takes for "no number" or "infinite" are texts here: they have no
/// place among numbers.
std::optional<double> numberOf(const QString& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

bool VarValueLabelDiccionaryProxyModel::lessThan(const QModelIndex& left,
                                                 const QModelIndex& right) const {
    const QString a = left.data().toString();
    const QString b = right.data().toString();
    const std::optional<double> aNumber = numberOf(a);
    const std::optional<double> bNumber = numberOf(b);
    if (aNumber.has_value() != bNumber.has_value())
        return aNumber.has_value();
    return aNumber ? *aNumber < *bNumber : QString::localeAwareCompare(a, b) < 0;
}
