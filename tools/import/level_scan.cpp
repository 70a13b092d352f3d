// SPDX-License-Identifier: Apache-2.0
#include "import/level_scan.h"

#include "import/values.h"

#include <algorithm>

namespace kelx::tools {

using storage::ValueType;

LevelFile::LevelFile(const std::filesystem::path& file, const LevelPlan& plan, const Codebook& book,
                     Faults& faults, const BytesRead& onRead, std::optional<char> separator)
    : csv_(file, onRead, separator), faults_(faults), faulty_(csv_.fields().size(), 0) {
    bindColumns(plan);
    for (const FieldPlan& field : plan.fields)
        if (std::find(columns_.begin(), columns_.end(), &field) == columns_.end())
            throw LocatedError(book.file, field.place,
                               "the field " + field.name + " is no column of " + csv_.name());
    for (const FieldPlan& field : plan.fields)
        if (field.role == FieldRole::ParentKey)
            parentKeys_.push_back(static_cast<std::size_t>(
                std::find(columns_.begin(), columns_.end(), &field) - columns_.begin()));
}

void LevelFile::bindColumns(const LevelPlan& plan) {
    for (std::size_t i = 0; i < csv_.fields().size(); ++i) {
        const std::string& name = csv_.fields()[i].name;
        const FieldPlan* field = plan.find(upperCase(name));
        if (field == nullptr)
            fail(i, "unknown column " + inQuotes(name) + ": the codebook has no such field of " +
                        plan.name);
        if (std::find(columns_.begin(), columns_.end(), field) != columns_.end())
            fail(i, "the column " + field->name + " stands here twice");
        if (field->role == FieldRole::Key)
            keyColumn_ = i;
        columns_.push_back(field);
    }
}

bool LevelFile::next() {
    while (csv_.next()) {
        const std::string fault = csv_.rowFault();
        if (fault.empty())
            return true;
        faults_.meet(csv_.faultAt(csv_.faultyField(), fault));
        ++faultyRows_;
    }
    return false;
}

TypedValue LevelFile::value(std::size_t column) const {
    const FieldPlan& field = *columns_[column];
    TypedValue value;
    const std::string problem = readValue(csv_.value(column), field, value);
    if (problem.empty())
        return value;
    faults_.meet(csv_.faultAt(column, field.name + ": " + inQuotes(text(column)) + problem));
    ++faulty_[column];
    return {};
}

LevelScan::LevelScan(const std::filesystem::path& file, const LevelPlan& plan, const Codebook& book,
                     Position position, Faults& faults, const BytesRead& onRead,
                     std::optional<char> separator)
    : plan_(plan), bookName_(book.file), file_(file), separator_(separator),
      position_(std::move(position)), faults_(faults) {
    LevelFile level(file, plan, book, faults, onRead, separator);
    checkParentKeys(level);
    for (const FieldPlan* field : level.columns()) {
        ColumnSummary summary;
        summary.field = field;
        columns_.push_back(summary);
        collectLabels(*field);
    }
    while (level.next())
        readRow(level);
    if (position_.isRoot && records_ != 1)
        throw LocatedError(level.name(), {1, 1},
                           plan_.name + " is the root and must have one record");
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_[i].faulty = level.faultyValues(i);
    faultyRows_ = level.faultyRows();
    arrange();
}

void LevelScan::collectLabels(const FieldPlan& field) {
    Labels& labels = labels_.emplace_back();
    if (!field.coded)
        return;
    for (const CodeEntry& entry : field.codes) {
        labels.texts.insert(entry.code);
        if (const auto number = parseInteger(entry.code))
            labels.integers.push_back(*number);
    }
    std::sort(labels.integers.begin(), labels.integers.end());
}

void LevelScan::checkParentKeys(const LevelFile& level) const {
    const std::size_t keys = level.parentKeys().size();
    const std::size_t above = position_.chain.size();
    if (keys > above)
        throw LocatedError(bookName_, plan_.place,
                           plan_.name + " has " + std::to_string(keys) + " parent keys, but only " +
                               std::to_string(above) + " levels above it");
    if (keys == 0 && above > 0)
        throw LocatedError(bookName_, plan_.place,
                           plan_.name + " lies under " + position_.chain.back()->plan().name +
                               " and so needs a parent key");
    for (std::size_t i = above - keys; i < above; ++i) {
        const LevelPlan& ancestor = position_.chain[i]->plan();
        if (ancestor.withRole(FieldRole::Key) == nullptr)
            throw LocatedError(bookName_, ancestor.place,
                               ancestor.name + " needs a key, since " + plan_.name +
                                   " lies under it");
    }
}

void LevelScan::readRow(const LevelFile& level) {
    if (position_.isRoot && records_ == 1)
        level.fail(0, plan_.name + " is the root and must have one record");
    std::uint64_t parent = 0;
    const std::uint64_t row = rows_++;
    if (!place(level, parent)) {
        leftOut_.push_back(row);
        return;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].field->role != FieldRole::ParentKey)
            noteValue(columns_[i], level, i);
    parents_.push_back(parent);
    ++records_;
}

