// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/TagText.h"

namespace {

constexpr int largestTag = 9999;
constexpr int unsetTag = -1;

} // namespace

QString TagText::of(int tag) {
    return tag < 0 ? QString() : QString::number(tag);
}

int TagText::parse(const QString& text, int before) {
    if (text.isEmpty())
        return before < 0 ? before : unsetTag;
    bool fits = false;
    const int tag = text.toInt(&fits);
    // What is too long for an integer is digits all the same: the edit lets nothing else in.
    return fits ? qMin(tag, largestTag) : largestTag;
}
