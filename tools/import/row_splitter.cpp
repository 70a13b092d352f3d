// SPDX-License-Identifier: Apache-2.0
#include "import/row_splitter.h"

#include "import/values.h"

#include <algorithm>

namespace kelx::tools {

RowSplitter::RowSplitter(RowSource& source, const FlatPlan& plan, Faults& faults, bool levelsKnown)
    : source_(source), plan_(plan), faults_(faults), states_(plan.levels.size()),
      levelsKnown_(levelsKnown) {}

bool RowSplitter::refuse(std::uint64_t& counter, std::size_t field, const std::string& text) {
    faults_.meet(source_.faultAt(field, text));
    ++counter;
    wasRefused_ = true;
    return false;
}

bool RowSplitter::next() {
    while (source_.next()) {
        ++rowsRead_;
        wasRefused_ = false;
        const std::string fault = source_.rowFault();
        if (!fault.empty())
            refuse(faultyRows_, source_.fields().size(), fault);
        else if (split())
            return true;
    }
    return false;
}

bool RowSplitter::split() {
    const std::vector<std::size_t>& chain = levels();
    firstNew_ = chain.size();
    depth_ = 0;
    const std::size_t above = plan_.levels[chain[0]].parent;
    if (above != noLevel && !states_[above].current) {
        markCurrent();
        return refuse(states_[chain[0]].orphans, 0,
                      "a record of " + plan_.levels[chain[0]].plan.name + " before any of " +
                          plan_.levels[above].plan.name + ", under which it would lie");
    }
    depth_ = chain.size();
    for (std::size_t place = 0; place < depth_; ++place)
        if (!splitLevel(place))
            depth_ = place; // what has begun above stays, or the rows that follow would go astray
    markCurrent();
    if (depth_ == 0 || firstNew_ < depth_)
        return depth_ > 0;
    const std::size_t lowest = chain[depth_ - 1];
    if (wasRefused_)
        return false;
    return refuse(states_[lowest].duplicates, plan_.levels[lowest].key.value_or(0),
                  "a second row for the same record of " + plan_.levels[lowest].plan.name);
}

/// Rows of other kinds lie under this one's records, and under none of the levels that it misses.
void RowSplitter::markCurrent() {
    for (std::size_t place = 0; place < levels().size(); ++place)
        states_[levels()[place]].current = place < depth_;
}

bool RowSplitter::splitLevel(std::size_t place) {
    const std::size_t number = levels()[place];
    const FlatLevel& level = plan_.levels[number];
    State& state = states_[number];
    if (!level.key) {
        keyText_.clear();
        return begin(place, keyText_);
    }
    const SourceValue key = source_.value(*level.key);
    if (key.isBlank())
        return keyIsBlank(place);
    readKey(key, level.integerKey);
    const bool same = state.open && firstNew_ == levels().size() && state.key == keyText_;
    return same || begin(place, keyText_);
}

/// "1" and "01" are the same whole number.
void RowSplitter::readKey(const SourceValue& key, bool isInteger) {
    if (key.kind == SourceValue::Kind::Number) {
        keyText_ = numberText(key.number);
        return;
    }
    const auto number = isInteger ? parseInteger(key.text) : std::nullopt;
    keyText_ = number ? integerText(*number) : std::string(key.text);
}

/// No key and nothing else from this level on: the row speaks of the levels above only.
bool RowSplitter::keyIsBlank(std::size_t place) {
    const std::size_t number = levels()[place];
    if (place > 0 && (!levelsKnown_ || isEmptyFrom(place))) {
        depth_ = place;
        return true;
    }
    if (place > 0)
        faults_.unmute(); // the first reading could not know
    return refuse(states_[number].duplicates, *plan_.levels[number].key,
                  "the key of " + plan_.levels[number].plan.name + " is blank");
}

bool RowSplitter::isEmptyFrom(std::size_t place) const {
    const auto& chain = levels();
    for (std::size_t field = 0; field < plan_.levelOf.size(); ++field) {
        const std::size_t level = plan_.levelOf[field];
        const auto at = std::find(chain.begin(), chain.end(), level);
        const bool isBelow =
            at != chain.end() && static_cast<std::size_t>(at - chain.begin()) >= place;
        if (isBelow && !source_.value(field).isBlank())
            return false;
    }
    return true;
}

bool RowSplitter::begin(std::size_t place, const std::string& key) {
    const std::size_t number = levels()[place];
    const FlatLevel& level = plan_.levels[number];
    State& state = states_[number];
    if (level.key && !state.keysOfParent.insert(key).second) {
        const bool isLast = level.below.empty();
        refuse(state.duplicates, *level.key,
               "the key " + inQuotes(key) + " of " + level.plan.name + " was there before" +
                   (level.parent == noLevel ? "" : " under the same record above") +
                   (isLast ? "" : "; rows of one record must stand together"));
        if (isLast)
            return false; // an upper one stays, or what lies under it would be lost
    }
    state.open = true;
    state.key = key;
    for (const std::size_t below : level.below)
        close(below);
    firstNew_ = std::min(firstNew_, place);
    return true;
}

void RowSplitter::close(std::size_t level) {
    states_[level].open = states_[level].current = false;
    states_[level].keysOfParent.clear();
}

} // namespace kelx::tools
