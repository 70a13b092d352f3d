// SPDX-License-Identifier: Apache-2.0
#include "import/flat_scan.h"

#include "import/row_splitter.h"
#include "import/values.h"

#include <algorithm>

namespace kelx::tools {

bool FlatScan::Watch::holds(const SourceValue& value) const {
    if (!any || kind != value.kind)
        return false;
    return kind == SourceValue::Kind::Blank ||
           (kind == SourceValue::Kind::Text ? text == value.text : number == value.number);
}

void FlatScan::Watch::hold(const SourceValue& value) {
    any = true;
    kind = value.kind;
    text.assign(value.text);
    number = value.number;
}

FlatScan::FlatScan(RowSource& source, std::vector<SourceField> fields, FlatPlan& plan,
                   Faults& faults)
    : source_(source), plan_(plan), faults_(faults), fields_(std::move(fields)),
      watches_(fields_.size()), recordLine_(plan.levels.size(), 0) {
    for (const std::size_t level : plan.levelOf)
        placed_.push_back(level != noLevel);
}

void FlatScan::run() {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        watches_[i].summary.field = &fields_[i].plan;
    std::vector<std::vector<std::size_t>> fieldsOf(plan_.shapes.size());
    for (std::size_t i = 0; i < fields_.size(); ++i)
        fieldsOf.at(fields_[i].shape).push_back(i);
    RowSplitter splitter(source_, plan_, faults_, false);
    while (splitter.next()) {
        const auto& chain = splitter.levels();
        for (std::size_t i = splitter.firstNew(); i < splitter.depth(); ++i)
            recordLine_[chain[i]] = source_.place(0).line;
        for (const std::size_t field : fieldsOf[source_.shape()])
            watch(field, chain, splitter.firstNew(), splitter.depth());
    }
    rowsRead_ = splitter.rowsRead();
    if (const std::string fault = source_.endFault(); !fault.empty())
        faults_.meet(source_.faultAt(0, fault));
    settle();
}

void FlatScan::watch(std::size_t field, const std::vector<std::size_t>& chain, std::size_t firstNew,
                     std::size_t depth) {
    const SourceValue value = source_.value(field);
    Watch& watch = watches_[field];
    if (watch.holds(value))
        return;
    if (!placed_[field]) {
        // Changed within the records of all levels above the first new one.
        std::size_t& level = plan_.levelOf[field];
        const std::size_t lowest = level == noLevel ? 0 : level;
        level = watch.any ? std::max(lowest, chain[std::min(firstNew, depth - 1)]) : chain[0];
    } else if (plan_.levelOf[field] != noLevel) {
        const auto place = static_cast<std::size_t>(
            std::find(chain.begin(), chain.end(), plan_.levelOf[field]) - chain.begin());
        if (place >= depth)
            return;
        if (place < firstNew) {
            noteConflict(field, chain[place], value);
            return;
        }
    }
    watch.hold(value);
    noteValue(field, value);
}

void FlatScan::noteConflict(std::size_t field, std::size_t level, const SourceValue& value) {
    Watch& watch = watches_[field];
    SourceValue held{watch.kind, watch.text, watch.number};
    ++watch.conflicts;
    faults_.meet(source_.faultAt(
        field, fields_[field].plan.name + " is " + inQuotes(shownText(value)) + " here, but " +
                   inQuotes(shownText(held)) + " in line " + std::to_string(recordLine_[level]) +
                   " for the same record of " + plan_.levels[level].plan.name));
}

void FlatScan::noteValue(std::size_t field, const SourceValue& value) {
    Watch& watch = watches_[field];
    const SourceField& described = fields_[field];
    if (!described.typeKnown) {
        watch.guess.note(source_, field, described);
        const bool isText = value.kind == SourceValue::Kind::Text;
        if (described.numeric && isText && !parseReal(value.text))
            faults_.meet(source_.faultAt(field, described.plan.name + ": " +
                                                    inQuotes(std::string(value.text)) +
                                                    " is not a number"));
        return;
    }
    TypedValue typed;
    const std::string problem = readValue(value, described.plan, typed);
    if (problem.empty())
        noteTyped(field, typed);
    else
        faults_.meet(source_.faultAt(field, described.plan.name + ": " +
                                                inQuotes(shownText(value)) + problem));
}

/// Not to be tolerated: there is no telling which of the values are wrong.
void FlatScan::noteTyped(std::size_t field, const TypedValue& value) {
    ColumnSummary& summary = watches_[field].summary;
    summary.note(value);
    if (!summary.fits())
        throw source_.faultAt(field, fields_[field].plan.name + ": " +
                                         inQuotes(shownText(source_.value(field))) +
                                         " lies too far from the other values to be held");
}

std::vector<std::string> FlatScan::notes() const {
    std::vector<std::string> notes;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const auto& culprit = this->culprit(i);
        if (culprit && watches_[i].guess.isMostlyNumbers())
            notes.push_back(fields_[i].plan.name + " is STRING: " + inQuotes(culprit->text) +
                            " in line " + std::to_string(culprit->place.line) + ", column " +
                            std::to_string(culprit->place.column) + " " + culprit->why);
    }
    return notes;
}

void FlatScan::settle() {
    const std::vector<SourceField>& told = source_.fields();
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i].plan.codes.empty())
            fields_[i].plan.codes = told[i].plan.codes;
        if (!fields_[i].typeKnown)
            watches_[i].guess.settle(fields_[i], watches_[i].summary);
        if (plan_.levelOf[i] == noLevel && !placed_[i])
            plan_.levelOf[i] = plan_.shapes.at(fields_[i].shape).back();
    }
    plan_.assignFields(fields_);
}

} // namespace kelx::tools
