// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/TagText.h"

#include <limits>

namespace {

constexpr int largestTag = 9999;
constexpr int unsetTag = -1;

} // namespace

QString TagText::of(int tag) {
    return tag == unsetTag ? QString() : QString::number(tag);
}

int TagText::parse(const QString& text) {
    if (text.isEmpty() || text == QLatin1String("-"))
        return unsetTag;
    bool fits = false;
    const int tag = text.toInt(&fits);
    if (fits)
        return qMin(tag, largestTag);
    // Too long for an integer; the edit lets nothing in but digits and the sign.
    return text.startsWith(QLatin1Char('-')) ? std::numeric_limits<int>::min() : largestTag;
}