/// False where the row has no parent or a key that is no key, and that is tolerated.
bool LevelScan::place(const LevelFile& level, std::uint64_t& parent) {
    std::uint64_t* count = &orphans_;
    try {
        parent = parentOf(level);
        count = &duplicates_;
        noteKey(level, parent);
        return true;
    } catch (const LocatedError& fault) {
        faults_.meet(fault);
        ++*count;
        return false;
    }
}

void LevelScan::noteValue(ColumnSummary& summary, const LevelFile& level, std::size_t column) {
    const TypedValue value = level.value(column);
    summary.note(value);
    if (!summary.fits()) // not to be tolerated: there is no telling which of them are wrong
        level.fail(column, summary.field->name + ": " + inQuotes(level.text(column)) +
                               " lies too far from the other values to be held");
    if (value.blank)
        ++summary.blanks;
    else if (summary.field->coded && !hasLabel(summary, value, column))
        ++summary.outside;
}

bool LevelScan::hasLabel(const ColumnSummary& summary, const TypedValue& value,
                         std::size_t column) const {
    const Labels& labels = labels_[column];
    switch (summary.field->type) {
    case ValueType::Integer:
        return std::binary_search(labels.integers.begin(), labels.integers.end(), value.integer);
    case ValueType::Real:
        return labels.texts.contains(numberText(value.real));
    default:
        return labels.texts.contains(std::string(value.text));
    }
}

void LevelScan::noteKey(const LevelFile& level, std::uint64_t parent) {
    if (!level.keyColumn())
        return;
    const TypedValue key = level.value(*level.keyColumn());
    if (key.blank)
        level.fail(*level.keyColumn(), "the key of " + plan_.name + " is blank");
    const bool isText = plan_.withRole(FieldRole::Key)->type == ValueType::String;
    if (!keys_.add(parent, isText ? keyTexts_.numberOf(key.text) : key.integer))
        level.fail(*level.keyColumn(), "the key " + inQuotes(std::string(key.text)) +
                                           " occurs twice" +
                                           (position_.chain.empty() ? "" : " under one parent"));
}

std::uint64_t LevelScan::parentOf(const LevelFile& level) {
    const auto& columns = level.parentKeys();
    bool same = lastParentKnown_;
    lastParentKnown_ = false;
    lastParentKey_.resize(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string text = level.text(columns[i]);
        if (same && lastParentKey_[i] == text)
            continue;
        lastParentKey_[i] = text;
        same = false;
    }
    if (!same)
        lastParent_ = lookUpParent(level);
    lastParentKnown_ = true;
    return lastParent_;
}

std::uint64_t LevelScan::lookUpParent(const LevelFile& level) const {
    const auto& columns = level.parentKeys();
    std::uint64_t record = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::size_t depth = position_.chain.size() - columns.size() + i;
        const LevelScan& ancestor = *position_.chain[depth];
        const std::string text = level.text(columns[i]);
        if (text.empty())
            level.fail(columns[i],
                       "the parent key " + level.columns()[columns[i]]->name + " is blank");
        const auto key = ancestor.keyNumber(text);
        std::optional<std::uint64_t> row;
        if (key && i == 0 && depth > 0)
            row = ancestor.rowWithKey(level, columns[i], *key);
        else if (key)
            row = ancestor.keys_.find(record, *key);
        if (!row)
            level.fail(columns[i], "no record of " + ancestor.plan().name + " has the key " +
                                       inQuotes(text) + (i > 0 ? " there" : ""));
        record = ancestor.recordOfRow_.empty() ? *row : ancestor.recordOfRow_[*row];
    }
    return record;
}

std::optional<std::int64_t> LevelScan::keyNumber(std::string_view text) const {
    return plan_.withRole(FieldRole::Key)->type == ValueType::String ? keyTexts_.find(text)
                                                                     : parseInteger(text);
}

/// The row of this level that a file below means by a key without the keys above it.
std::optional<std::uint64_t> LevelScan::rowWithKey(const LevelFile& child, std::size_t column,
                                                   std::int64_t key) const {
    if (rowByKey_.empty())
        for (std::uint64_t row = 0; row < keys_.size(); ++row) {
            const auto [place, isNew] = rowByKey_.try_emplace(keys_.key(row), row);
            if (!isNew)
                place->second = ambiguous;
        }
    const auto found = rowByKey_.find(key);
    if (found == rowByKey_.end())
        return std::nullopt;
    if (found->second == ambiguous)
        child.fail(column, "several records of " + plan_.name + " have the key " +
                               inQuotes(child.text(column)) +
                               "; the keys of the levels above are needed too");
    return found->second;
}

void LevelScan::arrange() {
    const std::uint64_t parentCount =
        position_.chain.empty() ? 1 : position_.chain.back()->records();
    childCounts_.assign(parentCount, 0);
    for (const std::uint64_t parent : parents_)
        ++childCounts_[parent];
    if (!std::is_sorted(parents_.begin(), parents_.end())) {
        std::vector<std::uint64_t> next(parentCount, 0);
        for (std::uint64_t i = 1; i < parentCount; ++i)
            next[i] = next[i - 1] + childCounts_[i - 1];
        order_.resize(parents_.size());
        recordOfRow_.resize(parents_.size());
        for (std::uint64_t row = 0; row < parents_.size(); ++row) {
            recordOfRow_[row] = next[parents_[row]]++;
            order_[recordOfRow_[row]] = row;
        }
    }
    parents_ = {};
}

} // namespace kelx::tools
